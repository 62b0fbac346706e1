// What a crop needs before anything is known of its circumstances.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kel {

class explanation;

/// kg N/ha. A range is the width above its amount, 0 for a single figure; the total leaves it out.
struct base_requirement {
    float spring_n = 0;
    float spring_range = 0;
    float seedbed_n = 0;
    float seedbed_range = 0;
    double total_n = 0;
    std::string crop_note;
    bool operator==(const base_requirement&) const = default;
};

/// The group that a residue group cell holds, 1 to 6; 0 for any other text.
int residue_group_number(std::string_view cell);

/// The requirement of a planned code after a residue group (1 to 6) on a soil of the farm profile. Nothing
/// for a crop, a group or a soil that its table does not have: the caller keeps what it had.
std::optional<base_requirement> lookup_requirement(std::string_view crop_code, int residue_group,
                                                   std::string_view soil, explanation* why = nullptr);

}  // namespace kel
