// The calculator and the panel of recorded calculations: orders of messages, what each view shows, what
// reaches the file, and the two reports.
#include "composting/composting_module.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "composting/composting_messages.h"
#include "core/file_error.h"
#include "core/loaded_rows.h"
#include "core/module_messages.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace {

namespace says = composting_messages;
using texts = std::vector<std::string>;

const composting_inputs onion{"Onion", "40", "Straw", "0.5"};
const composting_inputs broccoli{"Broccoli", "50", "PMS", "0.8"};

struct viewer_stub : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id id) override { hidden.push_back(id); }
    void show(const viewer_request& request) override { page = request.page; }
    std::vector<screen_id> hidden;
    std::string page;
};

}  // namespace

class CompostingModule : public farm_test {
  protected:
    CompostingModule() { open_farm({{"Long Rig", "15"}, {"East Muir", "8"}}, 2004); }

    void record(const std::string& field, const std::string& release) {
        add_row(state.assess_file, "Straw",
                {{"Field Area ID", field},
                 {"Soil Mineral N", "30"},
                 {"Crop Residue Type", "Peas"},
                 {"PMS or Straw", "Straw"},
                 {"Recommendation", "9.9"},
                 {"Potential Spring Release", release}});
    }
    void open_panel() {
        if (module.has_result()) person.expect(says::how_to_add);
        module.view_database();
    }
    texts row(int r) const {
        texts found;
        for (int c = 0; c < module.calculations().column_count(); ++c)
            found.push_back(module.calculations().cell(r, c));
        return found;
    }
    texts stored(const std::string& column) const { return column_of(state.assess_file, "Straw", column); }

    scripted_prompts person;
    composting_module module{state, person};
};

TEST_F(CompostingModule, CalculateTestsItsAnswersInTheirOrder) {
    ASSERT_TRUE(module.calculate(onion));
    const struct {
        composting_inputs inputs;
        message told;
        answer reply = answer::ok;
    } cases[] = {
        {{"", "", "PMS", ""}, says::no_residue},
        {{"Turnip", "", "PMS", ""}, says::no_soil_n},
        {{"Turnip", ".", "PMS", "1.3"}, says::no_soil_n},
        {{"Turnip", "1", "PMS", "."}, says::no_content},
        {{"Turnip", "1", "Straw", "1.2"}, says::high_content, answer::no},
        {{"Turnip", "1", "PMS", "1.19"}, says::unknown_residue},
    };
    for (const auto& c : cases) {
        person.expect(c.told, c.reply);
        EXPECT_FALSE(module.calculate(c.inputs)) << c.told.text;
        EXPECT_EQ(module.shown().rate, "4.4 t DM Straw/ha") << "the earlier result stands";
    }
    person.expect(says::high_content, answer::yes).expect(says::no_quantity);
    EXPECT_FALSE(module.calculate({"Onion", "1", "Straw", "1.8125"}));
    EXPECT_EQ(module.shown().rate, "4.4 t DM Straw/ha");
    person.verify_done();
}

TEST_F(CompostingModule, PanelShowsWhatIsStoredForTheFarmsFields) {
    record("Long Rig", "0.4");
    record("Sold Field", "1");
    record("Long Rig", "");
    person.expect(says::field_does_not_exist("Sold Field"));
    open_panel();
    EXPECT_EQ(module.panel_caption(), "Recorded calculations:");
    EXPECT_EQ(row(0), (texts{"Long Rig", "30", "Peas", "Straw", "", "9.9", "0.4"}));
    EXPECT_EQ(row(1), (texts{"Long Rig", "30", "Peas", "Straw", "", "9.9", ""}));
    EXPECT_EQ(row(2), texts(7));
    EXPECT_EQ(module.calculations().row_count(), 3);
    person.expect(says::no_result);
    EXPECT_TRUE(module.add_result().box.none());
    person.verify_done();
}

TEST_F(CompostingModule, AddRecordsTheFiguresThatWereShown) {
    ASSERT_TRUE(module.calculate(onion));
    person.expect(says::no_content);
    EXPECT_FALSE(module.calculate({"Peas", "99", "PMS", ""}));
    record("Sold Field", "1");
    person.expect(says::how_to_add).expect(says::field_does_not_exist("Sold Field"));
    module.view_database();
    EXPECT_EQ(module.panel_caption(),
              "Recorded calculations: (Current calculation: Onion, 40 kg-N/ha - Straw, 0.5 %N)");
    EXPECT_EQ(module.add_result().parts.front().choices, (texts{"Long Rig", "East Muir"}));
    person.expect(says::no_field_id);
    EXPECT_FALSE(module.enter_field("").closes);
    EXPECT_TRUE(module.enter_field("East Muir").closes);
    EXPECT_TRUE(module.enter_field("East Muir").closes);
    EXPECT_EQ(row(1), (texts{"East Muir", "40", "Onion", "Straw", "0.5", "4.4", "-2.4"}));
    EXPECT_EQ(row(2), texts(7));
    EXPECT_EQ(stored("Field Area ID"), texts{"Sold Field"});
    ASSERT_TRUE(module.save());
    EXPECT_TRUE(module.panel_open());
    for (const auto& [column, text] : {std::pair{"Field Area ID", "East Muir"},
                                       {"Soil Mineral N", "40"},
                                       {"N Content", "0.5"},
                                       {"Recommendation", "4.4"},
                                       {"Potential Spring Release", "-2.4"}})
        EXPECT_EQ(stored(column), texts(2, text)) << column;
    person.verify_done();
}

