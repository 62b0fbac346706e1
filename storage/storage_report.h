// The report on slurry storage and closed periods: how full the stores get, what flows in, what is spread.
#pragma once

#include <optional>
#include <string_view>

#include "reports/report_page.h"
#include "storage/dirty_water.h"
#include "storage/land_plan.h"
#include "storage/storage_balance.h"

namespace kel {

inline constexpr std::string_view storage_report_file = "KEL_report_storage.htm";
/// Picture of the chart; it lies beside the page.
inline constexpr std::string_view storage_chart_file = "rep_chart1.bmp";

struct storage_report_data {
    const text_grid& stores;
    const text_grid& production;
    const land_plan& plan;
    const std::optional<storage_balance>& balance;  // nothing: only the spreading is reported
    const monthly_values& rain_mm;
    const dirty_water_answers& dirty_water;
};

page_lines storage_report(const storage_report_data& data);

}  // namespace kel
