// What a store holds, the area that drains into it, and the boxes that describe it.
#include "storage/store_capacity.h"

#include <gtest/gtest.h>

#include "storage/store_form.h"

namespace kel {

TEST(StoreCapacity, TanksHoldWhatLiesBelowTheirFreeboard) {
    EXPECT_FLOAT_EQ(store_capacity(store_shape::rectangular, {.depth_m = 1.6, .length_m = 10, .width_m = 5}),
                    65);
    EXPECT_EQ(store_capacity(store_shape::rectangular, {.depth_m = 2.3, .length_m = 10, .width_m = 5}), 100);
    EXPECT_FLOAT_EQ(store_capacity(store_shape::circular, {.depth_m = 3.3, .diameter_m = 10}), 235.65F);
    EXPECT_EQ(store_capacity(store_shape::rectangular, {.depth_m = 0.2, .length_m = 10, .width_m = 5}), -5);
    EXPECT_EQ(store_capacity(store_shape::circular, {.depth_m = 0.3, .diameter_m = 10}), 0);
}

TEST(StoreCapacity, LagoonIsSummedInSlicesBelowItsFreeboard) {
    const struct {
        double depth, length, width, angle;
        float volume;
    } lagoons[] = {
        {2, 20, 10, 45, 155.73F},  // 124 slices: the depth summed up passes 2 by a rounding error
        {3, 30, 20, 30, 724.24F},  // 225 slices
        {0.75, 20, 10, 45, 0},    {0.76, 20, 10, 45, 1.567F},
        {6, 8, 6, 45, 43.27F},  // the banks meet at 3 m; deeper slices count again
    };
    for (const auto& l : lagoons)
        EXPECT_NEAR(store_capacity(store_shape::lagoon, {.depth_m = l.depth,
                                                         .length_m = l.length,
                                                         .width_m = l.width,
                                                         .bank_angle_degrees = l.angle}),
                    l.volume, 0.01)
            << l.depth << " deep, " << l.length << " by " << l.width;
}

TEST(StoreCapacity, LagoonOfADamagedTableHoldsNothingAndEnds) {
    EXPECT_EQ(store_capacity(store_shape::lagoon, {.depth_m = 2, .length_m = 20, .width_m = 10}), 0);
    store_capacity(store_shape::lagoon,
                   {.depth_m = 1e12, .length_m = 20, .width_m = 10, .bank_angle_degrees = 45});
}

TEST(StoreCapacity, DrainageAreaHasOneDecimalAndTheLongerPi) {
    EXPECT_EQ(auto_area(store_shape::circular, {.diameter_m = 10}), "78.5");
    EXPECT_EQ(auto_area(store_shape::circular, {.diameter_m = 1000}),
              "785398.2");  // 785500 by the shorter pi
    EXPECT_EQ(auto_area(store_shape::rectangular, {.length_m = 10, .width_m = 5}), "50");
    EXPECT_EQ(auto_area(store_shape::lagoon, {.length_m = 2.5, .width_m = 0.5}), "1.2");  // tie to even
    EXPECT_EQ(auto_area(store_shape::rectangular, {.length_m = 0.35, .width_m = 9}), "3.2");
}

TEST(StoreForm, ShapeEmptiesTheSizesAndDecidesBoxesAndLevel) {
    store_form tank{.name = "Tank", .shape = "Square or rectangular", .depth = "2", .length = "10"};
    tank.percent = "40";
    tank.area = "50";
    const store_form round = choose_shape(tank, "Circular");
    EXPECT_EQ(round, (store_form{.name = "Tank", .shape = "Circular", .percent = "0", .area = "0"}));
    EXPECT_EQ(choose_shape(tank, "Earth banked lagoon").percent, "0");
    EXPECT_EQ(choose_shape(tank, "Square or rectangular").percent, "40");
    EXPECT_EQ(boxes_of_shape("Earth banked lagoon"),
              (offered_boxes{.depth = true, .length_and_width = true, .angle = true}));
    EXPECT_EQ(boxes_of_shape("Circular"), (offered_boxes{.depth = true, .diameter = true}));
    EXPECT_EQ(boxes_of_shape(""), offered_boxes{});
}

}  // namespace kel
