// A farm of its own from New Farm over every module to the field record, and on into the next year: what one
// module leaves in the file is what the next one finds there. Its four fields: Big Field breaks every rule,
// Low Park and Home Pasture none, and Wet Nook is left out of Step 2. The figures were worked out by hand.
#include <algorithm>
#include <filesystem>

#include "composting/composting_module.h"
#include "crops/crop_module.h"
#include "grass/grass_module.h"
#include "inorganic/inorganic_module.h"
#include "land/land_module.h"
#include "manure/manure_module.h"
#include "profile/profile_module.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "record/record_module.h"
#include "reports/contents_page.h"
#include "shell/years_module.h"
#include "storage/storage_module.h"
#include "tests/support/farm_files.h"

namespace kel::test {

namespace {

using texts = std::vector<std::string>;
namespace says = record_messages;

/// Says yes to everything but to a report of one field only, chooses the file that lies ready, and keeps the
/// titles of what it was told.
struct agreeing_person : prompts {
    answer ask(const message& box) override {
        told.push_back(box.title);
        return box == says::which_fields ? answer::no : answer::yes;
    }
    void show_list(const titled_list&) override {}
    std::string file_to_open(const file_request&) override { return file; }
    std::string file_to_save(const file_request&) override { return file; }
    std::string file;
    texts told;
};

struct no_viewer : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id /*id*/) override {}
    void show(const viewer_request& /*request*/) override {}
};

struct no_screens : screens {
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

/// What a column of the file holds, row by row.
struct stored_column {
    const char* table;
    const char* column;
    const char* rows;
};

/// What a page of the reports shows, in this order.
struct shown_page {
    const char* file;
    texts parts;
};

/// What the record shows of a field: day and crop of each row, and the warnings.
struct recorded_field {
    const char* field;
    texts rows;
    texts warnings;
};

struct applied_manure {
    const char* field;
    const char* type;
    const char* incorporation;
    date day;
    const char* area;
    const char* amount;
};

struct planned_crop {
    const char* field;
    const char* previous;
    const char* crop;
};

const char* const slurry = "Dairy slurry - medium dry matter (6%)";

}  // namespace

