#include "crops/crop_advice.h"

#include "core/numbers.h"
#include "rules/residue_groups.h"

namespace kel {

namespace {

constexpr int summands = static_cast<int>(adjustment::variety);
constexpr double base_dressing_limit_kg_per_ha = 100;

// Manures take nitrogen off, everything else adds what it holds.
constexpr std::array<int, summands> signs{+1, +1, +1, +1, +1, -1, -1, +1, +1};

constexpr std::string_view split_20_80 =
    "A 20% / 80% split between the start of spring growth and growth stage 30-31 is recommended.";
constexpr std::string_view split_33_67 =
    "A 33% / 67% split between the start of spring growth and growth stage 30-31 is recommended.";
constexpr std::string_view split_50_50 =
    "A 50% / 50% split between the start of spring growth and growth stage 30-31 is recommended.";
constexpr std::string_view rape_split =
    "N top dressing in spring is best split, applying half at the start of spring growth and half prior to "
    "stem elongation.";
constexpr std::string_view base_dressing =
    "Apply no more than 100kg/ha Nitrogen as base dressing. Nitrogen applications in excess of 100kg/ha "
    "should be applied as one or more top dressings. ";
constexpr std::string_view lettuce_base_dressing =
    "(Base dressings up to 180kg/ha may sometimes be applied to transplanted lettuce only).";

// What replaces the note of the tables; empty: nothing does.
std::string_view split_advice(const crop_row& row) {
    if (row.crop == "WW") {
        if (row.notes_ww == "breadmaking") return split_20_80;
        return row.notes_ww == "grain distilling" ? split_50_50 : split_33_67;
    }
    if (row.crop == "WB") {
        const bool malt_or_distilling = row.notes_wb == "malt for brewing" ||
                                        row.notes_wb == "malt for distilling" ||
                                        row.notes_wb == "grain distilling";
        return malt_or_distilling ? split_50_50 : split_33_67;
    }
    return row.crop == "WOSR" ? rape_split : "";
}

void set_note(const crop_row& row, base_requirement& working) {
    if (const std::string_view split = split_advice(row); !split.empty()) working.crop_note = split;
    if (!is_vegetable_crop(row.crop) || working.total_n < base_dressing_limit_kg_per_ha) return;
    working.crop_note = base_dressing;
    if (row.crop == "LET") working.crop_note += lettuce_base_dressing;
}

// The high figure first.
template <class Figure>
std::string range_text(Figure low, float range) {
    if (range == 0) return default_text(low);
    return default_text(low + static_cast<Figure>(range)) + " - " + default_text(low);
}

float range_of(const base_requirement& figures) {
    return figures.spring_range != 0 ? figures.spring_range : figures.seedbed_range;
}

// The percentage works on the spring amount only, and on the total by what is left of that.
void apply_variety(std::string_view percent, base_requirement& working) {
    working.spring_n -= working.spring_n * leading_single(percent) / 100;
    working.total_n -= static_cast<double>(working.spring_n) * leading_number(percent) / 100;
}

// The seedbed amount takes no adjustment.
void apply_adjustments(const crop_row& row, base_requirement& working) {
    for (std::size_t i = 0; i < signs.size(); ++i) {
        working.spring_n += static_cast<float>(signs[i]) * leading_single(row.adjustments[i]);
        working.total_n += signs[i] * leading_number(row.adjustments[i]);
    }
    apply_variety(row.cell(adjustment::variety), working);
    if (working.spring_n < 0) working.spring_n = 0;
    if (working.total_n < 0) working.total_n = 0;
}

void round_figures(base_requirement& working) {
    for (float* figure :
         {&working.spring_n, &working.spring_range, &working.seedbed_n, &working.seedbed_range})
        *figure = round_shown_half_even(*figure, 1);
    working.total_n = round_shown_half_even(working.total_n, 1);
}

std::string manures_text(const crop_row& row) {
    return shortest_text(static_cast<float>(leading_number(row.cell(adjustment::manures)) +
                                            leading_number(row.cell(adjustment::previous_manures))));
}

}  // namespace

crop_recommendation recommend_row(const crop_row& row, base_requirement& working) {
    const auto found = lookup_requirement(row.crop, residue_group_number(row.residue_group), row.soil);
    if (found) working = *found;
    set_note(row, working);
    const std::string requirement = range_text(working.total_n, range_of(working));
    apply_adjustments(row, working);
    round_figures(working);
    return {.spring = range_text(working.spring_n, working.spring_range),
            .seedbed = range_text(working.seedbed_n, working.seedbed_range),
            .total = range_text(working.total_n, range_of(working)),
            .requirement = requirement,
            .manures = manures_text(row),
            .notes = working.crop_note};
}

malting_refusal low_n_malting_check(const crop_row& row) {
    if (row.crop != "SB (low N)") return malting_refusal::none;
    if (residue_group_number(row.residue_group) >= 4) return malting_refusal::previous_crop;
    const bool wrong_soil = row.soil == "Humose soils" || row.soil == "Peaty soils";
    return wrong_soil ? malting_refusal::soil : malting_refusal::none;
}

}  // namespace kel
