#include "core/strangers_file.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cctype>
#include <filesystem>
#include <system_error>

#include "core/file_error.h"

namespace kel {

namespace {

// The largest farm that the program is measured with takes a quarter of it.
constexpr std::uintmax_t largest_file_bytes = 16'000'000;
constexpr int longest_text_bytes = 100'000;
constexpr int most_rows = 40'000;

bool is_word(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// The end of the quoted name or bare word that starts here; nothing for any other character.
std::size_t end_of_name(std::string_view sql, std::size_t start) {
    std::size_t end = start;
    if (is_word(sql[start])) {
        while (end < sql.size() && is_word(sql[end]))
            ++end;
        return end;
    }
    constexpr std::string_view opening = "[\"`";
    constexpr std::string_view closing = "]\"`";
    const std::size_t kind = opening.find(sql[start]);
    if (kind == std::string_view::npos) return start;
    end = sql.find(closing[kind], start + 1);
    return end == std::string_view::npos ? start : end + 1;
}

// What the definition is made of: N for a name, and the punctuation as it stands.
std::string outline(std::string_view sql) {
    std::string found;
    for (std::size_t at = 0; at < sql.size();) {
        if (std::isspace(static_cast<unsigned char>(sql[at]))) {
            ++at;
            continue;
        }
        const std::size_t end = end_of_name(sql, at);
        found += end > at ? 'N' : sql[at];
        at = end > at ? end : at + 1;
    }
    return found;
}

}  // namespace

bool is_plain_layout(std::string_view sql) {
    const std::string shape = outline(sql);
    const std::size_t open = shape.find('(');
    if (open == std::string::npos || shape.back() != ')') return false;
    // CREATE TABLE name, or CREATE INDEX name ON name
    const std::string head = shape.substr(0, open);
    if (head != "NNN" && head != "NNNNN") return false;
    int names = 0;
    for (const char part : shape.substr(open + 1, shape.size() - open - 2)) {
        names = part == 'N' ? names + 1 : 0;
        if (names > 2 || (part != 'N' && part != ',')) return false;
    }
    return true;
}

void check_file_size(const std::string& path) {
    std::error_code unknown;
    const auto bytes = std::filesystem::file_size(path, unknown);
    if (!unknown && bytes > largest_file_bytes) throw file_error(path, "it is too large for an assessment.");
}

void harden(sqlite3* handle) {
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, longest_text_bytes);
}

void check_layout(const SQLite::Database& db, std::string_view schema, const std::string& path) {
    const std::string all = "SELECT sql FROM " + std::string(schema) +
                            ".sqlite_schema WHERE type IN ('table', 'index') AND sql IS NOT NULL";
    for (SQLite::Statement definitions(db, all); definitions.executeStep();)
        if (!is_plain_layout(definitions.getColumn(0).getString()))
            throw file_error(path, "its tables are not laid out as those of an assessment.");
}

void check_row_count(int rows, const std::string& path, std::string_view table) {
    if (rows > most_rows)
        throw file_error(path, "its table [" + std::string(table) + "] has too many rows for an assessment.");
}

}  // namespace kel
