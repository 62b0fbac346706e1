// What the files of the store share and nobody else needs: the connection behind the open files, and its
// failures in words.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/column_digests.h"
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

/// The first bytes of an open file, read by its own handle: SQLite's locks end with the first handle of the
/// process that is closed. Zeros where there are none.
using file_header = std::array<unsigned char, 28>;
file_header header_of(const SQLite::Database& db, const std::string& schema);

/// Holds what is read from here on to one state of the file. Throws for a file in write-ahead mode, which
/// cannot be read without writing beside it.
void begin_reading(SQLite::Database& db, const std::string& path);

std::string bracketed(std::string_view name);
/// [one], [two]
std::string listed(const std::vector<std::string_view>& names);

/// Names of columns, whose letters count alike in both cases.
bool same_name(std::string_view a, std::string_view b);

/// A SELECT without the wrapper, whose cells each count their references. Throws SQLite::Exception.
class row_query {
  public:
    row_query(const SQLite::Database& db, const std::string& sql);

    /// `text` must stay until the last step.
    void bind(int index, const std::string& text);
    /// The next row; false behind the last one, then and ever after.
    bool step();
    int column_count() const { return sqlite3_column_count(statement_.get()); }
    const char* name(int column) const { return sqlite3_column_name(statement_.get(), column); }
    /// Of the row that it stands on, until the next step; empty for a null.
    std::string_view text(int column) const {
        sqlite3_value* value = sqlite3_column_value(statement_.get(), column);
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
        return text ? std::string_view(text, size) : std::string_view{};
    }
    std::int64_t number(int column) const { return sqlite3_column_int64(statement_.get(), column); }
    /// Whether every column but the last `behind` ones gives back the text that was put in.
    bool keeps_texts(int behind) const;

  private:
    struct statement_end {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    void check(int result) const;

    sqlite3* db_;
    std::unique_ptr<sqlite3_stmt, statement_end> statement_;
    bool ended_ = false;
};

/// A table that a save has emptied, with the digests of the rows that it has put in since.
struct emptied_table {
    std::vector<std::string> names;  // of all columns; none before the first row
    column_digests digests{0};
};

}  // namespace kel::store

namespace kel {

struct database::connection {
    static constexpr int busy_timeout_ms = 2000;
    static constexpr int reading_timeout_ms = 250;  // who only looks does not keep anybody waiting

    // One thread has it for itself, so that no cell waits for a lock and each can be read as it lies there.
    connection(const std::string& path, const std::string& named, int mode)
        : sqlite(path, mode | SQLite::OPEN_NOMUTEX,
                 mode == SQLite::OPEN_READONLY ? reading_timeout_ms : busy_timeout_ms),
          main_file(path) {
        harden(sqlite.getHandle());
        if (mode == SQLite::OPEN_READONLY) store::begin_reading(sqlite, named);
        check_layout(sqlite, "main", named);
    }

    static std::shared_ptr<connection> opened(const std::string& path, const std::string& named,
                                              int mode = SQLite::OPEN_READWRITE) {
        check_file_size(path);
        return std::make_shared<connection>(path, named, mode);
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
        saving = true;
    }

    void end(const char* how) {
        saving = false;
        emptied.clear();
        sqlite.exec(how);
    }

    /// The first file, unless it is made beside its place, and those attached to it.
    std::vector<std::string> files_of_persons(const std::string& named) const {
        std::vector<std::string> files = attached_files;
        if (main_file == named) files.insert(files.begin(), main_file);
        return files;
    }

    SQLite::Database sqlite;
    std::string main_file;
    std::vector<std::string> attached_files;
    std::map<std::string, std::unique_ptr<SQLite::Statement>> prepared;
    int attached = 0;
    /// By schema and name. Only within a save, and only as long as nothing but whole rows was added to them.
    std::map<std::string, store::emptied_table> emptied;
    bool saving = false;
};

}  // namespace kel
