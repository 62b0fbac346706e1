// Calculate with its warnings, the report made from it, and closing.
#include "core/module_messages.h"
#include "manure/manure_report.h"
#include "tests/manure/manure_fixture.h"

namespace kel::test {

namespace {

namespace result_col = manure_result_column;

class viewer_stub : public report_viewer {
  public:
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id id) override { hidden = id; }
    void show(const viewer_request& request) override { shown = request; }
    std::optional<screen_id> hidden;
    viewer_request shown;
};

}  // namespace

class ManureResult : public manure_test {
  protected:
    /// Three fields; only the first two have land.
    void open_fields() {
        open_farm({{"Long Rig", "15"}, {"East Muir", "8"}, {"Low Moss", "6"}});
        add_land("Long Rig");
        add_land("East Muir");
    }
    void apply(const std::string& field, const std::string& day, const std::string& total_n,
               const std::string& manure = dairy) {
        add_application(state.assess_file, field, day, total_n, manure);
    }
    bool calculated() {
        module.manure_load_stuff();
        return module.calculate();
    }
};

TEST_F(ManureResult, FieldsAreSummedToOneDecimalTiesToEven) {
    open_fields();
    apply("Long Rig", "2025-03-01", "10");
    apply("East Muir", "2025-03-01", "10");
    apply("Long Rig", "2025-03-02", "10");
    ASSERT_TRUE(calculated());
    EXPECT_TRUE(module.results_shown());
    EXPECT_EQ(result_column(result_col::field), (texts{"Long Rig", "East Muir", "Low Moss"}));
    EXPECT_EQ(result_column(result_col::current_crop), (texts{"40.5", "20.2", "0"}));
    EXPECT_EQ(result_column(result_col::next_crop), (texts{"20", "10", "0"}));
    EXPECT_EQ(result_column(result_col::warnings), (texts{"No", "No", "No"}));
    EXPECT_EQ(module.warnings(), "Warnings:");
    EXPECT_EQ(module.instructions(), says::result_instruction());
}

TEST_F(ManureResult, EmptyTableGivesZeroSumsAndAFarmWithoutFieldsNone) {
    open_fields();
    ASSERT_TRUE(calculated());
    EXPECT_EQ(result_column(result_col::current_crop), (texts{"0", "0", "0"}));
    state.assess_file = make_farm("bare.kel", {});
    person.expect(says::no_fields);
    EXPECT_FALSE(calculated());
    EXPECT_EQ(module.instructions(), says::result_instruction());
    EXPECT_FALSE(module.results_shown());
}

TEST_F(ManureResult, MissingDataStopsOnlyForFieldsOfTheProfile) {
    open_fields();
    apply("Long Rig", "2025-03-01", "10");
    module.manure_load_stuff();
    module.enter_manure(1, strainer);  // no field
    EXPECT_TRUE(module.calculate());
    module.back();
    module.enter_field(1, "East Muir");
    person.expect(says::missing_data);
    EXPECT_FALSE(module.calculate());
    EXPECT_FALSE(module.results_shown());
}

TEST_F(ManureResult, FieldsOverTheLimitAreMarkedAndNamedInTheInstructions) {
    open_fields();
    apply("Low Moss", "2025-03-01", "250.5");
    apply("Long Rig", "2025-02-01", "200");
    apply("East Muir", "2025-02-01", "250");
    apply("Long Rig", "2025-03-01", "60");
    ASSERT_TRUE(calculated());
    EXPECT_EQ(result_column(result_col::warnings), (texts{"Yes", "No", "Yes"}));
    EXPECT_EQ(module.instructions(),
              says::result_instruction() +
                  "\r\n\r\nIt would appear that some of the applications you have made have taken you over "
                  "the 250 kg N/ha field limit for the following fields:\r\n\r\n- Long Rig\r\n- Low Moss\r\n"
                  "\r\nYou should examine the applications made this year, and if necessary last year, to "
                  "ensure that you have not applied more than 250 Kg N/ha to the available spreading area of "
                  "any field!");
}

TEST_F(ManureResult, LinkedYearCountsAndIsReadBeforeAnythingChanges) {
    open_fields();
    apply("Long Rig", "2025-03-01", "200");
    state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    ASSERT_TRUE(calculated());
    EXPECT_EQ(module.results().cell(0, result_col::warnings), "No");
    add_application(state.prev1_file, "Long Rig", "2024-03-02", "51");
    ASSERT_TRUE(calculated());
    EXPECT_EQ(module.results().cell(0, result_col::warnings), "Yes");
    module.back();
    write_file(state.prev1_file, "not an assessment");
    EXPECT_THROW(module.calculate(), file_error);
    EXPECT_EQ(module.instructions(), says::instruction);
    EXPECT_FALSE(module.results_shown());
}

