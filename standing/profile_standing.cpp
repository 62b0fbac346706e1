#include <algorithm>

#include "core/numbers.h"
#include "profile/farm_profile.h"
#include "rules/soils.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

// The names of the fields for which something does not hold.
template <class Lacks>
std::vector<std::string> fields_that(const std::vector<farm_field>& fields, const Lacks& lacks) {
    std::vector<std::string> names;
    for (const farm_field& field : fields)
        if (lacks(field)) names.push_back(field.name);
    return names;
}

}  // namespace

step_standing profile_standing(const farm_year& year, farm_standing& farm) {
    if (!year.has_profile) {
        add_missing(farm, farm_step::profile, std::string(text::no_profile));
        return not_done(farm_step::profile, text::no_profile, text::enter_profile);
    }
    std::vector<std::string> lacks;
    if (const message* refusal = missing_from_profile(year.profile.farm, year.profile.fields))
        lacks.push_back(refusal->text);
    if (year.profile.farm_zone.empty() || year.profile.farm_town.empty()) lacks.emplace_back(text::no_town);
    const auto without_soil = fields_that(year.fields, [](const auto& f) { return !find_soil(f.soil); });
    if (!without_soil.empty()) lacks.push_back(text::fields_without_soil(without_soil));
    const auto without_area =
        fields_that(year.fields, [](const auto& f) { return !(leading_single(f.size) > 0); });
    if (!without_area.empty()) lacks.push_back(text::fields_without_area(without_area));
    for (const std::string& sentence : lacks)
        add_missing(farm, farm_step::profile, sentence);
    if (!lacks.empty())
        return {farm_step::profile, false, severity::attention, lacks.back(),
                std::string(text::enter_profile)};
    return {farm_step::profile, true, severity::fine, text::profile_entered(year.fields.size()), {}};
}

}  // namespace kel
