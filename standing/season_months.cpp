#include "standing/season_months.h"

#include <algorithm>

namespace kel {

std::vector<month_piece> months_of(date first, date last) {
    std::vector<month_piece> months;
    for (date from = first; from <= last;) {
        const date end = std::chrono::year_month_day(std::chrono::sys_days(
            std::chrono::year_month_day_last(from.year(), std::chrono::month_day_last(from.month()))));
        months.push_back({from, std::min(end, last), month_name(month_of(from)).substr(0, 3)});
        from = add_days(end, 1);
    }
    return months;
}

month_closing closing_of(const std::vector<season_span>& spans, const month_piece& month) {
    for (const season_span& span : spans) {
        if (span.last < month.first || span.first > month.last) continue;
        const bool from_start = span.first <= month.first;
        const bool to_end = span.last >= month.last;
        if (from_start && to_end) return {closing::wholly};
        if (from_start) return {closing::partly, "to " + std::to_string(day_of(span.last))};
        if (to_end) return {closing::partly, "from " + std::to_string(day_of(span.first))};
        return {closing::partly,
                std::to_string(day_of(span.first)) + "-" + std::to_string(day_of(span.last))};
    }
    return {};
}

}  // namespace kel
