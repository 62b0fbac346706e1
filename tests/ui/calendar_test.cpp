// The season calendar and the blank sheets on their screens: pointer, keys, table, zoom, reports.
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>

#include "reports/contents_page.h"
#include "rules/months.h"
#include "standing/blank_sheets.h"
#include "standing/season_messages.h"
#include "standing/season_report.h"
#include "tests/ui/screen_fixture.h"
#include "ui/screens/season_view.h"

namespace kel::test {

class CalendarScreen : public screen_test {
  protected:
    static row_values land_row(const std::string& field) {
        row_values row{{"Field Area ID", field}, {"Crop", "Grass / Grass"}};
        for (int month = 1; month <= months_in_year; ++month)
            row.emplace_back(month_name(month), month == 10 ? "Closed" : "5");
        return row;
    }
    void choose(const QString& entry) const {
        screen("front")->findChild<QAction*>(entry)->trigger();
        drive::settle();
    }
    void open(int further_fields = 0) {
        std::vector<test_field> fields{{"Long Rig", "5", "Sands"}, {"East <b>Muir", "8", "Sands"}};
        for (int i = 0; i < further_fields; ++i)
            fields.push_back({"Park " + std::to_string(i), "3"});
        start_with(fields);
        add_row(state.assess_file, "Land", land_row("Long Rig"));
        add_row(state.assess_file, "Manure_applic",
                {{"Field Area ID", "Long Rig"},
                 {"Manure Type", "Pig slurry - low dry matter (2%)"},
                 {"Date", "2025-10-03"},
                 {"Applic Rate", "30"},
                 {"Total N Applic Rate", "84.5"}});
        choose("mnuFront_calendar");
        ASSERT_TRUE(in_view("calendar"));
        ASSERT_FALSE(in_view("front"));
    }
    season_view* view() const { return drive::control<season_view>(screen("calendar"), "calSeason"); }
    std::string told() const { return shown_text("calendar", "lblCalendar_day"); }
    void point_at(int field, date day) const {
        const QPoint at = view()->rect_of({field, day}).center().toPoint();
        QMouseEvent move(QEvent::MouseMove, at, view()->viewport()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view()->viewport(), &move);
    }
    std::string current_day() const { return short_date_text(view()->current().day); }
};

TEST_F(CalendarScreen, PointerAndKeysTellTheDay) {
    open();
    EXPECT_EQ(focus_name(), "calSeason");
    EXPECT_EQ(told().substr(0, 27), "Long Rig, 19 December 2024:");
    point_at(0, make_date(3, 10, 2025));
    EXPECT_NE(told().find("Long Rig, 03 October 2025: Closed to slurries and manures"), std::string::npos);
    EXPECT_NE(told().find("Applied: Pig slurry - low dry matter (2%), 30 cubic m/ha, 84.5 kg N/ha"),
              std::string::npos)
        << told();
    EXPECT_EQ(from_qt(view()->accessibleDescription()), told());
    EXPECT_EQ(current_day(), "19/12/2024");  // pointing is not choosing
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view()->viewport(), &leave);
    EXPECT_EQ(told().substr(0, 27), "Long Rig, 19 December 2024:");

    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        int field;
        const char* day;
    } steps[] = {
        {Qt::Key_Left, Qt::NoModifier, 0, "19/12/2024"},
        {Qt::Key_Right, Qt::NoModifier, 0, "20/12/2024"},
        {Qt::Key_Right, Qt::ControlModifier, 0, "01/01/2025"},
        {Qt::Key_Right, Qt::ControlModifier, 0, "01/02/2025"},
        {Qt::Key_Right, Qt::NoModifier, 0, "02/02/2025"},
        {Qt::Key_Left, Qt::ControlModifier, 0, "01/02/2025"},
        {Qt::Key_Left, Qt::ControlModifier, 0, "01/01/2025"},
        {Qt::Key_Left, Qt::ControlModifier, 0, "19/12/2024"},
        {Qt::Key_Down, Qt::NoModifier, 1, "19/12/2024"},
        {Qt::Key_Down, Qt::NoModifier, 1, "19/12/2024"},
        {Qt::Key_End, Qt::NoModifier, 1, "18/12/2025"},
        {Qt::Key_Right, Qt::ControlModifier, 1, "18/12/2025"},
        {Qt::Key_PageUp, Qt::NoModifier, 0, "18/12/2025"},
        {Qt::Key_Home, Qt::NoModifier, 0, "19/12/2024"},
    };
    for (const auto& step : steps) {
        press_key(step.key, 1, step.with);
        EXPECT_EQ(view()->current().field, step.field) << step.key;
        EXPECT_EQ(current_day(), step.day) << step.key;
    }
    press_key(Qt::Key_Down);
    EXPECT_EQ(told(), "East <b>Muir, 19 December 2024: " + std::string(season_messages::no_land_row));
    const QPoint place = view()->rect_of({0, make_date(15, 2, 2025)}).center().toPoint();
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(current_day(), "15/02/2025");
    EXPECT_NE(told().find("Closed to inorganic nitrogen 19/12/2024 to 15/02/2025"), std::string::npos);
    press_key(Qt::Key_Right);
    EXPECT_NE(told().find("Open to inorganic nitrogen."), std::string::npos);
}

