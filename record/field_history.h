// What the files hold of one field, as plain values: the applications of two linked years, the crop and what
// the nitrogen it needs came to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "rules/closed_period_lookups.h"

namespace kel {

/// One stored application; numbers are text as stored, per hectare. An empty day is not entered yet.
struct manure_record {
    std::string day;
    std::string manure;
    std::string n_content;
    std::string rate;
    std::string total_n;
};
struct inorganic_record {
    std::string day;
    std::string type;
    std::string amount;
    std::string total_n;
    std::string comments;
};

/// One file's rows of the field in stored order, and its row in [Land].
struct field_year {
    std::vector<manure_record> manures;
    std::vector<inorganic_record> inorganics;
    std::optional<land_use> land;
};

/// The field's row in [Crops]; crops are codes, days as stored.
struct crop_record {
    std::string next_crop;
    std::string previous_crop;
    std::string sowing_day;
    std::string previous_harvest;
    std::string current_harvest;
};

/// The field's row in [Site].
struct site_record {
    std::string use;
    std::string season_end;
};

struct field_history {
    field_year current;
    field_year previous;  // of the linked file; empty without one
    std::optional<crop_record> crop;
    std::optional<site_record> grass;
    std::optional<std::string> n_required;
};

/// The year assessed; no start while the file holds none.
struct record_year {
    std::optional<date> start;
    std::string zone;
};

}  // namespace kel
