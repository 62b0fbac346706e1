// What a slurry store holds, and the area that drains into it. Three shapes are known; each keeps a
// freeboard: 0.3 m of the two kinds of tank, 0.75 m of an earth banked lagoon.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/explanation.h"

namespace kel {

enum class store_shape { rectangular, circular, lagoon };

/// The shapes in the order offered, as texts that are shown and stored.
std::span<const std::string_view> store_shapes();
/// Nothing for any other text.
std::optional<store_shape> find_store_shape(std::string_view text);

/// Metres and degrees. A lagoon's length and width are those at the top of its bank.
struct store_size {
    double depth_m = 0;
    double length_m = 0;
    double width_m = 0;
    double diameter_m = 0;
    double bank_angle_degrees = 0;
};

/// Cubic metres below the freeboard, in single precision. A tank shallower than its freeboard counts
/// below zero, as the formula gives it.
/// A lagoon is summed in slices of 0.01 m; slices beyond the point where the banks meet still count.
float store_capacity(store_shape shape, const store_size& size, explanation* why = nullptr);

/// Drainage area in square metres as the text of its box: at most 1 decimal, ties to even.
std::string auto_area(store_shape shape, const store_size& size, explanation* why = nullptr);

}  // namespace kel
