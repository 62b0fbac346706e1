// Finding one's way: F1, the find strip, larger tables, what is kept between runs, hints, and windows that
// give way to a small screen.
#include <QHeaderView>
#include <QScreen>
#include <QTextBrowser>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "profile/farm_profile.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/kept_layout.h"

namespace kel::test {

namespace {

struct step {
    screen_id id;
    const char* tag;
    const char* topic;
};
constexpr std::array<step, 12> steps{{{screen_id::front, "front", "kel_software_intro"},
                                      {screen_id::profile, "profile", "kel_profile"},
                                      {screen_id::location, "location", "kel_location"},
                                      {screen_id::land, "land", "kel_land"},
                                      {screen_id::storage, "storage", "kel_storage"},
                                      {screen_id::manure, "reduction", "kel_manure"},
                                      {screen_id::inorganic, "inorg", "kel_inorganic"},
                                      {screen_id::crops, "crop", "kel_crops"},
                                      {screen_id::grass, "grass", "kel_grass"},
                                      {screen_id::straw, "straw", "kel_composting"},
                                      {screen_id::record, "record", "kel_record"},
                                      {screen_id::years, "years", "kel_years"}}};

class Comfort : public screen_test {
  protected:
    void begin() {
        start_with(
            {{"Long Rig", "15", "Sandy loams"}, {"East Muir", "8"}, {"East Bank", "4"}, {"West", "2"}});
    }
    grid_view* fields() {
        run->open(screen_id::profile);
        return grid("profile", "MSFlexGridFields");
    }
    std::string layout_file() const { return join_path(state.places.written_folder, "kelwindows.json"); }
    std::string hint(std::string_view tag) const {
        for (const auto* label : screen(tag)->findChildren<QLabel*>("lblHint"))
            if (label->isVisible()) return from_qt(label->text());
        return {};
    }
};

}  // namespace

TEST_F(Comfort, F1OpensTheTopicOfItsScreenAndTheWayBack) {
    begin();
    for (const step& at : steps) {
        run->open(at.id);
        ASSERT_TRUE(in_view(at.tag)) << at.tag;
        screen(at.tag)->activateWindow();
        press_key(Qt::Key_F1);
        ASSERT_TRUE(in_view("viewer")) << at.tag;
        const QUrl page = drive::control<QTextBrowser>(screen("viewer"), "WebBrowser1")->source();
        EXPECT_EQ(from_qt(page.fileName()), std::string(at.topic) + ".htm");
        EXPECT_EQ(from_qt(screen("viewer")->windowTitle()).substr(0, 20), "KEL Calculator: Help");
        press("viewer", "Command1");
        EXPECT_TRUE(in_view(at.tag)) << at.tag;
    }
}

TEST_F(Comfort, ARowIsFoundByPartOfItsNameAndBackToTheTable) {
    begin();
    grid_view* table = fields();
    table->setFocus();
    table->go_to(0, field_column::area);
    press_key(Qt::Key_F, 1, Qt::ControlModifier);
    EXPECT_EQ(focus_name(), "txtFind");
    type_text("east");
    EXPECT_EQ(current_cell(table), (texts{"1", "0"}));
    EXPECT_EQ(shown_text("profile", "lblFind"), "1 of 2");
    press_key(Qt::Key_Return);
    EXPECT_EQ(current_cell(table), (texts{"2", "0"}));
    press_key(Qt::Key_Return);
    EXPECT_EQ(current_cell(table), (texts{"1", "0"})) << "round again";
    press_key(Qt::Key_Return, 1, Qt::ShiftModifier);
    EXPECT_EQ(current_cell(table), (texts{"2", "0"}));
    type_text("x");
    EXPECT_EQ(shown_text("profile", "lblFind"), "Not found");
    EXPECT_EQ(current_cell(table), (texts{"2", "0"}));
    press_key(Qt::Key_Escape);
    EXPECT_EQ(focus_name(), "MSFlexGridFields");
    EXPECT_FALSE(drive::control(screen("profile"), "fraFind")->isVisible());
    // sorted, and in a column other than that of the names
    table->sort_on(field_column::area);
    press_key(Qt::Key_F, 1, Qt::ControlModifier);
    type_text("sandy");
    EXPECT_EQ(current_cell(table), (texts{"0", std::to_string(field_column::soil)}));
    press_key(Qt::Key_Escape);
    press_key(Qt::Key_Return);
    EXPECT_TRUE(drive::control(screen("profile"), "fraProfile_soil")->isVisible());
}

TEST_F(Comfort, SizesPlacesWidthsAndZoomComeBackInTheNextRun) {
    begin();
    grid_view* table = fields();
    screen("profile")->setGeometry(150, 60, 900, 560);
    const int usual_px = table->columnWidth(field_column::kel_area);
    const int usual_row_px = table->rowHeight(0);
    table->setFocus();
    press_key(Qt::Key_Equal, 2, Qt::ControlModifier);
    EXPECT_GT(table->columnWidth(field_column::kel_area), usual_px);
    EXPECT_GT(table->rowHeight(0), usual_row_px);
    QHeaderView* header = table->horizontalHeader();
    const int edge =
        header->sectionViewportPosition(field_column::area) + header->sectionSize(field_column::area) - 1;
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, {edge, 8});
    QMouseEvent drag(QEvent::MouseMove, QPoint(edge + 45, 8),
                     header->viewport()->mapToGlobal(QPoint(edge + 45, 8)), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(header->viewport(), &drag);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, {edge + 45, 8});
    const int own_px = table->columnWidth(field_column::area);
    EXPECT_EQ(cell(table, 0, 0), "Long Rig") << "a drag does not sort";
    press("profile", "cmdProfile_cancel");
    run->end();
    ASSERT_TRUE(std::filesystem::exists(layout_file()));
    start();
    table = fields();
    EXPECT_EQ(screen("profile")->geometry(), QRect(150, 60, 900, 560));
    EXPECT_NEAR(table->columnWidth(field_column::area), own_px, 1);
    EXPECT_EQ(table->widths().zoom_percent(), 120);
    table->setFocus();
    press_key(Qt::Key_0, 1, Qt::ControlModifier);
    EXPECT_NEAR(table->columnWidth(field_column::kel_area), usual_px, 1);
    // what is damaged is as good as none
    run->end();
    for (const char* damaged :
         {"", "{", "[1]", R"({"windows": {"profile": {"x": 1e300, "width": "a"}}})",
          R"({"windows": 5, "tables": {"MSFlexGridFields": {"columns": {"99": 5, "x": 3}}}})"}) {
        run.reset();
        std::ofstream(layout_file()) << damaged;
        start();
        fields();
        EXPECT_EQ(screen("profile")->width(), 1000) << damaged;
    }
}

