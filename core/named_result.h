// A result outside the tables that can be explained.
#pragma once

#include <string_view>

namespace kel {

/// The name of the control that shows it, and what the panel's list calls it.
struct named_result {
    std::string_view name;
    std::string_view caption;
};

}  // namespace kel
