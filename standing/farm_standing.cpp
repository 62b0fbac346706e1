#include "standing/farm_standing.h"

#include <algorithm>
#include <array>

#include "standing/step_standings.h"

namespace kel {

namespace {

// clang-format off
struct named_step {
    farm_step step;
    std::string_view title;
};
constexpr std::array<named_step, 9> titles{{
    {farm_step::profile,    "Farm profile"},
    {farm_step::land,       "Step 1: land for spreading"},
    {farm_step::storage,    "Step 2: slurry storage and closed periods"},
    {farm_step::manure,     "Step 3: slurry and manure applications"},
    {farm_step::inorganic,  "Step 4: inorganic N applications"},
    {farm_step::crops,      "Nitrogen requirement of crops"},
    {farm_step::grass,      "Nitrogen requirement of grassland"},
    {farm_step::composting, "Composting of vegetable residues"},
    {farm_step::record,     "Field record"},
}};
// clang-format on

using step_verdict = step_standing (*)(const farm_year&, farm_standing&);
constexpr std::array<step_verdict, 2> verdicts{profile_standing, land_standing};

}  // namespace

std::string_view title_of(farm_step step) {
    return std::find_if(titles.begin(), titles.end(), [step](const auto& t) { return t.step == step; })
        ->title;
}

std::string_view word_of(severity worst) {
    switch (worst) {
        case severity::fine:
            return "Fine";
        case severity::not_done:
            return "Not done";
        case severity::attention:
            return "Look at it";
        case severity::wrong:
            break;
    }
    return "Wrong";
}

severity farm_standing::worst() const {
    severity worst = trouble.empty() ? severity::fine : severity::wrong;
    for (const step_standing& step : steps)
        worst = std::max(worst, step.worst);
    return worst;
}

farm_standing standing_of(const farm_paths& files, town_rain& /*rain*/) {
    farm_standing farm{.files = files};
    try {
        const farm_year year = open_farm_year(files);
        farm.farm = year.profile.farm_name;
        farm.zone = year.profile.farm_zone;
        farm.year_start = year.profile.kel_year_start;
        for (const step_verdict verdict : verdicts)
            farm.steps.push_back(verdict(year, farm));
        check_unchanged(year);
    } catch (const file_error& failure) {
        farm = {.files = files, .trouble = failure.trouble()};
    }
    return farm;
}

}  // namespace kel
