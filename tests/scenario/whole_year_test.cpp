// A farm of its own from New Farm over every module to the field record, and on into the next year: what one
// module leaves in the file is what the next one finds there.
#include <functional>

#include "composting/composting_module.h"
#include "core/file_choice.h"
#include "crops/crop_module.h"
#include "inorganic/inorganic_module.h"
#include "land/land_module.h"
#include "manure/manure_module.h"
#include "profile/profile_module.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "record/record_module.h"
#include "shell/years_module.h"
#include "storage/storage_module.h"
#include "tests/support/farm_files.h"

namespace kel::test {

namespace {

using texts = std::vector<std::string>;

/// Says yes to everything, chooses the file that lies ready, and keeps the titles of what it was told.
struct agreeing_person : prompts {
    answer ask(const message& box) override { return told.push_back(box.title), answer::yes; }
    void show_list(const titled_list&) override {}
    std::string file_to_open(const file_request&) override { return file; }
    std::string file_to_save(const file_request&) override { return file; }
    std::string file;
    texts told;
};

struct shown_pages : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id /*id*/) override {}
    void show(const viewer_request& request) override { pages.push_back(file_name_of(request.page)); }
    texts pages;
};

struct no_screens : screens {
    void open(screen_id) override {}
    void open_in_place_of(screen_id, screen_id) override {}
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
};

}  // namespace

class WholeYear : public farm_test {
  protected:
    void new_farm() {
        profile.new_farm();
        profile.set_name("Nether Mains");
        state.farm_zone = "Strathmore and Fife KEL";
        state.farm_town = "Kirriemuir";
        profile.show_location();
        profile.set_total_area("30");
        profile.set_kel_area("30");
        profile.paste_names_and_sizes("Big Field\t20\nLow Park\t10\n");
        profile.enter_soil(0, 0, "Sandy loams");
        profile.enter_soil(1, 1, "Other mineral soils");
        profile.set_year("19/12/2024");
        person.file = path("first.kel");
        ASSERT_EQ(profile.set_profile(), set_profile_result::saved);
    }
    void step1() {
        land_module land(state, person);
        land.load_land_stuff();
        for (const int row : {0, 1})
            land.enter_area(row, land_column::grass, "0");
        land.enter_deduction(0, land_column::buffer, "2");
        land.enter_stock(0, "1 dairy cow (650 kg)");
        land.enter_number(0, "10");
        land.calculate();
        EXPECT_EQ(land.result()->farm_limit_kg, 5100);
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
        storage.plan().enter_stock(empty_stock_row(storage.plan().production()), "1 dairy cow (650 kg)");
        for (const int row : {0, 1})
            EXPECT_TRUE(storage.plan().enter_field_use(row, "Other", "Other", make_date(31, 8, 2025)).closes);
        storage.storage_report(desk);
        ASSERT_TRUE(storage.save_storage());
    }
    void step3() {
        manure_module manure(state, person);
        manure.manure_load_stuff();
        auto apply = [&, row = 0](const char* field, const char* type, const char* time, date day,
                                  const char* area, const char* amount) mutable {
            manure.enter_field(row, field);
            manure.enter_manure(row, type);
            manure.enter_incorporation(row, std::string(time));
            EXPECT_TRUE(manure.enter_date(row, day).closes);
            manure.enter_area(row, area);
            manure.enter_amount(row++, amount);
        };
        const char* slurry = "Dairy slurry - medium dry matter (6%)";
        apply("Big Field", slurry, "Over 6 hours", make_date(10, 3, 2025), "18", "900");
        apply("Big Field", slurry, "Over 6 hours", make_date(10, 9, 2025), "18", "630");
        apply("Low Park", "Cattle FYM stored under cover", "Over 24 hours", make_date(10, 10, 2025), "10",
              "200");
        ASSERT_TRUE(manure.calculate());
        EXPECT_EQ(manure.results().cell(0, manure_result_column::warnings), "Yes");
        manure.report(desk);
        ASSERT_TRUE(manure.save());
    }
    void step4() {
        inorganic_module inorganic(state, person);
        inorganic.inorganic_load_stuff();
        auto apply = [&, row = 0](const char* field, date day, const char* amount) mutable {
            inorganic.enter_field(row, field);
            inorganic.pick_date(row, day);
            EXPECT_TRUE(inorganic
                            .enter_application(row++, {{{.day = day},
                                                        {.text = "Ammonium nitrate"},
                                                        {.text = amount},
                                                        {.text = "34.5"},
                                                        {.text = "seedbed"}}})
                            .closes);
        };
        apply("Big Field", make_date(1, 4, 2025), "1200");
        apply("Big Field", make_date(1, 9, 2025), "100");
        apply("Low Park", make_date(2, 4, 2025), "100");
        inorganic.report(desk);
        ASSERT_TRUE(inorganic.save());
    }
    void enter_crop(crop_module& crops, int row, const char* field, const char* crop, int year) {
        const date previous_harvest = make_date(31, 8, year - 1);
        EXPECT_TRUE(crops.enter_field(row, field).closes);
        crops.enter_previous_crop(row, {{{.text = "Spring barley"}, {.day = previous_harvest}}});
        outcome step = crops.enter_planned_crop(
            row, {{{.text = crop}, {.day = make_date(31, 8, year)}, {.day = make_date(20, 3, year)}}});
        while (step.next)
            step = crops.enter_answer(row, {{{.choice = 0}}});
        EXPECT_TRUE(step.closes) << crop;
    }
    void requirement_of_crops(int year) {
        crop_module crops(state, person, other_screens);
        crops.open();
        crops.enter_winter_rain(1);
        enter_crop(crops, 0, "Big Field", "Spring oats", year);
        enter_crop(crops, 1, "Low Park", "Linseed", year);
        ASSERT_TRUE(crops.calculate());
        crops.report(desk);
        crops.back();
        ASSERT_TRUE(crops.save());
    }
    void composting() {
        composting_module compost(state, person);
        ASSERT_TRUE(compost.calculate({"Onion", "40", "Straw", "0.5"}));
        compost.view_database();
        EXPECT_TRUE(compost.enter_field("Low Park").closes);
        compost.report(desk);
        compost.close_panel();
    }
    // The days of the field's rows, and its warnings.
    texts days(const record_module& record) const {
        texts found;
        for (int row = 0; row < record.record().row_count(); ++row)
            found.push_back(record.record().cell(row, record_column::day) + " " +
                            record.record().cell(row, record_column::crop));
        return found;
    }
    texts warnings(const record_module& record) const {
        texts found;
        for (int row = 0; row < record.warnings().row_count(); ++row)
            found.push_back(record.warnings().cell(row, record_warning_column::text));
        return found;
    }
    std::string stored(const std::string& table, const std::string& column) const {
        std::string joined;
        for (const std::string& text : column_of(state.assess_file, table, column))
            joined += (joined.empty() ? "" : ", ") + text;
        return joined;
    }