TEST(KeptLayout, APlaceOnAScreenThatIsGoneOrTooSmallIsCorrected) {
    const QRect left(0, 0, 1280, 688);
    const QRect right(1280, 0, 1920, 1048);
    const struct {
        QRect wanted;
        QList<QRect> screens;
        QRect place;
    } cases[] = {
        {{100, 50, 900, 500}, {left}, {100, 50, 900, 500}},
        {{1500, 50, 1600, 900}, {left, right}, {1500, 50, 1600, 900}},
        {{1500, 50, 900, 500}, {left}, {190, 94, 900, 500}},   // its screen is gone: in the middle
        {{1500, 50, 1600, 900}, {left}, {0, 0, 1280, 656}},    // and it was a large one
        {{-700, 300, 900, 500}, {left}, {0, 156, 900, 500}},   // over two edges
        {{200, -400, 900, 500}, {left}, {190, 94, 900, 500}},  // its title is out of reach
        {{100, 50, 5000, 5000}, {left}, {0, 0, 1280, 656}},
        {{100, 50, 900, 500}, {}, {100, 50, 900, 500}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(corrected_place(c.wanted, c.screens), c.place) << c.wanted.x() << ", " << c.wanted.width();
}

TEST_F(Comfort, EveryWindowFitsASmallScreen) {
    constexpr QSize small(1280, 680);
    begin();
    for (const step& at : steps) {
        run->open(at.id);
        ASSERT_TRUE(in_view(at.tag)) << at.tag;
        const QSize least = screen(at.tag)->minimumSizeHint().expandedTo(screen(at.tag)->minimumSize());
        EXPECT_LE(least.width(), small.width()) << at.tag;
        EXPECT_LE(least.height(), small.height()) << at.tag;
        EXPECT_TRUE(screen(at.tag)->screen()->availableGeometry().contains(screen(at.tag)->geometry()))
            << at.tag;
    }
}

TEST_F(Comfort, ADecimalCommaIsHintedAndChangesNothing) {
    begin();
    grid_view* table = fields();
    focus();  // the window is in front
    drive::type(screen("profile"), "Text2", "3,5");
    EXPECT_EQ(hint("profile"), "Read as 3: use a point for decimals");
    EXPECT_EQ(drive::control<QLineEdit>(screen("profile"), "Text2")->text(), "3,5");
    drive::type(screen("profile"), "txtArea", "3");
    EXPECT_EQ(hint("profile"), "");
    type_text(",");
    EXPECT_EQ(hint("profile"), "Read as 3: use a point for decimals");
    type_text("5");
    EXPECT_EQ(hint("profile"), "Read as 35: use a point for decimals") << "the box leaves the comma out";
    press_key(Qt::Key_Backspace);
    type_text(".5");
    EXPECT_EQ(hint("profile"), "");
    open_box("profile", "Profile_farea", table, 0, field_column::area);
    type_text("2,");
    EXPECT_EQ(hint("profile"), "Read as 2: use a point for decimals");
    press_key(Qt::Key_Escape);
    EXPECT_EQ(hint("profile"), "");
}

TEST_F(Comfort, PathsOfTheYearsStandOutInLightAndDark) {
    begin();
    run->open(screen_id::years);
    const auto* path = drive::control<QLabel>(screen("years"), "lblYear_path1");
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    for (const QPalette& palette : {QPalette(QColor(239, 239, 239)), QPalette(QColor(50, 50, 50))}) {
        screen("years")->setPalette(palette);
        const auto group = path->isEnabled() ? QPalette::Active : QPalette::Disabled;
        const double ink = luminance(path->palette().color(group, path->foregroundRole()));
        const double ground = luminance(path->palette().color(group, QPalette::Window));
        EXPECT_GE((std::max(ink, ground) + 0.05) / (std::min(ink, ground) + 0.05), 4.5);
    }
}

TEST_F(Comfort, TabReachesTheFieldsAfterCreateFields) {
    begin();
    fields();
    drive::control(screen("profile"), "Command1")->setFocus();
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus_name(), "MSFlexGridFields");
}

}  // namespace kel::test
