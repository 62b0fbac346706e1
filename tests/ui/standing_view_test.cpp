// Where the farm stands, on the assessments screen and as a page on paper.
#include <QAction>
#include <QBuffer>
#include <QPdfWriter>

#include "core/module_messages.h"
#include "reports/contents_page.h"
#include "shell/assessments_messages.h"
#include "standing/standing_report.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/page_view.h"
#include "ui/widgets/print_job.h"
#include "ui/widgets/verdict_label.h"

namespace kel::test {

using mark = verdict_label::mark;

class StandingView : public screen_test {
  protected:
    verdict_label* verdict(const char* command) const {
        return drive::control<verdict_label>(screen("front"), QString("lblFront_") + command);
    }
    void wait_until_judged() const {
        wait_for([this] { return !verdict("edit")->sentence().isEmpty(); }, "no verdict comes");
    }
};

TEST_F(StandingView, VerdictsStandBesideTheStepsAndMoveNothing) {
    start_with({{"Long <b>Rig", "15"}});
    const auto places = [this] {
        std::vector<QRect> all;
        for (const auto* button : screen("front")->findChildren<QAbstractButton*>())
            all.push_back(QRect(button->mapTo(screen("front"), QPoint()), button->size()));
        return all;
    };
    wait_until_judged();
    EXPECT_EQ(verdict("edit")->shape(), mark::done);
    EXPECT_EQ(verdict("land")->shape(), mark::open);
    EXPECT_EQ(verdict("land")->accessibleName(), "The land available for spreading has not been entered.");
    const auto judged = places();
    press("front", "cmdFront_land");
    fill_boxes("land", grid("land", "MSFlexGridLand"), {{0, 1, "Land_area", "9", "9"}});
    press("land", "cmdLand_save");
    close_screen("land", "cmdLand_cancel", module_messages::close_the_module);
    wait_for([this] { return verdict("land")->shape() == mark::look; },
             "the verdict does not follow the save");
    EXPECT_EQ(places(), judged);
}

TEST_F(StandingView, ThePageIsListedFirstAmongTheReportsOnceItHasBeenMade) {
    start();
    person.expect(assessments_messages::no_assessment_file);
    screen("front")->findChild<QAction*>("mnuFront_standing")->trigger();
    start_with({{"Long Rig", "15"}});
    screen("front")->findChild<QAction*>("mnuFront_standing")->trigger();
    drive::settle();
    ASSERT_TRUE(in_view("viewer"));
    const auto shown = [this] {
        return from_qt(drive::control<page_view>(screen("viewer"), "WebBrowser1")->toPlainText());
    };
    EXPECT_NE(shown().find("The farm and its one field are entered."), std::string::npos);
    press("viewer", "Command1");
    ASSERT_TRUE(in_view("front"));
    press("front", "cmdFront_reports");
    const std::string contents = shown();
    EXPECT_LT(contents.find("Where the farm stands:"), contents.find("Farm Profile:"));
}

TEST_F(StandingView, FifteenFieldsFitOnOneSheetThoughMostAreInTrouble) {
    farm_standing farm;
    farm.farm = "Mains of Tullifern";
    farm.year_start = make_date(19, 12, 2024);
    const std::string long_verdict =
        "Over 250 kg N/ha in twelve months: Steading Park (253.0) and Lade Haugh (306.5). 1 application in a "
        "closed period: Den Brae on 09/10/2025 (Dairy slurry - medium dry matter (6%)).";
    for (int step = 0; step < 9; ++step)
        farm.steps.push_back(
            {static_cast<farm_step>(step), true, step % 3 == 0 ? severity::wrong : severity::fine,
             step % 3 == 0 ? long_verdict : "Worked out for all 8 fields.",
             step % 3 == 0 ? "Look at the applications to Steading Park, those of last year too." : ""});
    for (int field = 10; field < 20; ++field) {
        const std::string name = "Steading Park " + std::to_string(field);
        farm.over_limit.push_back({name, 253});
        farm.breaches.push_back({name, make_date(9, 10, 2025), "Pig slurry - low dry matter (2%)"});
        farm.requirement_exceeded.push_back({name, "119.6", "114.6"});
    }
    farm.missing.push_back({farm_step::storage, "No use, and so no closed period, is entered for Low Moss."});
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter device(&content);
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageMargins({15, 15, 15, 15}, QPageLayout::Millimeter);
    const page_lines page = framed_page(standing_report(farm), make_date(3, 4, 2026), "Some People");
    const print_job job(std::vector{page_of_lines(page, path(""))}, device, make_date(3, 4, 2026));
    EXPECT_EQ(job.sheets(), 1);
}

}  // namespace kel::test
