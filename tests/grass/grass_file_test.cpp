// What each save leaves in the file, into which file it goes, what a load takes over, and the report.
#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>

#include "core/module_messages.h"
#include "grass/grass_report.h"
#include "tests/grass/grass_fixture.h"

namespace kel::test {

namespace text = grass_messages;

class grass_file_test : public grass_test {
  protected:
    void open_stored_farm() {
        open_farm({{"Low Park", "20"}, {"Haugh", "10"}});
        add_site("Haugh",
                 {{"Livestock Group 1 (Type)", "Horses"}, {"Silage Rate", "2.5"}, {"Manure current", "7"}});
        add_lu("Dairy cows", "100");
        load();
    }
    void expect_save_to(const std::string& file) { person.expect_file("Save assesment profile", file); }
};

TEST_F(grass_file_test, TheSiteSaveKeepsWhatTheStockingPageStored) {
    open_stored_farm();
    site().enter_field(1, "Low Park");
    site().enter_manure(0, site_column::manure_current, "12");
    module.to_stock();
    module.stocking().enter_use(0, "Grazing");
    module.stocking().enter_type(0, stocking_column::first_group, "Dairy cows");  // not saved by this page
    EXPECT_TRUE(module.cmdSite_save());
    EXPECT_EQ(site_column_texts("Field Area ID"), (texts{"Haugh", "Low Park"}));
    EXPECT_EQ(site_column_texts("Manure current"), (texts{"12", ""}));
    EXPECT_EQ(site_column_texts("Site Use"), (texts{"Grazing", ""}));
    EXPECT_EQ(site_column_texts("Livestock Group 1 (Type)"), (texts{"Horses", ""}));
    EXPECT_EQ(site_column_texts("Silage Rate"), (texts{"2.5", ""}));
    EXPECT_EQ(site_column_texts("Field Area Size (ha)"), (texts{"10", "20"}));
}

TEST_F(grass_file_test, TheStockingSavesKeepWhatTheSitePageStored) {
    open_stored_farm();
    site().enter_manure(0, site_column::manure_current, "12");  // not saved by this page
    module.to_stock();
    module.stocking().enter_use(0, "Grazing");
    module.stocking().enter_type(0, stocking_column::first_group, "Dairy cows");
    expect_save_to(state.assess_file);
    EXPECT_TRUE(module.cmdGrass_SU_save());
    EXPECT_EQ(site_column_texts("Livestock Group 1 (Type)"), texts{"Dairy cows"});
    EXPECT_EQ(site_column_texts("Manure current"), texts{"7"});
    EXPECT_EQ(site_column_texts("Clover"), texts{"Low"});
    EXPECT_EQ(cell(0, site_column::manure_current), "12");
    module.stocking().enter_type(0, stocking_column::first_group, "Horses");
    expect_save_to(state.assess_file);
    EXPECT_TRUE(module.cmdLU_save());
    EXPECT_EQ(site_column_texts("Livestock Group 1 (Type)"), texts{"Horses"});
    EXPECT_EQ(site_column_texts("Manure current"), texts{"7"});
    EXPECT_EQ(column_of(state.assess_file, "LU", "Stock Type"), texts{"Dairy cows"});
}

// One changed row of many is written in place, many of them with all the others.
TEST_F(grass_file_test, AnyNumberOfChangedRowsKeepsTheOtherPagesColumns) {
    open_farm({{"A", "1"}, {"B", "2"}, {"C", "3"}, {"D", "4"}, {"E", "5"}});
    for (const char* field : {"A", "B", "C", "D", "E"})
        add_site(field,
                 {{"Manure current", "7"}, {"Silage Rate", field}, {"End of season date", "2024-10-31"}});
    load();
    texts manures(5, "7");
    for (const std::vector<int>& changed : {std::vector{3}, std::vector{0, 1, 2, 4}}) {
        for (const int row : changed) {
            manures[static_cast<std::size_t>(row)] = std::to_string(10 + row);
            site().enter_manure(row, site_column::manure_current, std::to_string(10 + row));
        }
        EXPECT_TRUE(module.cmdSite_save());
        EXPECT_EQ(site_column_texts("Manure current"), manures);
        EXPECT_EQ(site_column_texts("Field Area ID"), (texts{"A", "B", "C", "D", "E"}));
        EXPECT_EQ(site_column_texts("Silage Rate"), (texts{"A", "B", "C", "D", "E"}));
        EXPECT_EQ(site_column_texts("End of season date"), texts(5, "2024-10-31"));
    }
}

TEST_F(grass_file_test, AnotherNameMakesACopyAndLastYearsFileIsRefused) {
    open_stored_farm();
    const std::string first = state.assess_file;
    state.prev1_file = make_farm("last.kel", {{"Low Park", "20"}}, 2023);
    module.to_stock();
    module.livestock().enter_number(0, "9");
    expect_save_to(state.prev1_file);
    person.expect(text::last_years_file);
    EXPECT_FALSE(module.cmdLU_save());
    expect_save_to("");
    EXPECT_FALSE(module.cmdGrass_SU_save());
    EXPECT_EQ(state.assess_file, first);
    expect_save_to(path("copy.kel"));
    EXPECT_TRUE(module.cmdLU_save());
    EXPECT_EQ(state.assess_file, path("copy.kel"));
    EXPECT_EQ(column_of(first, "LU", "Number of Animals"), texts{""});
    EXPECT_EQ(column_of(state.assess_file, "LU", "Number of Animals"), texts{"9"});
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name").size(), 2U);
    EXPECT_TRUE(open_mark().move_to(state.assess_file)) << "marked for other copies of the program";
}

TEST_F(grass_file_test, ACopyThatCannotBeFilledIsNotGoneOnIn) {
    open_stored_farm();
    const std::string first = state.assess_file;
    module.livestock().enter_number(0, "9");
    SQLite::Database(first, SQLite::OPEN_READWRITE).exec("DROP TABLE [LU]");
    expect_save_to(path("copy.kel"));
    try {
        module.cmdLU_save();
        ADD_FAILURE() << "saved";
    } catch (const file_error& failure) {
        EXPECT_EQ(failure.file(), path("copy.kel"));
    }
    EXPECT_EQ(state.assess_file, first);
    EXPECT_EQ(module.livestock().table().cell(0, livestock_column::number), "9");
    for (const char* left : {"copy.kel", "copy.kel.unfinished"})
        EXPECT_FALSE(std::filesystem::exists(path(left))) << left;
}

TEST_F(grass_file_test, SavesAskBeforeTheyWriteOverRowsChangedMeanwhile) {
    open_stored_farm();
    module.to_stock();
    const message asked = rows_changed_meanwhile(state.assess_file);
    add_lu("Horses", "8");
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.cmdSite_save());
    expect_save_to(state.assess_file);
    person.expect(asked, answer::no);
    EXPECT_FALSE(module.cmdGrass_rec_save());
    expect_save_to(state.assess_file);
    person.expect(asked, answer::no);
    module.cmdLU_continue();
    EXPECT_EQ(module.tab(), stock_tab::livestock);
    EXPECT_EQ(column_of(state.assess_file, "LU", "Stock Type").size(), 2U);
    expect_save_to(state.assess_file);
    person.expect(asked, answer::yes);
    EXPECT_TRUE(module.cmdLU_save());
    EXPECT_TRUE(module.cmdSite_save());
    EXPECT_EQ(column_of(state.assess_file, "LU", "Stock Type"), texts{"Dairy cows"});
}

