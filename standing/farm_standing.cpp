#include "standing/farm_standing.h"

#include <algorithm>
#include <array>

#include "record/record_source.h"
#include "standing/standing_messages.h"
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

farm_standing judge(const farm_paths& files, const farm_year& year, town_rain& rain) {
    farm_standing farm{.files = files,
                       .farm = year.profile.farm_name,
                       .zone = year.profile.farm_zone,
                       .year_start = year.profile.kel_year_start};
    const field_histories fields =
        read_histories(year.current.file, year.last_year ? &year.last_year->file : nullptr);
    farm.steps.reserve(titles.size());
    farm.steps.push_back(profile_standing(year, farm));
    farm.steps.push_back(land_standing(year, farm));
    farm.steps.push_back(storage_standing(year, rain, farm));
    farm.steps.push_back(manure_standing(year, farm));
    farm.steps.push_back(inorganic_standing(year, fields, farm));
    farm.steps.push_back(crops_standing(year, fields, farm));
    farm.steps.push_back(grass_standing(year, fields, farm));
    farm.steps.push_back(composting_standing(year, farm));
    farm.steps.push_back(record_standing(year, fields, farm));
    check_unchanged(year);
    return farm;
}

// What is wrong with last year's file shows in the middle at the latest; the year is then judged without it.
farm_standing judge_opened(const farm_paths& files, farm_year year, town_rain& rain) {
    try {
        return judge(files, year, rain);
    } catch (const file_error& failure) {
        if (!year.last_year || failure.file() != year.last_year->file.path()) throw;
        year.last_year.reset();
        year.link_troubles.push_back(standing_messages::last_year_unreadable(failure.trouble()));
        return judge(files, year, rain);
    }
}

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

farm_standing standing_of(const farm_paths& files, town_rain& rain) {
    try {
        return judge_opened(files, open_farm_year(files), rain);
    } catch (const file_error& failure) {
        return {.files = files, .trouble = failure.trouble()};
    }
}

}  // namespace kel
