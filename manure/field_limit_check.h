// The field limit on organic nitrogen: 250 kg N per hectare in any twelve months, without the nitrogen of
// grazing animals. It is tested at every application over the twelve months that end on its day. Rates count
// as they stand, each per hectare of its own area; solids and slurries count alike.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "core/dates.h"
#include "core/explanation.h"

namespace kel {

struct dated_rate {
    std::string field;
    date day;
    float total_n_kg_per_ha;
};

/// The sum that the check tests at each application of `table`, kg N/ha, in row order; nothing when the check
/// is switched off. `table` and `last_year` as below.
std::optional<std::vector<float>> rolling_sums(std::span<const dated_rate> table,
                                               const std::optional<std::vector<dated_rate>>& last_year);

/// Names of the fields over the limit; exactly 250 passes. `table` is this year's applications in row order:
/// all up to an application's day count with it. `last_year` is those of the linked file in stored order;
/// they count when they are less than a year older. Nothing: no file is linked. A linked file without a
/// single application switches the check off.
std::set<std::string, std::less<>> fields_over_limit(std::span<const dated_rate> table,
                                                     const std::optional<std::vector<dated_rate>>& last_year);

/// Whether the one field to which all of these apply is over the limit. Tells the twelve months of its
/// highest sum, application by application.
bool over_field_limit(std::span<const dated_rate> table,
                      const std::optional<std::vector<dated_rate>>& last_year, explanation& why);

}  // namespace kel
