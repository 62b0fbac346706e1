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

// Those who are told what a density comes to.
struct sum_accounts {
    explanation* requirement;
    explanation* notes;
    explanation* any() const { return requirement ? requirement : notes; }
};

sum_accounts sums_of(const silage_account& account, std::size_t row) {
    return {account.about(row, {silage_figure::requirement}), account.about(row, {silage_figure::notes})};
}

// Those who are told what a step of feed comes to.
struct moved_accounts {
    explanation* feed;
    explanation* density;
    sum_accounts sums;
};

float number(const std::string& text) {
    return leading_single(text);
}

// A figure beyond every class has no line either, whatever it is.
int class_number(const std::string& text) {
    const float value = number(text);
    return value >= 0 && value < 100 ? static_cast<int>(value) : 0;
}

// A type that the list lacks counts with the ratio of the group before it.
float grazed_lus(const stocked_field& field, float& ratio, explanation* why) {
    float sum = 0;
    for (const grazing_group& group : field.groups) {
        if (group.type.empty()) continue;
        const auto listed = lu_ratio(group.type);
        ratio = listed.value_or(ratio);
        const float lus = ratio * number(group.number) * number(group.percent) / 100;
        if (why) tell_group(group, ratio, listed.has_value(), lus, *why);
        sum += lus;
    }
    return sum;
}

void fill_grazed_row(silage_plan& plan, silage_row& row, const stocked_field& field,
                     const silage_account& account) {
    explanation* const why = account.about(plan.rows.size(), {silage_figure::grazing_lus});
    explanation* const of_density = account.about(plan.rows.size(), {silage_figure::density});
    const float lus = grazed_lus(field, plan.working.lu_per_animal, why);
    const float area_ha = number(field.area_ha);
    row.lus_fed_by_grazing = format_shown(lus, lu_places);
    if (area_ha > 0)
        row.lus_per_ha = format_shown(lus / area_ha, lu_places);
    else
        plan.without_area.push_back(field.field);
    if (why) tell_grazed(lus, row.lus_fed_by_grazing, *why);
    if (of_density) tell_grazed_density(lus, row, *of_density);
}

void fill_grazing(silage_plan& plan, const std::vector<stocked_field>& fields,
                  const silage_account& account) {
    for (const stocked_field& field : fields) {
        silage_row row{.field = field.field, .use = field.use, .area_ha = field.area_ha};
        if (field.use != grass_use::silage) fill_grazed_row(plan, row, field, account);
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

void take_stored_rates(silage_plan& plan, const first_records& records, const silage_account& account) {
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        silage_row& row = plan.rows[i];
        const std::string& rate = records.at(row.field)->silage_rate;
        if (rate.empty()) continue;
        row.lus_per_ha = format_shown(number(rate), lu_places);
        if (explanation* why = account.about(i, {silage_figure::density})) {
            tell_stored_rate(rate, *why);
            tell_shared_density(number(rate), row.lus_per_ha, *why);
        }
    }
}

// The rows with a rate of their own take their share first; the rest spreads evenly over the others.
silage_share take_shares(silage_plan& plan, float farm_lus) {
    silage_share share{.farm_lus = farm_lus, .grazed_lus = plan.grazed_lus};
    for (const silage_row& row : plan.rows) {
        if (row.use != grass_use::silage) continue;
        if (row.lus_per_ha.empty()) {
            share.area_without_rate_ha += number(row.area_ha);
            continue;
        }
        plan.working.silage_rate = number(row.lus_per_ha);
        const float taken = plan.working.silage_rate * number(row.area_ha);
        plan.lus_left_for_silage -= taken;
        share.own_rates_lus += taken;
    }
    float& rate = plan.working.silage_rate;
    if (share.area_without_rate_ha != 0) rate = plan.lus_left_for_silage / share.area_without_rate_ha;
    share.left_lus = plan.lus_left_for_silage;
    share.rate_lus_per_ha = rate;
    return share;
}

void share_out_silage(silage_plan& plan, float farm_lus, const silage_account& account) {
    const silage_share share = take_shares(plan, farm_lus);
    const float rate = share.rate_lus_per_ha;
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        silage_row& row = plan.rows[i];
        if (row.use != grass_use::silage) continue;
        explanation* const of_density = account.about(i, {silage_figure::density});
        if (of_density && row.lus_per_ha.empty()) tell_share(share, *of_density);
        if (row.lus_per_ha.empty()) {
            row.lus_per_ha = format_shown(rate, lu_places);
            if (of_density) tell_shared_density(rate, row.lus_per_ha, *of_density);
        }
        row.lus_fed_from_silage = format_shown(number(row.area_ha) * rate, lu_places);
        if (explanation* why = account.about(i, {silage_figure::silage_lus})) {
            tell_share(share, *why);
            tell_silage_fed(row.area_ha, rate, row.lus_fed_from_silage, *why);
        }
    }
}

