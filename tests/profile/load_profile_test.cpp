#include "core/settings_store.h"
#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "profile/profile_report.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;

class LoadProfile : public farm_test {
  protected:
    void set_cells(const std::string& file, const std::string& table, const row_values& values) {
        const database db(file);
        recordset row = db.open(table);
        row.edit();
        for (const auto& [column, text] : values)
            row.set(column, text);
        row.update();
    }
    std::string fields_text() const {
        std::string text;
        for (int row = 0; row < profile.fields().row_count(); ++row) {
            for (int column = 0; column < 5; ++column)
                text += profile.fields().cell(row, column) + ",";
            text += ";";
        }
        return text;
    }

    scripted_prompts person;
    profile_module profile{state, person};
};

TEST_F(LoadProfile, FillsScreenStateAndYearThroughTheBox) {
    state.assess_file = make_farm("a.kel", {{"Low", "4.50", "Sands"}, {"High's <b> \U0001F404", "3"}}, 2031);
    set_cells(state.assess_file, "FarmProfile", {{"Town", "St Andrews"}, {"KEL Area", "7.5"}});
    profile.load_profile();
    EXPECT_EQ(profile.farm(), (farm_details{"Test Farm", "St Andrews - Strathmore and Fife KEL", "1000",
                                            "7.5", "2", "19/12/2031"}));
    EXPECT_EQ(fields_text(),
              "Low,4.50,4.50,Sands,Low,;"
              "High's <b> \U0001F404,3,3,Other mineral soils,High's <b> \U0001F404,;");
    EXPECT_EQ(state.farm_name + "," + state.farm_zone + "," + state.farm_town,
              "Test Farm,Strathmore and Fife KEL,St Andrews");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2031));
    state.kel_year_start.reset();
    profile.ass_year();
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2031));
}

TEST_F(LoadProfile, EmptyZoneAreasLeaveWhatTheScreenShowed) {
    state.assess_file = make_farm("a.kel", {{"Low", "4"}, {"High", "3"}});
    profile.load_profile();
    state.assess_file = make_farm("b.kel", {{"Other", "9"}});
    set_cells(state.assess_file, "FarmProfile", {{"KEL Area", ""}});
    set_cells(state.assess_file, "Field Data", {{"KEL Size", ""}});
    profile.load_profile();
    EXPECT_EQ(profile.farm().kel_area, "1000");
    EXPECT_EQ(fields_text(), "Other,9,4,Other mineral soils,Other,;");
}

TEST_F(LoadProfile, ACountThatDisagreesWithTheTableLosesNoField) {
    state.assess_file = make_farm("a.kel", {{"Low", "4"}, {"High", "3"}});
    set_cells(state.assess_file, "FarmProfile", {{"FieldNo", "1"}});
    profile.load_profile();
    EXPECT_EQ(profile.fields().row_count(), 2);
    set_cells(state.assess_file, "FarmProfile", {{"FieldNo", "3"}});
    profile.load_profile();
    EXPECT_EQ(profile.fields().row_count(), 3);
    EXPECT_EQ(profile.fields().cell(2, 0), "");
}

TEST_F(LoadProfile, AFileWithoutProfileRowIsToldAndStillGivesItsYear) {
    state.assess_file = make_farm("a.kel", {{"Low", "4"}});
    profile.load_profile();
    const std::string empty = make_farm("b.kel", {}, 2030);
    database(empty).delete_rows("FarmProfile");
    state.assess_file = empty;
    person.expect(messages::data_load_error);
    profile.load_profile();
    EXPECT_EQ(profile.farm().year, "19/12/2030");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2030));
    EXPECT_EQ(state.assess_file, empty);
    EXPECT_EQ(profile.fields().row_count(), 1);
}

TEST_F(LoadProfile, AFileThatCannotBeReadLeavesEverythingAsItWas) {
    state.assess_file = make_farm("a.kel", {{"Low", "4"}});
    profile.load_profile();
    const farm_details farm = profile.farm();
    const std::string shown = fields_text();
    const std::string odd_year = make_farm("odd_year.kel", {{"Other", "1"}}, 2030);
    set_cells(odd_year, "Type", {{"Year", "next winter"}});
    set_cells(odd_year, "FarmProfile", {{"Name", "Other Farm"}});
    const std::string no_database = path("no_database.kel");
    write_file(no_database, std::string(5000, 'x'));
    for (const std::string& file : {odd_year, no_database, path("missing.kel")}) {
        state.assess_file = file;
        EXPECT_THROW(profile.load_profile(), file_error);
        EXPECT_EQ(profile.farm(), farm);
        EXPECT_EQ(fields_text(), shown);
        EXPECT_EQ(state.farm_name, "Test Farm");
        EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2024));
    }
}

TEST_F(LoadProfile, CancelOfANewFarmBringsTheLastFarmBack) {
    open_farm({{"Low", "4"}});
    write_store(state);
    profile.load_profile();
    state.assess_file = state.slot_current = {};
    state.slot_selected = 0;
    profile.new_farm();
    EXPECT_TRUE(profile.year_list_enabled());
    EXPECT_EQ(profile.farm(), farm_details{});
    EXPECT_EQ(profile.fields().row_count(), 0);
    profile.cancel();
    EXPECT_EQ(state.assess_file, path("farm.kel"));
    EXPECT_EQ(profile.farm().name, "Test Farm");
    profile.edit_existing();
    EXPECT_FALSE(profile.year_list_enabled());
}

TEST_F(LoadProfile, ReportShowsTheScreenAndNotTheFile) {
    open_farm({{"Low", "4.50", "Sands"}});
    profile.load_profile();
    profile.set_name("Unsaved <Farm>");
    profile.enter_name(0, "Low <b>");
    std::string page;
    for (const std::string& line : profile_report(profile.farm(), profile.fields()))
        page += line;
    std::size_t at = 0;
    for (const std::string piece :
         {"Farm Profile", "Farm name: Unsaved <Farm>", "Location: Cupar - Strathmore and Fife KEL",
          "farm: 1000 ha", "farm: 1000 ha", "Number of fields: 1", "Soil Type", "Low <b>", "4.50", "4.50",
          "Sands"}) {
        at = page.find(piece, at);
        ASSERT_NE(at, std::string::npos) << piece;
        at += piece.size();
    }
    EXPECT_EQ(page.find("Field Name 2"), std::string::npos);
}

}  // namespace
}  // namespace kel::test
