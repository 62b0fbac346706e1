// Livestock units: what an animal eats, with the dairy cow as one.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kel {

class explanation;

struct grazing_stock {
    std::string_view type;
    float lu_per_animal;
};

/// The stock types in the order in which they are listed.
std::span<const grazing_stock> grazing_stock_list();

/// LU of one animal; nothing for any text but the exact name of a type: the caller keeps the ratio it had.
std::optional<float> lu_ratio(std::string_view stock_type, explanation* why = nullptr);

/// LU of `number` animals that are there for that percentage of the year. Neither is limited.
float livestock_units(float percent_of_year, float number, float ratio, explanation* why = nullptr);

}  // namespace kel
