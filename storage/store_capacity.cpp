#include "storage/store_capacity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

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
constexpr std::size_t most_told_slices = 8;

// Figures of an account are told with the digits that a person has any use for.
std::string told(double value) {
    return default_text(static_cast<float>(value));
}

double usable_depth(double depth_m, explanation* why) {
    const double usable_m = depth_m - tank_freeboard_m;
    if (why) {
        why->rule("A tank keeps " + told(tank_freeboard_m) + " m free below its brim.");
        why->step("Usable depth: " + told(depth_m) + " - " + told(tank_freeboard_m) + " = " + told(usable_m) +
                  " m");
        if (usable_m < 0)
            why->step("It is less deep than what it must keep free, so that it counts below 0.");
    }
    return usable_m;
}

double box_capacity(const store_size& size, explanation* why) {
    const double usable_m = usable_depth(size.depth_m, why);
    const double volume = size.width_m * size.length_m * usable_m;
    if (why)
        why->step("Width x length x usable depth: " + told(size.width_m) + " x " + told(size.length_m) +
                  " x " + told(usable_m) + " = " + told(volume) + " cubic m");
    return volume;
}

double round_capacity(const store_size& size, explanation* why) {
    const double usable_m = usable_depth(size.depth_m, why);
    const double radius_m = size.diameter_m / 2;
    const double volume = radius_m * radius_m * volume_pi * usable_m;
    if (why)
        why->step("Half the diameter squared x " + told(volume_pi) + " x usable depth: " + told(radius_m) +
                  " x " + told(radius_m) + " x " + told(volume_pi) + " x " + told(usable_m) + " = " +
                  told(volume) + " cubic m");
    return volume;
}

struct lagoon_slice {
    double depth_m;
    double inset_m;
    double volume;
};

std::string told_slice(const lagoon_slice& slice, const store_size& size) {
    return told(slice.depth_m) + " m: (" + told(size.length_m) + " - " + told(slice.inset_m) + ") x (" +
           told(size.width_m) + " - " + told(slice.inset_m) + ") x " + told(slice_m) + " = " +
           told(slice.volume) + " cubic m";
}

void tell_slices(const std::vector<lagoon_slice>& slices, const store_size& size, double slope, float volume,
                 explanation& why) {
    why.rule(
        "A lagoon is summed up in slices of " + told(slice_m) + " m, from " + told(first_slice_m) +
        " m below its top; what lies above is kept free. Length and width are less there by what the banks "
        "have come in: twice the depth by the slope of the bank.");
    why.step("Slope: tangent of " + told(size.bank_angle_degrees) + " degrees, with pi as " +
             told(volume_pi) + " = " + told(slope));
    if (slices.empty()) return why.step("It is not deep enough for a slice, so that it holds nothing.");
    if (slices.size() <= most_told_slices) {
        for (const lagoon_slice& slice : slices)
            why.step("Slice at " + told_slice(slice, size));
    } else {
        why.step("First slice at " + told_slice(slices.front(), size));
        why.step("Last slice at " + told_slice(slices.back(), size));
    }
    why.step(std::to_string(slices.size()) + " slices together: " + told(volume) + " cubic m");
}

float lagoon_capacity(const store_size& size, explanation* why) {
    const double slope = std::tan(volume_pi / 180 * size.bank_angle_degrees);
    const double bottom_m = std::min(size.depth_m, deepest_lagoon_m);
    float volume = 0;
    std::vector<lagoon_slice> slices;
    // The depth grows by repeated addition and the volume is a single after every slice: the stated sum.
    for (double x = first_slice_m; x <= bottom_m; x += slice_m) {
        const double inset_m = 2 * x / slope;
        const double slice = (size.length_m - inset_m) * slice_m * (size.width_m - inset_m);
        volume = static_cast<float>(volume + slice);
        if (why) slices.push_back({x, inset_m, slice});
    }
    if (why) tell_slices(slices, size, slope, volume, *why);
    return volume;
}

double volume_of(store_shape shape, const store_size& size, explanation* why) {
    switch (shape) {
        case store_shape::rectangular:
            return box_capacity(size, why);
        case store_shape::circular:
            return round_capacity(size, why);
        case store_shape::lagoon:
            return lagoon_capacity(size, why);
    }
    return 0;
}

double drainage_area(store_shape shape, const store_size& size, explanation* why) {
    if (shape != store_shape::circular) {
        const double area = size.width_m * size.length_m;
        if (why)
            why->step("Width x length: " + told(size.width_m) + " x " + told(size.length_m) + " = " +
                      told(area) + " square m");
        return area;
    }
    const double circumference_m = size.diameter_m * area_pi;
    const double radius_m = circumference_m / area_pi / 2;
    const double area = area_pi * radius_m * radius_m;
    if (why)
        why->step("Half the diameter squared x " + default_text(area_pi) + ": " + told(radius_m) + " x " +
                  told(radius_m) + " x " + default_text(area_pi) + " = " + told(area) + " square m");
    return area;
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

float store_capacity(store_shape shape, const store_size& size, explanation* why) {
    const auto volume = static_cast<float>(volume_of(shape, size, why));
    // A lagoon without a bank angle, as in a damaged table, has no volume.
    if (std::isfinite(volume)) return volume;
    if (why) why->step("With these sizes there is no volume to be worked out; the store counts 0 cubic m.");
    return 0;
}

std::string auto_area(store_shape shape, const store_size& size, explanation* why) {
    std::string area = shortest_text(round_half_even(static_cast<float>(drainage_area(shape, size, why)), 1));
    if (why) why->step("Rounded to 1 decimal, halves to the even digit: " + area + " square m");
    return area;
}

}  // namespace kel