TEST_F(CompostingModule, EditBringsARowBackAndSavesNothing) {
    record("Long Rig", "-0.4");
    record("East Muir", "3");
    open_panel();
    module.delete_row(1);
    person.expect(says::no_calculation_in_row).expect(module_messages::cannot_delete);
    EXPECT_FALSE(module.edit_row(1));
    module.delete_row(1);
    ASSERT_TRUE(module.edit_row(0));
    EXPECT_FALSE(module.panel_open());
    EXPECT_EQ(module.calculations().row_count(), 1);
    EXPECT_EQ(module.inputs(), (composting_inputs{"Peas", "30", "Straw", ""}));
    EXPECT_EQ(module.shown().rate + module.shown().release, "9.9 t DM Straw/ha-0.4 kg N/ha");
    EXPECT_EQ(module.shown().note.substr(0, 7), "Lock up");
    EXPECT_EQ(stored("Field Area ID"), (texts{"Long Rig", "East Muir"}));
    open_panel();
    EXPECT_EQ(module.calculations().row_count(), 3);
    person.verify_done();
}

TEST_F(CompostingModule, ClosingThePanelSavesUnlessTheFileFails) {
    record("Long Rig", "1");
    open_panel();
    module.delete_row(0);
    module.close_panel();
    EXPECT_FALSE(module.panel_open());
    EXPECT_TRUE(stored("Field Area ID").empty());
    record("Long Rig", "1");
    open_panel();
    SQLite::Database(state.assess_file, SQLite::OPEN_READWRITE)
        .exec("ALTER TABLE Straw DROP COLUMN [N Content]");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no)
        .expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    module.close_panel();
    EXPECT_THROW(module.close_panel(), file_error);
    EXPECT_TRUE(module.panel_open());
    EXPECT_EQ(stored("Field Area ID").front() + row(0).front(), "Long RigLong Rig");
}

TEST_F(CompostingModule, LastYearsFileIsNotSavedTo) {
    std::swap(state.prev1_file, state.assess_file);
    person.expect_file("Save the assessment", state.prev1_file)
        .expect({"Cannot Save", "This is last years file and cannot be saved to at this time!"});
    EXPECT_FALSE(module.save());
    person.verify_done();
}

TEST_F(CompostingModule, ReportsTheResultAndTheRecordedCalculations) {
    viewer_stub viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    const auto expect_in_order = [&viewer](const texts& wanted) {
        const std::string page = file_text(viewer.page);
        std::size_t at = 0;
        for (const std::string& text : wanted) {
            at = page.find(text, at);
            ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text;
            ++at;
        }
    };
    module.print_result(desk);
    EXPECT_EQ(viewer.page, "");
    ASSERT_TRUE(module.calculate(broccoli));
    module.print_result(desk);
    EXPECT_EQ(viewer.page, path("nutrient_report.htm"));
    expect_in_order({"Crop Residue:", "Broccoli", "(kg/ha):", ">50<", "Waste product:", "Paper mill sludge",
                     "N content of the waste product:", "0.8%", "Quantity of waste", "64 t DM PMS/ha",
                     "Expected extra release of N:", "32 kg N/ha", "Notes:", "downward adjustment"});
    record("Long Rig", "0");
    record("East Muir", "-1.5");
    open_panel();
    module.report(desk);
    EXPECT_EQ(viewer.page, path("KEL_report_compost.htm"));
    expect_in_order({"Summary",
                     ">Long Rig<",
                     ">30<",
                     ">Peas<",
                     ">Straw<",
                     ">9.9<",
                     ">0<",
                     ">East Muir<",
                     "Field Reports",
                     "Field: Long Rig",
                     "Residue type: Peas",
                     "harvest: 30",
                     "waste: Straw",
                     "Nitrogen content: %",
                     "application: 9.9t/ha",
                     "release of N: 0kg N/ha<",
                     "Field: East Muir",
                     "N: -1.5kg N/ha",
                     "Note: Lock up is still occuring",
                     "<hr>"});
    const std::string page = file_text(viewer.page);
    EXPECT_EQ(page.find("Note: "), page.rfind("Note: ")) << "a release of 0 has no note";
    EXPECT_EQ(viewer.hidden, (std::vector{screen_id::land, screen_id::land}));
    EXPECT_EQ(state.viewer_back, screen_id::straw);
}

TEST_F(CompostingModule, ImportTellsOfUnknownFieldsAndWritesNothing) {
    record("Long Rig", "1");
    const std::string other = make_farm("other.kel", {}, 2030);
    for (const char* field : {"Long Rig", "Sold Field"})
        add_row(other, "Straw", {{"Field Area ID", field}, {"Soil Mineral N", "7"}, {"N Content", "0.4"}});
    open_panel();
    person.expect_file("Add data from another assessment", other)
        .expect(module_messages::field_does_not_exist("Sold Field"));
    EXPECT_TRUE(module.import_records(import_mode::add));
    EXPECT_EQ(row(1), (texts{"Long Rig", "7", "", "", "0.4", "", ""}));
    person.expect_file("Replace with data from another assessment", other)
        .expect(module_messages::field_does_not_exist("Sold Field"));
    EXPECT_TRUE(module.import_records(import_mode::over_write));
    EXPECT_EQ(module.calculations().row_count(), 2);
    EXPECT_EQ(stored("Soil Mineral N"), texts{"30"});
}

}  // namespace kel::test
