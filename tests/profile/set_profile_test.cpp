#include <filesystem>

#include "core/file_choice.h"
#include "core/settings_store.h"
#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;
using result = set_profile_result;
using texts = std::vector<std::string>;

class SetProfile : public farm_test {
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

    scripted_prompts person;
    profile_module profile{state, person};
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
        EXPECT_THROW(profile.set_profile(), file_error);
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

// The copy succeeds and the store is written, and only then the save fails.
TEST_F(FailingNewFarm, AFailedSavePutsTheStoreBack) {
    std::filesystem::create_directory(path("dbases"));
    std::filesystem::copy_file(state.places.blank_assessment(), path("dbases/blank.mdb"));
    database(path("dbases/blank.mdb")).delete_rows("Type");
    state.places.program_folder = folder_of(path("dbases"));
    expect_failure(path("new.kel"));
    EXPECT_TRUE(column_of(path("new.kel"), "Field Data", "Field Name").empty());
}

}  // namespace
}  // namespace kel::test
