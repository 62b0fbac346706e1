// The nitrogen requirement of crops and of grassland: for which fields it is worked out and stored, and what
// is applied beyond it. A field belongs to the one or the other by its rows there, or by its use in Step 2.
#include "rules/closed_periods.h"
#include "rules/crop_catalogue.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

struct requirement_kind {
    farm_step step;
    bool grass;
    std::string_view none;
    std::string_view work_out;
};

bool belongs_to(const field_history& field, bool grass) {
    if (field.crop || field.grass) return grass ? field.grass.has_value() : field.crop.has_value();
    const auto use = split_crop_pair(field.current.land ? field.current.land->crop_pair : "");
    return use && (use->first == crop_types::grass) == grass;
}

// A recommendation without a row is that of an earlier year, which a new one takes along.
bool worked_out(const field_history& field, bool grass) {
    const bool has_row = grass ? field.grass.has_value() : field.crop.has_value();
    return has_row && field.n_required;
}

step_standing requirement_standing(const requirement_kind& kind, const farm_year& year,
                                   const field_histories& fields, farm_standing& farm) {
    const auto all = fields_where(year.fields, [&](const farm_field& field) {
        return belongs_to(history_of(fields, field.name), kind.grass);
    });
    const auto without = fields_where(year.fields, [&](const farm_field& field) {
        const field_history& history = history_of(fields, field.name);
        return belongs_to(history, kind.grass) && !worked_out(history, kind.grass);
    });
    if (all.empty()) return {kind.step, true, severity::fine, std::string(kind.none)};
    if (without.size() == all.size()) {
        add_missing(farm, kind.step, text::requirement_missing(without));
        return not_done(kind.step, text::requirements_none(all.size()), kind.work_out);
    }
    if (without.empty()) return {kind.step, true, severity::fine, text::requirements_all(all.size())};
    add_missing(farm, kind.step, text::requirement_missing(without));
    return incomplete(kind.step, text::requirements_some(all.size() - without.size(), all.size()),
                      text::requirement_missing(without));
}

}  // namespace

step_standing crops_standing(const farm_year& year, const field_histories& fields, farm_standing& farm) {
    return requirement_standing({farm_step::crops, false, text::no_crops, text::work_out_crops}, year, fields,
                                farm);
}

step_standing grass_standing(const farm_year& year, const field_histories& fields, farm_standing& farm) {
    return requirement_standing({farm_step::grass, true, text::no_grass, text::work_out_grass}, year, fields,
                                farm);
}

}  // namespace kel
