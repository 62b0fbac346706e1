#include "core/loaded_rows.h"

#include "core/file_choice.h"
#include "core/installation.h"

namespace kel {

namespace {

// FNV-1a: quick, and the same in every run.
constexpr std::uint64_t digest_start = 14695981039346656037U;
constexpr std::uint64_t digest_prime = 1099511628211U;

void add(std::uint64_t& digest, std::string_view text) {
    const auto add_byte = [&](unsigned char byte) { digest = (digest ^ byte) * digest_prime; };
    for (const char c : text)
        add_byte(static_cast<unsigned char>(c));
    add_byte(0xff);  // in no text: "ab", "c" is not "a", "bc"
}

void add_rows(std::uint64_t& digest, recordset rows, const std::vector<std::string_view>& names) {
    std::vector<int> columns;
    for (const std::string_view name : names)
        columns.push_back(rows.column(name));
    if (names.empty())
        for (int c = 0; c < rows.column_count(); ++c)
            columns.push_back(c);
    for (; !rows.eof(); rows.move_next())
        for (const int c : columns)
            add(digest, rows.text(c));
}

}  // namespace

std::vector<std::string_view> own_columns(std::span<const grid_column> columns) {
    std::vector<std::string_view> own;
    for (const grid_column& column : columns)
        if (!column.stored.empty() && column.kind != column_kind::carried) own.push_back(column.stored);
    return own;
}

std::uint64_t loaded_rows::digest(const database& db) const {
    std::uint64_t digest = digest_start;
    for (const saved_table& saved : tables_) {
        add(digest, saved.table);
        add_rows(digest, db.open(saved.table), saved.columns);
    }
    return digest;
}

void loaded_rows::remember(const database& db) {
    stamp_ = stamp_of(db.path());
    digest_ = digest(db);
    path_ = db.path();
}

bool loaded_rows::changed(const database& db) const {
    if (path_.empty() || !same_file(path_, db.path()) || stamp_of(path_) == stamp_) return false;
    return digest(db) != digest_;
}

bool loaded_rows::may_be_replaced(const std::string& path, prompts& person) const {
    return !changed(database(path)) || person.ask(rows_changed_meanwhile(path)) == answer::yes;
}

module_save::module_save(const std::string& path, prompts& person, loaded_rows& rows)
    : db_(path), rows_(rows) {
    transaction_.emplace(db_);
    if (!rows.changed(db_)) return;
    transaction_.reset();  // no other program waits behind the question
    if (person.ask(rows_changed_meanwhile(path)) == answer::yes) transaction_.emplace(db_);
}

void module_save::commit() {
    transaction_->commit();
    transaction_.reset();
    rows_.remember(db_);
}

message rows_changed_meanwhile(const std::string& path) {
    return {"Save",
            "What you are about to save over in the file " + file_name_of(path) +
                " has been changed since it was loaded here, by another copy of the program or on another "
                "screen. If you save now, those changes are lost. Do you want to save?",
            message_kind::warning, message_buttons::yes_no};
}

}  // namespace kel
