#include <algorithm>
#include <stdexcept>
#include <utility>
#include <variant>

#include "core/store_connection.h"
#include "core/strangers_file.h"

namespace kel {

using store::bracketed;
using store::guarded;
using store::same_name;

namespace {

file_error no_column(const std::string& path, std::string_view table, std::string_view column) {
    return {path, "its table " + bracketed(table) + " has no column " + bracketed(column) + "."};
}

// What the engine says of a column that was asked for by its name.
void throw_missing_column(const SQLite::Exception& e, const database& db, std::string_view table) {
    constexpr std::string_view opening = "no such column: ";
    const std::string_view what = e.what();
    if (what.starts_with(opening)) throw no_column(db.path(), table, what.substr(opening.size()));
}

constexpr const char* all_columns = "*";

}  // namespace

struct recordset::rows {
    rows(const database& d, std::string_view name, const std::string& columns, std::string filter = {},
         std::string_view key_value = {})
        : db(d),
          table(name),
          where(std::move(filter)),
          key(key_value),
          place(db.quoted(name)),
          select(db.shared_->sqlite,
                 "SELECT " + columns + ", rowid FROM " + place + where + " ORDER BY rowid"),
          takes_whole_texts(columns == all_columns && select.keeps_texts(1)) {
        if (!where.empty()) select.bind(1, key);
        for (int i = 0; i < select.column_count() - 1; ++i)
            names.emplace_back(select.name(i));
        pending.resize(names.size());
    }

    using value = std::variant<std::monostate, std::string, const std::string*, double>;

    bool is_set(std::size_t column) const { return pending[column].index() != 0; }
    static void bind(SQLite::Statement& statement, int index, const value& v) {
        if (const auto* text = std::get_if<std::string>(&v)) statement.bindNoCopy(index, *text);
        if (const auto* kept = std::get_if<const std::string*>(&v)) statement.bindNoCopy(index, **kept);
        if (const auto* number = std::get_if<double>(&v)) statement.bind(index, *number);
    }
    static std::string_view text_of(const value& v) {
        if (const auto* text = std::get_if<std::string>(&v)) return *text;
        if (const auto* kept = std::get_if<const std::string*>(&v)) return **kept;
        return {};
    }
    void forget_pending() {
        for (value& v : pending)
            v.emplace<std::monostate>();
    }
    void prepare_insert();
    bool stays_bound(std::size_t column) const;
    SQLite::Statement& update_statement();
    void insert();
    void digest_inserted() const;
    void change();
    void remove();
    std::int64_t rowid() const { return select.number(static_cast<int>(names.size())); }

