#include "profile/profile_file.h"

#include <algorithm>

#include "core/numbers.h"

namespace kel {

namespace {

void read_details(const recordset& row, loaded_profile& profile) {
    profile.farm.name = profile.farm_name = row.text("Name");
    profile.farm_zone = row.text("KEL");
    profile.farm_town = row.text("Town");
    profile.farm.location = profile.farm_town + " - " + profile.farm_zone;
    profile.farm.total_area = row.text("Area");
    profile.farm.field_count = row.text("FieldNo");
    if (std::string area = row.text("KEL Area"); !area.empty()) profile.farm.kel_area = std::move(area);
}

// The list is as long as the farm says. A count that disagrees with the table loses no field.
int listed_rows(const std::string& field_count) {
    return static_cast<int>(std::clamp(leading_number(field_count), 0.0, static_cast<double>(most_fields)));
}

void read_fields(const database& db, text_grid& fields) {
    recordset rows = db.open("Field Data");
    const int name = rows.column("Field Name");
    const int size = rows.column("Size");
    const int kel_size = rows.column("KEL Size");
    const int soil = rows.column("Soil");
    int row = 0;
    for (; !rows.eof(); rows.move_next(), ++row) {
        if (row == fields.row_count()) fields.add_row();
        fields.set_cell(row, field_column::name, rows.text(name));
        fields.set_cell(row, field_column::area, rows.text(size));
        if (std::string area = rows.text(kel_size); !area.empty())
            fields.set_cell(row, field_column::kel_area, std::move(area));
        fields.set_cell(row, field_column::soil, rows.text(soil));
        fields.set_cell(row, field_column::stored_name, rows.text(name));
    }
    // Rows that the farm counts but the table lacks must not keep the fields of the farm shown before.
    for (; row < fields.row_count(); ++row)
        for (int column = 0; column < fields.column_count(); ++column)
            fields.set_cell(row, column, {});
}

}  // namespace

bool read_farm(const database& db, loaded_profile& profile) {
    const recordset row = db.open("FarmProfile");
    if (row.eof()) return false;
    read_details(row, profile);
    profile.fields.set_row_count(listed_rows(profile.farm.field_count));
    read_fields(db, profile.fields);
    return true;
}

void read_year(const database& db, loaded_profile& profile) {
    const recordset type = db.open("Type");
    const auto year = type.eof() ? std::nullopt : type.date_value("Year");
    if (year) profile.farm.year = short_date_text(*year);
    profile.kel_year_start = parse_date(profile.farm.year);
}

}  // namespace kel
