#include "crops/crop_report.h"

#include <array>
#include <string>
#include <vector>

#include "core/numbers.h"
#include "crops/crop_adjustments.h"
#include "crops/crop_grids.h"
#include "reports/manures_section.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"
#include "rules/residue_groups.h"

namespace kel {

namespace {

using texts = std::vector<std::string>;

constexpr std::string_view heading =
    "Nitrogen Recommendations For Cropped Fields And Fields Where New Grass Is To Be Established";

// What each adjustment is called, in the order of the columns.
constexpr std::array<std::string_view, adjustment_count> adjustment_names{
    "The intended market of the crop",
    "Undersowing",
    "Delayed sowing",
    "Take-all",
    "The crop being turnip rape",
    "Manure applications to the crop",
    "Manure applications to the previous crop",
    "High winter rainfall",
    "High spring rainfall",
    "Variety",
};

constexpr std::string_view tenth_added =
    "10% has been added for growing a vegetable crop sand or shallow soils";
// Of a vegetable, in place of the intended market.
constexpr std::string_view wet_summer =
    "Summer rainfall likely to be in excess of 200 mm more than the water holding capacity of the soil";

constexpr std::string_view further_adjustments =
    "Further adjustments may be required for vegetable crops, for example:";
constexpr std::array<std::string_view, 5> vegetable_advice{
    "Varietal differences in some crops will have different nitrogen requirements e.g. leafed lettuce would "
    "require significantly less N than hearted lettuce.",
    "Soil analysis indicates very low or very high residual nitrogen.",
    "Covered Crops: use of covering materials which significantly increase soil temperatures will reduce "
    "Nitrogen requirements. This may not apply to very early crops established into cold soils.",
    "Application of starter fertilisers containing N: Subtract N applied with starter fertiliser.",
    "Double cropping situations: Reduce application for second crop.",
};
constexpr std::string_view adviser =
    "Further advice can be obtained from your marketing organisation or FACTS adviser.";
constexpr std::string_view taken_into_account =
    "This recommendation has taken into account any adjustments required for:";

std::string wet_summer_advice(std::string_view soil) {
    return "If summer rainfall is in excess of 200 mm more than the water holding capacity of the soil, then "
           "add an extra " +
           std::to_string(wet_summer_kg_per_ha(soil)) + " kg/ha.";
}

std::string planned_crop_text(const crop_row& row) {
    const std::string_view word = row.crop == "WW" ? row.notes_ww : row.crop == "WB" ? row.notes_wb : "";
    const std::string name(crop_long_name(row.crop));
    return word.empty() ? name : name + " (" + std::string(word) + ")";
}

std::string previous_crop_text(const text_grid& crops, int row) {
    return std::string(previous_crop_name(crops.cell(row, crop_column::previous_crop))) +
           " (Residue Group = " + crops.cell(row, crop_column::residue_group) + ")";
}

page_lines crop_details(const text_grid& crops, int row) {
    const crop_row cells = crop_row_of(crops, row);
    page_lines lines = report_section("Field and crop details:");
    append(lines, label_table({{"Field name:", crops.cell(row, crop_column::field)},
                               {"Soil Type:", std::string(cells.soil)},
                               {"Planned Crop:", planned_crop_text(cells)},
                               {"Previous Crop:", previous_crop_text(crops, row)}}));
    return lines;
}

page_lines summary(const text_grid& results, int row) {
    using namespace crop_result_column;
    page_lines lines = report_section("Recommendation summary:");
    append(lines, label_table({{"Total N Requirement (kg/ha)", results.cell(row, requirement)},
                               {"Obtained From Manures/Slurries (kg/ha)", results.cell(row, manures)},
                               {"Remaining Total Requirement (kg/ha)", results.cell(row, total)},
                               {"Spring Application (kg/ha)", results.cell(row, spring)},
                               {"Seedbed Application (kg/ha)", results.cell(row, seedbed)}}));
    return lines;
}

// The adjustments that change the figure, by their names.
texts adjustments_made(const crop_row& row, bool vegetable) {
    texts names;
    if (vegetable && is_shallow_or_sand(row.soil)) names.emplace_back(tenth_added);
    for (std::size_t i = 0; i < adjustment_count; ++i) {
        if (leading_number(row.adjustments[i]) == 0) continue;
        const bool market = i == static_cast<std::size_t>(adjustment::market);
        names.emplace_back(vegetable && market ? wet_summer : adjustment_names[i]);
    }
    return names;
}

page_lines notes_of(const std::string& notes, bool nothing_to_say) {
    page_lines lines = report_section("Notes:");
    if (!notes.empty()) append(lines, report_paragraph(notes));
    if (notes.empty() && nothing_to_say) append(lines, report_paragraph("None"));
    return lines;
}

page_lines vegetable_block(std::string_view soil) {
    page_lines lines = report_paragraph(further_adjustments);
    texts items(vegetable_advice.begin(), vegetable_advice.end());
    items.push_back(wet_summer_advice(soil));
    append(lines, report_list(items));
    append(lines, report_paragraph(adviser));
    return lines;
}

page_lines field_part(const text_grid& crops, const text_grid& results, int row,
                      const manure_history& manures) {
    const crop_row cells = crop_row_of(crops, row);
    const bool vegetable = is_vegetable_crop(cells.crop);
    const texts adjustments = adjustments_made(cells, vegetable);
    page_lines lines{"<hr>"};
    append(lines, crop_details(crops, row));
    append(lines, manures_section(manures.of(crops.cell(row, crop_column::field)), "Date of Application"));
    append(lines, summary(results, row));
    append(lines, notes_of(results.cell(row, crop_result_column::notes), !vegetable && adjustments.empty()));
    if (vegetable && cells.crop != "FB" && cells.crop != "PP") append(lines, vegetable_block(cells.soil));
    if (!vegetable && adjustments.empty()) return lines;
    append(lines, report_paragraph(taken_into_account));
    append(lines, report_list(adjustments));
    return lines;
}

}  // namespace

page_lines crop_report(const text_grid& crops, const text_grid& results, const manure_history& manures) {
    page_lines body = report_heading(heading);
    for (int row = 0; row < results.row_count(); ++row)
        append(body, field_part(crops, results, row, manures));
    return body;
}

}  // namespace kel
