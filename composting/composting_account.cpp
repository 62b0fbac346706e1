#include "composting/composting_account.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "composting/composting_messages.h"
#include "core/numbers.h"

namespace kel {

namespace {

namespace text = composting_messages;

constexpr named_result results[] = {
    {composting_label::rate, "Quantity of waste to be applied"},
    {composting_label::release, "Extra release of nitrogen next spring"},
    {composting_label::note, "What to do with next year's fertiliser"},
};

// The figure as its rule gives it, with everything told on the way; nothing, with what is missing, without
// it.
std::optional<std::string> told_figure(const composting_inputs& inputs, composting_figure figure,
                                       std::string_view entered_in, explanation& why) {
    const auto missing = [&](std::string what) {
        why.set_missing(std::move(what));
        return std::nullopt;
    };
    const auto residue = find_residue(inputs.residue);
    if (!residue) return missing("No crop residue of the list is chosen.");
    if (!holds_number(inputs.soil_n)) return missing("The soil mineral nitrogen at harvest is not entered.");
    if (!holds_number(inputs.waste_n)) return missing("The nitrogen content of the waste is not entered.");
    why.input("Crop residue", inputs.residue, "", entered_in);
    why.source("Nitrogen of crop residues, row \"" + inputs.residue +
               "\": " + default_text(residue->n_kg_per_ha) + " kg N/ha");
    why.input("Soil mineral nitrogen at harvest", inputs.soil_n, "kg N/ha", entered_in);
    why.input("Waste product", inputs.waste == straw_waste ? text::straw_option : text::sludge_option, "",
              entered_in);
    why.input("Nitrogen content of the waste", inputs.waste_n, "%", entered_in);
    const waste_factors factors = factors_of(inputs.waste, leading_single(inputs.waste_n), &why);
    auto shown = compost_rate(residue->n_kg_per_ha, leading_single(inputs.soil_n), factors, &why);
    if (shown && figure == composting_figure::release) shown = compost_release(*shown, factors, &why);
    if (!shown) return missing("With this content the waste locks up no nitrogen, so there is no quantity.");
    return shown;
}

}  // namespace

std::span<const named_result> composting_results() {
    return results;
}

explanation why_recorded(const composting_inputs& inputs, composting_figure figure) {
    const bool rate = figure == composting_figure::rate;
    explanation why{std::string(results[rate ? 0 : 1].caption)};
    auto shown = told_figure(inputs, figure, "Recorded calculations", why);
    if (shown) why.set_result(*std::move(shown), rate ? "t dry matter/ha" : "kg N/ha");
    return why;
}

std::optional<explanation> why_shown(std::string_view label, const composting_inputs& inputs) {
    const auto known = std::ranges::find(results, label, &named_result::name);
    if (known == std::end(results)) return std::nullopt;
    explanation why{std::string(known->caption)};
    const bool rate = label == composting_label::rate;
    const auto figure = rate ? composting_figure::rate : composting_figure::release;
    const auto shown = told_figure(inputs, figure, "In Field Composting", why);
    if (!shown) return why;
    if (label == composting_label::note) {
        why.rule("Below 0 nitrogen is still locked up, above 0 extra nitrogen comes; at 0 there is no note.");
        why.set_result(std::string(text::note(*shown)), "");
    } else {
        why.set_result(rate ? text::rate_text(*shown, inputs.waste) : text::release_text(*shown), "");
    }
    return why;
}

}  // namespace kel
