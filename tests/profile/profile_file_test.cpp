// What loading makes of a file, and Set Profile with its refusals and what it leaves in the file.
#include <filesystem>

#include "core/file_choice.h"
#include "core/settings_store.h"
#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "profile/profile_report.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;
using result = set_profile_result;
using texts = std::vector<std::string>;

class ProfileFile : public farm_test {
  protected:
    scripted_prompts person;
    profile_module profile{state, person};
};

class LoadProfile : public ProfileFile {
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
        for (int row = 0; row < profile.fields().row_count(); ++row)
            for (int column = 0; column < 5; ++column)
                text += profile.fields().cell(row, column) + (column == 4 ? ";" : ",");
        return text;
    }
};

TEST_F(LoadProfile, FieldsOfAnotherFarmCountAsNew) {
    load(make_farm("a.kel", {{"Low", "4.50", "Sands"}, {"High", "3"}}));
    const std::string other = make_farm("b.kel", {{"High", "9"}, {"Far", "2", "Sands"}});
    const auto imports = [&](const char* title, import_mode mode, const std::string& file) {
        person.expect_file(title, file);
        return profile.import_records(mode);
    };
    const char* adding = "Add data from another profile";
    EXPECT_FALSE(imports(adding, import_mode::add, ""));
    for (int times = 0; times < 2; ++times) {
        person.expect_file(adding, other).expect(messages::name_in_new_file);
        if (times == 1) person.expect(messages::name_in_new_file);
        ASSERT_TRUE(profile.import_records(import_mode::add));
        EXPECT_EQ(fields_text(), "Low,4.50,4.50,Sands,Low;High,3,3,Other mineral soils,High;Far,2,2,Sands,;");
        EXPECT_EQ(profile.farm().field_count, "3");
    }
    ASSERT_TRUE(imports("Replace with data from another profile", import_mode::over_write, other));
    EXPECT_EQ(fields_text(), "High,9,9,Other mineral soils,;Far,2,2,Sands,;");
    EXPECT_EQ(profile.farm().field_count, "2");
    ASSERT_TRUE(imports("Replace with data from another profile", import_mode::over_write,
                        make_farm("empty.kel", {})));
    EXPECT_EQ(profile.fields().row_count(), 2);
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Size"), (texts{"4.50", "3"}));
}

TEST_F(LoadProfile, FillsScreenStateAndYearThroughTheBox) {
    const std::string file =
        make_farm("a.kel", {{"Low", "4.50", "Sands"}, {"High's <b> \U0001F404", "3"}}, 2031);
    set_cell(file, "FarmProfile", "Town", "St Andrews");
    set_cell(file, "FarmProfile", "KEL Area", "7.5");
    load(file);
    EXPECT_EQ(profile.farm(), (farm_details{"Test Farm", "St Andrews - Strathmore and Fife KEL", "1000",
                                            "7.5", "2", "19/12/2031"}));
    EXPECT_EQ(fields_text(),
              "Low,4.50,4.50,Sands,Low;"
              "High's <b> \U0001F404,3,3,Other mineral soils,High's <b> \U0001F404;");
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
    EXPECT_EQ(fields_text(), "Other,9,4,Other mineral soils,Other;");
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
    load(make_farm("a.kel", {{"Low", "4.50", "Sands"}}));
    profile.enter_name(0, "Low <b>");
    std::string page;
    for (const std::string& line : profile_report(profile.farm(), profile.fields()))
        page += line;
    std::size_t at = 0;
    for (const char* piece : {"Test Farm", "Cupar - Strathmore and Fife KEL", "1000 ha", "fields: 1",
                              "Low <b>", "4.50", "4.50", "Sands"}) {
        at = page.find(piece, at);
        ASSERT_NE(at++, std::string::npos) << piece;
    }
}

class SetProfile : public ProfileFile {
  protected:
    /// A farm typed in, of 4.5 ha in one field, that nothing is wrong with.
    void type_farm() {
        profile.new_farm();
        profile.set_name("Mains");
        state.farm_zone = "Lower Nithsdale KEL";
        state.farm_town = "Dumfries";
        profile.show_location();
        profile.set_total_area("10");
        profile.set_kel_area("4.50");
        profile.paste_names_and_sizes("Low\t4.5\n");
        profile.enter_soil(0, 0, "Sands");
        profile.set_year("19/12/2025");
    }
    void expect_refusal(const message& box, result how = result::refused) {
        person.expect(box);
        EXPECT_EQ(profile.set_profile(), how);
    }
    void save_as_new(const std::string& file) {
        person.expect_file("Set up a new profile", file);
        EXPECT_EQ(profile.set_profile(), result::saved);
    }
};

// Each entry is filled in turn; whatever is missing behind it stays untold.
TEST_F(SetProfile, RefusesInItsOrder) {
    expect_refusal(messages::no_name);
    profile.set_name("Mains");
    expect_refusal(messages::no_location);
    state.farm_town = "Cupar";
    profile.show_location();
    expect_refusal(messages::no_area);
    profile.set_total_area("10");
    expect_refusal(messages::no_fields);
    profile.set_field_count("3");  // typed, and no field created
    expect_refusal(messages::no_fields);
    profile.paste_names_and_sizes("Low\t4.5\nHigh\t5\n");
    profile.set_field_count("0");
    expect_refusal(messages::no_fields);
    profile.set_field_count("2");
    expect_refusal(messages::no_year);
    profile.set_year("19/12/2025");
    expect_refusal(messages::missing_data);
    profile.enter_soil(0, 1, "Sands");
    profile.clear_cell(1, field_column::kel_area);
    expect_refusal(messages::missing_data);
    EXPECT_TRUE(state.assess_file.empty());
}

