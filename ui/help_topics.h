// Which topic of the program's help a screen's F1 opens.
#pragma once

#include <array>
#include <string_view>

#include "core/screens.h"

namespace kel {

/// A file of the help folder; of a screen without a topic of its own, that of the program as a whole.
constexpr std::string_view help_topic_of(screen_id id) {
    struct screen_topic {
        screen_id id;
        std::string_view topic;
    };
    // clang-format off
    constexpr std::array<screen_topic, 14> topics{{
        {screen_id::profile,   "kel_profile.htm"},
        {screen_id::location,  "kel_location.htm"},
        {screen_id::land,      "kel_land.htm"},
        {screen_id::storage,   "kel_storage.htm"},
        {screen_id::manure,    "kel_manure.htm"},
        {screen_id::inorganic, "kel_inorganic.htm"},
        {screen_id::crops,     "kel_crops.htm"},
        {screen_id::grass,     "kel_grass.htm"},
        {screen_id::straw,     "kel_composting.htm"},
        {screen_id::record,    "kel_record.htm"},
        {screen_id::calendar,  "kel_calendar.htm"},
        {screen_id::sheets,    "kel_calendar.htm"},
        {screen_id::years,     "kel_years.htm"},
        {screen_id::viewer,    "kel_reports.htm"},
    }};
    // clang-format on
    for (const screen_topic& row : topics)
        if (row.id == id) return row.topic;
    return "kel_software_intro.htm";
}

}  // namespace kel
