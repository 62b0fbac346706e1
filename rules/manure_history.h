// The applications of a field over the years of the chain, for the reports of the crop and the grassland
// module.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "rules/manure_lookups.h"

namespace kel {

/// Manure type, incorporation time, date (19/12/2005) and application rate, as stored.
using manure_application = std::array<std::string, 4>;

class manure_history {
  public:
    /// Reads each file once for all fields, the oldest first. Throws file_error.
    explicit manure_history(const manure_years& years);

    /// The field's applications in stored order; none if their rates add up to 0.
    std::vector<manure_application> of(std::string_view field) const;

  private:
    void read(const database& file);
    std::map<std::string, std::vector<manure_application>, std::less<>> by_field_;
};

}  // namespace kel
