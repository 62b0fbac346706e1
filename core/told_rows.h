// The rows of a sum in an explanation: one line each, and one for those that would make it too long to read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/explanation.h"

namespace kel {

struct told_row {
    std::string text;  // "Low Moss: 4.2 ha"
    double amount;     // what it adds to the sum
};

/// Adds a step for each row. Of more than 10 the first 9 are told, then how many `things` follow and what
/// they add up to, in `unit`.
void tell_rows(explanation& why, const std::vector<told_row>& rows, std::string_view things,
               std::string_view unit);

}  // namespace kel