    database db;
    std::string table;
    std::string where;
    std::string key;
    std::string place;  // schema and table
    store::row_query select;
    bool takes_whole_texts;  // it has all columns, and each gives back the text that was put in
    std::vector<std::string> names;
    mutable std::size_t last_found = 0;
    bool has_row = false;
    int walked = 0;
    enum class edit_mode { none, adding, editing } mode = edit_mode::none;
    std::vector<value> pending;
    std::unique_ptr<SQLite::Statement> inserting;
    std::vector<value> bound;  // to it, by the row before
    // Prepared for the row before and owned by the connection; most rows set the columns that it set.
    SQLite::Statement* changing = nullptr;
    std::vector<bool> changing_columns;
};

void recordset::rows::prepare_insert() {
    std::string columns;
    std::string marks;
    for (const auto& name : names) {
        columns += bracketed(name) + ", ";
        marks += "?, ";
    }
    columns.resize(columns.size() - 2);
    marks.resize(marks.size() - 2);
    inserting = std::make_unique<SQLite::Statement>(
        db.shared_->sqlite, "INSERT INTO " + place + " (" + columns + ") VALUES (" + marks + ")");
    bound.resize(names.size());
}

// Many columns have the same text row by row, or none.
bool recordset::rows::stays_bound(std::size_t column) const {
    const value& now = pending[column];
    const value& before = bound[column];
    return now.index() == before.index() && !std::holds_alternative<double>(now) &&
           text_of(now) == text_of(before);
}

void recordset::rows::insert() {
    if (!inserting) prepare_insert();
    inserting->tryReset();
    for (std::size_t i = 0; i < pending.size(); ++i) {
        if (stays_bound(i)) continue;
        const int index = static_cast<int>(i) + 1;
        bound[i] = pending[i];
        if (is_set(i))
            bind(*inserting, index, bound[i]);
        else
            inserting->bind(index);
    }
    inserting->exec();
    digest_inserted();
}

// What the file may keep as another text than was put in has no digest before it is read.
void recordset::rows::digest_inserted() const {
    auto& emptied = db.shared_->emptied;
    const auto found = emptied.find(place);
    if (found == emptied.end()) return;
    const auto is_number = [](const value& v) { return std::holds_alternative<double>(v); };
    if (!takes_whole_texts || std::any_of(pending.begin(), pending.end(), is_number)) {
        emptied.erase(found);
        return;
    }
    store::emptied_table& written = found->second;
    if (written.names.empty()) written = {names, column_digests(static_cast<int>(names.size()))};
    for (std::size_t i = 0; i < pending.size(); ++i)
        written.digests.add(static_cast<int>(i), text_of(pending[i]));
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
    changing = &db.shared_->statement("UPDATE " + place + " SET " + sets + " WHERE rowid = ?");
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
    db.shared_->emptied.erase(place);
}

void recordset::rows::remove() {
    auto& statement = db.shared_->statement("DELETE FROM " + place + " WHERE rowid = ?");
    statement.bind(1, rowid());
    statement.exec();
    db.shared_->emptied.erase(place);
}

recordset::recordset(std::unique_ptr<rows> r) : rows_(std::move(r)) {
    move_next();
}
recordset::recordset(recordset&&) noexcept = default;
recordset& recordset::operator=(recordset&&) noexcept = default;
recordset::~recordset() = default;

recordset database::open(std::string_view table) const {
    return guarded(path_,
                   [&] { return recordset(std::make_unique<recordset::rows>(*this, table, all_columns)); });
}

recordset database::open(std::string_view table, const std::vector<std::string_view>& columns) const {
    return guarded(path_, [&] {
        try {
            return recordset(std::make_unique<recordset::rows>(*this, table, store::listed(columns)));
        } catch (const SQLite::Exception& e) {
            throw_missing_column(e, *this, table);
            throw;
        }
    });
}

recordset database::open(std::string_view table, std::string_view column, std::string_view value) const {
    return guarded(path_, [&] {
        return recordset(std::make_unique<recordset::rows>(*this, table, all_columns,
                                                           " WHERE " + bracketed(column) + " = ?", value));
    });
}

bool recordset::eof() const {
    return !rows_->has_row;
}

void recordset::move_next() {
    guarded(rows_->db.path(), [&] { rows_->has_row = rows_->select.step(); });
    check_row_count(++rows_->walked, rows_->db.path(), rows_->table);
}

int recordset::record_count() const {
    return guarded(rows_->db.path(), [&] {
        auto& statement = rows_->db.shared_->statement("SELECT count(*) FROM " + rows_->place + rows_->where);
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
    throw no_column(rows_->db.path(), rows_->table, name);
}

std::string_view recordset::view(int column) const {
    if (!rows_->has_row)
        throw file_error(rows_->db.path(), "its table " + bracketed(rows_->table) + " has ended.");
    if (column < 0 || column >= column_count())
        throw std::out_of_range("a column that the table does not have");
    return rows_->select.text(column);
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
    rows_->forget_pending();
}

void recordset::edit() {
    rows_->mode = rows::edit_mode::editing;
    rows_->forget_pending();
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
    guarded(rows_->db.path(), [&] { rows_->remove(); });
}

}  // namespace kel
