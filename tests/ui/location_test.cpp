// The map of Scotland: a click finds the zone whose colour is seen there.
#include <QAction>
#include <QImage>
#include <QLineEdit>

#include "profile/profile_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/screens/map_view.h"

namespace kel::test {

class Location : public screen_test {
  protected:
    void open_map() {
        start();
        press("front", "cmdFront_new");
        QTest::mouseClick(drive::control(screen("profile"), "txtLocation"), Qt::LeftButton);
        drive::settle();
        ASSERT_TRUE(in_view("location"));
        map = drive::control<map_view>(screen("location"), "Picture1");
        picture = map->grab().toImage();
    }
    bool plain_around(QPoint centre, QColor colour) const {
        for (int x = -2; x <= 2; ++x)
            for (int y = -2; y <= 2; ++y)
                if (picture.pixelColor(centre + QPoint(x, y)) != colour) return false;
        return true;
    }
    /// Pixels well within an area of that colour, from all over the map.
    std::vector<QPoint> pixels_of(QColor colour) const {
        std::vector<QPoint> found;
        for (int y = 2; y < picture.height() - 2; y += 4)
            for (int x = 2; x < picture.width() - 2; x += 3)
                if (plain_around({x, y}, colour)) found.emplace_back(x, y);
        return found;
    }
    void click_map(QPoint pixel) {
        QTest::mouseClick(map, Qt::LeftButton, Qt::NoModifier, pixel);
        drive::settle();
    }
    std::string label(const char* name) const { return shown_text("location", name); }
    map_view* map = nullptr;
    QImage picture;
};

TEST_F(Location, AClickFindsTheZoneOfTheColourThatIsSeenThere) {
    open_map();
    for (const auto& [zone, colour] : map->legend()) {
        const auto pixels = pixels_of(colour);
        ASSERT_GT(pixels.size(), 10U) << zone;
        for (std::size_t i = 0; i < pixels.size(); i += pixels.size() / 10) {
            click_map(pixels[i]);
            EXPECT_EQ(label("lblScotland_kel"), zone) << "at " << pixels[i].x() << ", " << pixels[i].y();
        }
    }
}

TEST_F(Location, ShowsCoordinatesAndSquareUnderThePointer) {
    open_map();
    EXPECT_NE(label("lblScotland_pointer").find("x 2671, y 2686; square 20, 20"), std::string::npos)
        << label("lblScotland_pointer");
    map->setFocus();
    press_key(Qt::Key_Right);
    press_key(Qt::Key_Up, 2);
    EXPECT_NE(label("lblScotland_pointer").find("x 2802, y 2424; square 21, 18"), std::string::npos);
}

TEST_F(Location, EnterRefusesTheSeaAndAZoneWithoutATown) {
    open_map();
    person.expect(profile_messages::no_kel);
    press("location", "cmdScotland_enter");
    click_map(pixels_of(map->legend().front().colour).front());
    map->setFocus();
    tab_to("lstScotland_town");
    person.expect(profile_messages::no_town);
    press("location", "cmdScotland_enter");
    press_key(Qt::Key_Space);
    map->setFocus();
    press_key(Qt::Key_Left, 50);
    press_key(Qt::Key_Down, 50);
    press_key(Qt::Key_Return);
    EXPECT_EQ(label("lblScotland_location"), "No Location");
    EXPECT_EQ(label("lblScotland_kel"), "");
    person.expect(profile_messages::no_kel);
    press("location", "cmdScotland_enter");
    EXPECT_TRUE(in_view("location"));
    press("location", "cmdScotland_cancel");
    EXPECT_TRUE(in_view("profile"));
    EXPECT_EQ(drive::control<QLineEdit>(screen("profile"), "txtLocation")->text(), "");
    EXPECT_EQ(run->state().farm_zone, "");
}

TEST_F(Location, EnterTakesTheTownThatIsChosenAndTheMenuHidesTheGrid) {
    open_map();
    screen("location")->findChild<QAction*>("mnuScotland_grid")->trigger();
    drive::settle();
    EXPECT_NE(map->grab().toImage(), picture);
    const auto entry = map->legend().back();
    click_map(pixels_of(entry.colour).front());
    auto* towns = drive::control<QListWidget>(screen("location"), "lstScotland_town");
    ASSERT_GT(towns->count(), 1);
    towns->setCurrentRow(1);
    const std::string town = from_qt(towns->item(1)->text());
    press("location", "cmdScotland_enter");
    EXPECT_EQ((texts{run->state().farm_town, run->state().farm_zone}), (texts{town, entry.zone}));
    EXPECT_EQ(from_qt(drive::control<QLineEdit>(screen("profile"), "txtLocation")->text()),
              town + " - " + entry.zone);
}

}  // namespace kel::test
