#include "core/store_connection.h"

#include <algorithm>

namespace kel::store {

namespace {

std::string trouble_of(const SQLite::Exception& e) {
    if (e.getExtendedErrorCode() == SQLITE_READONLY_ROLLBACK)
        return "its last save was cut off. Opening it in the program puts that right.";
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

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

file_error failure_of(const std::string& path, const SQLite::Exception& e) {
    const std::string missing = missing_table(e);
    return {path, missing.empty() ? trouble_of(e) : missing, is_in_use(e)};
}

file_header header_of(const SQLite::Database& db, const std::string& schema) {
    file_header header{};
    sqlite3_file* file = nullptr;
    sqlite3_file_control(db.getHandle(), schema.c_str(), SQLITE_FCNTL_FILE_POINTER, &file);
    if (file && file->pMethods)
        file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0);
    return header;
}

void begin_reading(SQLite::Database& db, const std::string& path) {
    constexpr std::size_t read_version_at = 19;
    constexpr unsigned char write_ahead = 2;
    if (header_of(db, "main").at(read_version_at) == write_ahead)
        throw file_error(path,
                         "another program has left it in write-ahead mode. A save in this one ends that.");
    db.exec("BEGIN");
}

std::string bracketed(std::string_view name) {
    std::string quoted = "[";
    return quoted.append(name).append("]");
}

std::string listed(const std::vector<std::string_view>& names) {
    std::string all;
    for (const std::string_view name : names)
        all += (all.empty() ? "" : ", ") + bracketed(name);
    return all;
}

bool same_name(std::string_view a, std::string_view b) {
    return a == b || std::equal(a.begin(), a.end(), b.begin(), b.end(),
                                [](char x, char y) { return lower(x) == lower(y); });
}

row_query::row_query(const SQLite::Database& db, const std::string& sql) : db_(db.getHandle()) {
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v2(db_, sql.c_str(), -1, &prepared, nullptr);
    statement_.reset(prepared);
    check(result);
}

void row_query::bind(int index, const std::string& text) {
    check(sqlite3_bind_text(statement_.get(), index, text.data(), static_cast<int>(text.size()),
                            SQLITE_STATIC));
}

bool row_query::step() {
    if (ended_) return false;  // the engine would begin anew
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) return true;
    ended_ = true;
    if (result != SQLITE_DONE) check(result);
    return false;
}

bool row_query::keeps_texts(int behind) const {
    for (int column = 0; column < column_count() - behind; ++column) {
        const char* type = sqlite3_column_decltype(statement_.get(), column);
        if (!type || std::string_view(type) != "TEXT") return false;
    }
    return true;
}

void row_query::check(int result) const {
    if (result != SQLITE_OK) throw SQLite::Exception(db_, result);
}

}  // namespace kel::store
