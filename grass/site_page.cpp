#include "grass/site_page.h"

#include <algorithm>

#include "core/installation.h"
#include "core/module_messages.h"
#include "grass/grass_messages.h"
#include "grass/site_class.h"
#include "grass/sward_choices.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"

namespace kel {

namespace text = grass_messages;
namespace col = site_column;

namespace {

constexpr int usual_season_end_day = 31;
constexpr int usual_season_end_month = 10;

std::vector<std::string> as_texts(std::span<const std::string_view> names) {
    return {names.begin(), names.end()};
}

std::string chosen_or_usual(const std::string& cell, const number_choices& choices) {
    const bool offered = std::ranges::find(choices.texts, cell) != choices.texts.end();
    return offered ? cell : std::string(choices.usual);
}

}  // namespace

site_page::site_page(application_state& state, prompts& person, screens& shown, grass_farm& farm)
    : state_(state), person_(person), screens_(shown), farm_(farm), results_(empty_grass_results()) {}

void site_page::clear_results() {
    results_ = empty_grass_results();
}

void site_page::clear() {
    clear_results();
    tables_.reset();
}

const grass_tables& site_page::tables() const {
    if (!tables_) tables_.emplace(database(state_.places.grass_tables()));
    return *tables_;
}

std::string site_page::figures_source() {
    const std::string& told = tables().source();
    return told.empty() ? text::figures_without_source(file_name_of(state_.places.grass_tables())) : told;
}

opening site_page::click(int row, int column) {
    switch (column) {
        case col::field:
            return {site_box::field,
                    text::field_caption,
                    text::field_instruction,
                    {{part_kind::list, farm_.site.cell(row, column), field_names(farm_.fields)}}};
        case col::previous:
            return previous_opening(row);
        case col::clover:
            return choice_opening(row, column, site_box::clover);
        case col::manure_current:
            return manure_opening(row, column, site_box::manure_current, text::manure_current_instruction);
        case col::manure_previous:
            return manure_opening(row, column, site_box::manure_previous, text::manure_previous_instruction);
        default:
            return opens_none(person_, module_messages::calculation);
    }
}

opening site_page::previous_opening(int row) const {
    std::string day = farm_.site.cell(row, col::season_end);
    if (day.empty() && state_.kel_year_start)
        day = short_date_text(
            make_date(usual_season_end_day, usual_season_end_month, year_of(*state_.kel_year_start)));
    const std::string sward(ley_long_name(farm_.site.cell(row, col::previous)));
    entry_part list{part_kind::list, sward, as_texts(previous_swards())};
    list.label = text::previous_label;
    entry_part season_end{part_kind::day, day};
    season_end.label = text::season_end_label;
    season_end.name = "season_end";
    return {site_box::previous, text::previous_caption, text::previous_instruction, {list, season_end}};
}

opening site_page::choice_opening(int row, int column, site_box box) const {
    const std::string& cell = farm_.site.cell(row, column);
    const auto options = [&](std::vector<std::string> choices,
                             std::vector<std::string> names) -> std::vector<entry_part> {
        return {{.kind = part_kind::options,
                 .text = cell,
                 .choices = std::move(choices),
                 .choice_names = std::move(names)}};
    };
    if (box == site_box::clover)
        return {box, text::clover_caption, text::clover_instruction,
                options({std::string(clover::high), std::string(clover::low)}, {"high", "low"})};
    return {box, text::use_caption, text::use_instruction,
            options({std::string(grass_use::silage), std::string(grass_use::hay),
                     std::string(grass_use::grazing)},
                    {"silage", "hay", "grazing"})};
}

opening site_page::applications_opening(int row) const {
    const std::string& content = farm_.site.cell(row, col::clover);
    const number_choices choices = application_choices(content);
    return {content == clover::high ? site_box::after_high : site_box::after_low,
            text::applications_caption,
            text::applications_instruction,
            {{part_kind::drop_down, chosen_or_usual(farm_.site.cell(row, col::applications), choices),
              as_texts(choices.texts)}}};
}

opening site_page::cuts_opening(int row) const {
    const number_choices choices = cut_choices();
    return {site_box::cuts,
            text::cuts_caption,
            text::cuts_instruction,
            {{part_kind::drop_down, chosen_or_usual(farm_.site.cell(row, col::cuts), choices),
              as_texts(choices.texts)}}};
}

opening site_page::manure_opening(int row, int column, site_box box, std::string_view instruction) const {
    return {box,
            text::manure_caption,
            instruction,
            {{part_kind::number, farm_.site.cell(row, column), {}, std::string(text::manure_unit)}}};
}

void site_page::set_site_class(int row) {
    const auto found = site_class(farm_.site.cell(row, col::soil), farm_.rain_class, farm_.altitude_step);
    if (found)
        farm_.site.set_cell(row, col::site_class, std::to_string(*found));
    else
        person_.tell(text::unknown_soil_error);
}

void site_page::set_site_classes() {
    for (int row = 0; row < farm_.site.data_row_count(); ++row)
        if (!farm_.site.cell(row, col::field).empty()) set_site_class(row);
}

outcome site_page::clear_field(int row) {
    for (const int c : {col::field, col::soil, col::site_class})
        farm_.site.set_cell(row, c, "");
    return box_closes();
}

outcome site_page::clear_previous(int row) {
    for (const int c : {col::previous, col::residue_group})
        farm_.site.set_cell(row, c, "");
    return box_closes();
}

outcome site_page::clear_clover(int row) {
    for (int c = col::clover; c <= col::adjustment; ++c)
        farm_.site.set_cell(row, c, "");
    return box_closes();
}

outcome site_page::clear_manure(int row, int column) {
    farm_.site.set_cell(row, column, "");
    return box_closes();
}

outcome site_page::erase_row(int row) {
    return erase_data_row(person_, farm_.site, row);
}

std::optional<message> site_page::missing_in(int row) const {
    const std::string& field = farm_.site.cell(row, col::field);
    if (farm_.site.cell(row, col::clover).empty()) return text::no_clover(field);
    if (farm_.site.cell(row, col::site_class).empty()) return text::no_site_class(field);
    if (farm_.site.cell(row, col::residue_group).empty()) return text::no_residue_group(field);
    return std::nullopt;
}

bool site_page::calculate() {
    text_grid results = empty_grass_results();
    for (int row = 0; row < farm_.site.data_row_count(); ++row) {
        if (const auto missing = missing_in(row)) {
            person_.tell(*missing);
            return false;
        }
        const grass_recommendation found = recommend_grass(tables(), grass_field_of(farm_.site, row));
        results.add_row();
        results.set_cell(row, grass_result_column::field, farm_.site.cell(row, col::field));
        results.set_cell(row, grass_result_column::use, farm_.site.cell(row, col::use));
        results.set_cell(row, grass_result_column::requirement, found.requirement);
        results.set_cell(row, grass_result_column::adjustment, found.adjustment);
        results.set_cell(row, grass_result_column::manures, found.manures);
        results.set_cell(row, grass_result_column::to_be_applied, found.to_be_applied);
    }
    tables();  // the results tell where the figures come from, also when there are none
    results_ = std::move(results);
    return true;
}

}  // namespace kel
