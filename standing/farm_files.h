// The files of a farm as verdicts and calendar take them: the year's own and the two before it, each opened
// only to be read, and the rainfall of a town.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/farm_fields.h"
#include "core/file_stamp.h"
#include "profile/profile_file.h"
#include "rules/months.h"

namespace kel {

/// Empty where no file is linked.
struct farm_paths {
    std::string current;
    std::string previous;
    std::string before_previous;
    bool operator==(const farm_paths&) const = default;
};
/// Of the assessment worked on, by its stored links.
farm_paths linked_paths(const application_state& state);

/// Whose file it is and of which year; empty where it does not say.
struct farm_identity {
    std::string farm{};
    std::optional<date> year_start{};
};
/// Throws file_error.
farm_identity identity_of(const std::string& path);

/// Mean rainfall by town from the climate tables, each town read once.
class town_rain {
  public:
    explicit town_rain(std::string climate_tables) : climate_tables_(std::move(climate_tables)) {}
    /// mm by month; nothing for a town without figures, or without the climate tables.
    const std::optional<monthly_values>& of(const std::string& town);

  private:
    std::string climate_tables_;
    std::map<std::string, std::optional<monthly_values>> known_;
};

/// A file opened to be read, with its state as it was opened.
struct opened_file {
    database file;
    file_stamp stamp;
};

/// A farm's year opened to be read: the profile, and last year's file if it can be used.
struct farm_year {
    opened_file current;
    std::optional<opened_file> last_year{};
    std::vector<std::string> link_troubles{};  // what is odd about the linked years, in sentences
    loaded_profile profile{};
    bool has_profile = false;
    std::vector<farm_field> fields{};
};

/// Throws file_error naming the year's own file. A linked file that is the year's own, is of another year
/// than the one before or cannot be read is not used, and told; one of another farm is told.
farm_year open_farm_year(const farm_paths& files);

/// Throws file_error if one of the files has become another one since it was opened.
void check_unchanged(const farm_year& year);

}  // namespace kel
