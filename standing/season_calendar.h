// The season of each field: on which days of the KEL year slurries and manures, and inorganic nitrogen, may
// not be spread and by which rule, what was applied when, and how much of the 250 kg N/ha in twelve months
// that takes up. Whether a day is closed is asked of the same rules that Steps 3 and 4 ask, and the sums are
// those of Step 3's check; nothing is written.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "standing/farm_files.h"

namespace kel {

/// Days one after the other, the first and the last included, and the rule in a sentence.
struct season_span {
    date first;
    date last;
    std::string rule;
    bool operator==(const season_span&) const = default;
};

enum class applied_as {
    manure,         // bound to the closed periods: every slurry, layer manure and broiler litter
    exempt_manure,  // farmyard manure of cattle and pigs
    fertiliser,
};

struct season_mark {
    date day;
    applied_as kind;
    std::string type;
    std::string amount;  // with its unit
    bool in_closed_period = false;
    std::optional<float> rolling_n_kg_per_ha{};  // of a manure: the twelve months that end with it
};

/// The highest sum of twelve months and the day it is reached.
struct rolling_peak {
    date day;
    float n_kg_per_ha;
    bool over_limit;
};

struct field_season {
    std::string name;
    std::string size_ha;
    std::string soil;
    std::string crops{};  // as stored; empty: not entered
    // What is missing, in a sentence, where a band cannot be told; it then has no spans.
    std::string manure_missing{};
    std::string fertiliser_missing{};
    std::vector<season_span> manure_closed{};
    std::vector<season_span> no_land{};  // open, but no land free for spreading
    std::vector<season_span> fertiliser_closed{};
    std::vector<season_mark> marks{};  // in the order of their days
    std::optional<rolling_peak> peak{};
    std::string peak_missing{};        // why there is no peak; empty: no manure was applied
    std::vector<std::string> notes{};  // what else is odd about the field
};

struct season_calendar {
    std::string farm{};
    std::string missing{};  // why there is no calendar; the rest is then empty
    date first{};           // of the KEL year
    date last{};
    std::vector<field_season> fields{};  // in the order of the profile
    std::vector<std::string> notes{};    // what concerns the whole farm
};

/// Throws file_error for a file that cannot be read.
season_calendar season_of(const farm_year& year);
/// The same of the assessment worked on; without one it is what is missing.
season_calendar season_of(const application_state& state);

/// The days of a year from 0 on. Both take any day and any number.
int days_between(date first, date last);

/// Whether the day lies in one of the spans, and which; null: in none.
const season_span* span_of(const std::vector<season_span>& spans, date day);

}  // namespace kel
