// Calculate with its panel and comments, the report made from it, and closing.
#include "tests/land/land_fixture.h"

namespace kel::test {

namespace {

const std::string ending =
    "However, it should be noted that this has been based on the total farm limit (which includes grazing "
    "deposition), individual field based limits (which do not include grazing deposition) may amend the "
    "figures, so the result should be assessed in association with the field limits displayed in the Land "
    "Available for Spreading table!";

class viewer_stub : public report_viewer {
  public:
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(std::string_view tag) override { hidden = tag; }
    void show(const viewer_request& request) override { shown = request; }
    std::string hidden;
    viewer_request shown;
};

// Position behind `text`, searched from `from` on: the order of what a page holds.
std::size_t after(const std::string& page, const std::string& text, std::size_t from) {
    const auto at = page.find(text, from);
    EXPECT_NE(at, std::string::npos) << "missing or out of order: " << text;
    return at == std::string::npos ? from : at + text.size();
}

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

TEST_F(LandResult, MoreLandThanProduction) {
    open_worked_farm();
    enter_sheep(0, "100");
    enter_sheep(1, "50.05");
    const spreading_result result = calculated();
    texts panel;
    for (const auto& line : says::panel_lines(result))
        panel.push_back(std::string(line.label) + " " + line.value);
    EXPECT_EQ(panel, (texts{
                         "Total N production as organic manures = 1350.45 kg N/year",
                         "Overall farm based limit on spreading organic manures = 3350 kg N/year",
                         "Total of field based limits on spreading organic manures = 3750 kg N/year",
                         "Non-Grassland limit = 850 kg N/year",
                         "Grassland limit = 2500 kg N/year",
                     }));
    EXPECT_EQ(
        says::comment(result),
        "N production in the form of oganic manures is less than that which can be spread in the KEL. As "
        "such there is potentially scope for bringing 1999.55 kg N/year onto the farm in the form of "
        "organic manures. " +
            ending);
    EXPECT_EQ(says::note(result), "");
    module.back();
    EXPECT_FALSE(module.result());
}

TEST_F(LandResult, LessLandThanProduction) {
    open_worked_farm();
    enter_sheep(0, "373.0125");  // 3357.1125 kg, shown as 3357.11
    EXPECT_EQ(
        says::comment(calculated()),
        "N production in the form of organic manures exceeds that which can be spread in the KEL by "
        "7.112549 kg N/year. As such you must be able to provide evidence that alternative arrangements "
        "have been made to deal with the excess. " +
            ending);
}

TEST_F(LandResult, EqualWhenThereIsNothingAndWhenOnlyTheRoundedNumbersAgree) {
    const std::string equal =
        "N production in the form of organic manures is equal to that which can be spread in the KEL. " +
        ending;
    open({});
    EXPECT_EQ(says::comment(calculated()), equal);
    EXPECT_EQ(calculated().production, "0 kg N/year");
    open_worked_farm();
    enter_sheep(0, "372.2225");  // 3350.0025 kg
    EXPECT_EQ(says::comment(calculated()), equal);
}

TEST_F(LandResult, DeductionsLowerTheFieldLimitsOnlyAndBringTheNote) {
    open_worked_farm();
    module.enter_deduction(0, land_col::buffer, "2");
    const spreading_result result = calculated();
    EXPECT_EQ(result.farm_limit, "3350 kg N/year");
    EXPECT_EQ(
        says::note(result),
        "NOTE: the total of the field based limits is 3250 kg N/year, which is lower than the farm based "
        "limit of 3350 kg N/year. Thus you may not be able to apply the full farm based limit without "
        "breaching field limits.");
}

TEST_F(LandResult, AFieldInTwoRowsCountsTwice) {
    open_worked_farm();
    const row_values row = {
        {"Field Area ID", "Long Rig"}, {"Area In Grass (ha)", "1"}, {"Available Field Area (ha)", "1.00"}};
    for (int copies = 0; copies < 2; ++copies)
        add_row(state.assess_file, "Land", row);
    module.load_land_stuff();
    enter_sheep(0, "1");
    const spreading_result result = calculated();
    EXPECT_EQ(result.farm_limit, "500 kg N/year");
    EXPECT_EQ(result.field_limits, "500 kg N/year");
    EXPECT_EQ(result.production, "9 kg N/year");
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
    EXPECT_EQ(state.last_report_path, viewer.shown.page);
    const std::string page = file_text(viewer.shown.page);
    std::size_t at = 0;
    // clang-format off
    for (const std::string& text : texts{
             "Is Enough Land Available For Spreading All Organic Manures?",
             "Summary", "Total N production as organic manures:", ">900 kg N/year<",
             "Grassland limit:", ">2500 kg N/year<", "Non-Grassland limit:", ">850 kg N/year<",
             "Overall limit on spreading organic manures (incl. grazing deposition):", ">3350 kg N/year<",
             "scope for bringing 2450 kg N/year", "NOTE: the total",
             "Manure Production", "Total N Excreted By All These Animals (kg/yr)",
             ">1 sheep<", ">100<", ">9<", ">900<",
             "Land Available For Spreading", "Areas To Be Deducted",
             "Field Spreading Limit (Excl. grazing deposition)<br>(kg organic N)", "Buffer Areas (ha)",
             ">Long Rig<", ">10<", ">5<", ">2<", "&nbsp;", "&nbsp;", ">13.00<", ">3250<"})
        at = after(page, text, at);
    // clang-format on
    module.clear_deduction(0, land_col::buffer);
    module.calculate();
    module.report(desk);
    EXPECT_EQ(file_text(viewer.shown.page).find("NOTE:"), std::string::npos);
}

TEST_F(LandResult, CloseAsksAndOnlyNoStays) {
    person.expect(says::close_module, answer::no).expect(says::close_module, answer::yes);
    EXPECT_FALSE(module.close());
    EXPECT_TRUE(module.close());
}

}  // namespace kel::test