class WholeYear : public farm_test {
  protected:
    void new_farm() {
        profile.new_farm();
        profile.set_name("Nether Mains");
        state.farm_zone = "Strathmore and Fife KEL";
        state.farm_town = "Kirriemuir";
        profile.show_location();
        profile.set_total_area("44");
        profile.set_kel_area("44");
        profile.paste_names_and_sizes("Big Field\t20\nLow Park\t10\nHome Pasture\t12\nWet Nook\t2\n");
        const char* soils[] = {"Sandy loams", "Other mineral soils", "Sandy loams", "Humose soils"};
        for (int row = 0; row < 4; ++row)
            profile.enter_soil(row, row, soils[row]);
        profile.set_year("19/12/2024");
        person.file = path("first.kel");
        ASSERT_EQ(profile.set_profile(), set_profile_result::saved);
        profile.report(desk);
    }
    void step1() {
        land_module land(state, person);
        land.load_land_stuff();
        const char* grass[] = {"0", "0", "12", "2"};
        for (int row = 0; row < 4; ++row)
            land.enter_area(row, land_column::grass, grass[row]);
        land.enter_deduction(0, land_column::buffer, "2");
        land.enter_stock(0, "1 dairy cow (650 kg)");
        land.enter_number(0, "10");
        land.calculate();
        land.report(desk);
        ASSERT_TRUE(land.save());
    }
    void step2() {
        storage_module storage(state, person);
        storage.storage_load_stuff();
        storage.water().set_cows("10");
        storage.water().set_pig_pens("0");
        ASSERT_TRUE(storage.storage_cont1());
        ASSERT_TRUE(storage.stores().add_store({.name = "Tank",
                                                .shape = "Square or rectangular",
                                                .depth = "3",
                                                .length = "20",
                                                .width = "10",
                                                .diameter = "",
                                                .angle = "",
                                                .percent = "20",
                                                .area = "200"}));
        ASSERT_TRUE(storage.storage_cont2());
        plan_page& plan = storage.plan();
        const int stock = empty_stock_row(plan.production());
        plan.enter_stock(stock, "1 dairy cow (650 kg)");
        plan.enter_number(stock, "10");
        plan.enter_percent(stock, "100");
        const char* uses[] = {"Other", "Other", "In grass"};
        for (int row = 0; row < 3; ++row)
            EXPECT_TRUE(plan.enter_field_use(row, uses[row], uses[row], make_date(31, 8, 2025)).closes);
        plan.enter_slurry_applic(2, 6, "20");
        storage.storage_report(desk);
        ASSERT_TRUE(storage.save_storage());
    }
    void step2_as_it_stands() {
        storage_module storage(state, person);
        storage.storage_load_stuff();
        ASSERT_TRUE(storage.storage_cont1() && storage.storage_cont2() && storage.save_storage());
    }
    void step3(const std::vector<applied_manure>& applications) {
        manure_module manure(state, person);
        manure.manure_load_stuff();
        int row = 0;
        for (const applied_manure& a : applications) {
            manure.enter_field(row, a.field);
            manure.enter_manure(row, a.type);
            manure.enter_incorporation(row, a.incorporation);
            EXPECT_TRUE(manure.enter_date(row, a.day).closes);
            manure.enter_area(row, a.area);
            manure.enter_amount(row++, a.amount);
        }
        ASSERT_TRUE(manure.calculate());
        manure.report(desk);
        ASSERT_TRUE(manure.save());
    }
    void step4() {
        inorganic_module inorganic(state, person);
        inorganic.inorganic_load_stuff();
        auto apply = [&, row = 0](const char* field, date day, const char* amount) mutable {
            inorganic.enter_field(row, field);
            inorganic.pick_date(row, day);
            const box_entry entered{
                {{.day = day}, {.text = "Ammonium nitrate"}, {.text = amount}, {.text = "34.5"}, {}}};
            EXPECT_TRUE(inorganic.enter_application(row++, entered).closes);
        };
        apply("Big Field", make_date(1, 4, 2025), "1200");
        apply("Big Field", make_date(1, 9, 2025), "100");
        apply("Low Park", make_date(2, 4, 2025), "100");
        apply("Home Pasture", make_date(10, 4, 2025), "200");
        inorganic.report(desk);
        ASSERT_TRUE(inorganic.save());
    }
    void enter_crop(crop_module& crops, int row, const planned_crop& entered, int year) {
        EXPECT_TRUE(crops.enter_field(row, entered.field).closes);
        crops.enter_previous_crop(row, {{{.text = entered.previous}, {.day = make_date(31, 8, year - 1)}}});
        outcome step = crops.enter_planned_crop(
            row,
            {{{.text = entered.crop}, {.day = make_date(31, 8, year)}, {.day = make_date(20, 3, year)}}});
        while (step.next)
            step = crops.enter_answer(row, {{{.choice = 0}}});
        for (const int column : {crop_column::manures, crop_column::previous_manures})
            crops.enter_manures(row, column, crops.transfer(row, column).changes.at(0).text);
    }
    void requirement_of_crops(int year, const std::vector<planned_crop>& planned) {
        crop_module crops(state, person, other_screens);
        crops.open();
        crops.enter_winter_rain(1);
        int row = 0;
        for (const planned_crop& entered : planned)
            enter_crop(crops, row++, entered, year);
        ASSERT_TRUE(crops.calculate());
        crops.report(desk);
        crops.back();
        ASSERT_TRUE(crops.save());
    }
    void requirement_of_grass(int year) {
        grass_module grass(state, person, other_screens);
        grass.grass_load_stuff();
        ASSERT_TRUE(grass.confirm_rain(2) && grass.confirm_altitude(0));
        site_page& site = grass.site();
        EXPECT_TRUE(site.enter_field(0, "Home Pasture").closes);
        site.enter_previous(0, {{{.text = "Permanent grass"}, {.day = make_date(31, 10, year - 1)}}});
        site.enter_clover(0, "Low");
        site.enter_use(0, "Silage");
        site.enter_cuts(0, "2");
        site.enter_applications(0, "1");
        for (const int column : {site_column::manure_current, site_column::manure_previous})
            site.enter_manure(0, column, site.transfer_manure(0, column).changes.at(0).text);
        grass.calculate();
        grass.report(desk);
        grass.back();
        ASSERT_TRUE(grass.cmdSite_save());
    }
    void composting() {
        composting_module compost(state, person);
        compost.view_database();
        ASSERT_TRUE(compost.calculate({"Onion", "40", "Straw", "0.5"}));
        EXPECT_TRUE(compost.enter_field("Low Park").closes);
        ASSERT_TRUE(compost.calculate({"Broccoli", "50", "PMS", "0.8"}));
        EXPECT_TRUE(compost.enter_field("Big Field").closes);
        compost.report(desk);
        compost.print_result(desk);
        compost.close_panel();
    }
    void next_year() {
        years_module years(state, person, profile, [](picker_module) {});
        years.open();
        ASSERT_TRUE(years.open_create());
        person.file = path("second.kel");
        years.browse_new_file();
        ASSERT_TRUE(years.create());
        ASSERT_EQ(state.prev1_file, path("first.kel"));
        ASSERT_EQ(state.assess_file, path("second.kel"));
    }

