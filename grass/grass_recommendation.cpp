#include "grass/grass_recommendation.h"

#include "core/numbers.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

constexpr std::string_view unit = "kg/ha";
constexpr std::string_view site_table = "site table";

// Clover feeds a grazed sward that gets no dressing at all.
bool needs_nothing(const grass_field& field) {
    return field.clover == clover::high && field.use == grass_use::grazing &&
           leading_single(field.applications) == 0;
}

void tell_table_row(const grass_tables& tables, const grass_field& field, std::optional<float> found,
                    explanation& why) {
    why.input("Clover content", field.clover, "", site_table);
    why.input("Site class", field.site_class, "", "site table, from rain, soil and altitude");
    why.input("Residue group", field.residue_group, "", "site table, from the previous sward");
    const std::string row = "clover " + field.clover + ", site class " + field.site_class +
                            ", residue group " + field.residue_group;
    if (found)
        why.source("Requirement table of grassland: " + row + ": " + default_text(*found) + " kg N/ha. " +
                   tables.source());
    else
        why.rule("The requirement table of grassland has no figure for " + row + ", which counts as 0.");
}

float requirement_of(const grass_tables& tables, const grass_field& field, explanation* why) {
    if (needs_nothing(field)) {
        if (why)
            why->rule(
                "A grazed sward of high clover content that is given no nitrogen is fed by its clover: it "
                "requires 0 kg N/ha.");
        return 0;
    }
    const auto found = tables.grass_rec_value(field.clover, field.site_class, "Group " + field.residue_group);
    if (why) tell_table_row(tables, field, found, *why);
    return found.value_or(0.0F);
}

float manures_of(const grass_field& field, explanation* why) {
    const float current = leading_single(field.manure_current);
    const float previous = leading_single(field.manure_previous);
    if (why) {
        why->input("Nitrogen from manures applied this season", field.manure_current, unit, site_table);
        why->input("Nitrogen left of manures of the season before", field.manure_previous, unit, site_table);
        why->step(default_text(current) + " + " + default_text(previous) + " = " +
                  default_text(current + previous) + " kg/ha from manures");
    }
    return current + previous;
}

void tell_rounded(float rounded, explanation& why) {
    why.step("Rounded to 1 decimal, halves to the even digit: " + default_text(rounded) + " kg/ha");
}

void tell_to_apply(const grass_field& field, float requirement, float manures, float to_apply,
                   explanation& why) {
    const float adjustment = leading_single(field.adjustment);
    why.input("Adjustment for the management", field.adjustment, unit, "site table, Adjustment");
    why.step(default_text(requirement) + (adjustment < 0 ? " - " : " + ") +
             default_text(adjustment < 0 ? -adjustment : adjustment) + " - " + default_text(manures) + " = " +
             default_text(to_apply) + " kg/ha" +
             (to_apply < 0 ? ": manures supply more than is required, which is told as it is" : ""));
    tell_rounded(round_shown_half_even(to_apply, 1), why);
}

}  // namespace

grass_recommendation recommend_grass(const grass_tables& tables, const grass_field& field, explanation* why,
                                     grass_figure of) {
    explanation* const total = of == grass_figure::to_be_applied ? why : nullptr;
    explanation* const of_manures = of == grass_figure::manures ? why : nullptr;
    const float requirement = requirement_of(tables, field, of == grass_figure::requirement ? why : total);
    const float manures = manures_of(field, of_manures ? why : total);
    const float to_apply = (requirement + leading_single(field.adjustment)) - manures;
    if (of_manures) tell_rounded(round_shown_half_even(manures, 1), *why);
    if (total) tell_to_apply(field, requirement, manures, to_apply, *why);
    if (why && of == grass_figure::adjustment)
        why->input("Adjustment for the management", field.adjustment, unit, "site table, Adjustment");
    return {default_text(requirement), field.adjustment, default_text(round_shown_half_even(manures, 1)),
            default_text(round_shown_half_even(to_apply, 1))};
}

}  // namespace kel
