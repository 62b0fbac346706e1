// The season calendar in words: what a day of a field is, and the whole calendar as a table for those who
// would rather read it.
#pragma once

#include <string>
#include <vector>

#include "core/text_grid.h"
#include "standing/season_calendar.h"

namespace kel {

/// "Long Rig, 3 September 2025: ..." with the day's rules and what was applied on it.
std::string day_text(const field_season& field, date day);

/// "144.2 of 250 kg N/ha on 03/06/2025", or why it cannot be told.
std::string use_text(const field_season& field);

/// "Slurry or manure", "Farmyard manure", "Fertiliser".
std::string_view word_of(applied_as kind);

namespace season_column {
enum : int { field = 0, first = 1, last = 2, what = 3, details = 4 };
}

/// Of each field what it is, its closed days, what was applied and how much of the limit that takes up; the
/// notes stand in front, without a field. Everything that is drawn is in it.
text_grid season_table(const season_calendar& season);

}  // namespace kel