    void expect_file(const std::vector<stored_column>& columns) const {
        for (const stored_column& c : columns) {
            std::string rows;
            for (const std::string& text : column_of(state.assess_file, c.table, c.column))
                rows += text + "|";
            EXPECT_EQ(rows, c.rows) << c.table << " " << c.column;
        }
    }
    void expect_pages(const std::vector<shown_page>& pages) const {
        for (const shown_page& page : pages) {
            const std::string text = file_text(path(page.file));
            std::size_t at = 0;
            for (const std::string& part : page.parts) {
                at = text.find(part, at);
                ASSERT_NE(at, std::string::npos) << page.file << ", missing or out of order: " << part;
                at += part.size();
            }
        }
    }
    long reports_listed() const {
        texts files;
        for (const auto& entry : std::filesystem::directory_iterator(path("")))
            files.push_back(entry.path().filename());
        return std::ranges::count_if(contents_body(files), [](const std::string& line) {
            return line.find("Click here to view report") != std::string::npos;
        });
    }
    void expect_record(const std::vector<recorded_field>& fields) {
        record_module record(state, person);
        record.record_load_stuff();
        for (const recorded_field& expected : fields) {
            record.select_field(expected.field);
            texts rows;
            for (int row = 0; row < record.record().row_count(); ++row)
                rows.push_back(record.record().cell(row, record_column::day) + " " +
                               record.record().cell(row, record_column::crop));
            EXPECT_EQ(rows, expected.rows) << expected.field;
            texts warnings;
            for (int row = 0; row < record.warnings().row_count(); ++row)
                warnings.push_back(record.warnings().cell(row, record_warning_column::text));
            EXPECT_EQ(warnings, expected.warnings) << expected.field;
        }
        record.report(desk);
    }

    agreeing_person person;
    no_viewer viewer;
    no_screens other_screens;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    profile_module profile{state, person};
};

