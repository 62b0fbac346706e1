// Where a farm stands: for each step whether it is done, a sentence of verdict and one of what to look at
// next, with the figures behind them. Everything is worked out from the stored tables alone, through each
// module's own load, rules and checks, and no file is written to. A figure that cannot be worked out is
// missing and says why; it is never 0.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"
#include "standing/farm_files.h"

namespace kel {

/// In the order of the year.
enum class farm_step { profile, land, storage, manure, inorganic, crops, grass, composting, record };

/// "Step 1: land for spreading"
std::string_view title_of(farm_step step);

/// How much a verdict asks of the farmer; the later the more.
enum class severity {
    fine,
    not_done,   // nothing is entered yet
    attention,  // data is missing, or a figure is close to its limit
    wrong,      // a limit, a closed period or a store is exceeded
};
/// "Fine", "Not done", "Look at it", "Wrong".
std::string_view word_of(severity worst);

/// Texts are plain: field names in them stand as the farmer typed them.
struct step_standing {
    farm_step step;
    bool done = false;  // nothing that the step asks for is missing
    severity worst = severity::not_done;
    std::string verdict{};
    std::string next{};  // empty: nothing
    bool operator==(const step_standing&) const = default;
};

/// How full the stores are at the end of a month, 1 to 12.
struct store_level {
    int month;
    float percent;
    bool operator==(const store_level&) const = default;
};

/// The highest total of manure nitrogen on a field in any twelve months, kg N/ha.
struct field_nitrogen {
    std::string field;
    float n_kg_per_ha;
    bool operator==(const field_nitrogen&) const = default;
};

/// One application in a closed period.
struct closed_breach {
    std::string field;
    date day;
    std::string applied;     // manure type or fertiliser
    bool inorganic = false;  // by the calendar rule; else by months
    bool justified = false;  // the comments give the reason
    bool operator==(const closed_breach&) const = default;
};

/// A field that was given more inorganic nitrogen than its crop requires; kg N/ha as the field record shows
/// them. The record also warns of a field that got none where even less is required; that is not one.
struct requirement_excess {
    std::string field;
    std::string applied;
    std::string required;
    bool operator==(const requirement_excess&) const = default;
};

/// One sentence on data that a step lacks.
struct missing_data {
    farm_step step;
    std::string text;
    bool operator==(const missing_data&) const = default;
};

struct farm_standing {
    farm_paths files{};
    std::string trouble{};  // why a file could not be read; empty: it could. With one nothing below is filled
    std::string farm{};
    std::string zone{};
    std::optional<date> year_start{};

    std::vector<step_standing> steps{};  // in the order of the year; none with a trouble
    std::optional<store_level> highest_level{};
    std::vector<store_level> months_over_full{};
    std::vector<field_nitrogen> over_limit{};  // in the order of the profile, as those below
    std::vector<field_nitrogen> near_limit{};  // within a tenth of the limit
    std::vector<closed_breach> breaches{};
    std::vector<requirement_excess> requirement_exceeded{};
    std::vector<missing_data> missing{};

    severity worst() const;
    bool operator==(const farm_standing&) const = default;
};

/// Never throws for what a file holds: the trouble says it. `rain` may serve any number of farms.
farm_standing standing_of(const farm_paths& files, town_rain& rain);

}  // namespace kel