    agreeing_person person;
    shown_pages viewer;
    no_screens other_screens;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    profile_module profile{state, person};
};

TEST_F(WholeYear, FromNewFarmToTheRecordOfTheNextYear) {
    namespace says = record_messages;
    new_farm();
    step1();
    step2();
    step3();
    step4();
    requirement_of_crops(2025);
    composting();
    EXPECT_EQ(stored("Land", "Crop"), "Other / Other, Other / Other");
    EXPECT_EQ(stored("Land", "September"), "Closed, 10.00");
    EXPECT_EQ(stored("Land_animals", "Total N Excreted By All These Animals (kg/year)"), "1160");
    EXPECT_EQ(stored("Manure_applic", "Total N Applic Rate"), "150, 105, 120");
    EXPECT_EQ(stored("Inorganic N", "Total N"), "414, 34.5, 34.5");
    EXPECT_EQ(stored("Inorganic N", "Date"), "2025-04-01, 2025-09-01, 2025-04-02");
    EXPECT_EQ(stored("Recommendations", "Field Area ID"), "Big Field, Low Park");
    EXPECT_EQ(stored("Straw", "Recommendation"), "4.4");

    record_module record(state, person);
    record.record_load_stuff();
    const std::string required = column_of(state.assess_file, "Recommendations", "N required").front();
    EXPECT_EQ(days(record), (texts{"10/03/2025 Spring oats", "01/04/2025 Spring oats", "01/09/2025  Other",
                                   "10/09/2025  Other"}));
    EXPECT_EQ(warnings(record),
              (texts{says::requirement_exceeded("448.5", required), says::inorganic_breach("01/09/2025"),
                     says::manure_breach("10/09/2025"), std::string(says::limit_breached)}));
    record.select_field("Low Park");
    EXPECT_EQ(warnings(record), texts{}) << "farmyard manure in October is exempt";
    person.file = path("record.csv");
    record.export_csv("");
    EXPECT_NE(file_text(path("record.csv")).find("\"Linseed\",\"20/03/2025\",\"02/04/2025\""),
              std::string::npos);
    record.report(desk);
    EXPECT_EQ(viewer.pages,
              (texts{"KEL_report_landspread.htm", "KEL_report_storage.htm", "KEL_report_manureN.htm",
                     "KEL_report_inorganic.htm", "KEL_report_croprec.htm", "KEL_report_compost.htm",
                     "KEL_report_record.htm"}));

    // The next year begins with the farm as it is and without applications; last year's reach into it.
    years_module years(state, person, profile, [](picker_module) {});
    years.open();
    ASSERT_TRUE(years.open_create());
    person.file = path("second.kel");
    years.browse_new_file();
    ASSERT_TRUE(years.create());
    ASSERT_EQ(state.assess_file, path("second.kel"));
    ASSERT_EQ(state.prev1_file, path("first.kel"));
    EXPECT_EQ(stored("Manure_applic", "Date") + stored("Inorganic N", "Date") + stored("Crops", "Next Crop"),
              "");
    EXPECT_EQ(stored("Land", "September"), "Closed, 10.00");
    EXPECT_EQ(stored("Straw", "Field Area ID"), "Low Park");
    requirement_of_crops(2026);
    record.record_load_stuff();
    EXPECT_EQ(record.field(), "Low Park");
    EXPECT_EQ(days(record), texts{"10/10/2025 Linseed"});
    record.select_field("Big Field");
    EXPECT_EQ(days(record), (texts{"01/09/2025 Spring oats", "10/09/2025 Spring oats"}));
    EXPECT_EQ(warnings(record),
              (texts{says::inorganic_breach("01/09/2025"), says::manure_breach("10/09/2025")}));
}

}  // namespace kel::test