TEST_F(SetProfile, ZoneAreaMustBeTheFieldsSumAndFitIntoTheFarm) {
    type_farm();
    profile.set_kel_area("20");
    person.expect(messages::kel_area_query, answer::no);
    expect_refusal(messages::kel_area_to_adjust, result::refused_focus_kel_area);
    EXPECT_EQ(profile.farm().kel_area, "20");
    EXPECT_EQ(state.kel_year_start, make_date(19, 12, 2025));  // the year stands before the question

    profile.set_total_area("4.4");
    person.expect(messages::kel_area_query, answer::yes);
    expect_refusal(messages::kel_area_above_total, result::refused_focus_farm_area);
    EXPECT_EQ(profile.farm().kel_area, "4.5");

    profile.set_total_area("4.50");  // equal areas pass
    person.expect_file("Set up a new profile", "").expect(messages::add_or_overwrite, answer::no);
    EXPECT_EQ(profile.set_profile(), result::cancelled);
    profile.paste_names_and_sizes("A\t1.1\nB\t2.2\n");
    profile.enter_soil(0, 1, "Sands");
    person.expect(messages::kel_area_query, answer::yes).expect_file("Set up a new profile", "");
    profile.set_profile();
    EXPECT_EQ(profile.farm().kel_area, "3.3000002");  // shortest text of the single precision sum
}

TEST_F(SetProfile, ANewFarmMakesItsFileAndTheStoreNamesIt) {
    type_farm();
    state.slot_prev1 = state.prev1_file = "left over";
    person.expect(messages::add_or_overwrite, answer::yes);
    const std::string odd = std::string(10'000, 'x') + "' \"<b>\" \U0001F404";
    profile.paste_names_and_sizes(odd + "\t0.0\n");
    profile.enter_soil(1, 1, "Peaty soils");
    save_as_new(path("mains"));

    const std::string file = path("mains.kel");
    EXPECT_EQ(state.assess_file, file);
    EXPECT_EQ(state.slot_prev1 + state.prev1_file, "");
    EXPECT_EQ(state.last_dir, folder_of(file));
    EXPECT_EQ(file_text(state.places.settings_store()), "0\n0\n0\n" + file + "\nnone\nnone\n");
    const std::pair<const char*, const char*> stored[] = {
        {"Name", "Mains"},    {"KEL", "Lower Nithsdale KEL"},
        {"Town", "Dumfries"}, {"Area", "10"},
        {"FieldNo", "2"},     {"KEL Area", "4.50"}};
    for (int save = 1; save <= 2; ++save) {
        for (const auto& [column, text] : stored)
            EXPECT_EQ(column_of(file, "FarmProfile", column), texts{text});
        EXPECT_EQ(column_of(file, "Field Data", "Field Name"), (texts{"Low", odd}));
        EXPECT_EQ(column_of(file, "Field Data", "KEL Size"), (texts{"4.5", "0.0"}));
        EXPECT_EQ(column_of(file, "Type", "Year"), texts{"2025-12-19"});
        EXPECT_EQ(profile.set_profile(), result::saved);  // now without a dialog
    }
}

/// The farm that was open before is named in the store; then a new one is begun.
class FailingNewFarm : public SetProfile {
  protected:
    void SetUp() override {
        open_farm({{"Old", "1"}});
        write_store(state);
        state.assess_file = state.slot_current = {};
        type_farm();
    }
    void expect_failure(const std::string& file) {
        const std::string store = file_text(state.places.settings_store());
        person.expect_file("Set up a new profile", file);
        try {
            profile.set_profile();
            ADD_FAILURE() << "saved";
        } catch (const file_error& failure) {
            EXPECT_EQ(failure.file(), file) << "the name that was chosen, not one beside it";
        }
        EXPECT_EQ(state.assess_file + state.slot_current, "");
        EXPECT_EQ(profile.fields().cell(0, 0), "Low");
        EXPECT_EQ(file_text(state.places.settings_store()), store);
    }
};

TEST_F(FailingNewFarm, AFolderThatCannotTakeItLeavesEverythingToTryAgain) {
    expect_failure(path("no such folder/new.kel"));
    save_as_new(path("new.kel"));
    EXPECT_EQ(state.assess_file, path("new.kel"));
}

// The copy succeeds and only then the save fails: no empty farm stays, and a file chosen to be replaced is
// kept.
TEST_F(FailingNewFarm, AFailedSaveLeavesNoEmptyFarmAndKeepsTheStore) {
    std::filesystem::create_directory(path("dbases"));
    std::filesystem::copy_file(state.places.blank_assessment(), path("dbases/blank.mdb"));
    database(path("dbases/blank.mdb")).delete_rows("Type");
    state.places.program_folder = folder_of(path("dbases"));
    expect_failure(path("new.kel"));
    write_file(path("old.kel"), "to be replaced");
    expect_failure(path("old.kel"));
    EXPECT_EQ(file_text(path("old.kel")), "to be replaced");
    for (const char* left : {"new.kel", "new.kel.unfinished", "old.kel.unfinished"})
        EXPECT_FALSE(std::filesystem::exists(path(left))) << left;
}

TEST_F(SetProfile, AsksBeforeItWritesOverAProfileChangedMeanwhile) {
    open_farm({{"Low", "4"}});
    profile.load_profile();
    profile.set_kel_area("4");
    EXPECT_EQ(profile.set_profile(), result::saved);
    database(state.assess_file).update_rows("Field Data", {{"Soil", "Sands"}}, "Field Name", "Low");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no);
    EXPECT_EQ(profile.set_profile(), result::refused);
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Soil"), texts{"Sands"});
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    EXPECT_EQ(profile.set_profile(), result::saved);
}

}  // namespace
}  // namespace kel::test
