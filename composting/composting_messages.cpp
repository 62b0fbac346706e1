#include "composting/composting_messages.h"

#include "composting/composting_rules.h"
#include "core/numbers.h"

namespace kel::composting_messages {

std::string rate_text(const std::string& rate, const std::string& waste) {
    return rate + " t DM " + waste + "/ha";
}

std::string release_text(const std::string& release) {
    return release + " kg N/ha";
}

std::string_view note(const std::string& release) {
    const float kg_per_ha = leading_single(release);
    if (kg_per_ha < 0)
        return "Lock up is still occuring, so a small increase in fertiliser nitrogen may be appropriate the "
               "following year.";
    if (kg_per_ha > 0)
        return "Since an extra release of nitrogen is expected the following year, a downward adjustment in "
               "fertiliser nitrogen can be made.";
    return {};
}

std::string panel_caption(const std::string& residue, const std::string& soil_n, const std::string& waste,
                          const std::string& waste_n) {
    return "Recorded calculations: (Current calculation: " + residue + ", " + soil_n + " kg-N/ha - " + waste +
           ", " + waste_n + " %N)";
}

message field_does_not_exist(const std::string& name) {
    return {"Field does not exist",
            "The field you are trying to load (" + name +
                ") does not exist in the farm profile, and will not be imported. If you wish to include it "
                "in the analysis, the profile will need to be amended before it can be imported!"};
}

}  // namespace kel::composting_messages
