#include "crops/crop_calculation.h"

#include <string>

#include "crops/crop_grids.h"

namespace kel {

calculated_crop calculate_crop(const text_grid& crops, int row, std::string_view winter_status,
                               base_requirement& working, rain_memory& rain, const crop_account& account) {
    explanation* const why = account.about({crop_figure::spring, crop_figure::total});
    crop_row cells = crop_row_of(crops, row);
    const rained_on keys{cells.crop, cells.residue_group, cells.soil};
    const auto winter = winter_rain_adjustment(winter_status, keys, rain, why);
    const auto spring = spring_rain_adjustment(crops.cell(row, crop_column::spring_status), keys, rain, why);
    const std::string winter_text = winter ? std::to_string(*winter) : std::string{};
    const std::string spring_text = spring ? std::to_string(*spring) : std::string{};
    const auto put = [&](adjustment which, const std::string& text) {
        cells.adjustments[static_cast<std::size_t>(which)] = text;
    };
    if (winter) put(adjustment::winter_rain, winter_text);
    if (spring) put(adjustment::spring_rain, spring_text);
    return {winter, spring, recommend_row(cells, working, account)};
}

}  // namespace kel
