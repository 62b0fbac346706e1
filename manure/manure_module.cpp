#include "manure/manure_module.h"

#include <utility>

#include "core/module_messages.h"
#include "core/numbers.h"
#include "manure/manure_messages.h"

namespace kel {

namespace text = manure_messages;
namespace col = manure_column;

namespace {

// Codes 1 to 16 are the solids.
constexpr int last_solid_code = 16;
// Nitrogen content goes by the number that the manure's text begins with, so by the tonne for every manure of
// the list.
constexpr double last_tonne_number = 24;

std::optional<database> opened(const std::string& path) {
    return path.empty() ? std::nullopt : std::optional(database(path));
}

}  // namespace

manure_module::manure_module(application_state& state, prompts& person)
    : state_(state), person_(person), applications_(empty_manure_grid()), results_(empty_manure_results()) {}

date_window manure_module::window(const year_limits& limits) const {
    if (for_previous_year())
        return {limits.prev_year_start, limits.prev_year_end, std::string(text::outside_previous_year)};
    return {limits.year_start, limits.year_end, std::string(text::outside_kel_year)};
}

void manure_module::manure_load_stuff() {
    const year_limits limits = state_.kel_year_start ? year_limits_of(*state_.kel_year_start) : state_.limits;
    text_grid applications = empty_manure_grid();
    std::vector<farm_field> fields;
    load_messages told;
    const auto assessment = opened(state_.assess_file);
    if (assessment) fields = read_farm_fields(*assessment);
    // The profile is this year's, also for last year's applications.
    if (const auto source = for_previous_year() ? opened(state_.prev1_file) : assessment)
        applications = load_applications(*source, known_fields(fields), window(limits), told);
    state_.limits = limits;
    if (state_.kel_year_start) calendar_ = make_date(1, 1, year_of(*state_.kel_year_start) + 1);
    applications_ = std::move(applications);
    field_names_ = kel::field_names(fields);
    back();
    told.tell(person_);
}

manure_opening manure_module::opens_none(const message& reason) {
    person_.tell(reason);
    return {};
}

manure_opening manure_module::click(int row, int column) {
    const bool has_field = !applications_.cell(row, col::field).empty();
    const bool has_manure = !applications_.cell(row, col::manure).empty();
    switch (column) {
        case col::field:
            return opening(manure_box::field, row);
        case col::incorporation:
        case col::manure:
            return opening(manure_box::manure, row);
        case col::date:
            return opening(manure_box::day, row);
        case col::area:
            return has_field ? opening(manure_box::area, row) : opens_none(text::no_field_area_id);
        case col::amount:
            return has_manure ? opening(manure_box::amount, row) : opens_none(text::no_manure);
        case col::n_content:
            return has_manure ? opening(manure_box::n_content, row) : opens_none(text::no_manure);
        case col::month:
            return {};
        default:
            return opens_none(text::calculation);
    }
}

manure_opening manure_module::opening(manure_box box, int row) const {
    using namespace manure_messages;
    const auto cell = [&](int column) { return applications_.cell(row, column); };
    switch (box) {
        case manure_box::field:
            return {box, field_caption, field_instruction, {}, cell(col::field)};
        case manure_box::manure:
            return {box, manure_caption, manure_instruction, {}, cell(col::manure)};
        case manure_box::incorporation:
            return {box, incorporation_caption, incorporation_instruction, {}, cell(col::incorporation)};
        case manure_box::day: {
            const std::string day = cell(col::date);
            return {box, date_caption, date_instruction, {}, day.empty() ? short_date_text(calendar_) : day};
        }
        case manure_box::area:
            return {box, area_caption, area_instruction, area_unit, cell(col::area)};
        case manure_box::amount: {
            const auto unit = working_code_ <= last_solid_code ? tonne : cubic_metre;
            return {box, amount_caption, amount_instruction, unit, cell(col::amount)};
        }
        case manure_box::n_content: {
            const bool by_tonne = leading_number(cell(col::manure)) <= last_tonne_number;
            const auto unit = by_tonne ? kg_per_tonne : kg_per_cubic_metre;
            return {box, n_content_caption, n_content_instruction, unit, cell(col::n_content)};
        }
        case manure_box::none:
            break;
    }
    return {};
}

incorporation_choices manure_module::choices() const {
    const auto type = find_manure(listed_manure_);
    return type ? type->incorporation : no_choice;
}

bool manure_module::erase_row(int row) {
    if (row == applications_.row_count() - 1) return refuse(module_messages::cannot_delete);
    applications_.erase_row(row);
    return true;
}

bool manure_module::refuse(const message& reason) {
    person_.tell(reason);
    return false;
}

}  // namespace kel
