#include "core/loaded_rows.h"

#include "core/file_choice.h"
#include "core/installation.h"

namespace kel {

std::vector<std::string_view> own_columns(std::span<const grid_column> columns) {
    std::vector<std::string_view> own;
    for (const grid_column& column : columns)
        if (!column.stored.empty() && column.kind != column_kind::carried) own.push_back(column.stored);
    return own;
}

std::uint64_t loaded_rows::digest(const database& db) const {
    std::uint64_t digest = 0;
    for (const saved_table& saved : tables_)
        digest = db.digest(saved.table, saved.columns, digest);
    return digest;
}

void loaded_rows::remember(const database& db) {
    stamp_ = db.stamp();
    digest_ = digest(db);
    path_ = db.path();
}

// The stamp after a save tells that file only if nobody wrote between the two.
void loaded_rows::remember_saved(const database& db, std::uint64_t digest, const file_stamp& before,
                                 std::uint32_t own_writes) {
    stamp_ = db.stamp();
    if (stamp_.change_counter - before.change_counter > own_writes) stamp_ = {};
    digest_ = digest;
    path_ = db.path();
}

bool loaded_rows::changed(const database& db) const {
    return changed(db, db.stamp());
}

bool loaded_rows::changed(const database& db, const file_stamp& now) const {
    if (path_.empty() || !same_file(path_, db.path()) || now == stamp_) return false;
    return digest(db) != digest_;
}

bool loaded_rows::may_be_replaced(const std::string& path, prompts& person) const {
    return !changed(database(path)) || person.ask(rows_changed_meanwhile(path)) == answer::yes;
}

message rows_changed_meanwhile(const std::string& path) {
    return {"Save",
            "What you are about to save over in the file " + file_name_of(path) +
                " has been changed since it was loaded here, by another copy of the program or on another "
                "screen. If you save now, those changes are lost. Do you want to save?",
            message_kind::warning, message_buttons::yes_no};
}

}  // namespace kel
