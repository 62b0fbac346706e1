#include "core/assessment_store.h"

#include <algorithm>
#include <utility>

#include "core/earlier_copies.h"
#include "core/file_stamp.h"
#include "core/store_connection.h"
#include "core/strangers_file.h"

namespace kel {

using store::bracketed;
using store::guarded;
using store::listed;

namespace {

std::vector<std::uint64_t> all_of(const column_digests& digests) {
    std::vector<std::uint64_t> all;
    all.reserve(static_cast<std::size_t>(digests.columns()));
    for (int column = 0; column < digests.columns(); ++column)
        all.push_back(digests.of(column));
    return all;
}

// Of these columns or of all; none if one of them is not there, or if no row is.
std::vector<std::uint64_t> digests_of(const store::emptied_table& table,
                                      const std::vector<std::string_view>& columns) {
    if (table.names.empty() || columns.empty()) return all_of(table.digests);
    std::vector<std::uint64_t> chosen;
    chosen.reserve(columns.size());
    for (const std::string_view column : columns) {
        const auto named = [column](const std::string& name) { return store::same_name(name, column); };
        const auto found = std::find_if(table.names.begin(), table.names.end(), named);
        if (found == table.names.end()) return {};
        chosen.push_back(table.digests.of(static_cast<int>(found - table.names.begin())));
    }
    return chosen;
}

}  // namespace

database::database(const std::string& path, const std::string& named)
    : shared_(guarded(named, [&] { return connection::opened(path, named); })),
      schema_("main"),
      path_(named) {}

database database::for_reading(const std::string& path) {
    return {guarded(path, [&] { return connection::opened(path, path, SQLite::OPEN_READONLY); }), "main",
            path};
}

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
        shared_->attached_files.push_back(path);
    });
    return {shared_, std::move(schema), path};
}

std::uint64_t database::digest(std::string_view table, const std::vector<std::string_view>& columns,
                               std::uint64_t from) const {
    std::uint64_t digest = joined_digest(from, table);
    for (const std::uint64_t of_column : column_digests_of(table, columns))
        digest = joined_digest(digest, of_column);
    return digest;
}

// What this save has written needs no reading.
std::vector<std::uint64_t> database::column_digests_of(std::string_view table,
                                                       const std::vector<std::string_view>& columns) const {
    const auto written = shared_->emptied.find(quoted(table));
    if (written != shared_->emptied.end())
        if (auto known = digests_of(written->second, columns); !known.empty()) return known;
    return guarded(path_, [&] {
        store::row_query rows(shared_->sqlite, "SELECT " + (columns.empty() ? "*" : listed(columns)) +
                                                   " FROM " + quoted(table) + " ORDER BY rowid");
        column_digests digests(rows.column_count());
        while (rows.step())
            for (int column = 0; column < digests.columns(); ++column)
                digests.add(column, rows.text(column));
        return all_of(digests);
    });
}

file_stamp database::stamp() const {
    constexpr std::size_t counter_at = 24;
    file_stamp stamp = stamp_from_outside(path_);
    const store::file_header header = store::header_of(shared_->sqlite, schema_);
    for (std::size_t byte = counter_at; byte < header.size(); ++byte)
        stamp.change_counter = stamp.change_counter << 8U | header.at(byte);
    return stamp;
}

bool database::has_written() const {
    return sqlite3_total_changes(shared_->sqlite.getHandle()) != 0;
}

std::optional<std::string> database::lookup(std::string_view column, std::string_view table,
                                            std::string_view key_column, std::string_view value) const {
    const recordset found = open(table, key_column, value);
    if (found.eof()) return std::nullopt;
    return found.text(column);
}

void database::delete_rows(std::string_view table) const {
    guarded(path_, [&] { shared_->statement("DELETE FROM " + quoted(table)).exec(); });
    if (shared_->saving) shared_->emptied[quoted(table)] = {};
}

void database::delete_rows(std::string_view table, std::string_view column, std::string_view value) const {
    guarded(path_, [&] {
        auto& statement =
            shared_->statement("DELETE FROM " + quoted(table) + " WHERE " + bracketed(column) + " = ?");
        statement.bind(1, std::string(value));
        statement.exec();
        shared_->emptied.erase(quoted(table));
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
        shared_->emptied.erase(quoted(table));
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

save_transaction::save_transaction(const database& db, earlier_copies& copies) : save_transaction(db) {
    for (const std::string& file : db.shared_->files_of_persons(db.path()))
        copies.keep_first_of_day(file);
}

save_transaction::~save_transaction() {
    if (!open_) return;
    const auto roll_back = [this] {
        try {
            db_.shared_->end("ROLLBACK");
        } catch (const SQLite::Exception&) {
            // The engine has rolled back by itself, as after a full disc.
        }
    };
    roll_back();
    if (db_.shared_->attached == 0) return;
    try {
        db_.shared_->begin();
    } catch (const SQLite::Exception&) {
        return;  // Another program is at the file; the next save clears away.
    }
    roll_back();
}

void save_transaction::commit() {
    guarded(db_.path(), [&] { db_.shared_->end("COMMIT"); });
    open_ = false;
}

}  // namespace kel
