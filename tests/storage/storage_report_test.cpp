// The report: its sections in order, and the figures that are worked out for it alone.
#include "storage/storage_report.h"

#include "tests/storage/storage_fixture.h"

namespace kel::test {

namespace {

struct silent_viewer : report_viewer {
    void wait_cursor(bool) override {}
    void hide_screen(screen_id id) override { hidden = id; }
    void show(const viewer_request&) override {}
    std::optional<screen_id> hidden;
};

}  // namespace

class StorageReport : public storage_test {
  protected:
    std::string page() {
        module.storage_report(desk);
        return file_text(path("KEL_report_storage.htm"));
    }
    /// The cells of the first row that begins with this text.
    static texts row_of(const std::string& page, const std::string& label) {
        const auto start = page.find(">" + label + "</td>");
        if (start == std::string::npos) return {};
        const std::string row = page.substr(start, page.find("</tr>", start) - start);
        texts found;
        for (auto at = row.find('>'); at != std::string::npos; at = row.find("<td>", at)) {
            at = row.find('>', at) + 1;
            found.push_back(row.substr(at, row.find('<', at) - at));
        }
        return found;
    }
    silent_viewer viewer;
    report_desk desk{state, viewer, [] { return make_date(1, 2, 2025); }, "a developer"};
};

TEST_F(StorageReport, SectionsComeInOrderWithTheirFigures) {
    open({{"Home", "10", "Sands"}});
    state.farm_town = "Blairgowrie";  // 69 mm in January
    add_store("Tank", "50");
    module.water().set_cows("33");
    module.water().set_pig_pens("4");
    ASSERT_TRUE(module.storage_cont1());
    ASSERT_TRUE(module.storage_cont2());
    ASSERT_TRUE(plan.enter_stock(1, "1 dairy cow (650 kg)").closes);
    ASSERT_TRUE(plan.enter_number(1, "100").closes);
    ASSERT_TRUE(plan.enter_percent(1, "50").closes);
    ASSERT_TRUE(plan.enter_month(1, production_column::january, "Not Slurry").closes);
    ASSERT_TRUE(plan.enter_field_use(0, "In grass", "In grass", make_date(1, 6, 2025)).closes);
    ASSERT_TRUE(plan.enter_slurry_applic(0, spreading_column::january + 2, "12.5").closes);
    const std::string report = page();
    std::size_t at = 0;
    for (const char* part :
         {"Is There Enough Storage For Slurry and Closed Periods for Spreading Slurry/Manure", "Summary",
          "<img src=rep_chart1.bmp", "over 150% for some months", ">Stores<", "Inputs To Slurry Stores",
          "Monthly Slurry Production:", "Rainfall Input:", "Dirty Water Production:",
          "Outputs From Slurry Stores", "Monthly Slurry Spreading & Closed Periods:"}) {
        const auto found = report.find(part, at);
        ASSERT_NE(found, std::string::npos) << part;
        at = found;
    }
    EXPECT_EQ(row_of(report, "Tank"),
              (texts{"Tank", "Square or rectangular", "10", "5", "2.3", "-", "-", "50", "50"}));
    EXPECT_EQ(row_of(report, "Inputs (cubic m)")[1], "22");  // 21.9: 3.45 of rain, 18.486 of dirty water
    EXPECT_EQ(row_of(report, "1 dairy cow (650 kg)")[5], "N");
    EXPECT_EQ(row_of(report, "Total Production (cubic m)")[2], "96.5");
    EXPECT_EQ(row_of(report, "Total Rainfall Input (cubic m)")[1], "3.45");
    EXPECT_EQ(row_of(report, "33"), (texts{"33", "18.15"}));
    EXPECT_EQ(row_of(report.substr(report.find("Pig Pen Washing")), "4"), (texts{"4", "0.072"}));
    EXPECT_EQ(row_of(report, "Home")[12], "Closed");  // October
    EXPECT_EQ(row_of(report, "Total Slurry Spread (cubic m)")[3], "125");
    EXPECT_EQ(viewer.hidden, screen_id::storage);
    EXPECT_EQ(state.viewer_back, screen_id::storage);
    EXPECT_EQ(state.last_report_pictures, texts{"rep_chart1.bmp"});
}

TEST_F(StorageReport, ConstantProductionReadsTheSameInEveryMonth) {
    open({{"Home", "10"}});
    state.farm_town = "Blairgowrie";
    add_store("Tank", "50");
    module.water().set_cows("50");
    module.water().set_pig_pens("4");
    ASSERT_TRUE(module.storage_cont1());
    ASSERT_TRUE(module.storage_cont2());
    ASSERT_TRUE(plan.enter_stock(1, "1 dairy cow (650 kg)").closes);
    ASSERT_TRUE(plan.enter_number(1, "100").closes);
    ASSERT_TRUE(plan.enter_percent(1, "50").closes);
    texts months(13, "96.5");  // the month's total less its inputs would read 96.50001 in some
    months.front() = "Total Production (cubic m)";
    EXPECT_EQ(row_of(page(), "Total Production (cubic m)"), months);
}

TEST_F(StorageReport, WithoutStoresOnlyTheSpreadingIsReported) {
    open({{"Home", "10"}});
    walk_without_stores();
    state.last_report_pictures = {"rep_chart1.bmp"};  // of another farm's report
    const std::string report = page();
    EXPECT_TRUE(state.last_report_pictures.empty());
    EXPECT_EQ(report.find("Summary"), std::string::npos);
    EXPECT_EQ(report.find("Dirty Water"), std::string::npos);
    EXPECT_EQ(row_of(report, "Home")[0], "Home");
}

}  // namespace kel::test
