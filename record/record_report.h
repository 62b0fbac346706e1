// The report on the record of one field or of all of them.
#pragma once

#include <string>
#include <string_view>

#include "core/text_grid.h"
#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view record_report_file = "KEL_report_record.htm";

/// The record of one field with its analysis.
page_lines record_section(const std::string& field, const text_grid& record, const text_grid& warnings);

/// Between the sections of two fields.
page_lines section_rule();

}  // namespace kel
