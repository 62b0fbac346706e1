#include "tools/bench/bench_farm.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <stdlib.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/assessment_store.h"
#include "core/numbers.h"
#include "core/settings_store.h"
#include "core/whole_file.h"
#include "land/stock_nitrogen.h"

namespace kel::bench {

namespace fs = std::filesystem;

namespace {

constexpr int kel_year = 2024;
constexpr int stock_lines = 50;
constexpr std::string_view soil = "Other mineral soils";

// Tables with a row per field besides [Field Data] and [Land], with their column of the soil.
struct field_table {
    std::string_view table;
    std::string_view soil_column;
};
constexpr std::array<field_table, 6> field_tables{{{"Crops", "Soil Type"},
                                                   {"Manure_applic", "Soil"},
                                                   {"Site", "Soil Type"},
                                                   {"Straw", ""},
                                                   {"Inorganic N", ""},
                                                   {"Recommendations", ""}}};

std::string new_folder() {
    std::string folder = (fs::temp_directory_path() / "kel-bench-XXXXXX").string();
    if (!mkdtemp(folder.data())) throw file_error(folder, "the folder could not be made.");
    return folder;
}

std::string field_name(int number) {
    return "Nether Park " + std::to_string(number);
}

std::string field_area(int number) {
    return format_fixed(2.5 + 0.25 * (number % 20), 2);
}

void add_farm(const database& db, int fields) {
    double area = 0;
    for (int number = 1; number <= fields; ++number)
        area += 2.5 + 0.25 * (number % 20);
    recordset farm = db.open("FarmProfile");
    farm.add_new();
    farm.set("Name", "Mains of Tullifern");
    farm.set("KEL", "Strathmore and Fife KEL");
    farm.set("Town", "Kirriemuir");
    farm.set("Area", shortest_text(area));
    farm.set("FieldNo", std::to_string(fields));
    farm.set("KEL Area", shortest_text(area));
    farm.update();
}

void add_field(recordset& rows, int number) {
    rows.add_new();
    rows.set("Field Name", field_name(number));
    rows.set("Size", field_area(number));
    rows.set("KEL Size", field_area(number));
    rows.set("Soil", soil);
    rows.update();
}

// Half of the fields are grass; closed months stand in both halves of the plan.
void add_land(recordset& land, int number) {
    const std::string available = format_fixed(leading_number(field_area(number)) - 0.75, 2);
    const bool grass = number % 2 == 0;
    land.add_new();
    land.set("Field Area ID", field_name(number));
    land.set("Area In Grass (ha)", grass ? field_area(number) : "0");
    land.set("Area Not In Grass (ha)", grass ? "0" : field_area(number));
    for (const char* deduction : {"Buffer Areas To Be Deducted (ha)", "Slope Areas To Be Deducted (ha)",
                                  "Other Areas To Be Deducted (ha)"})
        land.set(deduction, "0.25");
    land.set("Available Field Area (ha)", available);
    land.set("Crop", grass ? "Grass / Grass" : "Autumn sown crop / Other");
    land.set("Soil", soil);
    for (int month = 1; month <= 12; ++month) {
        const bool closed = month == 1 || month >= 11;
        land.set(month_name(month), closed ? "Closed" : available);
        land.set("Applic_" + std::string(month_name(month)), closed ? "Closed" : "25");
    }
    land.set("Total Area", field_area(number));
    land.update();
}

void add_stock(const database& db) {
    const auto types = stock_types();
    recordset rows = db.open("Land_animals");
    for (int line = 0; line < stock_lines; ++line) {
        const stock_type& type = types[static_cast<std::size_t>(line) % types.size()];
        const int number = 10 + line;
        const float total = type.n_kg_per_year * static_cast<float>(number);
        rows.add_new();
        rows.set("Stock Unit", type.name);
        rows.set("Number Of Stock Units", std::to_string(number));
        rows.set("Total N Excreted By One Stock Unit (kg/year)", shortest_text(type.n_kg_per_year));
        rows.set("Total N Excreted By All These Animals (kg/year)", shortest_text(total));
        rows.update();
    }
}

void add_module_rows(const database& db, const field_table& known, int fields) {
    recordset rows = db.open(known.table);
    for (int number = 1; number <= fields; ++number) {
        rows.add_new();
        rows.set("Field Area ID", field_name(number));
        if (!known.soil_column.empty()) rows.set(known.soil_column, soil);
        rows.update();
    }
}

void add_year(const database& db, int year) {
    recordset type = db.open("Type");
    type.edit();
    type.set("Year", make_date(19, 12, year));
    type.update();
}

void make_file(const std::string& from, const std::string& file, int fields, int year) {
    copy_whole_file(from, file);
    const database db(file);
    save_transaction save(db);
    add_farm(db, fields);
    recordset rows = db.open("Field Data");
    recordset land = db.open("Land");
    for (int number = 1; number <= fields; ++number) {
        add_field(rows, number);
        add_land(land, number);
    }
    for (const field_table& known : field_tables)
        add_module_rows(db, known, fields);
    add_stock(db);
    add_year(db, year);
    save.commit();
}

[[noreturn]] void stop_at(const std::string& title, const std::string& text) {
    std::fprintf(stderr, "kel_bench stopped, nothing should be asked: [%s] %s\n", title.c_str(),
                 text.c_str());
    std::_Exit(1);
}

}  // namespace

bench_farm::bench_farm(int fields, int years) : folder_(new_folder()) {
    state.places = {std::string(KEL_STAGE_DIR) + "/kel_calc", KEL_STAGE_DIR, folder_};
    std::array<std::string*, 3> slots{&state.slot_current, &state.slot_prev1, &state.slot_prev2};
    for (int back = 0; back < years; ++back) {
        std::string& slot = *slots.at(static_cast<std::size_t>(back));
        slot = folder_ + "/year" + std::to_string(kel_year - back) + ".kel";
        make_file(state.places.blank_assessment(), slot, fields, kel_year - back);
    }
    state.slot_selected = 1;
    set_working_files(state);
    set_short_date(state);
    set_long_date(state);
}

bench_farm::~bench_farm() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string bench_farm::copy_of_file(const std::string& name) const {
    std::string copy = folder_ + "/" + name;
    copy_whole_file(state.assess_file, copy);
    return copy;
}

table_rows rows_of(const std::string& file, const std::string& table) {
    const SQLite::Database db(file, SQLite::OPEN_READONLY);
    SQLite::Statement select(db, "SELECT * FROM [" + table + "] ORDER BY rowid");
    table_rows rows;
    while (select.executeStep()) {
        auto& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(select.getColumnCount()));
        for (int c = 0; c < select.getColumnCount(); ++c)
            row.push_back(select.getColumn(c).getString());
    }
    return rows;
}

answer silent_person::ask(const message& box) {
    stop_at(box.title, box.text);
}
void silent_person::show_list(const titled_list& list) {
    stop_at(list.heading, list.note);
}
std::string silent_person::file_to_open(const file_request& request) {
    stop_at(request.title, "(open)");
}
std::string silent_person::file_to_save(const file_request& request) {
    stop_at(request.title, "(save)");
}

}  // namespace kel::bench
