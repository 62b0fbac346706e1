// The contents page of the reports: which of them exist in the report folder, with a link to each.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "reports/report_page.h"

namespace kel {

inline constexpr std::string_view contents_file = "KEL_report_contents.htm";

struct report_file {
    std::string_view file_name;
    std::string_view row_text;
};

// The reports in the order of the contents page. A report has one fixed file name, so each new one replaces
// the last, whichever farm it belonged to.
// clang-format off
inline constexpr std::array<report_file, 9> report_files{{
    {"KEL_report_farmprof.htm",   "Farm Profile:"},
    {"KEL_report_landspread.htm", "Land availability for spreading all organic manures:"},
    {"KEL_report_storage.htm",    "Slurry storage and closed periods:"},
    {"KEL_report_manureN.htm",    "Slurry and Manure applications:"},
    {"KEL_report_inorganic.htm",  "Inorganic N applications:"},
    {"KEL_report_croprec.htm",    "Crops: Assessment of Nitrogen Requirement:"},
    {"KEL_report_grassrec.htm",   "Grassland: Assessment of Nitrogen Requirement:"},
    {"KEL_report_compost.htm",    "In Field Composting of Vegetable Crop Residues to Minimise Nitrate Leaching:"},
    {"KEL_report_record.htm",     "Field Record:"},
}};
// clang-format on

// Pages that the program makes besides. They stand on the contents page when they have been made, and are
// not missed there otherwise.
struct optional_report {
    report_file report;
    bool first;  // above the nine; else below them
};
// clang-format off
inline constexpr std::array<optional_report, 4> optional_reports{{
    {{"KEL_report_standing.htm",   "Where the farm stands:"}, true},
    {{"KEL_report_calendar.htm",   "Season calendar:"}, false},
    {{"KEL_sheet_manure.htm",      "Record sheet for slurry and manure:"}, false},
    {{"KEL_sheet_fertiliser.htm",  "Record sheet for fertiliser:"}, false},
}};
// clang-format on

/// All of them in the order in which the contents page lists them.
std::vector<report_file> all_reports();

/// Body of the contents page. `files` are the bare names of the files in the report folder, compared exactly.
page_lines contents_body(const std::vector<std::string>& files);

}  // namespace kel
