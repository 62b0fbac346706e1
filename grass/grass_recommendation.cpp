#include "grass/grass_recommendation.h"

#include "core/numbers.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

// Clover feeds a grazed sward that gets no dressing at all.
bool needs_nothing(const grass_field& field) {
    return field.clover == clover::high && field.use == grass_use::grazing &&
           leading_single(field.applications) == 0;
}

}  // namespace

grass_recommendation recommend_grass(const grass_tables& tables, const grass_field& field) {
    const float requirement =
        needs_nothing(field)
            ? 0.0F
            : tables.grass_rec_value(field.clover, field.site_class, "Group " + field.residue_group)
                  .value_or(0.0F);
    const float manures = leading_single(field.manure_current) + leading_single(field.manure_previous);
    const float to_apply = (requirement + leading_single(field.adjustment)) - manures;
    return {default_text(requirement), field.adjustment, default_text(round_shown_half_even(manures, 1)),
            default_text(round_shown_half_even(to_apply, 1))};
}

}  // namespace kel
