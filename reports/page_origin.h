// Which farm and KEL year a report is of, and the day it was made. A line of the page itself keeps it, so
// that a print names them at its foot however much later it is made and whatever farm is open then.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"

namespace kel {

struct page_origin {
    std::string farm;                  // empty: a farm that has no name yet
    std::optional<date> year_start{};  // of the KEL year; none: a farm that has no year yet
    std::optional<date> made{};
    std::string file{};  // a mark that tells the assessment's file from others; empty: not known
    bool operator==(const page_origin&) const = default;
};

/// Text that shows as it stands where it may hold markup, in one line.
std::string escaped(std::string_view text);

/// What a report made now of the open assessment is of. A farm's name of its own (`farm`) goes before the one
/// that the file has. With no assessment open there is no year.
page_origin origin_of(const application_state& state, date today, std::string_view farm = {});

/// The line of the page's head. It shows nowhere.
std::string origin_line(const page_origin& origin);
/// Finds it in the text of a page; nothing in a page that has none.
std::optional<page_origin> read_origin(std::string_view page);

/// "KEL year 19 December 2025 to 18 December 2026"; empty without a year.
std::string year_text(const page_origin& origin);
/// Whether both are of one farm in one year, whenever they were made. Two files may hold farms of one name:
/// they are not the same.
bool same_farm_and_year(const page_origin& a, const page_origin& b);

}  // namespace kel
