// A result outside the tables that can be explained.
#pragma once

#include <string_view>

namespace kel {

struct explained_result {
    std::string_view name;     // of the control that shows it
    std::string_view subject;  // what it is
};

}  // namespace kel
