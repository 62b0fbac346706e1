// The boxes in which a store is described, as typed, and the rules between them.
#pragma once

#include <string>
#include <string_view>

#include "storage/store_capacity.h"

namespace kel {

struct store_form {
    std::string name{};
    std::string shape{};  // one of store_shapes(), or empty: none selected
    std::string depth{};
    std::string length{};
    std::string width{};
    std::string diameter{};
    std::string angle{};
    std::string percent{};  // full at the start of the year
    std::string area{};     // drainage area, square metres
    bool operator==(const store_form&) const = default;
};

/// Which of the five size boxes a shape offers; the others are hidden. Depth is offered for every shape, and
/// nothing without one.
struct offered_boxes {
    bool depth = false;
    bool length_and_width = false;
    bool diameter = false;
    bool angle = false;
    bool operator==(const offered_boxes&) const = default;
};
offered_boxes boxes_of_shape(std::string_view shape);

/// The form after this shape was chosen: the five size boxes are empty, and a circular store or a lagoon
/// starts at "0" percent.
store_form choose_shape(store_form form, std::string_view shape);

/// What goes into the drainage area box each time the person changes the length, width or diameter; the
/// area as it stands without a shape. Not called when a store is put back into the boxes for editing.
std::string auto_area(const store_form& form);

/// Sizes as numbers.
store_size size_of(const store_form& form);

}  // namespace kel
