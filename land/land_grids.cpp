#include "land/land_grids.h"

#include <array>
#include <utility>

#include "core/assessment_files.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "land/stock_nitrogen.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

constexpr std::string_view field_limit_heading =
    "Field Spreading Limit (excluding grazing deposition and subject to farm-based limits not being "
    "breached)";

// The land table. Columns carry the names of [Land]; crop and months come from the storage module and are
// kept for it.
// clang-format off
constexpr std::array<grid_column, 35> land_columns{{
    // heading                             stored column                         kind     width
    {"Field Area ID",                      "Field Area ID",                      entered,    22},
    {"Area In Grass (ha)",                 "Area In Grass (ha)",                 entered,    12},
    {"Area Not In Grass (ha)",             "Area Not In Grass (ha)",             entered,    12},
    {"Buffer Areas To Be Deducted (ha)",   "Buffer Areas To Be Deducted (ha)",   entered,    14},
    {"Slope Areas To Be Deducted (ha)",    "Slope Areas To Be Deducted (ha)",    entered,    14},
    {"Other Areas To Be Deducted (ha)",    "Other Areas To Be Deducted (ha)",    entered,    14},
    {"Available Field Area (ha)",          "Available Field Area (ha)",          calculated, 14},
    {"Crop",                               "Crop",                               carried,    20},
    {"Soil",                               "Soil",                               calculated, 20},
    {"January",                            "January",                            carried,    10},
    {"February",                           "February",                           carried,    10},
    {"March",                              "March",                              carried,    10},
    {"April",                              "April",                              carried,    10},
    {"May",                                "May",                                carried,    10},
    {"June",                               "June",                               carried,    10},
    {"July",                               "July",                               carried,    10},
    {"August",                             "August",                             carried,    10},
    {"September",                          "September",                          carried,    10},
    {"October",                            "October",                            carried,    10},
    {"November",                           "November",                           carried,    10},
    {"December",                           "December",                           carried,    10},
    {"Applic_January",                     "Applic_January",                     carried,    10},
    {"Applic_February",                    "Applic_February",                    carried,    10},
    {"Applic_March",                       "Applic_March",                       carried,    10},
    {"Applic_April",                       "Applic_April",                       carried,    10},
    {"Applic_May",                         "Applic_May",                         carried,    10},
    {"Applic_June",                        "Applic_June",                        carried,    10},
    {"Applic_July",                        "Applic_July",                        carried,    10},
    {"Applic_August",                      "Applic_August",                      carried,    10},
    {"Applic_September",                   "Applic_September",                   carried,    10},
    {"Applic_October",                     "Applic_October",                     carried,    10},
    {"Applic_November",                    "Applic_November",                    carried,    10},
    {"Applic_December",                    "Applic_December",                    carried,    10},
    {"Total Area",                         "Total Area",                         calculated, 10},
    {field_limit_heading,                  "",                                   calculated, 26},
}};

// The stock table. Columns carry the names of [Land_animals].
constexpr std::array<grid_column, 4> stock_columns{{
    // heading                                          stored column                                       kind     width
    {"Stock Unit",                                      "Stock Unit",                                       entered,    44},
    {"Number Of Stock Units",                           "Number Of Stock Units",                            entered,    14},
    {"Total N Excreted By One Stock Unit (kg/year)",    "Total N Excreted By One Stock Unit (kg/year)",     calculated, 20},
    {"Total N Excreted By All These Animals (kg/year)", "Total N Excreted By All These Animals (kg/year)",  calculated, 20},
}};
// clang-format on
static_assert(land_columns[land_column::soil].heading == "Soil" &&
              land_columns[land_column::january].heading == "January" &&
              land_columns[land_column::applic_january].heading == "Applic_January" &&
              land_columns[land_column::total_area].heading == "Total Area");

constexpr std::string_view land_table = "Land";
constexpr std::string_view stock_table = "Land_animals";

// The field limit follows from the available area as it is stored.
row_rules land_rules(const known_fields& fields) {
    return {.fields = &fields, .complete = [](text_grid& land, int row, const recordset&) {
                land.set_cell(row, land_column::field_limit, loaded_field_limit_text(land, row));
            }};
}

row_rules stock_rules(float& working_constant) {
    return {.complete = [&working_constant](text_grid& animals, int row, const recordset&) {
        recalculate_stock_row(animals, row, working_constant);
    }};
}

field_areas areas_of(const text_grid& land, int row, explanation* why) {
    const auto number = [&](int column) { return told_number(land, row, column, in_land_table, why); };
    // Braces are read from left to right, which is the order in which the inputs are told.
    return {.grass_ha = number(land_column::grass),
            .other_ha = number(land_column::not_in_grass),
            .buffer_ha = number(land_column::buffer),
            .slope_ha = number(land_column::slope),
            .other_deduction_ha = number(land_column::other_deduction)};
}

}  // namespace

text_grid empty_land_grid() {
    text_grid land(land_columns);
    land.add_row();
    return land;
}

text_grid empty_stock_grid() {
    text_grid animals(stock_columns);
    animals.add_row();
    return animals;
}

