#include "grass/silage_page.h"

#include <algorithm>
#include <utility>

#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/site_class.h"
#include "grass/sward_choices.h"

namespace kel {

namespace text = grass_messages;

bool silage_page::refuse(const message& reason) {
    person_.tell(reason);
    return false;
}

void silage_page::clear() {
    plan_ = {};
    built_from_.clear();
    table_ = empty_silage_grid();
    varying_ = false;
}

text_grid silage_page::reported() const {
    const bool stands =
        built_for_lus_ == farm_.total_lus && built_from_ == stocked_fields_of(stocking_of(farm_.site));
    return stands ? table_ : empty_silage_grid();
}

void silage_page::fill() {
    built_from_ = stocked_fields_of(farm_.stocking);
    built_for_lus_ = farm_.total_lus;
    filled_from_ = built_from_;
    worked_with_before_ = farm_.working;
    alterations_.clear();
    plan_ = fill_silage_table(built_from_, built_for_lus_, farm_.working);
    farm_.working = plan_.working;
    table_ = silage_grid_of(plan_);
    varying_ = false;
    name_fields_without_area();
}

void silage_page::name_fields_without_area() {
    std::string names;
    for (const std::string& field : plan_.without_area)
        names += (names.empty() ? "" : ", ") + field;
    if (!names.empty()) person_.tell(text::no_area(names));
}

std::string silage_page::summary(explanation* why) const {
    if (why) tell_summary(farm_.total_lus, plan_, *why);
    return text::livestock_units_summary(default_text(farm_.total_lus), format_shown(plan_.grazed_lus, 2),
                                         format_shown(farm_.total_lus - plan_.grazed_lus, 2));
}

std::vector<std::string> silage_page::silage_fields() const {
    std::vector<std::string> names;
    for (const silage_row& row : plan_.rows)
        if (row.use == grass_use::silage) names.push_back(row.field);
    return names;
}

bool silage_page::make_alteration(const std::string& decrease, const std::string& increase) {
    if (decrease.empty()) return refuse(text::no_decrease);
    if (increase.empty()) return refuse(text::no_increase);
    if (decrease == increase) return refuse(text::same_area);
    std::vector<int> site_classes;
    site_classes.reserve(static_cast<std::size_t>(farm_.stocking.row_count()));
    for (int row = 0; row < farm_.stocking.row_count(); ++row)
        site_classes.push_back(
            site_class(farm_.stocking.cell(row, stocking_column::soil), farm_.rain_class, farm_.altitude_step)
                .value_or(0));
    move_feed(plan_, decrease, increase, site_classes);
    alterations_.push_back({decrease, increase});
    altered_classes_ = std::move(site_classes);
    farm_.working = plan_.working;
    table_ = silage_grid_of(plan_);
    name_fields_without_area();
    return true;
}

void silage_page::keep_rates() {
    const int rows = std::min(table_.row_count(), farm_.stocking.row_count());
    for (int row = 0; row < rows; ++row) {
        const std::string& rate = table_.cell(row, silage_column::lus_per_ha);
        farm_.stocking.set_cell(row, stocking_column::silage_rate, rate);
        farm_.site.set_cell(row, site_column::silage_rate, rate);
    }
    built_from_ = stocked_fields_of(farm_.stocking);
}

}  // namespace kel
