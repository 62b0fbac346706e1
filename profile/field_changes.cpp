#include "profile/field_changes.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_files.h"
#include "core/file_choice.h"
#include "core/file_error.h"
#include "core/numbers.h"

namespace kel {

namespace {

constexpr std::string_view field_key = "Field Area ID";

// clang-format off
// Tables that know a field by [Field Area ID], in the order in which a change is carried into them, with the column that
// repeats the field's soil (empty: none). [Land] has more to it than these columns.
struct field_table {
    std::string_view table;
    std::string_view soil_column;
};
constexpr std::array<field_table, 7> field_tables{{
    {"Crops",           "Soil Type"},
    {"Land",            "Soil"},
    {"Manure_applic",   "Soil"},
    {"Site",            "Soil Type"},
    {"Straw",           ""},
    {"Inorganic N",     ""},
    {"Recommendations", ""},
}};

// Columns of [Land] that are set to "0" when the field's area changes. The Applic_ columns are the farm's plan and stay.
constexpr std::array<std::string_view, 18> cleared_land_columns{
    "Area In Grass (ha)",
    "Area Not In Grass (ha)",
    "Buffer Areas To Be Deducted (ha)",
    "Slope Areas To Be Deducted (ha)",
    "Other Areas To Be Deducted (ha)",
    "Available Field Area (ha)",
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December",
};
// clang-format on

void clear_assessment(recordset& land, const field_change& change) {
    land.set("Total Area", change.area);
    for (const std::string_view column : cleared_land_columns)
        land.set(column, "0");
    land.set("Crop", "");
}

bool carry_into_land(const database& db, const field_change& change) {
    bool cleared = false;
    for (recordset land = db.open("Land", field_key, change.old_name); !land.eof(); land.move_next()) {
        const bool resized = leading_single(land.text("Total Area")) != leading_single(change.area);
        land.edit();
        land.set(field_key, change.new_name);
        land.set("Soil", change.soil);
        if (resized) clear_assessment(land, change);
        land.update();
        cleared = cleared || resized;
    }
    return cleared;
}

/// A file of the farm, opened within the transaction of the one that is saved.
struct farm_file {
    database db;
    bool is_saved;
};

/// The filled slots in order, then the saved file if it stands in none of them, as after Save As; each once.
std::vector<farm_file> open_files(const database& saved, const application_state& state) {
    std::vector<farm_file> files;
    for (const std::string* path :
         {&state.slot_current, &state.slot_prev1, &state.slot_prev2, &saved.path()}) {
        const auto same = [&](const farm_file& file) { return same_file(file.db.path(), *path); };
        if (path->empty() || std::any_of(files.begin(), files.end(), same)) continue;
        const bool is_saved = same_file(saved.path(), *path);
        files.push_back({is_saved ? saved : saved.attach(*path), is_saved});
    }
    return files;
}

bool any_field_known(const text_grid& fields) {
    for (int row = 0; row < fields.row_count(); ++row)
        if (!fields.cell(row, field_column::stored_name).empty()) return true;
    return false;
}

bool carry_change(const std::vector<farm_file>& files, const field_change& change) {
    for (const farm_file& file : files)
        if (!file.is_saved) prof_fname_link(file.db, change);
    bool cleared = false;
    for (const farm_file& file : files)
        cleared = data_trans(file.db, change) || cleared;
    return cleared;
}

void write_farm(const database& db, const farm_details& farm, const application_state& state) {
    db.delete_rows("FarmProfile");
    recordset profile = db.open("FarmProfile");
    profile.add_new();
    profile.set("Name", farm.name);
    profile.set("KEL", state.farm_zone);
    profile.set("Town", state.farm_town);
    profile.set("Area", farm.total_area);
    profile.set("FieldNo", farm.field_count);
    profile.set("KEL Area", farm.kel_area);
    profile.update();
}

// Names that stand for a field between its old and its new one: no field can be called so.
std::string between_names(int row) {
    return std::string(1, '\x1a') + std::to_string(row);
}

std::set<std::string_view> stored_names(const text_grid& fields) {
    std::set<std::string_view> names;
    for (int row = 0; row < fields.row_count(); ++row)
        names.insert(fields.cell(row, field_column::stored_name));
    return names;
}

bool is_renamed(const text_grid& fields, int row) {
    const std::string& old_name = fields.cell(row, field_column::stored_name);
    return !old_name.empty() && old_name != fields.cell(row, field_column::name);
}

bool names_collide(const text_grid& fields, const std::set<std::string_view>& stored) {
    for (int row = 0; row < fields.row_count(); ++row)
        if (is_renamed(fields, row) && stored.contains(fields.cell(row, field_column::name))) return true;
    return false;
}

void delete_field_rows(const database& db, std::string_view name) {
    db.delete_rows("Field Data", "Field Name", name);
    for (const field_table& t : field_tables)
        db.delete_rows(t.table, field_key, name);
}

// A name that a renamed field takes, and that no field gives up, was an erased field's: its rows go first, so
// that they do not become the other one's. In a file that does not know the old name nothing is renamed.
void delete_erased(const text_grid& fields, const std::set<std::string_view>& stored,
                   const std::vector<farm_file>& files) {
    for (int row = 0; row < fields.row_count(); ++row) {
        const std::string& name = fields.cell(row, field_column::name);
        if (!is_renamed(fields, row) || stored.contains(name)) continue;
        for (const farm_file& file : files)
            if (!file.db.open("Field Data", "Field Name", fields.cell(row, field_column::stored_name)).eof())
                delete_field_rows(file.db, name);
    }
}

// When one field takes the name that another one gives up, renames in the order of the rows would put both
// fields' rows under one name for good. All fields then first step aside.
void step_aside(text_grid& fields, const std::vector<farm_file>& files) {
    for (int row = 0; row < fields.row_count(); ++row) {
        const std::string old_name = fields.cell(row, field_column::stored_name);
        if (old_name.empty()) continue;
        for (const farm_file& file : files) {
            if (!file.is_saved)
                file.db.update_rows("Field Data", {{"Field Name", between_names(row)}}, "Field Name",
                                    old_name);
            for (const field_table& t : field_tables)
                file.db.update_rows(t.table, {{field_key, between_names(row)}}, field_key, old_name);
        }
        fields.set_cell(row, field_column::stored_name, between_names(row));
    }
}

bool write_fields(const database& db, const text_grid& fields, const std::vector<farm_file>& files) {
    db.delete_rows("Field Data");
    recordset rows = db.open("Field Data");
    bool cleared = false;
    for (int row = 0; row < fields.row_count(); ++row) {
        const field_change change{fields.cell(row, field_column::stored_name),
                                  fields.cell(row, field_column::name), fields.cell(row, field_column::area),
                                  fields.cell(row, field_column::soil)};
        rows.add_new();
        rows.set("Field Name", change.new_name);
        rows.set("Size", change.area);
        rows.set("KEL Size", fields.cell(row, field_column::kel_area));
        rows.set("Soil", change.soil);
        if (!change.old_name.empty()) cleared = carry_change(files, change) || cleared;
        rows.update();
    }
    return cleared;
}

}  // namespace

bool save_prof(const database& db, const farm_details& farm, const text_grid& fields,
               const application_state& state) {
    std::vector<farm_file> files;
    if (any_field_known(fields)) files = open_files(db, state);
    save_transaction save(db, *state.copies);
    const auto stored = stored_names(fields);
    delete_erased(fields, stored, files);
    write_farm(db, farm, state);
    text_grid carried = fields;
    if (names_collide(fields, stored)) step_aside(carried, files);
    const bool cleared = write_fields(db, carried, files);
    write_assessment_year(db, state.kel_year_start.value());
    save.commit();
    return cleared;
}

void prof_fname_link(const database& linked, const field_change& change) {
    linked.update_rows("Field Data", {{"Field Name", change.new_name}}, "Field Name", change.old_name);
}

bool data_trans(const database& db, const field_change& change) {
    bool cleared = false;
    for (const auto& [table, soil_column] : field_tables) {
        if (table == "Land") {
            cleared = carry_into_land(db, change);
            continue;
        }
        std::vector<database::assignment> values{{field_key, change.new_name}};
        if (!soil_column.empty()) values.push_back({soil_column, change.soil});
        db.update_rows(table, values, field_key, change.old_name);
    }
    return cleared;
}

}  // namespace kel
