// What the saves and loads of the modules are measured against: the same rows by bare prepared statements,
// without a working copy, without the store and its guards.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <string>

#include "tools/bench/bench_farm.h"

namespace kel::bench {

/// Runs `work` on the file opened anew, in one transaction, with the store's journal and the default
/// synchronous setting.
template <class F>
void save_bare(const std::string& file, F&& work) {
    SQLite::Database db(file, SQLite::OPEN_READWRITE);
    db.exec("PRAGMA journal_mode = DELETE");
    db.exec("BEGIN IMMEDIATE");
    work(db);
    db.exec("COMMIT");
}

/// Binds the cells to the marks from `first` on and runs the statement.
template <class Cells>
void run_bare(SQLite::Statement& statement, const Cells& cells, int first = 1) {
    for (const std::string& cell : cells)
        statement.bindNoCopy(first++, cell);
    statement.exec();
    statement.reset();
}

/// Replaces all rows of a table; `rows` must not be empty.
void write_bare(SQLite::Database& db, const std::string& table, const table_rows& rows);

}  // namespace kel::bench
