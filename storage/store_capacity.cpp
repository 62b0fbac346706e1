#include "storage/store_capacity.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numbers.h"

namespace kel {

namespace {

// Shapes of stores as offered, shown and stored, in the order of store_shape. Any other text is no shape.
// clang-format off
constexpr std::array<std::string_view, 3> shapes{
    "Square or rectangular",
    "Circular",
    "Earth banked lagoon",
};
// clang-format on

// Volumes and angles are worked out with this value, drainage areas with the longer one.
constexpr double volume_pi = 3.142;
constexpr double area_pi = 3.14159265;

constexpr double tank_freeboard_m = 0.3;
constexpr double slice_m = 0.01;
constexpr double first_slice_m = 0.76;  // the slices down to 0.75 m are the lagoon's freeboard
// No bank is as deep; without an end a slip of the keyboard would keep the sum busy for minutes.
constexpr double deepest_lagoon_m = 1000;

double usable_depth(double depth_m) {
    return depth_m - tank_freeboard_m;
}

float lagoon_capacity(const store_size& size) {
    const double slope = std::tan(volume_pi / 180 * size.bank_angle_degrees);
    const double bottom_m = std::min(size.depth_m, deepest_lagoon_m);
    float volume = 0;
    // The depth grows by repeated addition and the volume is a single after every slice: the stated sum.
    for (double x = first_slice_m; x <= bottom_m; x += slice_m) {
        const double inset_m = 2 * x / slope;
        volume = static_cast<float>(volume + (size.length_m - inset_m) * slice_m * (size.width_m - inset_m));
    }
    return volume;
}

double volume_of(store_shape shape, const store_size& size) {
    switch (shape) {
        case store_shape::rectangular:
            return size.width_m * size.length_m * usable_depth(size.depth_m);
        case store_shape::circular:
            return (size.diameter_m / 2) * (size.diameter_m / 2) * volume_pi * usable_depth(size.depth_m);
        case store_shape::lagoon:
            return lagoon_capacity(size);
    }
    return 0;
}

double drainage_area(store_shape shape, const store_size& size) {
    if (shape != store_shape::circular) return size.width_m * size.length_m;
    const double circumference_m = size.diameter_m * area_pi;
    const double radius_m = circumference_m / area_pi / 2;
    return area_pi * radius_m * radius_m;
}

}  // namespace

std::span<const std::string_view> store_shapes() {
    return shapes;
}

std::optional<store_shape> find_store_shape(std::string_view text) {
    const auto found = std::find(shapes.begin(), shapes.end(), text);
    if (found == shapes.end()) return std::nullopt;
    return static_cast<store_shape>(found - shapes.begin());
}

float store_capacity(store_shape shape, const store_size& size) {
    const auto volume = static_cast<float>(volume_of(shape, size));
    // A lagoon without a bank angle, as in a damaged table, has no volume.
    return std::isfinite(volume) ? volume : 0;
}

std::string auto_area(store_shape shape, const store_size& size) {
    return shortest_text(round_half_even(static_cast<float>(drainage_area(shape, size)), 1));
}

}  // namespace kel
