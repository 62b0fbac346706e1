// What a number box can hold besides a number.
#pragma once

#include <string_view>

namespace kel {

/// A number box takes digits and one point, so a lone point is as good as empty.
inline bool number_box_filled(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

}  // namespace kel
