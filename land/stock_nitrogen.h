// Nitrogen that the farm's stock excretes in a year. Each stock type has one constant per unit; a poultry
// unit is 1,000 birds. The constants are those of the guidelines for farmers in the zones.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/explanation.h"

namespace kel {

struct stock_type {
    std::string_view name;
    float n_kg_per_year;
};

/// All stock types in the order in which they are listed.
std::span<const stock_type> stock_types();

/// kg N that one unit of the type excretes in a year; nothing for any text but the exact name of a type.
std::optional<float> stock_nitrogen(std::string_view type);

struct stock_line {
    float unit_n_kg_per_year;
    float total_n_kg_per_year;
};

/// Nitrogen of one line of stock. An empty type has the constant 0; a type that is not in the table keeps
/// `working_constant`, the constant of the line recalculated last.
stock_line stock_line_nitrogen(std::string_view type, float number, float working_constant,
                               explanation* why = nullptr);

}  // namespace kel
