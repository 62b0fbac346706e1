#include "storage/land_plan.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "core/assessment_files.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "rules/crop_catalogue.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

// The land table. Columns carry the names of [Land]; areas and soil come from Step 1.
// clang-format off
constexpr std::array<grid_column, 21> land_columns{{
    // heading                            stored column                       kind        width
    {"Field Area ID",                     "Field Area ID",                    calculated, 18},
    {"Soil",                              "Soil",                             calculated, 21},
    {"Crops",                             "Crop",                             entered,    27},
    {"Available Field Area (ha)",         "Available Field Area (ha)",        calculated, 14},
    {"January",                           "January",                          entered,    10},
    {"February",                          "February",                         entered,    10},
    {"March",                             "March",                            entered,    10},
    {"April",                             "April",                            entered,    10},
    {"May",                               "May",                              entered,    10},
    {"June",                              "June",                             entered,    10},
    {"July",                              "July",                             entered,    10},
    {"August",                            "August",                           entered,    10},
    {"September",                         "September",                        entered,    10},
    {"October",                           "October",                          entered,    10},
    {"November",                          "November",                         entered,    10},
    {"December",                          "December",                         entered,    10},
    {"Area In Grass (ha)",                "Area In Grass (ha)",               carried,    12},
    {"Area Not In Grass (ha)",            "Area Not In Grass (ha)",           carried,    12},
    {"Buffer Areas To Be Deducted (ha)",  "Buffer Areas To Be Deducted (ha)", carried,    14},
    {"Slope Areas To Be Deducted (ha)",   "Slope Areas To Be Deducted (ha)",  carried,    14},
    {"Other Areas To Be Deducted (ha)",   "Other Areas To Be Deducted (ha)",  carried,    14},
}};

// The spreading table. Its months are further columns of [Land].
constexpr std::array<grid_column, 13> spreading_columns{{
    // heading           stored column        kind        width
    {"Field Area ID",    "Field Area ID",     calculated, 22},
    {"January",          "Applic_January",    entered,    10},
    {"February",         "Applic_February",   entered,    10},
    {"March",            "Applic_March",      entered,    10},
    {"April",            "Applic_April",      entered,    10},
    {"May",              "Applic_May",        entered,    10},
    {"June",             "Applic_June",       entered,    10},
    {"July",             "Applic_July",       entered,    10},
    {"August",           "Applic_August",     entered,    10},
    {"September",        "Applic_September",  entered,    10},
    {"October",          "Applic_October",    entered,    10},
    {"November",         "Applic_November",   entered,    10},
    {"December",         "Applic_December",   entered,    10},
}};
// clang-format on
static_assert(land_columns[plan_column::december].stored == "December" &&
              land_columns[plan_column::area_in_grass].stored == "Area In Grass (ha)" &&
              spreading_columns[spreading_column::december].stored == "Applic_December");

int land_column_of(int month) {
    return plan_column::january + month - 1;
}

int spreading_column_of(int month) {
    return spreading_column::january + month - 1;
}

void add_last_rows(land_plan& plan) {
    plan.land.set_row_count(plan.land.row_count() + 2);
    plan.spreading.set_row_count(plan.spreading.row_count() + 2);
}

void fill_empty_months(text_grid& land, int row) {
    for (int column = plan_column::january; column <= plan_column::december; ++column)
        if (land.cell(row, column).empty())
            land.set_cell(row, column, land.cell(row, plan_column::available));
}

// The areas are Step 1's, and stand in the file as that saved them, unless they were imported.
enum class written { what_is_entered, every_column };

// One of the plan's tables and the row set that it is written into.
struct plan_writer {
    recordset& target;
    const text_grid& grid;
    written what;
    std::vector<int> stored = stored_columns(target, grid);

    // Where a cell is not empty. A month that is closed in the file is open again when its cell is empty: the
    // field's use has been entered anew.
    template <class Action>
    void for_each_written(int row, Action action) const {
        const auto cells = grid.row(row);
        for (std::size_t c = 0; c < cells.size(); ++c) {
            const bool is_entered = grid.columns()[c].kind == column_kind::entered;
            if (!is_entered && what == written::what_is_entered) continue;
            const std::string_view there = target.view(stored[c]);
            if (!cells[c].empty() || there == closed_month) action(stored[c], cells[c], there);
        }
    }
    bool changes(int row) const {
        bool differs = false;
        for_each_written(row, [&](int, const std::string& text, std::string_view there) {
            differs = differs || text != there;
        });
        return differs;
    }
    void set(int row) const {
        for_each_written(
            row, [&](int into, const std::string& text, std::string_view) { target.set_kept(into, text); });
    }
};

void open_closed_months(text_grid& grid, int row, int january) {
    for (int column = january; column < january + months_in_year; ++column)
        if (grid.cell(row, column) == closed_month) grid.set_cell(row, column, "");
}

void write_plan(const database& db, const land_plan& plan, written what) {
    std::multimap<std::string_view, int> rows_of_field;  // rows of one name keep their order
    for (int row = 0; row < plan.fields(); ++row)
        rows_of_field.emplace(plan.land.cell(row, plan_column::field), row);
    recordset rows = db.open("Land");
    const plan_writer land{rows, plan.land, what};
    const plan_writer spreading{rows, plan.spreading, what};
    for (; !rows.eof(); rows.move_next()) {
        const std::string_view name = rows.view(land.stored[plan_column::field]);
        const auto found = rows_of_field.lower_bound(name);
        if (found == rows_of_field.end() || found->first != name) continue;
        const int row = found->second;
        rows_of_field.erase(found);
        if (!land.changes(row) && !spreading.changes(row)) continue;
        rows.edit();
        land.set(row);
        spreading.set(row);
        rows.update();
    }
}