void show_requirement(silage_plan& plan, silage_row& row, const sum_accounts& why) {
    row.n_kg_per_ha = format_shown(plan.working.n_kg_per_ha, 0);
    if (why.requirement) tell_whole_kg(row.n_kg_per_ha, *why.requirement);
    if (row.use == grass_use::grazing) {
        if (why.notes) why.notes->rule("A field that is only grazed has no number of cuts.");
        return;
    }
    if (const auto note = cuts_note(plan.working.n_kg_per_ha, why.notes)) row.notes = *note;
}

// Along the line of its use; a class without one leaves what was worked out last.
void set_on_line(silage_plan& plan, const silage_row& row, bool grazed, int site_class, explanation* why) {
    if (why) why->input("Stocking density", row.lus_per_ha, "LU/ha", "LUs/ha here");
    const auto found =
        (grazed ? grazing_requirement : silage_requirement)(site_class, number(row.lus_per_ha), why);
    plan.working.n_kg_per_ha = found.value_or(plan.working.n_kg_per_ha);
    if (!found && why)
        tell_no_line("Site class " + std::to_string(site_class) + " has no stocking line",
                     plan.working.n_kg_per_ha, *why);
}

void set_requirement(silage_plan& plan, silage_row& row, int site_class, const sum_accounts& why) {
    const bool grazed = row.use == grass_use::grazing;
    const bool has_line = grazed || row.use == grass_use::silage;
    if (has_line && row.lus_per_ha.empty()) {
        if (why.any()) tell_no_density(row, *why.any());
        return;
    }
    if (has_line)
        set_on_line(plan, row, grazed, site_class, why.any());
    else if (why.any())
        tell_no_line("The use of the field has no stocking line", plan.working.n_kg_per_ha, *why.any());
    show_requirement(plan, row, why);
}

void change_feed(silage_plan& plan, silage_row& row, double change_lu, int site_class,
                 const moved_accounts& why) {
    const double lus = leading_number(row.lus_fed_from_silage) + change_lu;
    const double area_ha = leading_number(row.area_ha);
    if (why.feed) tell_moved_feed(row.lus_fed_from_silage, change_lu, default_text(lus), *why.feed);
    row.lus_fed_from_silage = default_text(lus);
    if (area_ha <= 0) {
        plan.without_area.push_back(row.field);
        row.lus_per_ha.clear();
        row.n_kg_per_ha.clear();
        if (explanation* told = why.density ? why.density : why.sums.any()) tell_no_density(row, *told);
        return;
    }
    row.lus_per_ha = format_shown(lus / area_ha, lu_places);
    if (why.density) tell_moved_density(row, *why.density);
    set_on_line(plan, row, false, site_class, why.sums.any());
    show_requirement(plan, row, why.sums);
}

moved_accounts accounts_of(const silage_account& account, std::size_t row) {
    return {.feed = account.about(row, {silage_figure::silage_lus}),
            .density = account.about(row, {silage_figure::density}),
            .sums = sums_of(account, row)};
}

}  // namespace

silage_plan fill_silage_table(const std::vector<stocked_field>& fields, float farm_lus,
                              const silage_working& before, const silage_account& account) {
    silage_plan plan;
    plan.working = before;
    const first_records records = records_by_field(fields);
    fill_grazing(plan, fields, account);
    plan.lus_left_for_silage = farm_lus - plan.grazed_lus;
    take_stored_rates(plan, records, account);
    share_out_silage(plan, farm_lus, account);
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        silage_row& row = plan.rows[i];
        set_requirement(plan, row, class_number(records.at(row.field)->site_class), sums_of(account, i));
    }
    return plan;
}

void move_feed(silage_plan& plan, const std::string& decrease, const std::string& increase,
               const std::vector<int>& site_classes, const silage_account& account) {
    plan.without_area.clear();
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        silage_row& row = plan.rows[i];
        if (row.field == decrease)
            change_feed(plan, row, -feed_step_lu, site_classes.at(i), accounts_of(account, i));
        else if (row.field == increase)
            change_feed(plan, row, feed_step_lu, site_classes.at(i), accounts_of(account, i));
    }
}

}  // namespace kel
