// The calendar's months: thirteen pieces, since a KEL year begins and ends within December, and how much of a
// month a band closes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standing/season_calendar.h"

namespace kel {

struct month_piece {
    date first;
    date last;
    std::string_view letters;  // "Dec"
};

/// Of the days from first to last, a month or a part of one each.
std::vector<month_piece> months_of(date first, date last);

enum class closing { open, partly, wholly };

struct month_closing {
    closing how = closing::open;
    std::string days{};  // of one that is partly closed: "to 15", "from 1", "10-20"
};

/// How the spans close the month.
month_closing closing_of(const std::vector<season_span>& spans, const month_piece& month);

}  // namespace kel