TEST_F(WholeYear, FromNewFarmToTheRecordOfTheNextYear) {
    new_farm();
    step1();
    step2();
    step3(
        {{"Big Field", slurry, "Over 6 hours", make_date(10, 3, 2025), "18", "900"},
         {"Big Field", slurry, "Over 6 hours", make_date(10, 9, 2025), "18", "630"},
         {"Low Park", "Cattle FYM stored under cover", "Over 24 hours", make_date(10, 10, 2025), "10", "200"},
         {"Home Pasture", slurry, "Over 6 hours", make_date(5, 6, 2025), "12", "240"},
         {"Wet Nook", slurry, "Over 6 hours", make_date(20, 5, 2025), "2", "40"}});
    step4();
    requirement_of_crops(
        2025, {{"Big Field", "Spring barley", "Spring oats"}, {"Low Park", "Winter wheat", "Linseed"}});
    requirement_of_grass(2025);
    composting();
    expect_file({
        {"Land", "Crop", "Other / Other|Other / Other|Grass / Grass||"},
        {"Land", "Available Field Area (ha)", "18.00|10.00|12.00|2.00|"},
        {"Land", "March", "0|0|12.00|2.00|"},
        {"Land", "September", "Closed|10.00|12.00|2.00|"},
        {"Land", "October", "Closed|10.00|Closed|2.00|"},
        {"Land", "Applic_June", "||20||"},
        {"Land_animals", "Total N Excreted By All These Animals (kg/year)", "1160|"},
        {"Slurry_animals", "Total Volume", "19.3|"},
        {"Manure_applic", "Total N Applic Rate", "150|105|120|60|60|"},
        {"Manure_applic", "Available N Rate", "45|5.25|12|12|12|"},
        {"Inorganic N", "Date", "2025-04-01|2025-09-01|2025-04-02|2025-04-10|"},
        {"Inorganic N", "Total N", "414|34.5|34.5|69|"},
        {"Crops", "Manures Adjustment (kg/ha)", "45|0|"},
        {"Crops", "Spring Rainfall Adjustment (kg/ha)", "10|0|"},
        {"Site", "Site Class", "2|"},
        {"Site", "Manure current", "12|"},
        {"Recommendations", "Field Area ID", "Big Field|Low Park|Home Pasture|"},
        {"Recommendations", "N required", "40|60|173|"},
        {"Straw", "Recommendation", "4.4|64|"},
        {"Straw", "Potential Spring Release", "-2.4|32|"},
    });
    expect_record({
        {"Big Field",
         {"10/03/2025 Spring oats", "01/04/2025 Spring oats", "01/09/2025  Other", "10/09/2025  Other"},
         {says::requirement_exceeded("448.5", "40"), says::inorganic_breach("01/09/2025"),
          says::manure_breach("10/09/2025"), std::string(says::limit_breached)}},
        {"Low Park", {"02/04/2025 Linseed", "10/10/2025 "}, {}},
        {"Home Pasture", {"10/04/2025 Silage", "05/06/2025 Silage"}, {}},
        {"Wet Nook",
         {"20/05/2025 Unknown"},
         {std::string(says::not_assessed), std::string(says::no_requirement)}},
    });
    EXPECT_EQ(reports_listed(), 9);
    expect_pages({
        {"KEL_report_farmprof.htm", {"Nether Mains", "44 ha", "Wet Nook", "Humose soils"}},
        {"KEL_report_landspread.htm",
         {"1160 kg N/year", "3500 kg N/year", "5100 kg N/year", "8600 kg N/year", "7440 kg N/year"}},
        {"KEL_report_storage.htm",
         {"% Full At Month End", ">27<", ">34<", ">41<", ">47<", ">54<", ">17<", ">25<", ">32<", ">39<",
          ">47<", ">55<", ">63<", "Total Slurry Spread", ">240<"}},
        {"KEL_report_manureN.htm",
         {">Big Field<", ">50.2<", ">25.5<", ">Low Park<", ">12<", ">12<", "Limit Warnings", ">Big Field<",
          "Closed Period Warnings", "to Big Field on 10/09/2025 is during a closed period"}},
        {"KEL_report_inorganic.htm", {"Big Field", "1200", "414", "Home Pasture", "10/04/2025", "69"}},
        {"KEL_report_croprec.htm",
         {"Big Field", "Spring oats", "Spring barley (Residue Group = 1)", slurry, ">100<", ">45<", ">40<",
          "Undersowing", "Manure applications to the crop", "High spring rainfall", "Low Park", ">60<"}},
        {"KEL_report_grassrec.htm",
         {"Home Pasture", "Permanent grass (Residue Group = 6)", ">185<", ">0<", ">12<", ">173<"}},
        {"KEL_report_compost.htm",
         {"Field: Low Park", "4.4t/ha", "-2.4kg N/ha", "Field: Big Field", "64t/ha", "32kg N/ha"}},
        {"nutrient_report.htm", {"Broccoli", "64 t DM PMS/ha", "32 kg N/ha"}},
        {"KEL_report_record.htm",
         {"Field Record: Big Field", "448.5 kg/ha has been applied", "<hr>", "Field Record: Low Park", "<hr>",
          "Field Record: Home Pasture", "<hr>", "Field Record: Wet Nook", "has not been assessed"}},
    });

    EXPECT_EQ(person.told, (texts{"Land Availability", "Closed period", "Land Availability",
                                  "Closed period for Inorganic Fertilisers", "Generate Report"}));

    person.told.clear();
    next_year();
    expect_file({
        {"Type", "Year", "2025-12-19|"},
        {"Land", "October", "Closed|10.00|Closed|2.00|"},
        {"Manure_applic", "Date", ""},
        {"Inorganic N", "Date", ""},
        {"Crops", "Next Crop", ""},
        {"Site", "Site Use", ""},
        {"Recommendations", "N required", "40|60|173|"},
        {"Straw", "Recommendation", "4.4|64|"},
        {"Slurry_store", "Store_%", "20|"},
    });
    step2_as_it_stands();
    step3({{"Big Field", slurry, "Over 6 hours", make_date(20, 3, 2026), "18", "900"}});
    requirement_of_crops(2026,
                         {{"Big Field", "Spring oats", "Linseed"}, {"Low Park", "Linseed", "Spring oats"}});
    requirement_of_grass(2026);
    expect_file({
        {"Slurry_store", "Store_%", "62.7|"},
        {"Crops", "Manures Adjustment (kg/ha)", "50.25|12|"},
        {"Crops", "Previous Manures Adjustment (kg/ha)", "15|0|"},
        {"Site", "Manure current", "0|"},
        {"Site", "Manure previous", "6|"},
        {"Recommendations", "Field Area ID", "Big Field|Low Park|Home Pasture|"},
        {"Recommendations", "N required", "0|63|179|"},
    });
    expect_record({
        {"Big Field",
         {"01/09/2025 Linseed", "10/09/2025 Linseed", "20/03/2026 Linseed"},
         {says::requirement_exceeded("34.5", "0"), says::inorganic_breach("01/09/2025"),
          says::manure_breach("10/09/2025"), std::string(says::limit_breached)}},
        {"Low Park", {"10/10/2025 Spring oats"}, {}},
        {"Home Pasture", {}, {}},
        {"Wet Nook", {}, {std::string(says::no_requirement)}},
    });
    expect_pages({
        {"KEL_report_manureN.htm", {">Big Field<", ">45<", ">15<", "Limit Warnings", ">Big Field<"}},
        {"KEL_report_croprec.htm",
         {"10/09/2025", "20/03/2026", ">60<", ">65.25<", ">0<", "Low Park", ">63<"}},
        {"KEL_report_grassrec.htm", {">185<", ">6<", ">179<"}},
        {"KEL_report_record.htm", {"10/09/2025", "34.5 kg/ha has been applied", "Limit breached"}},
    });
    EXPECT_EQ(person.told, (texts{"Land Availability", "Generate Report"}));
}

}  // namespace kel::test