TEST_F(ManureResult, ARecordOfLastYearCountsOnceWhenLastYearIsInTheTable) {
    open_fields();
    state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2023);
    state.manure_caller = manure_opener::old_crop;
    add_application(state.prev1_file, "Long Rig", "2024-03-02", "130");
    ASSERT_TRUE(calculated());
    EXPECT_EQ(module.results().cell(0, result_col::warnings), "No");
    add_application(state.prev1_file, "Long Rig", "2024-04-02", "130");
    ASSERT_TRUE(calculated());
    EXPECT_EQ(module.results().cell(0, result_col::warnings), "Yes");
}

TEST_F(ManureResult, FiguresOfARowAreShownSummedAndSavedWithoutTheNoiseBehindThem) {
    open_farm({{"Long Rig", "15"}});
    add_land("Long Rig");
    module.manure_load_stuff();
    const std::string pig = "Pig slurry - high dry matter (6%)";  // 5 kg N per cubic m
    for (const auto& [row, amount] : {std::pair{0, "122.6"}, std::pair{1, "377.4"}}) {
        module.enter_field(row, "Long Rig");
        module.enter_manure(row, pig);
        module.enter_incorporation(row, "Over 6 hours");
        module.enter_date(row, make_date(1, 3, 2025));
        module.enter_area(row, "10");
        module.enter_amount(row, amount);
    }
    EXPECT_EQ(cell(0, manure_col::total_n), "61.3");  // 61.300003 as the single reads back
    EXPECT_EQ(cell(1, manure_col::total_n), "188.7");
    EXPECT_EQ(cell(0, manure_col::available_next), "6.13");
    ASSERT_TRUE(module.calculate());
    EXPECT_EQ(module.results().cell(0, result_col::warnings), "No") << "exactly 250 kg";
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Total N Applic Rate"), (texts{"61.3", "188.7"}));
}

TEST_F(ManureResult, ClosedPeriodMarksTheResultsRowOfTheApplicationsNumber) {
    open_fields();
    apply("Long Rig", "2025-03-01", "10");
    apply("Long Rig", "2025-10-01", "10", covered_fym);
    apply("Long Rig", "2025-10-01", "10", layer);
    apply("East Muir", "2025-10-31", "10");  // the fourth row of three results
    apply("Low Moss", "2025-10-31", "10");   // no land, so no closed month
    ASSERT_TRUE(calculated());
    EXPECT_EQ(result_column(result_col::warnings), (texts{"No", "No", "Yes"}));
    const std::string ending =
        " is during a closed period for this crop and soil type. You should review the manure applications "
        "to this field";
    EXPECT_EQ(module.warnings(), "Warnings:\r\n\r\nAn application of " + layer +
                                     " to Long Rig on 01/10/2025" + ending + "\r\n\r\nAn application of " +
                                     dairy + " to East Muir on 31/10/2025" + ending);
    EXPECT_EQ(module.instructions(), says::result_instruction());
}

TEST_F(ManureResult, ReportHoldsItsPartsInOrder) {
    open_fields();
    apply("Long Rig", "2025-10-01", "251");
    apply("East Muir", "2025-10-02", "252");
    viewer_stub viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    module.report(desk);
    EXPECT_EQ(viewer.shown.page, "") << "there is no result yet";
    ASSERT_TRUE(calculated());
    module.report(desk);
    EXPECT_EQ(viewer.shown.page, path("KEL_report_manureN.htm"));
    EXPECT_EQ(viewer.hidden, screen_id::land);
    EXPECT_EQ(state.viewer_back, screen_id::manure);
    const std::string page = file_text(viewer.shown.page);
    std::size_t at = 0;
    // clang-format off
    for (const std::string& text : texts{
             "How Much Will Organic Manure Applications Reduce The Requirement For Inorganic Fertiliser Nitrogen?",
             "Summary", "Field Name", "N Available To Planned Crop (kg/ha)", "N Available To Next Crop (kg/ha)",
             ">Long Rig<", ">20.2<", ">10<", ">Low Moss<", ">0<", "Note: The above represent",
             "Manure Applications", "Month Applied", "Application Rate (t or cubic m/ha)",
             ">Long Rig<", ">Sandy loams<", ">Over 6 hours<", ">" + dairy + "<", ">01/10/2025<", ">10<", ">250<", ">25<",
             "Limit Warnings", "It would appear", ">East Muir<", ">Long Rig<", "You should examine",
             "Closed Period Warnings", "to Long Rig on 01/10/2025", "applications to this field.",
             "to East Muir on 02/10/2025", "applications to this field."}) {
        const auto found = page.find(text, at);
        ASSERT_NE(found, std::string::npos) << "missing or out of order: " << text;
        at = found + text.size();
    }
    // clang-format on
}

TEST_F(ManureResult, CloseAsksAndKeepsItsCaller) {
    state.manure_caller = manure_opener::old_grass;
    for (const answer reply : {answer::no, answer::yes}) {
        person.expect(module_messages::close_module, reply);
        EXPECT_EQ(module.close(), reply == answer::yes);
    }
    EXPECT_EQ(state.manure_caller, manure_opener::old_grass);
}

}  // namespace kel::test