TEST_F(CalendarScreen, TheCurrentDayStaysInViewHoweverLargeItIsDrawn) {
    open(60);
    const auto in_view = [this] {
        return view()->viewport()->rect().contains(view()->rect_of(view()->current()).center().toPoint());
    };
    press_key(Qt::Key_End, 1, Qt::ControlModifier);
    EXPECT_EQ(view()->current().field, 61);
    EXPECT_TRUE(in_view());
    const double small = view()->rect_of(view()->current()).height();
    press_key(Qt::Key_Plus, 5, Qt::ControlModifier);
    EXPECT_GT(view()->rect_of(view()->current()).height(), 1.5 * small);
    EXPECT_TRUE(in_view());
    EXPECT_GT(view()->horizontalScrollBar()->maximum(), 0);
    press_key(Qt::Key_Home);
    EXPECT_TRUE(in_view());
    press_key(Qt::Key_0, 1, Qt::ControlModifier);
    EXPECT_EQ(view()->rect_of(view()->current()).height(), small);
    press("calendar", "cmdCalendar_larger");
    EXPECT_GT(view()->rect_of(view()->current()).height(), small);
}

// Where a band is drawn, its pixels are not those of an open day: the hatching does it without its colour.
TEST_F(CalendarScreen, BandsAreHatchedWhereTheirDaysLie) {
    open();
    press_key(Qt::Key_Down);
    drive::settle();
    const QImage shown = view()->viewport()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    const auto contrast = [&](date day, double part) {
        const QRectF rect = view()->rect_of({0, day});
        const double ratio = view()->viewport()->devicePixelRatioF();
        const int x = qRound(rect.center().x() * ratio);
        const int top = qRound((rect.top() + part * rect.height() - 8) * ratio);
        int darkest = 255;
        int lightest = 0;
        for (int y = top; y < top + 16 * ratio; ++y) {
            darkest = std::min(darkest, qGray(shown.pixel(x, y)));
            lightest = std::max(lightest, qGray(shown.pixel(x, y)));
        }
        return lightest - darkest;
    };
    constexpr double manure_lane = 0.27;
    constexpr double fertiliser_lane = 0.73;
    EXPECT_GT(contrast(make_date(25, 10, 2025), manure_lane), 60);
    EXPECT_LT(contrast(make_date(20, 9, 2025), manure_lane), 10);
    EXPECT_GT(contrast(make_date(5, 2, 2025), fertiliser_lane), 60);
    EXPECT_LT(contrast(make_date(25, 2, 2025), fertiliser_lane), 10);
}

TEST_F(CalendarScreen, TheTableReadsTheSameAndTheReportLeadsBack) {
    open();
    QPushButton* table = drive::control<QPushButton>(screen("calendar"), "cmdCalendar_table");
    table->click();
    drive::settle();
    EXPECT_EQ(focus_name(), "MSFlexGridCalendar");
    const grid_view* rows = grid("calendar", "MSFlexGridCalendar");
    EXPECT_FALSE(view()->isVisible());
    std::string what;
    for (int row = 0; row < rows->model()->rowCount(); ++row)
        if (cell(rows, row, 0) == "Long Rig") what += cell(rows, row, 1) + " " + cell(rows, row, 3) + "; ";
    EXPECT_EQ(
        what,
        " Field; 01/10/2025 Closed to slurries and manures; 19/12/2024 Closed to inorganic nitrogen; "
        "15/09/2025 Closed to inorganic nitrogen; 03/10/2025 Slurry or manure;  Limit of 250 kg N/ha; ");
    press_key(Qt::Key_Plus, 1, Qt::ControlModifier);
    EXPECT_GT(rows->widths().zoom_percent(), 100);
    table->click();
    EXPECT_TRUE(view()->isVisible());
    press("calendar", "cmdCalendar_report");
    ASSERT_TRUE(in_view("viewer"));
    EXPECT_NE(file_text(path(std::string(season_report_file))).find("M&nbsp;3!"), std::string::npos);
    press("viewer", "Command1");
    EXPECT_TRUE(in_view("calendar"));
    press("calendar", "cmdCalendar_close");
    EXPECT_TRUE(in_view("front"));
    EXPECT_FALSE(screen("calendar"));
}

TEST_F(CalendarScreen, FollowsTheAssessmentThatIsOpenedAndSaysWhatIsMissing) {
    open();
    const std::string other = make_farm("other.kel", {{"West Park", "3"}}, 2023);
    database(other).delete_rows("Field Data");
    run->state().assess_file = other;
    ++run->state().assessment;
    run->open(screen_id::calendar);
    drive::settle();
    EXPECT_EQ(told(), season_messages::no_fields);
    press_key(Qt::Key_Right);
    point_at(0, make_date(1, 1, 2024));
    EXPECT_EQ(told(), season_messages::no_fields);
}

TEST_F(CalendarScreen, SheetsAreMadeWithTheLinesAskedFor) {
    start_with({{"Long Rig", "5"}, {"East Muir", "8"}});
    choose("mnuFront_sheets");
    ASSERT_TRUE(in_view("sheets"));
    EXPECT_EQ(focus_name(), "spnSheets_lines");
    drive::control<QSpinBox>(screen("sheets"), "spnSheets_lines")->setValue(3);
    const auto lines_of = [this](blank_sheet kind) {
        return QString::fromStdString(file_text(path(std::string(file_of(kind))))).count("font-size:20pt");
    };
    for (const auto& [button, kind] : {std::pair{"cmdSheets_manure", blank_sheet::manure},
                                       std::pair{"cmdSheets_fertiliser", blank_sheet::fertiliser}}) {
        press("sheets", button);
        ASSERT_TRUE(in_view("viewer")) << button;
        EXPECT_EQ(lines_of(kind), 6);
        press("viewer", "Command1");
        EXPECT_TRUE(in_view("sheets"));
    }
    press("sheets", "cmdSheets_close");
    EXPECT_TRUE(in_view("front"));
}

}  // namespace kel::test