// Each with its size in the profile, as Step 1 begins it.
void add_missing_rows(const database& db, const land_plan& plan) {
    std::map<std::string, std::string> missing;
    for (farm_field& field : read_farm_fields(db))
        missing.emplace(std::move(field.name), std::move(field.size));
    recordset rows = db.open("Land");
    for (; !rows.eof(); rows.move_next())
        missing.erase(rows.text("Field Area ID"));
    for (int row = 0; row < plan.fields(); ++row) {
        const auto field = missing.extract(plan.land.cell(row, plan_column::field));
        if (!field) continue;
        rows.add_new();
        rows.set("Field Area ID", field.key());
        rows.set("Total Area", field.mapped());
        rows.update();
    }
}

constexpr std::string_view total_label = "Monthly total =";

void set_column_total(text_grid& grid, int column) {
    grid.set_cell(grid.row_count() - 1, column, column_total_text(grid, column, {}));
}

}  // namespace

land_plan empty_land_plan() {
    land_plan plan{text_grid(land_columns), text_grid(spreading_columns)};
    add_last_rows(plan);
    return plan;
}

land_plan load_land_plan(const database& db, const std::vector<farm_field>& fields, load_messages& told,
                         const std::function<message(const std::string&)>& unknown) {
    const known_fields known(fields);
    land_plan plan{text_grid(land_columns), text_grid(spreading_columns)};
    std::vector<int> stored;  // looked up once for all rows
    const auto complete = [&](text_grid& land, int row, const recordset& source) {
        fill_empty_months(land, row);
        if (stored.empty()) stored = stored_columns(source, plan.spreading);
        load_grid_row(source, stored, plan.spreading, plan.spreading.add_row());
    };
    append_rows(db, "Land", plan.land, {.fields = &known, .unknown = unknown, .complete = complete}, told);
    add_last_rows(plan);
    return plan;
}

void save_land_plan(const database& db, const land_plan& plan) {
    write_plan(db, plan, written::what_is_entered);
}

void save_imported_plan(const database& db, const land_plan& plan) {
    add_missing_rows(db, plan);
    write_plan(db, plan, written::every_column);
}

std::string month_of_use(const text_grid& land, int row, const crop_pair& use, int harvest_month, int month,
                         explanation* why) {
    const std::span<const int> closed = closed_months(land.cell(row, plan_column::soil), use.second, why);
    if (std::ranges::find(closed, month) != closed.end()) return std::string(closed_month);
    const bool under_crop = use.first != crop_types::grass && month <= harvest_month;
    std::string free = under_crop ? "0" : land.cell(row, plan_column::available);
    if (!why) return free;
    why->input("First crop", shown_crop_type(use.first).value_or(use.first), "", "Step 2, use of the field");
    if (use.first == crop_types::grass)
        why->rule("In an open month all the available area of grassland is free.");
    else
        why->rule(
            "In an open month land under any other first crop than grass is free after the month of "
            "harvest only, which was given with the use of the field.");
    if (under_crop)
        why->step("Under the crop up to " + std::string(month_name(harvest_month)) + ": 0 ha");
    else
        told_cell(land, row, plan_column::available, "Step 1", why);
    return free;
}

void set_field_use(land_plan& plan, int row, const crop_pair& use, int harvest_month) {
    plan.land.set_cell(row, plan_column::crop, compose_crop_pair(use.first, use.second));
    open_closed_months(plan.spreading, row, spreading_column::january);
    for (int month = 1; month <= months_in_year; ++month) {
        std::string text = month_of_use(plan.land, row, use, harvest_month, month);
        if (text == closed_month) plan.spreading.set_cell(row, spreading_column_of(month), text);
        plan.land.set_cell(row, land_column_of(month), std::move(text));
    }
}

std::string column_total_text(const text_grid& grid, int column, std::string_view unit, explanation* why) {
    const int fields = grid.row_count() - 2;
    std::string total = shortest_text(grid.sum(column, fields));
    if (!why) return total;
    std::vector<told_row> rows;
    for (int row = 0; row < fields; ++row)
        if (const float amount = grid.number(row, column); amount != 0)
            rows.push_back(
                {grid.cell(row, 0) + ": " + grid.cell(row, column) + ' ' + std::string(unit), amount});
    why->rule("The figures of all fields in this month added up; a closed month counts 0.");
    tell_rows(*why, rows, "fields", unit);
    return total;
}

void set_plan_totals(land_plan& plan) {
    plan.land.set_cell(plan.land.row_count() - 1, plan_column::available, std::string(total_label));
    plan.spreading.set_cell(plan.spreading.row_count() - 1, spreading_column::field,
                            std::string(total_label));
    for (int month = 1; month <= months_in_year; ++month) {
        set_column_total(plan.land, land_column_of(month));
        set_column_total(plan.spreading, spreading_column_of(month));
    }
}

float volume_spread(const land_plan& plan, int row, int month, explanation* why) {
    const float rate = plan.spreading.number(row, spreading_column_of(month));
    const float area = plan.land.number(row, land_column_of(month));
    if (why)
        why->step("Rate x free land: " + shortest_text(rate) + " cubic m/ha x " + shortest_text(area) +
                  " ha = " + default_text(rate * area) + " cubic m");
    return rate * area;
}

monthly_values monthly_spreading(const land_plan& plan) {
    monthly_values outputs{};
    for (int row = 0; row < plan.fields(); ++row)
        for (int month = 1; month <= months_in_year; ++month)
            outputs[static_cast<std::size_t>(month - 1)] += volume_spread(plan, row, month);
    return outputs;
}

}  // namespace kel
