// What the report says of each field, in its order, and what it leaves out.
#include "crops/crop_report.h"

#include "tests/crops/crops_fixture.h"

namespace kel::test {

namespace {

struct viewer_stub : report_viewer {
    void wait_cursor(bool) override {}
    void hide_screen(screen_id id) override { hidden = id; }
    void show(const viewer_request& request) override { page = request.page; }
    std::optional<screen_id> hidden;
    std::string page;
};

class CropReport : public crops_test {
  protected:
    /// The report of the only row with its tags taken out.
    std::string page() {
        EXPECT_TRUE(module.calculate());
        module.report(desk);
        std::string text;
        bool in_tag = false;
        for (const char c : file_text(viewer.page)) {
            in_tag = in_tag ? c != '>' : c == '<';
            if (!in_tag && c != '>' && c != '\r') text += c == '\n' ? ' ' : c;
        }
        module.back();
        return text;
    }
    /// Each text stands behind the one before it.
    static void expect_in_order(const std::string& page, const texts& wanted) {
        std::size_t at = 0;
        for (const std::string& text : wanted) {
            const std::size_t found = page.find(text, at);
            ASSERT_NE(found, std::string::npos) << "\"" << text << "\" is missing or too early in " << page;
            at = found + text.size();
        }
    }
    static bool has(const std::string& page, std::string_view text) {
        return page.find(text) != std::string::npos;
    }

    viewer_stub viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
};

const std::string taken_into_account =
    "This recommendation has taken into account any adjustments required for:";

}  // namespace

TEST_F(CropReport, TellsTheCropItsManuresTheFiguresAndTheAdjustmentsInOrder) {
    open({{"North", "5", "Sandy loams"}}, wet_winter);
    state.prev2_file = make_farm("older.kel", {{"North", "5"}}, 2022);
    state.prev1_file = make_farm("last.kel", {{"North", "5"}}, 2023);
    for (const auto& [file, day] : {std::pair{state.assess_file, "2025-03-01"},
                                    {state.prev2_file, "2023-03-02"},
                                    {state.prev1_file, "early March"}})
        add_row(file, "Manure_applic",
                {{"Field Area ID", "North"},
                 {"Manure Type", "Slurry"},
                 {"Incorporation", "Over 6 hours"},
                 {"Date", day},
                 {"Applic Rate", "25"}});
    add_crop(0, "North", "Winter wheat", "Kale");
    for (const int answer : {1, 0, 0})
        module.enter_answer(0, chosen(answer));
    module.enter_manures(0, col::manures, "40");
    module.enter_manures(0, col::previous_manures, "10");
    // clang-format off
    expect_in_order(page(), {
        "Nitrogen Recommendations For Cropped Fields And Fields Where New Grass Is To Be Established",
        "Field and crop details:", "Field name:", "North", "Soil Type:", "Sandy loams",
        "Planned Crop:", "Winter wheat (breadmaking)", "Previous Crop:", "Kale (Residue Group = 5)",
        "Manures/slurries known to have been applied in the last two years:",
        "Manure/Slurry Type", "Incorporation Time", "Date of Application", "Application Rate (tonnes/ha)",
        "02/03/2023", "early March", "01/03/2025",
        "Recommendation summary:", "Total N Requirement (kg/ha)", "130 - 100",
        "Obtained From Manures/Slurries (kg/ha)", "50", "Remaining Total Requirement (kg/ha)", "160 - 130",
        "Spring Application (kg/ha)", "160 - 130", "Seedbed Application (kg/ha)", "0",
        "Notes:", "A 20% / 80% split", taken_into_account,
        "The intended market of the crop", "Take-all", "Manure applications to the crop",
        "Manure applications to the previous crop", "High winter rainfall", "High spring rainfall",
        "Generated from"});
    // clang-format on
    EXPECT_EQ(viewer.hidden, screen_id::land);
    EXPECT_EQ(state.viewer_back, screen_id::crops);
}

TEST_F(CropReport, ARowWithNothingToSayHasNone) {
    open({{"North", "5", "Sands"}});
    add_crop(0, "North", "Linseed", "Winter barley");
    const std::string text = page();
    expect_in_order(text, {"Previous Crop:", "Winter barley (Residue Group = 1)",
                           "No Manures/slurries have been applied in the last two years", "Notes:", "None"});
    EXPECT_FALSE(has(text, taken_into_account));
    module.enter_manures(0, col::manures, "5");
    EXPECT_FALSE(has(page(), "None"));
}

TEST_F(CropReport, VegetablesOnLightSoilsHaveTheirAdviceAndTheirTenth) {
    open({{"North", "5", "Sands"}});
    add_crop(0, "North", "Lettuce", "Winter barley");
    const std::string advice = "Further adjustments may be required for vegetable crops, for example:";
    const std::string tenth = "10% has been added for growing a vegetable crop sand or shallow soils";
    expect_in_order(page(), {"Notes:", "Apply no more than 100kg/ha", advice, "Varietal differences",
                             "Soil analysis", "Covered Crops", "starter fertilisers", "Double cropping",
                             "then add an extra 15 kg/ha.", "FACTS adviser.", taken_into_account, tenth});
    for (const auto pulse : {"Beans", "Peas"}) {
        plan(0, pulse);
        const std::string without = page();
        expect_in_order(without, {"Notes:", taken_into_account, tenth});
        EXPECT_FALSE(has(without, advice) || has(without, "None")) << pulse;
    }
}

TEST_F(CropReport, VegetablesOnOtherSoilsAreToldTheSmallerFigureAndTheWetSummerIsNamed) {
    open_farm({{"North", "5", "Peaty soils"}});
    add_row(state.assess_file, "Crops",
            {{"Field Area ID", "North"},
             {"Soil Type", "Peaty soils"},
             {"Next Crop", "LET"},
             {"Previous or Current Crop", "WB"},
             {"N Residue Group", "1"},
             {"Intended Market Adjustment (kg/ha)", "10"}});
    open_table();
    const std::string text = page();
    expect_in_order(text, {"then add an extra 10 kg/ha.", taken_into_account,
                           "Summer rainfall likely to be in excess of 200 mm"});
    EXPECT_FALSE(has(text, "10% has been added"));
    EXPECT_FALSE(has(text, "The intended market of the crop"));
}

}  // namespace kel::test