std::string available_text(const text_grid& land, int row, explanation* why) {
    std::string text = format_fixed(available_area(areas_of(land, row, why), why), 2);
    if (why) why->step("Rounded to 2 decimals, halves up: " + text + " ha");
    return text;
}

std::string field_limit_text(const text_grid& land, int row, explanation* why) {
    std::string text = shortest_text(field_limit(available_area(areas_of(land, row, why), why), why));
    if (why) why->step("The limit is worked out from the area before it is rounded, and is not rounded.");
    return text;
}

std::string loaded_field_limit_text(const text_grid& land, int row, explanation* why) {
    if (why)
        why->rule("The row is as it was loaded, so that its limit follows from the area as it was saved.");
    return shortest_text(
        field_limit(told_number(land, row, land_column::available, in_land_table, why), why));
}

float room_for_deduction(const text_grid& land, int row, int column, explanation* why) {
    const auto number = [&](int c) { return told_number(land, row, c, in_land_table, why); };
    const float grass = number(land_column::grass);
    const float other = number(land_column::not_in_grass);
    float deducted[2] = {};
    int others = 0;
    for (int c = land_column::buffer; c <= land_column::other_deduction; ++c)
        if (c != column) deducted[others++] = number(c);
    return deduction_room(grass, other, deducted[0], deducted[1], why);
}

void recalculate_land_row(text_grid& land, int row) {
    land.set_cell(row, land_column::available, available_text(land, row));
    land.set_cell(row, land_column::field_limit, field_limit_text(land, row));
}

stock_texts stock_line_texts(const text_grid& animals, int row, float& working_constant, explanation* why) {
    const std::string& type = told_cell(animals, row, stock_column::stock, in_stock_table, why);
    const float number = told_number(animals, row, stock_column::number, in_stock_table, why);
    const stock_line line = stock_line_nitrogen(type, number, working_constant, why);
    working_constant = line.unit_n_kg_per_year;
    const bool known = line.unit_n_kg_per_year != 0;
    stock_texts texts{known ? shortest_text(line.unit_n_kg_per_year) : "",
                      shortest_text(line.total_n_kg_per_year)};
    if (why && known)
        why->step(shortest_text(number) + " x " + texts.unit_n + " kg N/year = " + texts.total_n +
                  " kg N/year, not rounded");
    return texts;
}

void recalculate_stock_row(text_grid& animals, int row, float& working_constant) {
    stock_texts texts = stock_line_texts(animals, row, working_constant);
    animals.set_cell(row, stock_column::unit_n, std::move(texts.unit_n));
    animals.set_cell(row, stock_column::total_n, std::move(texts.total_n));
}

text_grid fields_to_grid(const std::vector<farm_field>& fields) {
    text_grid land(land_columns);
    for (const farm_field& field : fields) {
        const int row = land.add_row();
        land.set_cell(row, land_column::field, field.name);
        land.set_cell(row, land_column::soil, field.soil);
        land.set_cell(row, land_column::total_area, field.size);
    }
    land.add_row();
    return land;
}

text_grid load_land(const database& db, const std::vector<farm_field>& fields, load_messages& told) {
    const known_fields known(fields);
    text_grid land(land_columns);
    append_rows(db, land_table, land, land_rules(known), told);
    land.add_row();
    return land;
}

text_grid load_stock(const database& db, float& working_constant) {
    load_messages none;
    text_grid animals(stock_columns);
    append_rows(db, stock_table, animals, stock_rules(working_constant), none);
    animals.add_row();
    return animals;
}

bool import_land(const import_source& source, import_mode mode, text_grid& land, load_messages& told) {
    const known_fields known(source.farm);
    return import_rows(source.file, land_table, land, {}, mode, land_rules(known), told);
}

void import_stock(const import_source& source, import_mode mode, text_grid& animals,
                  float& working_constant) {
    load_messages none;
    import_rows(source.file, stock_table, animals, {}, mode, stock_rules(working_constant), none);
}

farm_sums sums_of(const text_grid& land, const text_grid& animals) {
    const int fields = land.data_row_count();
    return {
        .grass_ha = land.sum(land_column::grass, fields),
        .other_ha = land.sum(land_column::not_in_grass, fields),
        .field_limits_kg = land.sum(land_column::field_limit, fields),
        .production_kg = animals.sum(stock_column::total_n, animals.data_row_count()),
    };
}

void fill_deductions(text_grid& land) {
    for (int row = 0; row < land.data_row_count(); ++row)
        for (int c = land_column::buffer; c <= land_column::other_deduction; ++c)
            if (land.cell(row, c).empty()) land.set_cell(row, c, "0");
}

void save_land(const database& db, const text_grid& land) {
    save_grid(db, "Land", land, land.data_row_count());
}

void save_stock(const database& db, const text_grid& animals) {
    text_grid lines = animals;
    lines.set_row_count(animals.data_row_count());
    for (int row = lines.row_count() - 1; row >= 0; --row) {
        if (lines.cell(row, stock_column::stock).empty())
            lines.erase_row(row);
        else if (lines.cell(row, stock_column::number).empty())
            lines.set_cell(row, stock_column::number, "0");
    }
    save_grid(db, "Land_animals", lines, lines.row_count());
}

}  // namespace kel
