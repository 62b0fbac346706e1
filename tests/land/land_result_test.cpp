// Calculate with its panel and comments, the report made from it, and closing.
#include "tests/land/land_fixture.h"

namespace kel::test {

namespace {

struct viewer_stub : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(std::string_view tag) override { hidden = tag; }
    void show(const viewer_request& request) override { shown = request; }
    std::string hidden;
    viewer_request shown;
};

}  // namespace

class LandResult : public land_test {
  protected:
    /// The worked farm: 15 ha, 10 of them in grass, so that the farm limit is 3,350 kg.
    void open_worked_farm() {
        open({{"Long Rig", "15"}});
        module.enter_area(0, land_col::grass, "10");
    }
    spreading_result calculated() {
        module.calculate();
        return module.result().value_or(spreading_result{});
    }
};

TEST_F(LandResult, PanelShowsProductionAndLimitsRounded) {
    open_worked_farm();
    enter_sheep(0, "100");
    enter_sheep(1, "50.05");
    texts values;
    for (const auto& line : says::panel_lines(calculated()))
        values.push_back(line.value);
    EXPECT_EQ(values, (texts{"1350.45 kg N/year", "3350 kg N/year", "3750 kg N/year", "850 kg N/year",
                             "2500 kg N/year"}));
    module.back();
    EXPECT_FALSE(module.result());
}

// The rounded sums decide what is said; what is left or missing is the difference of the sums themselves.
TEST_F(LandResult, CommentTellsWhatIsLeftOrMissing) {
    open_worked_farm();
    const std::pair<const char*, const char*> cases[] = {
        {"150.05",
         "N production in the form of oganic manures is less than that which can be spread in the KEL. As "
         "such there is potentially scope for bringing 1999.5499 kg N/year onto the farm in the form of "
         "organic manures. However, it should be noted"},
        {"373.0125",  // 3357.1125 kg, shown as 3357.11
         "N production in the form of organic manures exceeds that which can be spread in the KEL by "
         "7.112549 kg N/year. As such"},
        {"372.2225",  // 3350.0025 kg
         "N production in the form of organic manures is equal to that which can be spread in the KEL. "
         "However"},
    };
    for (const auto& [sheep, beginning] : cases) {
        enter_sheep(0, sheep);
        EXPECT_EQ(says::comment(calculated()).substr(0, std::string_view(beginning).size()), beginning);
    }
}

TEST_F(LandResult, DeductionsLowerTheFieldLimitsOnlyAndBringTheNote) {
    open_worked_farm();
    EXPECT_EQ(says::note(calculated()), "");
    module.enter_deduction(0, land_col::buffer, "2");
    EXPECT_TRUE(
        says::note(calculated())
            .starts_with("NOTE: the total of the field based limits is 3250 kg N/year, which is lower "
                         "than the farm based limit of 3350 kg N/year. Thus you"));
}

TEST_F(LandResult, ReportHoldsSummaryStockAndFieldsInOrder) {
    open_worked_farm();
    module.enter_deduction(0, land_col::buffer, "2");
    enter_sheep(0, "100");
    viewer_stub viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    module.report(desk);
    EXPECT_EQ(viewer.shown.page, "") << "there is no result yet";
    module.calculate();
    module.report(desk);
    EXPECT_EQ(viewer.shown.page, path("KEL_report_landspread.htm"));
    EXPECT_EQ(viewer.hidden, "land");
    EXPECT_EQ(state.viewer_back, "land");
    const std::string page = file_text(viewer.shown.page);
    std::size_t at = 0;
    // clang-format off
    for (const char* text : {
             "Is Enough Land Available For Spreading All Organic Manures?",
             "Summary", ">900 kg N/year<", ">2500 kg N/year<", ">850 kg N/year<", ">3350 kg N/year<",
             "scope for bringing 2450 kg N/year", "NOTE: the total",
             "Manure Production", ">1 sheep<", ">100<", ">9<", ">900<",
             "Land Available For Spreading", "Areas To Be Deducted", "Buffer Areas (ha)",
             ">Long Rig<", ">10<", ">5<", ">2<", "&nbsp;", "&nbsp;", ">13.00<", ">3250<"}) {
        at = page.find(text, at);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text;
        ++at;
    }
    // clang-format on
}

}  // namespace kel::test
