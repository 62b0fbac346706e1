// A row of the crops' table worked out: its rainfall adjustments first, then its recommendation.
#pragma once

#include <optional>
#include <string_view>

#include "core/text_grid.h"
#include "crops/crop_adjustments.h"
#include "crops/crop_advice.h"

namespace kel {

/// What a row without figures of its own goes on from: those of the row before.
struct crop_memory {
    base_requirement working;
    rain_memory rain;
};

struct calculated_crop {
    std::optional<int> winter_rain;  // kg/ha; nothing: the cell stays as it is
    std::optional<int> spring_rain;
    crop_recommendation found;
};

calculated_crop calculate_crop(const text_grid& crops, int row, std::string_view winter_status,
                               base_requirement& working, rain_memory& rain,
                               const crop_account& account = {});

}  // namespace kel
