// The entries of the table: each tests in its order, writes its cell and then the cells that follow from it.
#include <utility>

#include "core/numbers.h"
#include "manure/manure_messages.h"
#include "manure/manure_module.h"
#include "rules/closed_period_lookups.h"
#include "rules/closed_periods.h"

namespace kel {

namespace text = manure_messages;
namespace col = manure_column;

namespace {

constexpr std::string_view available_area_column = "Available Field Area (ha)";

std::optional<std::string> available_area(const database& db, const std::string& field) {
    return db.lookup(available_area_column, "Land", "Field Area ID", field);
}

}  // namespace

// The percentage and the two shares of the total nitrogen.
void manure_module::recalculate_share(int row) {
    const percentage_outcome outcome = write_percentage(applications_, row, working_code_);
    if (outcome == percentage_outcome::invalid_month) person_.tell(text::invalid_application_month);
    if (outcome == percentage_outcome::invalid_soil) person_.tell(text::invalid_soil_type);
    write_rates(applications_, row);
}

outcome manure_module::entered(int row) {
    recalculate_share(row);
    applications_.keep_entry_row(row);
    return box_closes();
}

outcome manure_module::recalculate_rate(int row) {
    write_application_rate(applications_, row);
    write_total_n(applications_, row);
    return entered(row);
}

outcome manure_module::enter_field(int row, const std::string& name) {
    if (name.empty()) return refuse(person_, text::no_field_id);
    // Read before the first cell is written: a file that cannot be read must leave the row as it was.
    const database db(state_.assess_file);
    if (land_cell_in_month(db, name, 1) == field_not_assessed && !proceeds(text::not_assessed))
        return box_closes();
    const bool area_wanted = applications_.cell(row, col::area).empty();
    const bool land_assessed = !area_wanted || !db.open("Land").eof();
    auto area = area_wanted ? available_area(db, name) : std::nullopt;
    std::string soil = db.lookup("Soil", "Field Data", "Field Name", name).value_or("");
    applications_.set_cell(row, col::field, name);
    applications_.set_cell(row, col::soil, std::move(soil));
    if (!land_assessed) person_.tell(text::land_not_assessed);
    if (area) applications_.set_cell(row, col::area, *std::move(area));
    return entered(row);
}

void manure_module::take_default_n_content(int row) {
    applications_.set_cell(row, col::manure, listed_manure_);
    applications_.set_cell(row, col::n_content, std::string(default_n_content(working_code_).value_or("")));
    write_total_n(applications_, row);
    recalculate_share(row);
}

outcome manure_module::enter_manure(int row, const std::string& type) {
    const auto found = find_manure(type);
    if (!found) return refuse(person_, text::unknown_manure);
    listed_manure_ = type;
    working_code_ = found->code_early;
    if (found->incorporation != no_choice) return leads_to(incorporation_box(row, found->incorporation));
    take_default_n_content(row);
    applications_.set_cell(row, col::incorporation, std::string(surface_or_rapid_incorporation));
    applications_.keep_entry_row(row);
    return box_closes();
}

// The percentage is worked out with the earlier incorporation text; the new one counts from the row's next
// recalculation on.
outcome manure_module::enter_incorporation(int row, const std::string& chosen) {
    take_default_n_content(row);
    if (!chosen.empty()) applications_.set_cell(row, col::incorporation, chosen);
    applications_.keep_entry_row(row);
    return box_closes();
}

// Asks where the month is closed or without land. The manure chosen in the list last decides whether the
// questions are asked at all, not the row's own.
bool manure_module::land_allows(const std::string& field, int month) {
    if (is_exempt_fym(listed_manure_)) return true;
    const database db(state_.assess_file);
    const bool closed = land_cell_in_month(db, field, month) == closed_month;
    if (closed && !proceeds(text::closed_period)) return false;
    const float area_ha = land_area_in_month(db, field, month);
    if (area_ha < 0) return proceeds(text::availability_unknown);
    return area_ha != 0 || proceeds(text::no_land_available);
}

outcome manure_module::enter_date(int row, date day) {
    const date_window year = window(state_.limits);
    if (!year.contains(day)) return refuse(person_, text::invalid_date(year.refusal));
    if (!land_allows(applications_.cell(row, col::field), month_of(day))) return box_stays();
    applications_.set_cell(row, col::date, short_date_text(day));
    applications_.set_cell(row, col::month, std::string(month_name(month_of(day))));
    calendar_ = day;
    return entered(row);
}

outcome manure_module::enter_area(int row, const std::string& typed) {
    if (!holds_number(typed)) return refuse(person_, text::no_area);
    const std::string& field = applications_.cell(row, col::field);
    const auto available = available_area(database(state_.assess_file), field);
    if (!available) return refuse(person_, text::field_without_land(field));
    if (leading_single(typed) > leading_single(*available)) return refuse(person_, text::area_too_large);
    applications_.set_cell(row, col::area, typed);
    return recalculate_rate(row);
}

outcome manure_module::enter_amount(int row, const std::string& typed) {
    if (!holds_number(typed)) return refuse(person_, text::no_amount);
    applications_.set_cell(row, col::amount, typed);
    return recalculate_rate(row);
}

outcome manure_module::enter_n_content(int row, const std::string& typed) {
    if (!holds_number(typed)) return refuse(person_, text::no_n_content);
    applications_.set_cell(row, col::n_content, typed);
    write_total_n_of_analysis(applications_, row);
    return entered(row);
}

}  // namespace kel
