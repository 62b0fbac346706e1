// Why what the pages show is what it is: each page answers for its tables.
#include "grass/grass_module.h"
#include "grass/opening_answers.h"
#include "grass/site_class.h"

namespace kel {

namespace {

template <class Level>
void set_answer(explanation& why, std::span<const Level> levels, const std::optional<int>& place) {
    if (place)
        why.set_result(std::string(levels[static_cast<std::size_t>(*place)].answer), "");
    else
        why.set_missing("No assessment has an answer, and the climate tables have none either.");
}

}  // namespace

std::optional<explanation> grass_module::why(const text_grid& grid, std::size_t row,
                                             std::size_t column) const {
    const auto r = static_cast<int>(row);
    const auto c = static_cast<int>(column);
    if (r >= grid.row_count()) return std::nullopt;
    if (&grid == &site_.table()) return site_.why(r, c);
    if (&grid == &site_.results()) return site_.why_result(r, c);
    if (&grid == &livestock_.table()) return livestock_.why(r, c);
    if (&grid == &stocking_.table()) return stocking_.why(r, c);
    if (&grid == &silage_.table()) return silage_.why(r, c);
    return std::nullopt;
}

std::optional<explanation> grass_module::why(std::string_view result) const {
    if (result == "lblGrass_summary") {
        explanation why("Livestock units fed by grazing and from silage");
        why.set_result(silage_.summary(&why), "");
        return why;
    }
    const bool rain = result == "Grass_rain";
    if (!rain && result != "Grass_altitude") return std::nullopt;
    explanation why(rain ? "Rain from April to September" : "Altitude of the farm");
    opening_answers answers;
    if (!state_.assess_file.empty())
        answers =
            answers_in_advance(database(state_.assess_file), state_,
                               rain ? opening_accounts{&why, nullptr} : opening_accounts{nullptr, &why});
    if (rain)
        set_answer(why, rain_levels(), answers.rain);
    else
        set_answer(why, altitude_levels(), answers.altitude);
    return why;
}

}  // namespace kel
