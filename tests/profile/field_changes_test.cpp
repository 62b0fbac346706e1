#include "profile/field_changes.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "profile/profile_messages.h"
#include "profile/profile_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;
namespace fs = std::filesystem;
using texts = std::vector<std::string>;
using chrono_clock = std::chrono::steady_clock;

// Every module table that knows a field, with the column that repeats its soil.
constexpr std::pair<const char*, const char*> module_tables[] = {
    {"Crops", "Soil Type"}, {"Land", "Soil"},         {"Manure_applic", "Soil"},   {"Site", "Soil Type"},
    {"Straw", nullptr},     {"Inorganic N", nullptr}, {"Recommendations", nullptr}};

class FieldChanges : public farm_test {
  protected:
    /// Three linked years with these fields.
    void open_years(const std::vector<test_field>& fields) {
        open_farm(fields, 2024);
        state.slot_prev1 = state.prev1_file = make_farm("prev1.kel", fields, 2023);
        state.slot_prev2 = state.prev2_file = make_farm("prev2.kel", fields, 2022);
        profile.load_profile();
    }
    /// The same with one row per field in every module table.
    void open_chain(const std::vector<test_field>& fields) {
        open_years(fields);
        for (const std::string& file : chain())
            for (const auto& [name, size, soil] : fields)
                for (const auto& [table, soil_column] : module_tables) {
                    row_values values{{"Field Area ID", name}};
                    if (soil_column) values.emplace_back(soil_column, soil);
                    if (table == std::string("Land")) {
                        values.emplace_back("Total Area", size);
                        values.insert(values.end(), plan.begin(), plan.end());
                    }
                    add_row(file, table, values);
                }
    }
    texts chain() const { return {state.slot_current, state.slot_prev1, state.slot_prev2}; }
    static std::string land_of(const std::string& file, const std::string& field) {
        std::string text;
        for (const char* column : {"Soil", "Total Area", "Area In Grass (ha)", "Available Field Area (ha)",
                                   "Crop", "March", "December", "Applic_March"})
            text += database(file).lookup(column, "Land", "Field Area ID", field).value_or("no row") + ",";
        return text;
    }
    void set_profile() {
        const text_grid& fields = profile.fields();
        profile.set_kel_area(std::to_string(fields.sum(field_column::kel_area, fields.row_count())));
        EXPECT_EQ(profile.set_profile(), set_profile_result::saved);
    }

    const row_values plan = {
        {"Area In Grass (ha)", "1"}, {"Crop", "Grass / Other"}, {"March", "Closed"}, {"Applic_March", "20"}};
    scripted_prompts person;
    profile_module profile{state, person};
};

TEST_F(FieldChanges, RenameAreaAndSoilReachEveryTableOfAllLinkedYears) {
    open_chain({{"Low", "4.0", "Sands"}, {"High", "3", "Sands"}, {"Far", "2", "Sands"}});
    profile.enter_name(0, "Lower");
    profile.enter_area(1, 1, field_column::area, "3.5");
    profile.enter_soil(0, 0, "Peaty soils");
    profile.enter_area(0, 0, field_column::area, "4");      // as a number it is what it was
    profile.enter_area(2, 2, field_column::kel_area, "1");  // the zone area alone clears nothing
    person.expect(messages::areas_changed);
    set_profile();
    for (const std::string& file : chain()) {
        EXPECT_EQ(column_of(file, "Field Data", "Field Name"), (texts{"Lower", "High", "Far"})) << file;
        for (const auto& [table, soil] : module_tables) {
            EXPECT_EQ(column_of(file, table, "Field Area ID"), (texts{"Lower", "High", "Far"}))
                << file << table;
            if (soil) {
                EXPECT_EQ(column_of(file, table, soil), (texts{"Peaty soils", "Sands", "Sands"}))
                    << file << table;
            }
        }
        EXPECT_EQ(land_of(file, "Lower"), "Peaty soils,4.0,1,,Grass / Other,Closed,,20,");
        EXPECT_EQ(land_of(file, "High"), "Sands,3.5,0,0,,0,0,20,");
        EXPECT_EQ(land_of(file, "Far"), "Sands,2,1,,Grass / Other,Closed,,20,");
    }
    // The years before keep their own areas, soils and year.
    EXPECT_EQ(column_of(state.slot_prev1, "Field Data", "Size"), (texts{"4.0", "3", "2"}));
    EXPECT_EQ(column_of(state.slot_prev2, "Field Data", "Soil"), (texts{"Sands", "Sands", "Sands"}));
    EXPECT_EQ(column_of(state.slot_prev1, "Type", "Year"), texts{"2023-12-19"});
}

TEST_F(FieldChanges, ASecondRenameWithoutReloadFindsNothing) {
    open_chain({{"Low", "4"}});
    profile.enter_name(0, "Lower");
    set_profile();
    profile.enter_name(0, "Lowest");
    set_profile();
    EXPECT_EQ(column_of(state.slot_current, "Field Data", "Field Name"), texts{"Lowest"});
    EXPECT_EQ(column_of(state.slot_prev1, "Field Data", "Field Name"), texts{"Lower"});
    EXPECT_EQ(column_of(state.slot_current, "Crops", "Field Area ID"), texts{"Lower"});
    profile.load_profile();
    EXPECT_EQ(profile.fields().cell(0, field_column::stored_name), "Lowest");
}

// Rows are renamed one field after the other, so the first of two swapped names takes the second one's rows
// along.
TEST_F(FieldChanges, SwappedNamesKeepTheirRowsApart) {
    open_chain({{"Low", "4"}, {"High", "4"}});
    profile.enter_name(0, "between");
    profile.enter_name(1, "Low");
    profile.enter_name(0, "High");
    set_profile();
    EXPECT_EQ(column_of(state.slot_current, "Field Data", "Field Name"), (texts{"High", "Low"}));
    EXPECT_EQ(column_of(state.slot_prev1, "Field Data", "Field Name"), (texts{"High", "Low"}));
    EXPECT_EQ(column_of(state.slot_current, "Straw", "Field Area ID"), (texts{"High", "Low"}));
}

