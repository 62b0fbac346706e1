#include "grass/silage_plan.h"

#include <string_view>
#include <unordered_map>

#include "core/numbers.h"
#include "grass/livestock_units.h"
#include "grass/stocking_requirement.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

constexpr int lu_places = 2;

float number(const std::string& text) {
    return leading_single(text);
}

// A figure beyond every class has no line either, whatever it is.
int class_number(const std::string& text) {
    const float value = number(text);
    return value >= 0 && value < 100 ? static_cast<int>(value) : 0;
}

// A type that the list lacks counts with the ratio of the group before it.
float grazed_lus(const stocked_field& field, float& ratio) {
    float sum = 0;
    for (const grazing_group& group : field.groups) {
        if (group.type.empty()) continue;
        ratio = lu_ratio(group.type).value_or(ratio);
        sum += ratio * number(group.number) * number(group.percent) / 100;
    }
    return sum;
}

void fill_grazing(silage_plan& plan, const std::vector<stocked_field>& fields) {
    for (const stocked_field& field : fields) {
        silage_row row{.field = field.field, .use = field.use, .area_ha = field.area_ha};
        if (field.use != grass_use::silage) {
            const float lus = grazed_lus(field, plan.working.lu_per_animal);
            const float area_ha = number(field.area_ha);
            row.lus_fed_by_grazing = format_shown(lus, lu_places);
            if (area_ha > 0)
                row.lus_per_ha = format_shown(lus / area_ha, lu_places);
            else
                plan.without_area.push_back(field.field);
        }
        plan.grazed_lus += number(row.lus_fed_by_grazing);
        plan.rows.push_back(std::move(row));
    }
}

using first_records = std::unordered_map<std::string_view, const stocked_field*>;

first_records records_by_field(const std::vector<stocked_field>& fields) {
    first_records found;
    for (const stocked_field& field : fields)
        found.emplace(field.field, &field);
    return found;
}

void take_stored_rates(silage_plan& plan, const first_records& records) {
    for (silage_row& row : plan.rows) {
        const std::string& rate = records.at(row.field)->silage_rate;
        if (!rate.empty()) row.lus_per_ha = format_shown(number(rate), lu_places);
    }
}

// The rows with a rate of their own take their share first; the rest spreads evenly over the others.
void share_out_silage(silage_plan& plan) {
    float area_without_rate_ha = 0;
    for (const silage_row& row : plan.rows) {
        if (row.use != grass_use::silage) continue;
        if (row.lus_per_ha.empty()) {
            area_without_rate_ha += number(row.area_ha);
            continue;
        }
        plan.working.silage_rate = number(row.lus_per_ha);
        plan.lus_left_for_silage -= plan.working.silage_rate * number(row.area_ha);
    }
    float& rate = plan.working.silage_rate;
    if (area_without_rate_ha != 0) rate = plan.lus_left_for_silage / area_without_rate_ha;
    for (silage_row& row : plan.rows) {
        if (row.use != grass_use::silage) continue;
        if (row.lus_per_ha.empty()) row.lus_per_ha = format_shown(rate, lu_places);
        row.lus_fed_from_silage = format_shown(number(row.area_ha) * rate, lu_places);
    }
}

void show_requirement(silage_plan& plan, silage_row& row) {
    row.n_kg_per_ha = format_shown(plan.working.n_kg_per_ha, 0);
    if (row.use == grass_use::grazing) return;
    if (const auto note = cuts_note(plan.working.n_kg_per_ha)) row.notes = *note;
}

void set_requirement(silage_plan& plan, silage_row& row, int site_class) {
    const bool grazed = row.use == grass_use::grazing;
    const bool has_line = grazed || row.use == grass_use::silage;
    if (has_line && row.lus_per_ha.empty()) return;
    const float lus_per_ha = number(row.lus_per_ha);
    if (has_line)
        plan.working.n_kg_per_ha = (grazed ? grazing_requirement : silage_requirement)(site_class, lus_per_ha)
                                       .value_or(plan.working.n_kg_per_ha);
    show_requirement(plan, row);
}

void change_feed(silage_plan& plan, silage_row& row, double change_lu, int site_class) {
    const double lus = leading_number(row.lus_fed_from_silage) + change_lu;
    const double area_ha = leading_number(row.area_ha);
    row.lus_fed_from_silage = default_text(lus);
    if (area_ha <= 0) {
        plan.without_area.push_back(row.field);
        row.lus_per_ha.clear();
        row.n_kg_per_ha.clear();
        return;
    }
    row.lus_per_ha = format_shown(lus / area_ha, lu_places);
    plan.working.n_kg_per_ha =
        silage_requirement(site_class, number(row.lus_per_ha)).value_or(plan.working.n_kg_per_ha);
    show_requirement(plan, row);
}

}  // namespace

silage_plan fill_silage_table(const std::vector<stocked_field>& fields, float farm_lus,
                              const silage_working& before) {
    silage_plan plan;
    plan.working = before;
    const first_records records = records_by_field(fields);
    fill_grazing(plan, fields);
    plan.lus_left_for_silage = farm_lus - plan.grazed_lus;
    take_stored_rates(plan, records);
    share_out_silage(plan);
    for (silage_row& row : plan.rows)
        set_requirement(plan, row, class_number(records.at(row.field)->site_class));
    return plan;
}

void move_feed(silage_plan& plan, const std::string& decrease, const std::string& increase,
               const std::vector<int>& site_classes) {
    plan.without_area.clear();
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        silage_row& row = plan.rows[i];
        if (row.field == decrease)
            change_feed(plan, row, -feed_step_lu, site_classes.at(i));
        else if (row.field == increase)
            change_feed(plan, row, feed_step_lu, site_classes.at(i));
    }
}

}  // namespace kel
