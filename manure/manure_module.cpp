#include "manure/manure_module.h"

#include <utility>

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

// The lookups of other modules leave their own bounds in the state.
year_limits manure_module::limits_of_year() const {
    return state_.kel_year_start ? year_limits_of(*state_.kel_year_start) : state_.limits;
}

bool manure_module::import_records(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    load_messages told;
    import_applications(*source, mode, window(limits_of_year()), applications_, told);
    told.tell(person_);
    return true;
}

void manure_module::manure_load_stuff() {
    const year_limits limits = limits_of_year();
    text_grid applications = empty_manure_grid();
    std::vector<farm_field> fields;
    load_messages told;
    loaded_rows loaded = loaded_;
    const auto assessment = opened(state_.assess_file);
    if (assessment) fields = read_farm_fields(*assessment);
    // The profile is this year's, also for last year's applications.
    if (const auto source = for_previous_year() ? opened(state_.prev1_file) : assessment) {
        loaded.remember(*source);
        applications = load_applications(*source, known_fields(fields), window(limits), told);
    }
    state_.limits = limits;
    if (state_.kel_year_start) calendar_ = make_date(1, 1, year_of(*state_.kel_year_start) + 1);
    applications_ = std::move(applications);
    loaded_ = std::move(loaded);
    field_names_ = kel::field_names(fields);
    back();
    history_.begin_anew();
    told.tell(person_);
}

opening manure_module::click(int row, int column) {
    const bool has_field = !applications_.cell(row, col::field).empty();
    const bool has_manure = !applications_.cell(row, col::manure).empty();
    switch (column) {
        case col::field:
            return list_box(manure_box::field, row);
        case col::incorporation:
        case col::manure:
            return list_box(manure_box::manure, row);
        case col::date:
            return date_box(row);
        case col::area:
            return has_field ? number_box(manure_box::area, row)
                             : opens_none(person_, text::no_field_area_id);
        case col::amount:
            return has_manure ? number_box(manure_box::amount, row) : opens_none(person_, text::no_manure);
        case col::n_content:
            return has_manure ? number_box(manure_box::n_content, row) : opens_none(person_, text::no_manure);
        case col::month:
            return {};
        default:
            return opens_none(person_, text::calculation);
    }
}

opening manure_module::list_box(manure_box box, int row) const {
    if (box == manure_box::field)
        return {box,
                text::field_caption,
                text::field_instruction,
                {{part_kind::list, applications_.cell(row, col::field), field_names_}}};
    opening manures(box, text::manure_caption, text::manure_instruction,
                    {{part_kind::list, applications_.cell(row, col::manure),
                      choices_of(manure_catalogue(), &manure_type::name)}});
    manures.column = col::manure;
    return manures;
}

opening manure_module::number_box(manure_box box, int row) const {
    const auto opens = [&](std::string_view caption, std::string_view instruction, int column,
                           std::string_view unit) {
        const std::string& shown = applications_.cell(row, column);
        return opening(box, caption, instruction, {{part_kind::number, shown, {}, std::string(unit)}});
    };
    if (box == manure_box::area)
        return opens(text::area_caption, text::area_instruction, col::area, text::area_unit);
    if (box == manure_box::amount) {
        const auto unit = working_code_ <= last_solid_code ? text::tonne : text::cubic_metre;
        return opens(text::amount_caption, text::amount_instruction, col::amount, unit);
    }
    const bool by_tonne = leading_number(applications_.cell(row, col::manure)) <= last_tonne_number;
    const auto unit = by_tonne ? text::kg_per_tonne : text::kg_per_cubic_metre;
    return opens(text::n_content_caption, text::n_content_instruction, col::n_content, unit);
}

opening manure_module::date_box(int row) const {
    const std::string& day = applications_.cell(row, col::date);
    return {manure_box::day,
            text::date_caption,
            text::date_instruction,
            {{part_kind::calendar, day.empty() ? short_date_text(calendar_) : day}}};
}

opening manure_module::incorporation_box(int row, const incorporation_choices& choices) const {
    opening shown(manure_box::incorporation, text::incorporation_caption, text::incorporation_instruction,
                  {{part_kind::options,
                    applications_.cell(row, col::incorporation),
                    {std::string(choices.early), std::string(choices.late)}}});
    shown.parts.front().column = col::incorporation;
    return shown;
}

outcome manure_module::erase_row(int row) {
    return erase_data_row(person_, applications_, row);
}

}  // namespace kel
