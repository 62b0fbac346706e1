// The nitrogen recommendation of one grass field, from its site and management.
#pragma once

#include <string>

#include "core/explanation.h"
#include "grass/grass_tables.h"

namespace kel {

/// A field as the site table holds it; figures are texts, in kg N/ha.
struct grass_field {
    std::string clover;
    std::string site_class;
    std::string residue_group;  // "1" to "6"
    std::string use;
    std::string applications;
    std::string adjustment;
    std::string manure_current;
    std::string manure_previous;
};

/// The row of the results table, kg N/ha as text. What is to be applied has no floor: it is negative where
/// manures supply more than is required.
struct grass_recommendation {
    std::string requirement;
    std::string adjustment;
    std::string manures;
    std::string to_be_applied;
    bool operator==(const grass_recommendation&) const = default;
};

enum class grass_figure { requirement, adjustment, manures, to_be_applied };

/// Manures and what is to be applied are rounded to 1 decimal, ties to the even digit. Tells how the figure
/// that is asked for came about.
grass_recommendation recommend_grass(const grass_tables& tables, const grass_field& field,
                                     explanation* why = nullptr,
                                     grass_figure of = grass_figure::to_be_applied);

}  // namespace kel
