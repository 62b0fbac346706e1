// An assessment from a stranger is data only: nothing in it may run, and nothing in it may make the program
// wait or fill the memory. Whatever an assessment of this program never holds is refused before it is read.
#pragma once

#include <string>
#include <string_view>

struct sqlite3;

namespace SQLite {
class Database;
}

namespace kel {

/// Throws file_error for a file larger than any farm's year is. Call it before the file is opened.
void check_file_size(const std::string& path);

/// Turns off what a file can bring with it to be run (triggers, views, extensions, trusted schema) and limits
/// the length of a text.
void harden(sqlite3* handle);

/// Throws file_error unless every table and index of the schema is plain names and types. A default, a
/// generated column, a check or an expression could be of any size and take any time, once per row.
void check_layout(const SQLite::Database& db, std::string_view schema, const std::string& path);

/// Throws file_error when a table has more rows than the program holds; `rows` is how many were read so far.
void check_row_count(int rows, const std::string& path, std::string_view table);

/// Whether a CREATE TABLE or CREATE INDEX has only names and types of one word.
bool is_plain_layout(std::string_view sql);

}  // namespace kel
