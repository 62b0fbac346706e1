// Every text that the check of a folder says.
#pragma once

#include <string>

#include "core/prompts.h"

namespace kel::folder_messages {

inline constexpr std::string_view title = "Check a folder of farms";
inline constexpr std::string_view table_filter = "CSV file (*.csv)|*.csv";
inline constexpr std::string_view page_filter = "Page (*.htm)|*.htm";
inline constexpr std::string_view nothing_yet =
    "Choose a folder: every farm file below it is read and judged, none is changed.";
inline constexpr std::string_view stopped = "Stopped. ";

inline message saved(const std::string& path) {
    return {std::string(title), "The list was saved as " + path, message_kind::information};
}

}  // namespace kel::folder_messages