// As after Save As: the slots still name the file before. One file may stand in two slots by two spellings.
TEST_F(FieldChanges, ReachTheSlotsAndTheSavedFileEachOnce) {
    open_chain({{"Low", "4"}});
    fs::create_directory(path("sub"));
    state.slot_prev2 = path("sub/../prev1.kel");
    const std::string copy = path("copy.kel");
    fs::copy_file(state.assess_file, copy);
    state.assess_file = copy;
    profile.enter_name(0, "Lower");
    profile.enter_area(0, 0, field_column::area, "5");
    person.expect(messages::areas_changed);
    set_profile();
    for (const std::string& file : {copy, state.slot_current, state.slot_prev1}) {
        EXPECT_EQ(column_of(file, "Field Data", "Field Name"), texts{"Lower"});
        EXPECT_EQ(column_of(file, "Crops", "Field Area ID"), texts{"Lower"});
        EXPECT_EQ(land_of(file, "Lower"), "Other mineral soils,5,0,0,,0,0,20,");
    }
}

TEST_F(FieldChanges, ANameTakenFromAnErasedFieldBringsNoneOfItsRows) {
    open_chain({{"Low", "4"}, {"High", "3"}, {"Far", "2"}});
    profile.erase_row(0);
    profile.enter_name(1, "nowhere");
    profile.enter_name(0, "Low");   // High takes the name of the field that went,
    profile.enter_name(1, "High");  // and Far the one that High gives up
    set_profile();
    set_profile();  // the names stored last are only known anew after the next load: nothing more may go
    for (const std::string& file : chain()) {
        EXPECT_EQ(column_of(file, "Field Data", "Field Name"), (texts{"Low", "High"})) << file;
        for (const auto& [table, soil] : module_tables)
            EXPECT_EQ(column_of(file, table, "Field Area ID"), (texts{"Low", "High"})) << file << table;
        EXPECT_EQ(column_of(file, "Land", "Total Area"), (texts{"3", "2"}));
    }
    EXPECT_EQ(column_of(state.slot_prev1, "Field Data", "Size"), (texts{"3", "2"}));
}

TEST_F(FieldChanges, ABrokenLinkedFileKeepsTheOldRowsEverywhere) {
    open_chain({{"Low", "4"}});
    const std::string first = file_text(state.slot_current);
    const std::string second = file_text(state.slot_prev1);
    const std::string half_a_file = file_text(state.slot_prev2).substr(0, 20'000);
    profile.enter_name(0, "Lower");
    const auto expect_failure = [&] {
        try {
            set_profile();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const file_error& e) {
            EXPECT_EQ(e.file(), state.slot_prev2);
        }
        EXPECT_EQ(file_text(state.slot_current), first);
        EXPECT_EQ(file_text(state.slot_prev1), second);
    };
    for (const std::string& content : {std::string("no database"), half_a_file, std::string{}}) {
        write_file(state.slot_prev2, content);
        expect_failure();
    }
    fs::remove(state.slot_prev2);
    expect_failure();
    EXPECT_EQ(profile.fields().cell(0, 0), "Lower");  // nothing typed is lost
}

// A save is killed at twelve moments of its course: never may one year be new and another old.
class KilledSave : public FieldChanges {
  protected:
    static constexpr int fields = 1500;
    static texts names(const std::string& generation) {
        texts all;
        for (int i = 0; i < fields; ++i)
            all.push_back(generation + " " + std::to_string(i));
        return all;
    }
    void SetUp() override {
        std::vector<test_field> old_fields;
        for (const std::string& name : old_names)
            old_fields.push_back({name, "1"});
        open_years(old_fields);
        for (int i = 0; i < fields; ++i)
            profile.enter_name(i, new_names.at(static_cast<std::size_t>(i)));
        for (const std::string& file : chain())
            fs::copy_file(file, file + ".master");
    }
    void restore_masters() {
        for (const std::string& file : chain())
            fs::copy_file(file + ".master", file, fs::copy_options::overwrite_existing);
    }
    void save() { save_prof(database(state.assess_file), profile.farm(), profile.fields(), state); }
    /// Saves in a process of its own, which is killed after the time given.
    void save_and_kill(chrono_clock::duration after) {
        const pid_t child = fork();
        if (child == 0) {
            save();
            _exit(0);
        }
        std::this_thread::sleep_for(after);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    /// "old" or "new" of each year's names, which must not be mixed within any of them.
    texts generations() {
        texts found;
        for (const std::string& file : chain()) {
            const texts stored = column_of(file, "Field Data", "Field Name");
            found.emplace_back(stored == old_names ? "old" : stored == new_names ? "new" : "mixed");
        }
        return found;
    }

    const texts old_names = names("old"), new_names = names("new");
};

TEST_F(KilledSave, LeavesAllThreeYearsOldOrAllNew) {
    EXPECT_EQ(generations(), texts(3, "old"));
    const auto start = chrono_clock::now();
    save();
    const auto whole = chrono_clock::now() - start;
    EXPECT_EQ(generations(), texts(3, "new"));
    constexpr int kills = 12;
    for (int i = 1; i <= kills; ++i) {
        restore_masters();
        save_and_kill(whole * i / 8);  // from well before its end to well after
        const texts after = generations();
        EXPECT_TRUE(after == texts(3, "old") || after == texts(3, "new")) << testing::PrintToString(after);
    }
}

}  // namespace
}  // namespace kel::test
