// The profile, without which no other step can be judged.
#include "core/numbers.h"
#include "profile/farm_profile.h"
#include "rules/soils.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

std::vector<std::string> lacks_of(const farm_year& year) {
    std::vector<std::string> lacks;
    if (const message* refusal = missing_from_profile(year.profile.farm, year.profile.fields))
        lacks.push_back(refusal->text);
    if (year.profile.farm_zone.empty() || year.profile.farm_town.empty()) lacks.emplace_back(text::no_town);
    const auto without_soil =
        fields_where(year.fields, [](const farm_field& field) { return !find_soil(field.soil); });
    if (!without_soil.empty()) lacks.push_back(text::fields_without_soil(without_soil));
    const auto without_area =
        fields_where(year.fields, [](const farm_field& field) { return !(leading_single(field.size) > 0); });
    if (!without_area.empty()) lacks.push_back(text::fields_without_area(without_area));
    return lacks;
}

}  // namespace

step_standing profile_standing(const farm_year& year, farm_standing& farm) {
    if (!year.has_profile) {
        add_missing(farm, farm_step::profile, text::no_profile);
        return not_done(farm_step::profile, text::no_profile, text::enter_profile);
    }
    const auto lacks = lacks_of(year);
    for (const std::string& sentence : lacks)
        add_missing(farm, farm_step::profile, sentence);
    // The last one names the fields.
    if (!lacks.empty()) return incomplete(farm_step::profile, lacks.back(), text::complete_profile);
    return {farm_step::profile, true, severity::fine, text::profile_entered(year.fields.size())};
}

}  // namespace kel
