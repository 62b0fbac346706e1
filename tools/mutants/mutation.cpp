#include "tools/mutants/mutation.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <array>
#include <fstream>
#include <iterator>
#include <vector>

#include "core/whole_file.h"

namespace kel::mutants {

namespace {

constexpr std::size_t page_bytes = 4096;

#define KEL_NUMBERS(n) "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " #n ") "

// clang-format off
constexpr std::array hostile{
    hostile_file{"nothing in it", ""},
    hostile_file{"another program's", "DROP TABLE [Type]; DROP TABLE [FarmProfile]; CREATE TABLE songs (title TEXT)"},
    hostile_file{"a default of 900 KB over 5,000 rows",
                 KEL_NUMBERS(5000) "INSERT INTO [Land] ([Field Area ID]) SELECT 'f' || i FROM n;"
                 "CREATE TABLE plain (a TEXT); PRAGMA writable_schema = 1;"
                 "UPDATE sqlite_schema SET sql = 'CREATE TABLE [Land] ([Field Area ID] TEXT, [Crop] TEXT DEFAULT ''' ||"
                 " hex(zeroblob(450000)) || ''')' WHERE name = 'Land'"},
    hostile_file{"a generated column",
                 KEL_NUMBERS(5000) "INSERT INTO [Land] ([Field Area ID]) SELECT 'f' || i FROM n;"
                 "ALTER TABLE [Land] ADD COLUMN [more] TEXT AS (hex(zeroblob(400000)))"},
    hostile_file{"a farm's name of 15 MB", "UPDATE [FarmProfile] SET [Name] = hex(zeroblob(7500000))"},
    hostile_file{"a farm's name as long as may be", "UPDATE [FarmProfile] SET [Name] = substr(hex(zeroblob(50000)), 1, 99000)"},
    hostile_file{"fields of long names",
                 KEL_NUMBERS(500) "INSERT INTO [Field Data] SELECT substr(hex(zeroblob(6000)), 1, 9900) || i, '1', '1', 'Sands' FROM n"},
    hostile_file{"fields of the longest names",
                 KEL_NUMBERS(60) "INSERT INTO [Field Data] SELECT substr(hex(zeroblob(50000)), 1, 95000) || i, '1', '1', 'Sands' FROM n;"
                 "INSERT INTO [Land] ([Field Area ID]) SELECT [Field Name] FROM [Field Data];"
                 "UPDATE [FarmProfile] SET [FieldNo] = '500'"},
    hostile_file{"names that look like markup",
                 "UPDATE [Field Data] SET [Field Name] = '<img src=/dev/zero> ' || rowid;"
                 "UPDATE [Land] SET [Field Area ID] = '<img src=/dev/zero> ' || rowid;"
                 "UPDATE [FarmProfile] SET [Name] = '<img src=/dev/zero>'"},
    hostile_file{"10,000 fields unknown", KEL_NUMBERS(10000)
                 "INSERT INTO [Manure_applic] ([Field Area ID]) SELECT 'nowhere ' || i FROM n"},
    hostile_file{"40,000 rows of one field",
                 KEL_NUMBERS(39000) "INSERT INTO [Land] ([Field Area ID]) SELECT [Field Name] FROM n, (SELECT * FROM [Field Data] LIMIT 1)"},
    hostile_file{"a million rows", KEL_NUMBERS(1000000) "INSERT INTO [Land_animals] SELECT NULL, NULL, NULL, NULL FROM n"},
    hostile_file{"4,000 fields", KEL_NUMBERS(4000) "INSERT INTO [Field Data] SELECT 'f' || i, '1', '1', 'Sands' FROM n"}};

// Texts where a number, a name, a date or a list entry should stand.
constexpr std::array<std::string_view, 16> odd_texts{
    "1e999", "-1e308", "nan", "inf", "0x7f", "1,5", "99999999999999999999", "-0", "  ", "'", "31/02/2024", "2024-13-45",
    "9999-12-31", "0000-00-00", "<img src=/dev/zero>", "\xff\xfe\x00"};
// clang-format on

std::string bytes_of(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::size_t below(chance& random, std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

void spoil_bytes(std::string& bytes, chance& random) {
    for (std::size_t left = 1 + below(random, 64); left > 0; --left)
        bytes[below(random, bytes.size())] = static_cast<char>(below(random, 256));
}

void spoil_header(std::string& bytes, chance& random) {
    constexpr std::size_t header_bytes = 108;  // of the file and of its first page
    for (std::size_t left = 1 + below(random, 4); left > 0; --left)
        bytes[below(random, header_bytes)] = static_cast<char>(below(random, 256));
}

void cut_off(std::string& bytes, chance& random) {
    bytes.resize(below(random, bytes.size()));
}

void copy_page_over_another(std::string& bytes, chance& random) {
    const std::size_t pages = bytes.size() / page_bytes;
    const std::size_t from = below(random, pages) * page_bytes;
    bytes.replace(below(random, pages) * page_bytes, page_bytes, bytes.substr(from, page_bytes));
}

void blank_a_page(std::string& bytes, chance& random) {
    bytes.replace(below(random, bytes.size() / page_bytes) * page_bytes, page_bytes, page_bytes, '\0');
}

struct change_of_bytes {
    std::string_view name;
    void (*apply)(std::string& bytes, chance& random);
};
constexpr std::array changes{change_of_bytes{"bytes", spoil_bytes}, change_of_bytes{"header", spoil_header},
                             change_of_bytes{"cut off", cut_off},
                             change_of_bytes{"page over another", copy_page_over_another},
                             change_of_bytes{"blank page", blank_a_page}};

std::vector<std::string> texts_of(const SQLite::Database& db, const std::string& query) {
    std::vector<std::string> texts;
    for (SQLite::Statement rows(db, query); rows.executeStep();)
        texts.push_back(rows.getColumn(0).getString());
    return texts;
}

std::string change_rows(const std::string& file, chance& random) {
    const SQLite::Database db(file, SQLite::OPEN_READWRITE);
    const auto tables = texts_of(db, "SELECT name FROM sqlite_schema WHERE type = 'table'");
    const std::string& name = tables[below(random, tables.size())];
    const std::string table = "[" + name + "]";
    const auto columns = texts_of(db, "SELECT name FROM pragma_table_info('" + name + "')");
    const std::string column = "[" + columns[below(random, columns.size())] + "]";
    const std::array<std::string, 5> statements{
        "UPDATE " + table + " SET " + column + " = ?1", "ALTER TABLE " + table + " DROP COLUMN " + column,
        "DROP TABLE " + table, "INSERT INTO " + table + " SELECT * FROM " + table, "DELETE FROM " + table};
    const std::string& chosen = statements[below(random, 2) == 0 ? 0 : below(random, statements.size())];
    try {
        SQLite::Statement statement(db, chosen);
        if (statement.getBindParameterCount() > 0)
            statement.bind(1, std::string(odd_texts[below(random, odd_texts.size())]));
        statement.exec();
    } catch (const SQLite::Exception&) {
        // A column that an index needs cannot be dropped; the file then is as it was.
    }
    return chosen;
}

}  // namespace

std::string mutate(const std::string& file, chance& random) {
    if (below(random, 2) == 0) return change_rows(file, random);
    const change_of_bytes& change = changes[below(random, changes.size())];
    std::string bytes = bytes_of(file);
    change.apply(bytes, random);
    write_whole_file(file, bytes, "the mutant");
    return std::string(change.name);
}

std::span<const hostile_file> hostile_files() {
    return hostile;
}

void run_sql(const std::string& file, std::string_view sql) {
    SQLite::Database db(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    db.exec(std::string(sql));
}

}  // namespace kel::mutants
