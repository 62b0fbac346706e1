// What is held against a field's use when it is entered: last year's second crop, and the crop for which
// nitrogen was calculated. The files are read first; then the person is asked.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

struct other_uses {
    bool in_last_year = false;                   // last year's file has a [Land] row of the field
    std::string last_second_crop;                // its second crop type; empty: not assessed
    std::optional<std::string> crop_calculated;  // crop of [Crops], or "Grass" of [Site]
};

/// Opens last year's file and the assessment once each. Throws file_error.
other_uses read_other_uses(const application_state& state, std::string_view field);

/// Whether the entry of this first crop type goes on after the questions that it raises.
bool goes_with_last_year(const other_uses& others, std::string_view first_crop, prompts& person);
bool goes_with_calculated_crop(const other_uses& others, std::string_view first_crop, prompts& person);

}  // namespace kel
