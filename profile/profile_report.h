// The farm profile's report, from the screen and not from the file, so that unsaved changes show.
#pragma once

#include <string_view>

#include "core/text_grid.h"
#include "profile/farm_profile.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view profile_report_file = "KEL_report_farmprof.htm";

/// Heading, the farm's entries (ha) and the table of fields.
page_lines profile_report(const farm_details& farm, const text_grid& fields);

}  // namespace kel
