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

void set_note(const crop_row& row, base_requirement& working, explanation* why) {
    const std::string_view split = split_advice(row);
    if (!split.empty()) working.crop_note = split;
    if (why) tell_split_advice(row, !split.empty(), !working.crop_note.empty(), *why);
    const bool vegetable = is_vegetable_crop(row.crop);
    if (vegetable && why) tell_base_dressing(working.total_n, base_dressing_limit_kg_per_ha, *why);
    if (!vegetable || working.total_n < base_dressing_limit_kg_per_ha) return;
    working.crop_note = base_dressing;
    if (row.crop == "LET") working.crop_note += lettuce_base_dressing;
}

// The high figure first.
template <class Figure>
std::string range_text(Figure low, float range, explanation* why) {
    if (range == 0) return default_text(low);
    std::string text = default_text(low + static_cast<Figure>(range)) + " - " + default_text(low);
    if (why) tell_range(default_text(range), text, *why);
    return text;
}

float range_of(const base_requirement& figures) {
    return figures.spring_range != 0 ? figures.spring_range : figures.seedbed_range;
}

void add(float& sum, const crop_row& row, std::size_t i, explanation* why) {
    const float before = sum;
    const float added = static_cast<float>(signs[i]) * leading_single(row.adjustments[i]);
    sum += added;
    if (why && added != 0)
        tell_adjustment(row, i, default_text(added), default_text(before), default_text(sum), *why);
}

void add(double& sum, const crop_row& row, std::size_t i, explanation* why) {
    const double before = sum;
    const double added = signs[i] * leading_number(row.adjustments[i]);
    sum += added;
    if (why && added != 0)
        tell_adjustment(row, i, default_text(added), default_text(before), default_text(sum), *why);
}

template <class Figure>
void set_floor(Figure& sum, explanation* why) {
    if (sum >= 0) return;
    if (why) tell_floor(default_text(sum), *why);
    sum = 0;
}

// Those who are told how the spring and the total amount came about.
struct sum_accounts {
    explanation* spring;
    explanation* total;
};

// The percentage works on the spring amount only, and on the total by what is left of that.
void apply_variety(const crop_row& row, base_requirement& working, const sum_accounts& why) {
    const std::string_view percent = row.cell(adjustment::variety);
    const bool some = leading_number(percent) != 0;
    const std::string spring = default_text(working.spring_n);
    working.spring_n -= working.spring_n * leading_single(percent) / 100;
    if (why.spring && some) tell_variety(row, spring, spring, default_text(working.spring_n), *why.spring);
    const std::string total = default_text(working.total_n);
    working.total_n -= static_cast<double>(working.spring_n) * leading_number(percent) / 100;
    if (why.total && some)
        tell_variety(row, total, default_text(working.spring_n), default_text(working.total_n), *why.total);
}

// The seedbed amount takes no adjustment.
void apply_adjustments(const crop_row& row, base_requirement& working, const sum_accounts& why) {
    for (std::size_t i = 0; i < signs.size(); ++i) {
        add(working.spring_n, row, i, why.spring);
        add(working.total_n, row, i, why.total);
    }
    apply_variety(row, working, why);
    set_floor(working.spring_n, why.spring);
    set_floor(working.total_n, why.total);
}

void round_figures(base_requirement& working) {
    for (float* figure :
         {&working.spring_n, &working.spring_range, &working.seedbed_n, &working.seedbed_range})
        *figure = round_shown_half_even(*figure, 1);
    working.total_n = round_shown_half_even(working.total_n, 1);
}

void tell_rounded(const base_requirement& working, const crop_account& account) {
    if (explanation* why = account.about({crop_figure::spring}))
        tell_rounding(default_text(working.spring_n), *why);
    if (explanation* why = account.about({crop_figure::seedbed}))
        tell_rounding(default_text(working.seedbed_n), *why);
    if (explanation* why = account.about({crop_figure::total}))
        tell_rounding(default_text(working.total_n), *why);
}

std::string manures_text(const crop_row& row, explanation* why) {
    std::string sum =
        shortest_text(static_cast<float>(leading_number(row.cell(adjustment::manures)) +
                                         leading_number(row.cell(adjustment::previous_manures))));
    if (why) tell_manures(row, sum, *why);
    return sum;
}

void set_base(const crop_row& row, base_requirement& working, explanation* why) {
    if (why) tell_requirement_keys(row, *why);
    const auto found = lookup_requirement(row.crop, residue_group_number(row.residue_group), row.soil, why);
    if (!found && why) tell_carried_requirement(row, working, *why);
    if (found) working = *found;
}

}  // namespace

crop_recommendation recommend_row(const crop_row& row, base_requirement& working,
                                  const crop_account& account) {
    using enum crop_figure;
    set_base(row, working, account.about({spring, seedbed, total, requirement}));
    set_note(row, working, account.about({notes}));
    const std::string required = range_text(working.total_n, range_of(working), account.about({requirement}));
    apply_adjustments(row, working, {account.about({spring}), account.about({total})});
    if (explanation* why = account.about({spring, total})) tell_idle_adjustments(row, *why);
    round_figures(working);
    tell_rounded(working, account);
    return {.spring = range_text(working.spring_n, working.spring_range, account.about({spring})),
            .seedbed = range_text(working.seedbed_n, working.seedbed_range, account.about({seedbed})),
            .total = range_text(working.total_n, range_of(working), account.about({total})),
            .requirement = required,
            .manures = manures_text(row, account.about({manures})),
            .notes = working.crop_note};
}

malting_refusal low_n_malting_check(const crop_row& row) {
    if (row.crop != "SB (low N)") return malting_refusal::none;
    if (residue_group_number(row.residue_group) >= 4) return malting_refusal::previous_crop;
    const bool wrong_soil = row.soil == "Humose soils" || row.soil == "Peaty soils";
    return wrong_soil ? malting_refusal::soil : malting_refusal::none;
}

}  // namespace kel
