#include "profile/location_module.h"

#include "profile/profile_messages.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace messages = profile_messages;

TEST(MapSquare, IsTheWholePartThatTwoCharactersRead) {
    const struct {
        float x, y;
        map_square square;
    } cases[] = {
        {0, 0, {0, 0}},        {-15, 130, {0, 0}},     {115.99F, 131, {0, 1}}, {116, 1309, {1, 9}},
        {1294, 1310, {9, 10}}, {1295, 6156, {10, 46}}, {4831, 0, {36, 0}},     {4832, 0, {37, 0}},
        {-100, -50, {0, 0}},   {-147, -131, {-1, -1}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(square_of(c.x, c.y), c.square) << c.x << " " << c.y;
}

class Location : public farm_test {
  protected:
    void click_at(map_square square) {
        location.pointer_move(static_cast<float>(left_of_column(square.x) + 60),
                              static_cast<float>(top_of_row(square.y) + 60));
        location.click();
    }
    void click_place(const std::string& name) {
        for (int y = 0; y < grid_rows; ++y)
            for (int x = 0; x < grid_columns; ++x)
                if (click_at({x, y}); location.place().location == name) return;
        ADD_FAILURE() << name << " is not on the map";
    }

    scripted_prompts person;
    profile_module profile{state, person};
    location_module location{state, person, profile};
};

TEST_F(Location, EnterAsksForZoneThenTownAndTheSeaHasNeither) {
    person.expect(messages::no_kel);
    click_place("Lyness");  // land outside all zones has towns, and cannot be entered
    location.select_town(location.towns().at(0));
    EXPECT_FALSE(location.enter());
    for (const map_square outside : {map_square{37, 20}, map_square{38, 46}, map_square{0, 0}}) {
        click_place("Cupar");
        EXPECT_EQ(location.towns().front(), "Blairgowrie");  // table order
        EXPECT_TRUE(location.marker_visible());
        location.select_town("Cupar");
        click_at(outside);
        EXPECT_EQ(location.place().location, "No Location") << outside.x;
        EXPECT_TRUE(location.towns().empty());
        EXPECT_FALSE(location.marker_visible());
        person.expect(messages::no_kel);
        EXPECT_FALSE(location.enter());
    }
    person.expect(messages::no_town);
    click_place("Cupar");
    EXPECT_FALSE(location.enter());
    EXPECT_EQ(state.farm_zone + profile.farm().location, "");
    location.select_town("Cupar");
    EXPECT_TRUE(location.enter());
    EXPECT_EQ(state.farm_zone + "/" + state.farm_town, "Strathmore and Fife KEL/Cupar");
    EXPECT_EQ(profile.farm().location, "Cupar - Strathmore and Fife KEL");
}

}  // namespace
}  // namespace kel::test
