// What the crop and the grassland module ask of the applications: how much of their nitrogen reaches a
// field's crop. The sums are single precision over the stored figures; the callers round them. A stored date
// that is none, and every failure of a file, throws file_error.
#pragma once

#include <optional>
#include <string_view>

#include "core/application_state.h"
#include "core/assessment_store.h"

namespace kel {

class explanation;

/// The chain of files, each opened once for any number of lookups; nothing where no file is linked.
struct manure_years {
    std::optional<database> current;
    std::optional<database> previous;
    std::optional<database> before_previous;
};
manure_years open_manure_years(const application_state& state);

// Each lookup takes the dates as its bounds through the state and leaves them there: `first` becomes the
// year_end, `second` the year_start of its limits, until a module with dates loads anew. A date that is
// missing leaves its limit and sets no bound. Each tells the applications that it counts.

/// kg N/ha for the current crop: this year's applications after `first` (without one: after the start of the
/// KEL year) and before `second`, and last year's after `first`. The bounds themselves are left out.
float n_for_this_crop(application_state& state, const manure_years& years, std::string_view field,
                      std::optional<date> first, std::optional<date> second, explanation* why = nullptr);
float n_for_this_crop(application_state& state, std::string_view field, std::optional<date> first,
                      std::optional<date> second, explanation* why = nullptr);

/// kg N/ha left by manure for the previous crop: the share for the next crop of this and last year's
/// applications before `first`, and the share for its own crop of the applications two years ago, after the
/// harvest that last year's [Crops] has for the field.
float n_from_previous_crop(application_state& state, const manure_years& years, std::string_view field,
                           date first, std::optional<date> second, explanation* why = nullptr);
float n_from_previous_crop(application_state& state, std::string_view field, date first,
                           std::optional<date> second, explanation* why = nullptr);

/// kg N/ha left by manure of the previous season of grassland: as for the previous crop, but of last year's
/// applications only and, two years ago, after the end of season that last year's [Site] has. 0 without a
/// linked file.
float n_from_previous_season(application_state& state, const manure_years& years, std::string_view field,
                             date first, std::optional<date> second, explanation* why = nullptr);
float n_from_previous_season(application_state& state, std::string_view field, date first,
                             std::optional<date> second, explanation* why = nullptr);

/// Whether the file has an application to the field.
bool has_manure_applications(const database& file, std::string_view field);

}  // namespace kel
