// The bands of the season calendar: the days on which a field is closed to slurries and manures, has no land
// free for them, or is closed to inorganic nitrogen. Each day is asked of the rules that the applications are
// tested by.
#pragma once

#include <array>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "rules/closed_period_lookups.h"
#include "rules/months.h"
#include "standing/season_calendar.h"

namespace kel {

class season_bands {
  public:
    /// Reads [Land] once. The year must have a start and outlive the bands. Throws file_error.
    explicit season_bands(const farm_year& year);

    /// Fills crops, bands, and what is missing or odd, of a field with its name and soil.
    void add_to(field_season& field);

    bool closed_to_manure(const std::string& field, date day) const;
    bool closed_to_fertiliser(const std::string& field, date day) const;

  private:
    struct land_row {
        land_use use;
        std::array<bool, months_in_year> free_land;
    };
    struct day_range {
        date first;
        date last;
    };
    template <class Condition>
    std::vector<day_range> ranges_where(const Condition& holds) const;
    static std::string days_text(const day_range& days);
    void add_manure_band(field_season& field, const land_row& land, const crop_pair& pair) const;
    void add_fertiliser_band(field_season& field, const crop_pair& pair);
    std::optional<land_use> use_of(const std::string& field) const;

    std::string zone_;
    year_limits limits_;
    int base_year_;  // the year in which the KEL year ends
    std::unordered_map<std::string, land_row> land_;
    std::map<std::string, std::vector<day_range>> fertiliser_days_;  // by second crop
};

}  // namespace kel