TEST_F(grass_file_test, AFileThatCannotBeWrittenKeepsItsRowsAndWhatWasTyped) {
    open_stored_farm();
    site().enter_manure(0, site_column::manure_current, "12");
    std::filesystem::remove(state.assess_file);
    EXPECT_THROW(module.cmdSite_save(), file_error);
    EXPECT_THROW(module.grass_load_stuff(), file_error);
    EXPECT_EQ(cell(0, site_column::manure_current), "12");
    EXPECT_EQ(module.page(), grass_page::site);
}

TEST_F(grass_file_test, TheReportHasEachFieldWithItsManuresAndTheSilageTable) {
    open_stored_farm();
    site().enter_field(1, "Low Park");
    site().enter_clover(1, "High");
    site().enter_use(1, "Hay");
    site().enter_previous(1, sward("Rough grazing", make_date(5, 10, 2024)));
    const auto report = [&] {
        const page_lines lines =
            grass_report(site().table(), site().results(), manure_history(open_manure_years(state)),
                         module.silage().table(), "From the almanac.");
        std::string page;
        for (const std::string& line : lines)
            page += line + "\n";
        return page;
    };
    EXPECT_EQ(report().find("From the almanac."), std::string::npos);
    add_row(state.assess_file, "Manure_applic",
            {{"Field Area ID", "Haugh"},
             {"Manure Type", "Pig slurry"},
             {"Date", "2025-03-01"},
             {"Applic Rate", "31.5"}});
    module.to_stock();
    expect_save_to(state.assess_file);
    module.cmdSU_continue();
    module.back();
    module.back();
    module.calculate();
    const std::string page = report();
    std::size_t at = 0;
    for (const char* piece : {"Nitrogen Requirements for Established Grass",
                              "Haugh",
                              "Planned use:",
                              "Silage",
                              "Permanent grass (Residue Group = 6)",
                              "Manures/slurries known to have been applied in the last two years:",
                              "Date Of Application",
                              "Pig slurry",
                              "01/03/2025",
                              "31.5",
                              "Management adjustment (kg/ha)",
                              "185",
                              "-75",
                              "7",
                              "103",
                              "Low Park",
                              "Rough grazing (Residue Group = 1)",
                              "No Manures/slurries have been applied in the last two years",
                              "From the almanac.",
                              "Grazing and silage areas",
                              "LUs Fed From Silage",
                              "Haugh",
                              "2.50"}) {
        at = page.find(piece, at);
        ASSERT_NE(at, std::string::npos) << piece;
    }
}

