// "Print all reports": which of the reports belong into one print of the open assessment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel {

inline constexpr std::string_view print_all_title = "Print all reports";

/// Paths of the reports that were made for the open assessment, in the order of the contents page. Whether
/// those of another farm or year go with them is asked; nothing if the person cancels. Says so if there is
/// none.
std::vector<std::string> reports_to_print(const application_state& state, prompts& person);

namespace printed_reports_messages {

inline const message none_generated{std::string(print_all_title),
                                    "No report of this farm and KEL year has been generated yet.",
                                    message_kind::information, message_buttons::ok};

/// `reports` are lines of a report's name and whose it is.
message others_too(const std::vector<std::string>& reports);

}  // namespace printed_reports_messages

}  // namespace kel
