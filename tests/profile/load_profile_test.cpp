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
    void set_cell(const std::string& file, const char* table, const char* column, const std::string& text) {
        recordset row = database(file).open(table);
        row.edit();
        row.set(column, text);
        row.update();
    }
    void load(const std::string& file) {
        state.assess_file = file;
        profile.load_profile();
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
    const std::string file =
        make_farm("a.kel", {{"Low", "4.50", "Sands"}, {"High's <b> \U0001F404", "3"}}, 2031);
    set_cell(file, "FarmProfile", "Town", "St Andrews");
    set_cell(file, "FarmProfile", "KEL Area", "7.5");
    load(file);
    EXPECT_EQ(profile.farm(), (farm_details{"Test Farm", "St Andrews - Strathmore and Fife KEL", "1000",
                                            "7.5", "2", "19/12/2031"}));
    EXPECT_EQ(fields_text(),
              "Low,4.50,4.50,Sands,Low,;"
              "High's <b> \U0001F404,3,3,Other mineral soils,High's <b> \U0001F404,;");
    EXPECT_EQ(state.farm_name + "," + state.farm_zone + "," + state.farm_town,
              "Test Farm,Strathmore and Fife KEL,St Andrews");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2031));
}

TEST_F(LoadProfile, EmptyZoneAreasLeaveWhatTheScreenShowed) {
    load(make_farm("a.kel", {{"Low", "4"}, {"High", "3"}}));
    const std::string other = make_farm("b.kel", {{"Other", "9"}});
    set_cell(other, "FarmProfile", "KEL Area", "");
    set_cell(other, "Field Data", "KEL Size", "");
    load(other);
    EXPECT_EQ(profile.farm().kel_area, "1000");
    EXPECT_EQ(fields_text(), "Other,9,4,Other mineral soils,Other,;");
}

TEST_F(LoadProfile, ACountThatDisagreesWithTheTableLosesNoField) {
    const std::string file = make_farm("a.kel", {{"Low", "4"}, {"High", "3"}});
    set_cell(file, "FarmProfile", "FieldNo", "1");
    load(file);
    EXPECT_EQ(profile.fields().row_count(), 2);
    set_cell(file, "FarmProfile", "FieldNo", "3");
    load(file);
    EXPECT_EQ(profile.fields().row_count(), 3);
    EXPECT_EQ(profile.fields().cell(2, 0), "");
}

TEST_F(LoadProfile, AFileWithoutProfileRowIsToldAndStillGivesItsYear) {
    load(make_farm("a.kel", {{"Low", "4"}}));
    const std::string empty = make_farm("b.kel", {}, 2030);
    database(empty).delete_rows("FarmProfile");
    person.expect(messages::data_load_error);
    load(empty);
    EXPECT_EQ(profile.farm().year, "19/12/2030");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2030));
    EXPECT_EQ(profile.fields().row_count(), 1);
}

TEST_F(LoadProfile, AFileThatCannotBeReadLeavesEverythingAsItWas) {
    load(make_farm("a.kel", {{"Low", "4"}}));
    const farm_details farm = profile.farm();
    const std::string shown = fields_text();
    const std::string odd_year = make_farm("odd_year.kel", {{"Other", "1"}}, 2030);
    set_cell(odd_year, "Type", "Year", "next winter");
    set_cell(odd_year, "FarmProfile", "Name", "Other Farm");
    for (const std::string& file : {odd_year, path("missing.kel")}) {
        EXPECT_THROW(load(file), file_error);
        EXPECT_EQ(profile.farm(), farm);
        EXPECT_EQ(fields_text(), shown);
        EXPECT_EQ(state.farm_name, "Test Farm");
        EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2024));
    }
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
          "farm: 1000 ha", "fields: 1", "Low <b>", "4.50", "4.50", "Sands"}) {
        at = page.find(piece, at);
        ASSERT_NE(at, std::string::npos) << piece;
        at += piece.size();
    }
}

}  // namespace
}  // namespace kel::test
