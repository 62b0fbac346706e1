// Makes a database file from texts that a person can review in a diff:
//   kel_build_databases OUT SCHEMA.sql [TABLE=ROWS.csv ...]
// The heading row of a CSV file names columns of its table; its rows replace what the schema put there, in
// their order. An empty field is empty text in a text column and NULL in a number column, and a column
// without a heading stays NULL. OUT is written beside itself and renamed, so that a failed build leaves no
// half file.
#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using csv_row = std::vector<std::string>;

std::string read_file(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + ": cannot be opened");
    return {std::istreambuf_iterator<char>(in), {}};
}

/// One field from `at` on, which is left behind the field; a quoted field may hold commas, line breaks and
/// doubled quotes.
std::string take_field(std::string_view text, std::size_t& at) {
    std::string field;
    if (at >= text.size() || text[at] != '"') {
        const std::size_t end = std::min(text.find_first_of(",\r\n", at), text.size());
        field = text.substr(at, end - at);
        at = end;
        return field;
    }
    for (++at; at < text.size(); ++at) {
        if (text[at] != '"') {
            field += text[at];
        } else if (text.substr(at + 1, 1) == "\"") {
            field += text[at++];
        } else {
            ++at;
            return field;
        }
    }
    throw std::runtime_error("a quoted field has no end");
}

/// Steps over a line break; anything but a line break or the end of the text is refused.
void take_line_end(std::string_view text, std::size_t& at) {
    if (text.substr(at, 1) == "\r") ++at;
    if (at < text.size() && text[at++] != '\n') throw std::runtime_error("text behind a quoted field");
}

/// All rows, the heading row first; every row has as many fields as the heading.
std::vector<csv_row> parse_csv(std::string_view text) {
    std::vector<csv_row> rows;
    for (std::size_t at = 0; at < text.size(); take_line_end(text, at)) {
        csv_row row{take_field(text, at)};
        while (text.substr(at, 1) == ",")
            row.push_back(take_field(text, ++at));
        if (!rows.empty() && row.size() != rows.front().size())
            throw std::runtime_error("row " + std::to_string(rows.size() + 1) + " has " +
                                     std::to_string(row.size()) + " fields");
        rows.push_back(std::move(row));
    }
    if (rows.empty()) throw std::runtime_error("no heading row");
    return rows;
}

std::string quoted(const std::string& name) {
    return "[" + name + "]";
}

struct column {
    std::string name;
    bool is_text;
};

/// The table's columns that the headings name; a heading that the table lacks is refused.
std::vector<column> columns_of(SQLite::Database& db, const std::string& table, const csv_row& headings) {
    std::vector<column> columns;
    SQLite::Statement find(db, "SELECT type FROM pragma_table_info(?) WHERE name = ?");
    for (const std::string& heading : headings) {
        find.bind(1, table);
        find.bind(2, heading);
        if (!find.executeStep()) throw std::runtime_error("[" + table + "] has no column [" + heading + "]");
        columns.push_back({heading, find.getColumn(0).getString() == "TEXT"});
        find.reset();
    }
    return columns;
}

SQLite::Statement insert_statement(SQLite::Database& db, const std::string& table,
                                   const std::vector<column>& columns) {
    std::string names;
    std::string marks;
    for (const column& c : columns) {
        names += (names.empty() ? "" : ", ") + quoted(c.name);
        marks += marks.empty() ? "?" : ", ?";
    }
    return {db, "INSERT INTO " + quoted(table) + " (" + names + ") VALUES (" + marks + ")"};
}

void refuse_text_numbers(SQLite::Database& db, const std::string& table, const std::vector<column>& columns) {
    for (const column& c : columns) {
        if (c.is_text) continue;
        SQLite::Statement find(db, "SELECT " + quoted(c.name) + " FROM " + quoted(table) + " WHERE typeof(" +
                                       quoted(c.name) + ") = 'text'");
        if (find.executeStep())
            throw std::runtime_error("[" + c.name + "] is no number: " + find.getColumn(0).getString());
    }
}

void fill_table(SQLite::Database& db, const std::string& table, const std::vector<csv_row>& rows) {
    const std::vector<column> columns = columns_of(db, table, rows.front());
    db.exec("DELETE FROM " + quoted(table));
    SQLite::Statement insert = insert_statement(db, table, columns);
    for (std::size_t r = 1; r < rows.size(); ++r) {
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const int parameter = static_cast<int>(c) + 1;
            if (rows[r][c].empty() && !columns[c].is_text)
                insert.bind(parameter);
            else
                insert.bind(parameter, rows[r][c]);
        }
        insert.exec();
        insert.reset();
    }
    refuse_text_numbers(db, table, columns);
}

/// `source` is TABLE=ROWS.csv.
void load_source(SQLite::Database& db, const std::string& source) {
    const std::size_t equals = source.find('=');
    if (equals == std::string::npos) throw std::runtime_error(source + ": TABLE=ROWS.csv is expected");
    const std::string path = source.substr(equals + 1);
    const std::string text = read_file(path);
    try {
        fill_table(db, source.substr(0, equals), parse_csv(text));
    } catch (const std::exception& trouble) {
        throw std::runtime_error(path + ": " + trouble.what());
    }
}

void build(const std::string& out, const std::string& schema, const std::vector<std::string>& sources) {
    const std::string unfinished = out + ".new";
    for (const char* rest : {"", "-journal"})
        std::filesystem::remove(unfinished + rest);
    {
        SQLite::Database db(unfinished, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        SQLite::Transaction transaction(db);
        db.exec(read_file(schema));
        for (const std::string& source : sources)
            load_source(db, source);
        transaction.commit();
    }
    std::filesystem::rename(unfinished, out);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 2) {
        std::cerr << "usage: kel_build_databases OUT SCHEMA.sql [TABLE=ROWS.csv ...]\n";
        return 2;
    }
    try {
        build(arguments[0], arguments[1], {arguments.begin() + 2, arguments.end()});
    } catch (const std::exception& trouble) {
        std::cerr << "kel_build_databases: " << trouble.what() << '\n';
        return 1;
    }
    return 0;
}
