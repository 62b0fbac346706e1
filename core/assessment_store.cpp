#include "core/assessment_store.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "core/store_connection.h"
#include "core/strangers_file.h"

namespace kel {

using store::bracketed;
using store::guarded;

namespace {

// A word at a time: a save waits for it.
std::uint64_t mixed(std::uint64_t digest, std::string_view text) {
    constexpr std::uint64_t prime = 0x9e3779b97f4a7c15U;
    const auto mix = [&](std::uint64_t word) {
        digest = (digest ^ word) * prime;
        digest ^= digest >> 32U;
    };
    mix(text.size());  // "ab", "c" is not "a", "bc"
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), sizeof(std::uint64_t)))) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data(), std::min(text.size(), sizeof word));
        mix(word);
    }
    return digest;
}

}  // namespace

database::database(const std::string& path, const std::string& named)
    : shared_(guarded(named, [&] { return connection::opened(path, named); })),
      schema_("main"),
      path_(named) {}

database::database(std::shared_ptr<connection> shared, std::string schema, std::string path)
    : shared_(std::move(shared)), schema_(std::move(schema)), path_(std::move(path)) {}

const std::string& database::path() const {
    return path_;
}

std::string database::quoted(std::string_view table) const {
    return schema_ + "." + bracketed(table);
}

database database::attach(const std::string& path) const {
    std::string schema = "linked" + std::to_string(++shared_->attached);
    guarded(path, [&] {
        check_file_size(path);
        SQLite::Statement statement(shared_->sqlite, "ATTACH DATABASE ? AS " + schema);
        statement.bindNoCopy(1, path);
        statement.exec();
        check_layout(shared_->sqlite, schema, path);
    });
    return {shared_, std::move(schema), path};
}

// Beside the wrapper, whose cells each count their references.
std::uint64_t database::digest(std::string_view table, const std::vector<std::string_view>& columns,
                               std::uint64_t from) const {
    std::string names;
    for (const std::string_view column : columns)
        names += (names.empty() ? "" : ", ") + bracketed(column);
    const std::string sql =
        "SELECT " + (names.empty() ? "*" : names) + " FROM " + quoted(table) + " ORDER BY rowid";
    return guarded(path_, [&] {
        sqlite3* handle = shared_->sqlite.getHandle();
        sqlite3_stmt* prepared = nullptr;
        const auto check = [&](int result) {
            if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
                throw SQLite::Exception(handle, result);
            return result;
        };
        check(sqlite3_prepare_v2(handle, sql.c_str(), -1, &prepared, nullptr));
        const std::unique_ptr<sqlite3_stmt, store::statement_end> rows(prepared);
        std::uint64_t digest = mixed(from, table);
        while (check(sqlite3_step(prepared)) == SQLITE_ROW)
            for (int column = 0; column < sqlite3_column_count(prepared); ++column) {
                const auto* text = static_cast<const char*>(sqlite3_column_blob(prepared, column));
                const auto size = static_cast<std::size_t>(sqlite3_column_bytes(prepared, column));
                digest = mixed(digest, text ? std::string_view(text, size) : std::string_view{});
            }
        return digest;
    });
}

std::optional<std::string> database::lookup(std::string_view column, std::string_view table,
                                            std::string_view key_column, std::string_view value) const {
    const recordset found = open(table, key_column, value);
    if (found.eof()) return std::nullopt;
    return found.text(column);
}

void database::delete_rows(std::string_view table) const {
    guarded(path_, [&] { shared_->statement("DELETE FROM " + quoted(table)).exec(); });
}

void database::delete_rows(std::string_view table, std::string_view column, std::string_view value) const {
    guarded(path_, [&] {
        auto& statement =
            shared_->statement("DELETE FROM " + quoted(table) + " WHERE " + bracketed(column) + " = ?");
        statement.bind(1, std::string(value));
        statement.exec();
    });
}

int database::update_rows(std::string_view table, const std::vector<assignment>& values,
                          std::string_view key_column, std::string_view key) const {
    std::string sql = "UPDATE " + quoted(table) + " SET ";
    for (const auto& value : values)
        sql += bracketed(value.column) + " = ?, ";
    sql.resize(sql.size() - 2);
    sql += " WHERE " + bracketed(key_column) + " = ?";
    return guarded(path_, [&] {
        auto& statement = shared_->statement(sql);
        int index = 0;
        for (const auto& value : values)
            statement.bind(++index, std::string(value.text));
        statement.bind(++index, std::string(key));
        return statement.exec();
    });
}

save_transaction::save_transaction(const database& db) : db_(db) {
    guarded(db.path(), [&] {
        // A file that came in write-ahead mode must end as one plain file again.
        db.shared_->sqlite.exec("PRAGMA journal_mode = DELETE");
        db.shared_->begin();
    });
}

save_transaction::~save_transaction() {
    if (!open_) return;
    const auto exec_quietly = [this](const char* sql) {
        try {
            db_.shared_->sqlite.exec(sql);
        } catch (const SQLite::Exception&) {
            // The engine has rolled back by itself, as after a full disc.
        }
    };
    exec_quietly("ROLLBACK");
    if (db_.shared_->attached == 0) return;
    try {
        db_.shared_->begin();
    } catch (const SQLite::Exception&) {
        return;  // Another program is at the file; the next save clears away.
    }
    exec_quietly("ROLLBACK");
}

void save_transaction::commit() {
    guarded(db_.path(), [&] { db_.shared_->sqlite.exec("COMMIT"); });
    open_ = false;
}

}  // namespace kel
