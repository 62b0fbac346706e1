// What the files of the store share and nobody else needs: the connection behind the open files, and its
// failures in words.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "core/assessment_store.h"
#include "core/strangers_file.h"
#include "core/super_journals.h"

namespace kel::store {

/// The failure in the words of the stop box.
file_error failure_of(const std::string& path, const SQLite::Exception& e);

/// Runs the work; a failure of the database is thrown as one of the file.
template <class F>
auto guarded(const std::string& path, F&& work) {
    try {
        return work();
    } catch (const SQLite::Exception& e) {
        throw failure_of(path, e);
    }
}

std::string bracketed(std::string_view name);

/// Names of columns, whose letters count alike in both cases.
bool same_name(std::string_view a, std::string_view b);

struct statement_end {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

}  // namespace kel::store

namespace kel {

struct database::connection {
    static constexpr int busy_timeout_ms = 2000;

    connection(const std::string& path, const std::string& named)
        : sqlite(path, SQLite::OPEN_READWRITE, busy_timeout_ms), main_file(path) {
        harden(sqlite.getHandle());
        check_layout(sqlite, "main", named);
    }

    static std::shared_ptr<connection> opened(const std::string& path, const std::string& named) {
        check_file_size(path);
        return std::make_shared<connection>(path, named);
    }

    // Prepared once per connection and text; the caller binds and runs it to its end.
    SQLite::Statement& statement(const std::string& sql) {
        auto& slot = prepared[sql];
        if (!slot) slot = std::make_unique<SQLite::Statement>(sqlite, sql);
        return rewound(*slot);
    }

    static SQLite::Statement& rewound(SQLite::Statement& statement) {
        statement.tryReset();
        statement.clearBindings();
        return statement;
    }

    /// Locks the files for writing, and clears away what an earlier save over several files left behind.
    void begin() {
        sqlite.exec("BEGIN IMMEDIATE");
        if (attached > 0) remove_spent_super_journals(main_file);
    }

    SQLite::Database sqlite;
    std::string main_file;
    std::map<std::string, std::unique_ptr<SQLite::Statement>> prepared;
    int attached = 0;
};

}  // namespace kel
