// The entries of the site table, each with its tests in their order.
#include "core/module_messages.h"
#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/management_adjustment.h"
#include "grass/site_page.h"
#include "grass/sward_choices.h"
#include "rules/closed_period_lookups.h"
#include "rules/crop_catalogue.h"
#include "rules/crop_lists.h"
#include "rules/manure_lookups.h"
#include "rules/residue_groups.h"

namespace kel {

namespace text = grass_messages;
namespace col = site_column;

namespace {

std::vector<std::string> members_of(std::string_view type) {
    const auto members = crop_type_members(type);
    return {members.begin(), members.end()};
}

}  // namespace

// Step 2 of this year says what the field grows first.
bool site_page::field_is_grass(const database& db, const std::string& name) {
    const auto use = stored_field_use(db, name);
    if (!use || use->first == crop_types::grass) return true;
    const bool proceed = person_.ask(text::not_grass(use->first)) == answer::yes;
    if (proceed)
        person_.show_list({text::review_heading(use->first), {}, members_of(use->first)});
    else
        person_.show_list(
            {text::members_heading(use->first), std::string(text::members_note), members_of(use->first)});
    return proceed;
}

// Step 2 of last year says what was to follow.
bool site_page::field_was_grass(const std::string& name) {
    if (state_.prev1_file.empty()) return true;
    const auto use = stored_field_use(database(state_.prev1_file), name);
    if (!use || use->second == crop_types::grass) return true;
    if (person_.ask(text::not_grass_last_year(use->second)) != answer::yes) return false;
    person_.tell(text::review_last_year);
    return true;
}

outcome site_page::enter_field(int row, const std::string& name) {
    if (name.empty()) return refuse(person_, text::no_field_id);
    const database db(state_.assess_file);
    if (!db.open("Crops", "Field Area ID", name).eof()) return refuse(person_, text::crop_recommended);
    if (farm_.site.in_other_row(row, col::field, name))
        return refuse(person_, module_messages::field_in_grid);
    if (!field_is_grass(db, name) || !field_was_grass(name)) return box_stays();
    text_grid& site = farm_.site;
    // What the stocking page has on another field that stood here is not this field's.
    if (site.cell(row, col::stocked_field) != name)
        for (int c = col::area; c < site.column_count(); ++c)
            site.set_cell(row, c, "");
    site.set_cell(row, col::field, name);
    site.set_cell(row, col::stocked_field, name);
    for (const farm_field& field : farm_.fields)
        if (field.name == name) {
            site.set_cell(row, col::soil, field.soil);
            site.set_cell(row, col::area, field.size);
        }
    set_site_class(row);
    site.keep_entry_row(row);
    return box_closes();
}

outcome site_page::enter_previous(int row, const box_entry& entered) {
    const std::string& sward = entered.text();
    const auto code = previous_crop_code(sward);
    if (sward.empty() || !code) return refuse(person_, text::no_previous_crop);
    constexpr int day_part = 1;
    const auto season_end = entered.day(day_part);
    if (state_.kel_year_start && season_end) {
        const int year = year_of(*state_.kel_year_start);
        if (year_of(*season_end) != year) {
            const date in_year = add_years(*season_end, year - year_of(*season_end));
            return refuse(person_, text::season_not_in_year(year), day_part,
                          {{day_part, short_date_text(in_year)}});
        }
    }
    farm_.site.set_cell(row, col::previous, std::string(*code));
    farm_.site.set_cell(row, col::residue_group, std::to_string(residue_group(*code)));
    farm_.site.set_cell(row, col::season_end, season_end ? short_date_text(*season_end) : "");
    return box_closes();
}

outcome site_page::enter_clover(int row, const std::string& content) {
    if (content.empty()) return refuse(person_, text::no_value);
    farm_.site.set_cell(row, col::clover, content);
    farm_.site.keep_entry_row(row);
    return leads_to(choice_opening(row, col::use, site_box::use));
}

outcome site_page::enter_use(int row, const std::string& use) {
    const sward_management* const management = management_of(farm_.site.cell(row, col::clover), use);
    if (!management) return refuse(person_, text::no_value);
    farm_.site.set_cell(row, col::use, use);
    if (management->cuts.empty()) return leads_to(cuts_opening(row));
    farm_.site.set_cell(row, col::cuts, std::string(management->cuts));
    if (management->applications.empty()) return leads_to(applications_opening(row));
    farm_.site.set_cell(row, col::applications, std::string(management->applications));
    farm_.site.set_cell(row, col::adjustment, std::string(management->adjustment_kg_per_ha));
    return box_closes();
}

std::string site_page::adjustment(int row, std::string_view cuts, std::string_view applications) {
    return management_adjustment(
        tables(), {farm_.site.cell(row, col::clover), farm_.site.cell(row, col::use), cuts, applications});
}

outcome site_page::enter_cuts(int row, const std::string& cuts) {
    if (cuts.empty()) return refuse(person_, text::no_value);
    if (cuts == cuts_without_aftermath) {
        const std::string found = adjustment(row, cuts, no_applications);
        farm_.site.set_cell(row, col::applications, std::string(no_applications));
        farm_.site.set_cell(row, col::adjustment, found);
    }
    farm_.site.set_cell(row, col::cuts, cuts);
    return cuts == cuts_without_aftermath ? box_closes() : leads_to(applications_opening(row));
}

outcome site_page::enter_applications(int row, const std::string& applications) {
    if (applications.empty()) return refuse(person_, text::no_value);
    const std::string found = adjustment(row, farm_.site.cell(row, col::cuts), applications);
    farm_.site.set_cell(row, col::applications, applications);
    farm_.site.set_cell(row, col::adjustment, found);
    return box_closes();
}

outcome site_page::enter_manure(int row, int column, const std::string& entered) {
    farm_.site.set_cell(row, column, entered);
    return box_closes();
}

// The figure of the stored applications; nothing without an end of season. The bounds stay in `state`.
std::optional<std::string> site_page::stored_manures(application_state& state, int row, int column,
                                                     explanation* why) const {
    const auto season_end = parse_date(farm_.site.cell(row, col::season_end));
    if (!season_end) return std::nullopt;
    const std::string& field = farm_.site.cell(row, col::field);
    const float n_kg_per_ha = column == col::manure_current
                                  ? n_for_this_crop(state, field, season_end, add_years(*season_end, 1), why)
                                  : n_from_previous_season(state, field, *season_end, std::nullopt, why);
    return default_text(round_shown_half_even(n_kg_per_ha, 2));
}

outcome site_page::transfer_manure(int row, int column) {
    const auto found = stored_manures(state_, row, column);
    return found ? box_stays(0, {{0, *found}}) : refuse(person_, text::season_end_unknown);
}

outcome site_page::open_manures(int /*row*/, int column) {
    const bool earlier = column == col::manure_previous;
    if (earlier && state_.prev1_file.empty()) return refuse(person_, text::no_linked_file);
    state_.manure_caller = earlier ? manure_opener::old_grass : manure_opener::new_grass;
    screens_.open_in_place_of(screen_id::grass, screen_id::manure);
    return box_stays();
}

}  // namespace kel
