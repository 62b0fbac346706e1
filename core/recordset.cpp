#include <algorithm>
#include <utility>
#include <variant>

#include "core/store_connection.h"
#include "core/strangers_file.h"

namespace kel {

using store::bracketed;
using store::guarded;
using store::same_name;

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

}  // namespace kel
