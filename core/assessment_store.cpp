#include "core/assessment_store.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>
#include <utility>
#include <variant>

#include "core/strangers_file.h"
#include "core/super_journals.h"

namespace kel {

namespace {

constexpr int busy_timeout_ms = 2000;

std::string trouble_of(const SQLite::Exception& e) {
    switch (e.getErrorCode()) {
        case SQLITE_NOTADB:
            return "it is not an assessment file, or it is damaged.";
        case SQLITE_CORRUPT:
            return "the file is damaged.";
        case SQLITE_CANTOPEN:
            return "it cannot be opened. It may have been deleted, moved or protected.";
        case SQLITE_READONLY:
            return "it cannot be written. The file or its folder is read-only.";
        case SQLITE_FULL:
            return "the disc is full.";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "it is in use by another program.";
        case SQLITE_IOERR:
            return "it cannot be read or written. The disc may be full or gone.";
        case SQLITE_TOOBIG:
            return "it holds a text that is too long.";
        default:
            return std::string(e.what()) + ".";
    }
}

// An empty file and another program's are databases too.
std::string missing_table(const SQLite::Exception& e) {
    const std::string_view what = e.what();
    if (what.rfind("no such table: ", 0) != 0) return {};
    const auto table = what.substr(what.find('.') + 1);
    return "it is no assessment: it has no table [" + std::string(table) + "].";
}

bool is_in_use(const SQLite::Exception& e) {
    return e.getErrorCode() == SQLITE_BUSY || e.getErrorCode() == SQLITE_LOCKED;
}

template <class F>
auto guarded(const std::string& path, F&& work) {
    try {
        return work();
    } catch (const SQLite::Exception& e) {
        const std::string missing = missing_table(e);
        throw file_error(path, missing.empty() ? trouble_of(e) : missing, is_in_use(e));
    }
}

std::string bracketed(std::string_view name) {
    std::string quoted = "[";
    return quoted.append(name).append("]");
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool same_name(std::string_view a, std::string_view b) {
    return a == b || std::equal(a.begin(), a.end(), b.begin(), b.end(),
                                [](char x, char y) { return lower(x) == lower(y); });
}

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

struct statement_end {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

}  // namespace

struct database::connection {
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
        const std::unique_ptr<sqlite3_stmt, statement_end> rows(prepared);
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

struct recordset::rows {
    rows(const database& d, std::string_view name, std::string filter, std::string_view key_value)
        : db(d),
          table(name),
          where(std::move(filter)),
          key(key_value),
          select(db.shared_->sqlite, "SELECT *, rowid FROM " + db.quoted(name) + where + " ORDER BY rowid") {
        if (!where.empty()) select.bind(1, key);
        for (int i = 0; i < select.getColumnCount() - 1; ++i)
            names.emplace_back(select.getColumnName(i));
        pending.resize(names.size());
    }

    using value = std::variant<std::monostate, std::string, const std::string*, double>;

    bool is_set(std::size_t column) const { return pending[column].index() != 0; }
    static void bind(SQLite::Statement& statement, int index, const value& v) {
        if (const auto* text = std::get_if<std::string>(&v)) statement.bindNoCopy(index, *text);
        if (const auto* kept = std::get_if<const std::string*>(&v)) statement.bindNoCopy(index, **kept);
        if (const auto* number = std::get_if<double>(&v)) statement.bind(index, *number);
    }
    SQLite::Statement& insert_statement();
    SQLite::Statement& update_statement();
    void insert();
    void change();
    std::int64_t rowid() const { return select.getColumn(static_cast<int>(names.size())).getInt64(); }

    database db;
    std::string table;
    std::string where;
    std::string key;
    mutable SQLite::Statement select;
    std::vector<std::string> names;
    mutable std::size_t last_found = 0;
    bool has_row = false;
    int walked = 0;
    enum class edit_mode { none, adding, editing } mode = edit_mode::none;
    std::vector<value> pending;
    // Prepared for the row before and owned by the connection; most rows set the columns that it set.
    SQLite::Statement* inserting = nullptr;
    SQLite::Statement* changing = nullptr;
    std::vector<bool> changing_columns;
};

SQLite::Statement& recordset::rows::insert_statement() {
    if (inserting) return database::connection::rewound(*inserting);
    std::string columns;
    std::string marks;
    for (const auto& name : names) {
        columns += bracketed(name) + ", ";
        marks += "?, ";
    }
    columns.resize(columns.size() - 2);
    marks.resize(marks.size() - 2);
    inserting = &db.shared_->statement("INSERT INTO " + db.quoted(table) + " (" + columns + ") VALUES (" +
                                       marks + ")");
    return *inserting;
}

void recordset::rows::insert() {
    auto& statement = insert_statement();
    for (std::size_t i = 0; i < pending.size(); ++i)
        bind(statement, static_cast<int>(i) + 1, pending[i]);
    statement.exec();
}

SQLite::Statement& recordset::rows::update_statement() {
    std::vector<bool> columns(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        columns[i] = is_set(i);
    if (changing && columns == changing_columns) return database::connection::rewound(*changing);
    std::string sets;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (columns[i]) sets += bracketed(names[i]) + " = ?, ";
    sets.resize(sets.size() - 2);
    changing = &db.shared_->statement("UPDATE " + db.quoted(table) + " SET " + sets + " WHERE rowid = ?");
    changing_columns = std::move(columns);
    return *changing;
}

void recordset::rows::change() {
    if (std::all_of(pending.begin(), pending.end(), [](const value& v) { return v.index() == 0; })) return;
    auto& statement = update_statement();
    int index = 0;
    for (const auto& v : pending)
        if (v.index() != 0) bind(statement, ++index, v);
    statement.bind(++index, rowid());
    statement.exec();
}

recordset::recordset(std::unique_ptr<rows> r) : rows_(std::move(r)) {
    move_next();
}
recordset::recordset(recordset&&) noexcept = default;
recordset& recordset::operator=(recordset&&) noexcept = default;
recordset::~recordset() = default;

recordset database::open(std::string_view table) const {
    return guarded(path_, [&] { return recordset(std::make_unique<recordset::rows>(*this, table, "", "")); });
}

recordset database::open(std::string_view table, std::string_view column, std::string_view value) const {
    return guarded(path_, [&] {
        return recordset(
            std::make_unique<recordset::rows>(*this, table, " WHERE " + bracketed(column) + " = ?", value));
    });
}

bool recordset::eof() const {
    return !rows_->has_row;
}

void recordset::move_next() {
    guarded(rows_->db.path(), [&] { rows_->has_row = rows_->select.executeStep(); });
    check_row_count(++rows_->walked, rows_->db.path(), rows_->table);
}

int recordset::record_count() const {
    return guarded(rows_->db.path(), [&] {
        auto& statement = rows_->db.shared_->statement("SELECT count(*) FROM " +
                                                       rows_->db.quoted(rows_->table) + rows_->where);
        if (!rows_->where.empty()) statement.bind(1, rows_->key);
        statement.executeStep();
        const int count = statement.getColumn(0).getInt();
        statement.reset();
        return count;
    });
}

int recordset::column_count() const {
    return static_cast<int>(rows_->names.size());
}

int recordset::column(std::string_view name) const {
    // Callers mostly ask in table order, so the search starts behind the column found last.
    const auto& names = rows_->names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t candidate = (rows_->last_found + i) % names.size();
        if (!same_name(names[candidate], name)) continue;
        rows_->last_found = (candidate + 1) % names.size();
        return static_cast<int>(candidate);
    }
    throw file_error(rows_->db.path(),
                     "its table " + bracketed(rows_->table) + " has no column " + bracketed(name) + ".");
}

std::string recordset::text(int column) const {
    return guarded(rows_->db.path(), [&] { return rows_->select.getColumn(column).getString(); });
}

std::optional<date> recordset::date_value(std::string_view name) const {
    const std::string stored = text(name);
    if (stored.empty()) return std::nullopt;
    const auto d = parse_date(stored);
    if (!d)
        throw file_error(rows_->db.path(), "the text \"" + stored.substr(0, 40) + "\" in " +
                                               bracketed(rows_->table) + "." + bracketed(name) +
                                               " is not a date.");
    return d;
}

void recordset::add_new() {
    rows_->mode = rows::edit_mode::adding;
    std::fill(rows_->pending.begin(), rows_->pending.end(), rows::value{});
}

void recordset::edit() {
    rows_->mode = rows::edit_mode::editing;
    std::fill(rows_->pending.begin(), rows_->pending.end(), rows::value{});
}

void recordset::set(int column, std::string_view text) {
    rows_->pending.at(static_cast<std::size_t>(column)) = std::string(text);
}

void recordset::set_kept(int column, const std::string& text) {
    rows_->pending.at(static_cast<std::size_t>(column)) = &text;
}

void recordset::set(std::string_view name, date d) {
    set(column(name), iso_date_text(d));
}

void recordset::set(std::string_view name, double number) {
    rows_->pending.at(static_cast<std::size_t>(column(name))) = number;
}

void recordset::update() {
    guarded(rows_->db.path(), [&] {
        if (rows_->mode == rows::edit_mode::adding) rows_->insert();
        if (rows_->mode == rows::edit_mode::editing) rows_->change();
    });
    rows_->mode = rows::edit_mode::none;
}

void recordset::remove() {
    guarded(rows_->db.path(), [&] {
        auto& statement = rows_->db.shared_->statement("DELETE FROM " + rows_->db.quoted(rows_->table) +
                                                       " WHERE rowid = ?");
        statement.bind(1, rows_->rowid());
        statement.exec();
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
