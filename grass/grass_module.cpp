#include "grass/grass_module.h"

#include <utility>

#include "core/module_messages.h"
#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/grass_report.h"
#include "grass/opening_answers.h"
#include "grass/site_class.h"

namespace kel {

namespace text = grass_messages;

grass_module::grass_module(application_state& state, prompts& person, screens& shown)
    : state_(state),
      person_(person),
      site_(state, person, shown, farm_),
      livestock_(person, farm_),
      stocking_(person, farm_),
      silage_(person, farm_) {
    history_.on_restored([this] { stocking_.fill(); });
}

std::string_view grass_module::instruction() const {
    switch (page_) {
        case grass_page::rain:
            return text::rain_instruction;
        case grass_page::altitude:
            return text::altitude_instruction;
        case grass_page::site:
            return text::table_instruction;
        case grass_page::results:
            return text::results_instruction;
        case grass_page::stock:
            return tab_ == stock_tab::livestock ? text::livestock_instruction : text::stocking_instruction;
        case grass_page::silage:
            break;
    }
    return text::silage_instruction;
}

void grass_module::grass_load_stuff() {
    grass_farm farm;
    load_messages told;
    opening_answers answers;
    loaded_rows loaded = loaded_;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        loaded.remember(db);
        farm.fields = read_farm_fields(db);
        farm.site = load_site(db, farm.fields, told);
        farm.livestock = load_livestock(db);
        answers = answers_in_advance(db, state_);
    }
    farm_ = std::move(farm);
    loaded_ = std::move(loaded);
    take_saved_livestock();
    rain_answer_ = answers.rain;
    altitude_answer_ = answers.altitude;
    site_.clear();
    silage_.clear();
    stocking_.fill();
    page_ = grass_page::rain;
    tab_ = stock_tab::livestock;
    history_.begin_anew();
    told.tell(person_);
}

bool grass_module::confirm_rain(std::optional<int> answer) {
    if (!answer) {
        person_.tell(text::no_value);
        return false;
    }
    store_rain(state_, *answer);
    rain_answer_ = answer;
    farm_.rain_class = rain_levels()[static_cast<std::size_t>(*answer)].rain_class;
    page_ = grass_page::altitude;
    return true;
}

bool grass_module::confirm_altitude(std::optional<int> answer) {
    if (!answer) {
        person_.tell(text::no_value);
        return false;
    }
    store_altitude(state_, *answer);
    altitude_answer_ = answer;
    farm_.altitude_step = altitude_levels()[static_cast<std::size_t>(*answer)].altitude_step;
    page_ = grass_page::site;
    site_.set_site_classes();
    history_.forget_steps();  // the answer that the classes follow from is stored
    return true;
}

void grass_module::back() {
    switch (page_) {
        case grass_page::rain:
            break;
        case grass_page::altitude:
        case grass_page::site:
            page_ = grass_page::rain;
            break;
        case grass_page::results:
            leave_results();
            break;
        case grass_page::stock:
            page_ = grass_page::site;
            history_.forget_steps();  // nothing is undone out of sight
            break;
        case grass_page::silage:
            silage_.finish_alterations();
            page_ = grass_page::stock;
            break;
    }
}

// The site table first: a file that cannot be written must not keep the person in the results.
void grass_module::leave_results() {
    const text_grid results = site_.results();
    site_.clear_results();
    page_ = grass_page::site;
    save_rec(results);
}

void grass_module::calculate() {
    if (site_.calculate()) page_ = grass_page::results;
}

void grass_module::to_stock() {
    stocking_.fill();
    page_ = grass_page::stock;
    history_.forget_steps();
}

void grass_module::turn_to(stock_tab tab) {
    if (std::exchange(tab_, tab) != tab) history_.forget_steps();
}

// The types and the units that the stocking of the fields goes by are the stored ones.
void grass_module::take_saved_livestock() {
    farm_.has_stock = farm_.livestock.data_row_count() > 0;
    farm_.stock_types.clear();
    farm_.total_lus = farm_.livestock.sum(livestock_column::units, farm_.livestock.data_row_count());
    for (int row = 0; row < farm_.livestock.data_row_count(); ++row)
        if (const std::string& type = farm_.livestock.cell(row, livestock_column::type); !type.empty())
            farm_.stock_types.push_back(type);
}

bool grass_module::cmdLU_continue() {
    if (!cmdLU_save()) return false;
    const text_grid& stocking = farm_.stocking;
    if (farm_.livestock.data_row_count() == 0 || stocking.row_count() == 0) return true;
    const float area_ha = stocking.sum(stocking_column::area, stocking.row_count());
    if (area_ha > 0)
        person_.tell(text::average_stocking_rate(format_shown(farm_.total_lus / area_ha, 1)));
    else
        person_.tell(text::no_average_stocking_rate);
    tab_ = stock_tab::stocking;
    return true;
}

bool grass_module::cmdSU_continue() {
    if (!cmdGrass_SU_save()) return false;
    page_ = grass_page::silage;
    silage_.fill();
    return true;
}

bool grass_module::close() {
    if (person_.ask(module_messages::close_the_module) != answer::yes) return false;
    if (page_ == grass_page::results) back();
    return true;
}

void grass_module::report(report_desk& desk) {
    const bool has_results = site_.results().row_count() > 0;
    const std::string source = has_results ? site_.figures_source() : std::string{};
    const manure_history manures(open_manure_years(state_));
    generate_report(desk, grass_report_file,
                    grass_report(farm_.site, site_.results(), manures, silage_.reported(), source),
                    screen_id::grass, screen_id::grass);
}

}  // namespace kel