TEST_F(grass_file_test, TheSilageTableIsReportedForAsLongAsItsFieldsStand) {
    open_stored_farm();
    module.to_stock();
    module.stocking().enter_use(0, "Silage production");
    expect_save_to(state.assess_file);
    module.cmdSU_continue();
    expect_save_to(state.assess_file);
    module.cmdGrass_rec_save();
    const auto reported = [&] { return module.silage().reported().row_count(); };
    EXPECT_EQ(reported(), 1);
    module.back();
    module.back();
    site().enter_manure(0, site_column::manure_current, "12");
    EXPECT_EQ(reported(), 1);
    site().enter_use(0, "Grazing");
    EXPECT_EQ(reported(), 0);
    site().enter_use(0, "Silage");
    EXPECT_EQ(reported(), 1);
    site().enter_field(1, "Low Park");
    EXPECT_EQ(reported(), 0);
    site().erase_row(1);
    module.livestock().enter_number(0, "9");
    module.to_stock();
    expect_save_to(state.assess_file);
    module.cmdLU_save();
    EXPECT_EQ(reported(), 0);
    load();
    EXPECT_EQ(module.silage().table().row_count(), 0);
}

TEST_F(grass_file_test, RowsOfUnknownFieldsAreToldAndLeftOut) {
    open_farm({{"Low Park", "20"}});
    add_site("Gone");
    add_site("Low Park",
             {{"Field Area Size (ha)", "19.5"}, {"End of season date", "2024-09-30"}, {"Cuts", "many"}});
    person.expect(module_messages::field_does_not_exist("Gone"));
    load();
    EXPECT_EQ(site().table().row_count(), 2);
    EXPECT_EQ(cell(0, site_column::season_end), "30/09/2024");
    EXPECT_EQ(cell(0, site_column::area), "19.5");
    EXPECT_TRUE(module.cmdSite_save());
    EXPECT_EQ(site_column_texts("End of season date"), texts{"2024-09-30"});
    EXPECT_EQ(site_column_texts("Cuts"), texts{"many"});
}

}  // namespace kel::test
