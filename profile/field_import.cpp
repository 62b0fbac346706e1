#include "profile/field_import.h"

#include <string>
#include <unordered_set>

#include "profile/farm_profile.h"
#include "profile/profile_messages.h"

namespace kel {

bool import_fields(const database& source, import_mode mode, text_grid& fields, load_messages& told) {
    text_grid found(field_columns);
    append_rows(source, "Field Data", found);
    if (found.row_count() == 0) return false;
    text_grid listed = mode == import_mode::add ? fields : text_grid(field_columns);
    std::unordered_set<std::string> names;
    for (int row = 0; row < listed.row_count(); ++row)
        names.insert(listed.cell(row, field_column::name));
    for (int row = 0; row < found.row_count(); ++row) {
        const bool is_new = names.insert(found.cell(row, field_column::name)).second;
        if (mode == import_mode::add && !is_new) {
            told.add(profile_messages::name_in_new_file);
            continue;
        }
        const int target = listed.add_row();
        for (int column = field_column::name; column <= field_column::soil; ++column)
            listed.set_cell(target, column, found.cell(row, column));
    }
    fields = std::move(listed);
    return true;
}

}  // namespace kel
