#include "grass/grass_grids.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "core/assessment_files.h"
#include "core/carried_columns.h"

namespace kel {

namespace {

constexpr std::string_view site_table = "Site";
constexpr std::string_view livestock_table = "LU";
constexpr int few_rows = 4;  // one row of so many

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

// clang-format off
// The site table. The columns behind the end of the season are those of the stocking page.
constexpr std::array<grid_column, 47> site_columns{{
    // heading                                                 stored column                         kind        width date
    {"Field Area ID",                                          "Field Area ID",                      entered,     20},
    {"Soil Type",                                              "Soil Type",                          calculated,  20},
    {"Site Class",                                             "Site Class",                         calculated,   7},
    {"Previous Grass/Clover Crop",                             "Previous crop",                      entered,     12},
    {"N Residue Group",                                        "N residue group",                    calculated,   9},
    {"Clover Content",                                         "Clover",                             entered,      9},
    {"Crop Use",                                               "Site Use",                           calculated,   9},
    {"Number of Cuts",                                         "Cuts",                               calculated,   9},
    {"Number of Applications to Aftermath Grazing",            "Applications",                       calculated,  13},
    {"Adjustment (kg/ha)",                                     "Adjustment",                         calculated,  12},
    {"Adjustment for Manure applied (kg/ha)",                  "Manure current",                     entered,     14},
    {"Adjustment for Manure applied to previous crop (kg/ha)", "Manure previous",                    entered,     16},
    {"End of season",                                          "End of season date",                 entered,     11, true},
    {"Field Area Size (ha)",                                   "Field Area Size (ha)",               carried,      9},
    {"Livestock Group 1 (Type)",                               "Livestock Group 1 (Type)",           carried,     28},
    {"Livestock Group 1 (Number)",                             "Livestock Group 1 (Number)",         carried,     10},
    {"Livestock Group 1 (% Year Grazed)",                      "Livestock Group 1 (% Year Grazed)",  carried,     10},
    {"Livestock Group 2 (Type)",                               "Livestock Group 2 (Type)",           carried,     28},
    {"Livestock Group 2 (Number)",                             "Livestock Group 2 (Number)",         carried,     10},
    {"Livestock Group 2 (% Year Grazed)",                      "Livestock Group 2 (% Year Grazed)",  carried,     10},
    {"Livestock Group 3 (Type)",                               "Livestock Group 3 (Type)",           carried,     28},
    {"Livestock Group 3 (Number)",                             "Livestock Group 3 (Number)",         carried,     10},
    {"Livestock Group 3 (% Year Grazed)",                      "Livestock Group 3 (% Year Grazed)",  carried,     10},
    {"Livestock Group 4 (Type)",                               "Livestock Group 4 (Type)",           carried,     28},
    {"Livestock Group 4 (Number)",                             "Livestock Group 4 (Number)",         carried,     10},
    {"Livestock Group 4 (% Year Grazed)",                      "Livestock Group 4 (% Year Grazed)",  carried,     10},
    {"Livestock Group 5 (Type)",                               "Livestock Group 5 (Type)",           carried,     28},
    {"Livestock Group 5 (Number)",                             "Livestock Group 5 (Number)",         carried,     10},
    {"Livestock Group 5 (% Year Grazed)",                      "Livestock Group 5 (% Year Grazed)",  carried,     10},
    {"Livestock Group 6 (Type)",                               "Livestock Group 6 (Type)",           carried,     28},
    {"Livestock Group 6 (Number)",                             "Livestock Group 6 (Number)",         carried,     10},
    {"Livestock Group 6 (% Year Grazed)",                      "Livestock Group 6 (% Year Grazed)",  carried,     10},
    {"Livestock Group 7 (Type)",                               "Livestock Group 7 (Type)",           carried,     28},
    {"Livestock Group 7 (Number)",                             "Livestock Group 7 (Number)",         carried,     10},
    {"Livestock Group 7 (% Year Grazed)",                      "Livestock Group 7 (% Year Grazed)",  carried,     10},
    {"Livestock Group 8 (Type)",                               "Livestock Group 8 (Type)",           carried,     28},
    {"Livestock Group 8 (Number)",                             "Livestock Group 8 (Number)",         carried,     10},
    {"Livestock Group 8 (% Year Grazed)",                      "Livestock Group 8 (% Year Grazed)",  carried,     10},
    {"Livestock Group 9 (Type)",                               "Livestock Group 9 (Type)",           carried,     28},
    {"Livestock Group 9 (Number)",                             "Livestock Group 9 (Number)",         carried,     10},
    {"Livestock Group 9 (% Year Grazed)",                      "Livestock Group 9 (% Year Grazed)",  carried,     10},
    {"Livestock Group 10 (Type)",                              "Livestock Group 10 (Type)",          carried,     28},
    {"Livestock Group 10 (Number)",                            "Livestock Group 10 (Number)",        carried,     10},
    {"Livestock Group 10 (% Year Grazed)",                     "Livestock Group 10 (% Year Grazed)", carried,     10},
    {"LUs Fed By Grazing",                                     "LUs Fed By Grazing",                 carried,      9},
    {"Silage Rate",                                            "Silage Rate",                        carried,      9},
    {"",                                                       "",                                   carried,      0},
}};

// The stocking table, whose headings are the stored names. The columns behind the silage rate are those of the site
// page.
constexpr std::array<grid_column, 46> stocking_columns{{
    // heading                                                 stored column                         kind        width date
    {"Field Area ID",                                          "Field Area ID",                      calculated,  20},
    {"Field Area Size (ha)",                                   "Field Area Size (ha)",               calculated,   9},
    {"Soil Type",                                              "Soil Type",                          calculated,  20},
    {"Site Class",                                             "Site Class",                         calculated,   7},
    {"Site Use",                                               "Site Use",                           entered,      9},
    {"Livestock Group 1 (Type)",                               "Livestock Group 1 (Type)",           entered,     20},
    {"Livestock Group 1 (Number)",                             "Livestock Group 1 (Number)",         entered,     10},
    {"Livestock Group 1 (% Year Grazed)",                      "Livestock Group 1 (% Year Grazed)",  entered,     10},
    {"Livestock Group 2 (Type)",                               "Livestock Group 2 (Type)",           entered,     20},
    {"Livestock Group 2 (Number)",                             "Livestock Group 2 (Number)",         entered,     10},
    {"Livestock Group 2 (% Year Grazed)",                      "Livestock Group 2 (% Year Grazed)",  entered,     10},
    {"Livestock Group 3 (Type)",                               "Livestock Group 3 (Type)",           entered,     20},
    {"Livestock Group 3 (Number)",                             "Livestock Group 3 (Number)",         entered,     10},
    {"Livestock Group 3 (% Year Grazed)",                      "Livestock Group 3 (% Year Grazed)",  entered,     10},
    {"Livestock Group 4 (Type)",                               "Livestock Group 4 (Type)",           entered,     20},
    {"Livestock Group 4 (Number)",                             "Livestock Group 4 (Number)",         entered,     10},
    {"Livestock Group 4 (% Year Grazed)",                      "Livestock Group 4 (% Year Grazed)",  entered,     10},
    {"Livestock Group 5 (Type)",                               "Livestock Group 5 (Type)",           entered,     20},
    {"Livestock Group 5 (Number)",                             "Livestock Group 5 (Number)",         entered,     10},
    {"Livestock Group 5 (% Year Grazed)",                      "Livestock Group 5 (% Year Grazed)",  entered,     10},
    {"Livestock Group 6 (Type)",                               "Livestock Group 6 (Type)",           entered,     20},
    {"Livestock Group 6 (Number)",                             "Livestock Group 6 (Number)",         entered,     10},
    {"Livestock Group 6 (% Year Grazed)",                      "Livestock Group 6 (% Year Grazed)",  entered,     10},
    {"Livestock Group 7 (Type)",                               "Livestock Group 7 (Type)",           entered,     20},
    {"Livestock Group 7 (Number)",                             "Livestock Group 7 (Number)",         entered,     10},
    {"Livestock Group 7 (% Year Grazed)",                      "Livestock Group 7 (% Year Grazed)",  entered,     10},
    {"Livestock Group 8 (Type)",                               "Livestock Group 8 (Type)",           entered,     20},
    {"Livestock Group 8 (Number)",                             "Livestock Group 8 (Number)",         entered,     10},
    {"Livestock Group 8 (% Year Grazed)",                      "Livestock Group 8 (% Year Grazed)",  entered,     10},
    {"Livestock Group 9 (Type)",                               "Livestock Group 9 (Type)",           entered,     20},
    {"Livestock Group 9 (Number)",                             "Livestock Group 9 (Number)",         entered,     10},
    {"Livestock Group 9 (% Year Grazed)",                      "Livestock Group 9 (% Year Grazed)",  entered,     10},
    {"Livestock Group 10 (Type)",                              "Livestock Group 10 (Type)",          entered,     20},
    {"Livestock Group 10 (Number)",                            "Livestock Group 10 (Number)",        entered,     10},
    {"Livestock Group 10 (% Year Grazed)",                     "Livestock Group 10 (% Year Grazed)", entered,     10},
    {"LUs Fed By Grazing",                                     "LUs Fed By Grazing",                 calculated,   9},
    {"Silage Rate",                                            "Silage Rate",                        calculated,   9},
    {"Previous Grass/Clover Crop",                             "Previous crop",                      carried,     12},
    {"N Residue Group",                                        "N residue group",                    carried,      9},
    {"Clover Content",                                         "Clover",                             carried,      9},
    {"Number of Cuts",                                         "Cuts",                               carried,      9},
    {"Number of Applications to Aftermath Grazing",            "Applications",                       carried,     13},
    {"Adjustment (kg/ha)",                                     "Adjustment",                         carried,     12},
    {"Adjustment for Manure applied (kg/ha)",                  "Manure current",                     carried,     14},
    {"Adjustment for Manure applied to previous crop (kg/ha)", "Manure previous",                    carried,     16},
    {"End of season",                                          "End of season date",                 carried,     11, true},
}};

constexpr std::array<grid_column, 5> livestock_columns{{
    // heading                           stored column                    kind        width
    {"Stock Type",                       "Stock Type",                    entered,    52},
    {"Number of Animals",                "Number of Animals",             entered,    14},
    {"% Of Year Animals Are On Farm",    "% Of Year Animals Are On Farm", entered,    16},
    {"LU ratio",                         "LU Ratio",                      calculated, 12},
    {"Livestock Units",                  "Livestock Units",               calculated, 16},
}};

// The results of the site route and the silage table; they are not stored as they stand.
constexpr std::array<grid_column, 6> result_columns{{
    // heading         stored  kind     width
    {"Field ID",       "", calculated, 30},
    {"Crop/use",       "", calculated, 14},
    {"N requirement",  "", calculated, 16},
    {"Adjustment",     "", calculated, 16},
    {"Manures",        "", calculated, 16},
    {"To be applied",  "", calculated, 16},
}};

constexpr std::array<grid_column, 8> silage_columns{{
    // heading                    stored  kind     width
    {"Field Area (ID)",           "", calculated, 26},
    {"Site Use",                  "", calculated, 11},
    {"LUs Fed By Grazing",        "", calculated, 13},
    {"LUs Fed From Silage",       "", calculated, 13},
    {"LUs/ha",                    "", calculated, 11},
    {"N-requirements (kg/ha)",    "", calculated, 17},
    {"Field Area Size (ha)",      "", calculated, 13},
    {"Notes",                     "", calculated, 14},
}};
// clang-format on

static_assert(site_columns[site_column::season_end].is_date &&
              site_columns[site_column::area].stored == "Field Area Size (ha)" &&
              site_columns[site_column::silage_rate].stored == "Silage Rate" &&
              site_columns[site_column::stocked_field].stored.empty() &&
              stocking_columns[stocking_column::use].stored == "Site Use" &&
              stocking_columns[stocking_column::silage_rate].stored == "Silage Rate");

// For every column of the stocking table its place in the site table.
consteval std::array<int, stocking_columns.size()> places_in_site() {
    std::array<int, stocking_columns.size()> places{};
    for (std::size_t c = 0; c < places.size(); ++c)
        for (std::size_t s = 0; s < site_columns.size(); ++s)
            if (site_columns[s].stored == stocking_columns[c].stored) places[c] = static_cast<int>(s);
    return places;
}
constexpr auto in_site = places_in_site();

const grid_column& column_of(const text_grid& page, int column) {
    return page.columns()[static_cast<std::size_t>(column)];
}

// The columns that a page saves, behind that of the field.
std::vector<int> own_columns_of(const text_grid& page, int area) {
    std::vector<int> own;
    for (int c = 1; c < page.column_count(); ++c)
        if (c == area || column_of(page, c).kind != carried) own.push_back(c);
    return own;
}

// The file's rows with the field and the page's own columns behind it.
recordset open_own(const database& db, const text_grid& page, const std::vector<int>& own) {
    std::vector<std::string_view> names{column_of(page, 0).stored};
    names.reserve(own.size() + 1);
    for (const int c : own)
        names.push_back(column_of(page, c).stored);
    return db.open(site_table, names);
}

bool differs(const recordset& file, const text_grid& page, int row, const std::vector<int>& own) {
    int stored = 0;
    const std::span<const std::string> cells = page.row(row);
    return std::ranges::any_of(own, [&](int c) {
        const std::string_view text = file.view(++stored);
        const std::string& cell = cells[static_cast<std::size_t>(c)];
        return column_of(page, c).is_date ? text != stored_text(column_of(page, c), cell) : text != cell;
    });
}

// The few rows whose own columns hold other texts than the page; nothing if they are many, or if the file has
// not the page's fields in the page's order.
std::optional<std::vector<int>> few_changed_rows(const database& db, const text_grid& page, int rows,
                                                 const std::vector<int>& own) {
    std::vector<int> changed;
    int row = 0;
    recordset file = open_own(db, page, own);
    for (; !file.eof(); file.move_next(), ++row) {
        if (row == rows || file.view(0) != page.cell(row, 0)) return std::nullopt;
        if (differs(file, page, row, own)) changed.push_back(row);
        if (static_cast<int>(changed.size()) * few_rows > rows) return std::nullopt;
    }
    return row == rows ? std::optional(changed) : std::nullopt;
}

void update_in_place(const database& db, const text_grid& page, const std::vector<int>& changed,
                     const std::vector<int>& own) {
    recordset file = open_own(db, page, own);
    int at = 0;
    for (const int row : changed) {
        for (; at < row; ++at)
            file.move_next();
        file.edit();
        for (std::size_t i = 0; i < own.size(); ++i)
            file.set(static_cast<int>(i) + 1, stored_text(column_of(page, own[i]), page.cell(row, own[i])));
        file.update();
    }
}

// All rows anew, with the other page's columns taken from the file; a field that is new to it brings its area
// from the profile.
void save_anew(const database& db, const text_grid& page, int rows, int area) {
    text_grid whole = page;
    take_carried(db, site_table, whole, rows);
    for (int row = 0; row < rows; ++row)
        if (whole.cell(row, area) != page.cell(row, area)) whole.set_cell(row, area, page.cell(row, area));
    save_grid(db, site_table, whole, rows);
}

// Of rows that stand as they stood only those that have changed are written, in place. Where most have, all
// of them are written sooner anew.
void save_page(const database& db, const text_grid& page, int rows, int area) {
    const std::vector<int> own = own_columns_of(page, area);
    if (const auto changed = few_changed_rows(db, page, rows, own))
        update_in_place(db, page, *changed, own);
    else
        save_anew(db, page, rows, area);
}

}  // namespace

text_grid empty_site_grid() {
    text_grid site(site_columns);
    site.add_row();
    return site;
}

text_grid empty_livestock_grid() {
    text_grid livestock(livestock_columns);
    livestock.add_row();
    return livestock;
}

text_grid empty_stocking_grid() {
    return text_grid(stocking_columns);
}

text_grid empty_grass_results() {
    return text_grid(result_columns);
}

text_grid empty_silage_grid() {
    return text_grid(silage_columns);
}

int site_column_of(int stocking_column) {
    return in_site.at(static_cast<std::size_t>(stocking_column));
}

text_grid stocking_of(const text_grid& site) {
    text_grid stocking(stocking_columns);
    for (int row = 0; row < site.data_row_count(); ++row) {
        stocking.add_row();
        for (int c = 0; c < stocking.column_count(); ++c)
            stocking.set_cell(row, c, site.cell(row, site_column_of(c)));
    }
    return stocking;
}

grass_field grass_field_of(const text_grid& site, int row) {
    const auto cell = [&](int column) { return site.cell(row, column); };
    return {.clover = cell(site_column::clover),
            .site_class = cell(site_column::site_class),
            .residue_group = cell(site_column::residue_group),
            .use = cell(site_column::use),
            .applications = cell(site_column::applications),
            .adjustment = cell(site_column::adjustment),
            .manure_current = cell(site_column::manure_current),
            .manure_previous = cell(site_column::manure_previous)};
}

std::vector<stocked_field> stocked_fields_of(const text_grid& stocking) {
    std::vector<stocked_field> fields;
    for (int row = 0; row < stocking.row_count(); ++row) {
        const auto cell = [&](int column) { return stocking.cell(row, column); };
        stocked_field field{.field = cell(stocking_column::field),
                            .area_ha = cell(stocking_column::area),
                            .site_class = cell(stocking_column::site_class),
                            .use = cell(stocking_column::use),
                            .silage_rate = cell(stocking_column::silage_rate)};
        int column = stocking_column::first_group;
        for (grazing_group& group : field.groups) {
            group = {cell(column), cell(column + 1), cell(column + 2)};
            column += columns_per_group;
        }
        fields.push_back(std::move(field));
    }
    return fields;
}

text_grid silage_grid_of(const silage_plan& plan) {
    text_grid grid(silage_columns);
    for (const silage_row& row : plan.rows) {
        const std::array texts{row.field,
                               row.use,
                               row.lus_fed_by_grazing,
                               row.lus_fed_from_silage,
                               row.lus_per_ha,
                               row.n_kg_per_ha,
                               row.area_ha,
                               row.notes};
        const int at = grid.add_row();
        for (int c = 0; c < grid.column_count(); ++c)
            grid.set_cell(at, c, texts[static_cast<std::size_t>(c)]);
    }
    return grid;
}

text_grid load_site(const database& db, const std::vector<farm_field>& fields, load_messages& told) {
    std::unordered_map<std::string_view, std::string_view> sizes;
    for (const farm_field& field : fields)
        sizes.emplace(field.name, field.size);
    const known_fields known(fields);
    const auto set_area = [&](text_grid& site, int row, const recordset&) {
        const std::string field = site.cell(row, site_column::field);
        if (site.cell(row, site_column::area).empty())
            site.set_cell(row, site_column::area, std::string(sizes[field]));
        site.set_cell(row, site_column::stocked_field, field);
    };
    text_grid site(site_columns);
    append_rows(db, site_table, site, {.fields = &known, .nameless_rows_pass = true, .complete = set_area},
                told);
    site.add_row();
    return site;
}

text_grid load_livestock(const database& db) {
    text_grid livestock(livestock_columns);
    append_rows(db, livestock_table, livestock);
    livestock.add_row();
    return livestock;
}

void save_site(const database& db, const text_grid& site) {
    save_page(db, site, site.data_row_count(), site_column::area);
}

void save_stocking(const database& db, const text_grid& stocking) {
    save_page(db, stocking, stocking.row_count(), stocking_column::area);
}

void save_livestock(const database& db, const text_grid& livestock) {
    save_grid(db, livestock_table, livestock, livestock.data_row_count());
}

void save_silage_rates(const database& db, const silage_plan& plan) {
    recordset record = db.open(site_table, {"Silage Rate"});
    for (const silage_row& row : plan.rows) {
        if (record.eof()) return;
        if (record.view(0) != row.lus_per_ha) {
            record.edit();
            record.set(0, row.lus_per_ha);
            record.update();
        }
        record.move_next();
    }
}

}  // namespace kel
