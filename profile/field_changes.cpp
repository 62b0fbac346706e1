#include "profile/field_changes.h"

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

/// A filled slot, opened within the transaction of the file that is saved.
struct linked_file {
    database db;
    bool is_saved;
};

database open_linked(const database& saved, const std::vector<linked_file>& opened, const std::string& path) {
    if (same_file(saved.path(), path)) return saved;
    for (const linked_file& linked : opened)
        if (same_file(linked.db.path(), path)) return linked.db;
    return saved.attach(path);
}

/// The filled slots in order; a file that stands in two of them is opened once and comes twice.
std::vector<linked_file> open_slots(const database& saved, const application_state& state) {
    std::vector<linked_file> slots;
    for (const std::string* path : {&state.slot_current, &state.slot_prev1, &state.slot_prev2})
        if (!path->empty())
            slots.push_back({open_linked(saved, slots, *path), same_file(saved.path(), *path)});
    return slots;
}

bool any_field_known(const text_grid& fields) {
    for (int row = 0; row < fields.row_count(); ++row)
        if (!fields.cell(row, field_column::stored_name).empty()) return true;
    return false;
}

bool carry_change(const std::vector<linked_file>& slots, const field_change& change) {
    for (const linked_file& slot : slots)
        if (!slot.is_saved) prof_fname_link(slot.db, change);
    bool cleared = false;
    for (const linked_file& slot : slots)
        cleared = data_trans(slot.db, change) || cleared;
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

bool names_collide(const text_grid& fields) {
    std::set<std::string_view> stored;
    for (int row = 0; row < fields.row_count(); ++row)
        stored.insert(fields.cell(row, field_column::stored_name));
    for (int row = 0; row < fields.row_count(); ++row) {
        const std::string& name = fields.cell(row, field_column::name);
        const std::string& old_name = fields.cell(row, field_column::stored_name);
        if (!old_name.empty() && name != old_name && stored.contains(name)) return true;
    }
    return false;
}

// When one field takes the name that another one gives up, renames in the order of the rows would put both
// fields' rows under one name for good. All fields then first step aside.
void step_aside(text_grid& fields, const std::vector<linked_file>& slots) {
    for (int row = 0; row < fields.row_count(); ++row) {
        const std::string old_name = fields.cell(row, field_column::stored_name);
        if (old_name.empty()) continue;
        for (const linked_file& slot : slots) {
            if (!slot.is_saved)
                slot.db.update_rows("Field Data", {{"Field Name", between_names(row)}}, "Field Name",
                                    old_name);
            for (const field_table& t : field_tables)
                slot.db.update_rows(t.table, {{field_key, between_names(row)}}, field_key, old_name);
        }
        fields.set_cell(row, field_column::stored_name, between_names(row));
    }
}

bool write_fields(const database& db, const text_grid& fields, const std::vector<linked_file>& slots) {
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
        if (!change.old_name.empty()) cleared = carry_change(slots, change) || cleared;
        rows.update();
    }
    return cleared;
}

}  // namespace

bool save_prof(const std::string& path, const farm_details& farm, const text_grid& fields,
               const application_state& state) {
    const database db(path);
    std::vector<linked_file> slots;
    if (any_field_known(fields)) slots = open_slots(db, state);
    save_transaction save(db);
    write_farm(db, farm, state);
    text_grid carried = fields;
    if (names_collide(fields)) step_aside(carried, slots);
    const bool cleared = write_fields(db, carried, slots);
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
