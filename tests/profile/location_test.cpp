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
    map_square square_of_place(const std::string& name) {
        const location_lookup lookup(database(state.places.climate_tables()));
        for (int y = 0; y < grid_rows; ++y)
            for (int x = 0; x < grid_columns; ++x)
                if (lookup.at({x, y}).location == name) return {x, y};
        ADD_FAILURE() << name << " is not on the map";
        return {};
    }

    scripted_prompts person;
    profile_module profile{state, person};
    location_module location{state, person, profile};
};

TEST_F(Location, SeaAndTheMapsRightEdgeAreNoLocation) {
    const map_square land = square_of_place("Cupar");
    for (const map_square outside : {map_square{37, 20}, map_square{38, 46}, map_square{0, 0}}) {
        click_at(land);
        EXPECT_TRUE(location.marker_visible() && location.custom_pointer());
        EXPECT_EQ(location.towns().front(), "Blairgowrie");  // table order
        location.select_town("Cupar");
        click_at(outside);
        EXPECT_EQ(location.place().location, "No Location") << outside.x;
        EXPECT_EQ(location.zone() + location.town(), "");
        EXPECT_TRUE(location.towns().empty());
        EXPECT_FALSE(location.marker_visible() || location.custom_pointer());
    }
}

TEST_F(Location, EnterAsksForZoneThenTown) {
    person.expect(messages::no_kel).expect(messages::no_kel).expect(messages::no_town);
    location.arrow_move(0, 0);  // pointing looks, and chooses nothing
    EXPECT_FALSE(location.enter());
    click_at(square_of_place("Lyness"));  // land outside all zones has towns, and cannot be entered
    location.select_town(location.towns().at(0));
    EXPECT_FALSE(location.enter());
    click_at(square_of_place("Cupar"));
    EXPECT_FALSE(location.enter());
    EXPECT_EQ(state.farm_zone + profile.farm().location, "");
    location.select_town("Cupar");
    EXPECT_TRUE(location.enter());
    EXPECT_EQ(state.farm_zone + "/" + state.farm_town, "Strathmore and Fife KEL/Cupar");
    EXPECT_EQ(profile.farm().location, "Cupar - Strathmore and Fife KEL");
}

}  // namespace
}  // namespace kel::test
