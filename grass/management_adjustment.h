// What the management of a sward adds to its requirement, or takes from it.
#pragma once

#include <string>
#include <string_view>

#include "core/explanation.h"
#include "grass/grass_tables.h"

namespace kel {

/// As the site table's cells have it.
struct managed_sward {
    std::string_view clover;
    std::string_view use;
    std::string_view cuts;
    std::string_view applications;
};

/// kg N/ha as the cell shows it, fixed for some uses and looked up for the others; empty for a management
/// that the tables lack.
std::string management_adjustment(const grass_tables& tables, const managed_sward& sward,
                                  explanation* why = nullptr);

}  // namespace kel
