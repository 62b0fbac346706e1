// The nitrogen requirement of grassland. Two opening questions, then two routes that share the fields: the
// site table with its results, and the stocking route from the livestock over the stocking of the fields to
// the requirement that follows from it. The opening answers are stored as they are confirmed, the rest only
// by the saves.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/module_save.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "grass/grass_farm.h"
#include "grass/livestock_page.h"
#include "grass/silage_page.h"
#include "grass/site_page.h"
#include "grass/stocking_page.h"
#include "reports/report_viewer.h"

namespace kel {

enum class grass_page { rain, altitude, site, results, stock, silage };
enum class stock_tab { livestock, stocking };

class grass_module {
  public:
    grass_module(application_state& state, prompts& person, screens& shown);

    grass_page page() const { return page_; }
    stock_tab tab() const { return tab_; }
    /// What stands above the page.
    std::string_view instruction() const;
    site_page& site() { return site_; }
    livestock_page& livestock() { return livestock_; }
    stocking_page& stocking() { return stocking_; }
    silage_page& silage() { return silage_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }

    /// Why a cell of its tables is what it is; nothing for one that a person enters. Throws file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// The same of "lblGrass_summary" and of the answers given in advance, "Grass_rain" and "Grass_altitude".
    std::optional<explanation> why(std::string_view result) const;

    /// Fills the tables from the assessment, answers the opening questions in advance, turns to the first of
    /// them and tells which stored fields the profile lacks. Throws file_error and leaves everything as it
    /// was when a file cannot be read.
    void grass_load_stuff();

    /// The answers given in advance, as places in rain_levels() and altitude_levels(); nothing: none.
    std::optional<int> rain_answer() const { return rain_answer_; }
    std::optional<int> altitude_answer() const { return altitude_answer_; }
    // Confirm an opening question, store its answer in [Grass_data] and go on. False, after a message,
    // without an answer. Throws file_error.
    bool confirm_rain(std::optional<int> answer);
    bool confirm_altitude(std::optional<int> answer);

    // The ways between the pages.
    /// From the altitude to the rainfall, from the site table to the rainfall, from the results or the
    /// stocking route to the site table, from the silage table to the stocking table. Leaving the results
    /// writes [Recommendations]. Throws file_error; the results are left all the same.
    void back();
    /// cmdSite_continue: works out the results and shows them. Throws file_error.
    void calculate();
    /// From the site table to the tab of the stocking route that was in front last.
    void to_stock();
    void turn_to(stock_tab tab);

    // The saves. All but the first ask for the file every time; another name makes it a copy of the open
    // file, which is then the open one. False: no file was chosen, or it was last year's. Throws file_error;
    // the file then holds its old rows.
    bool cmdSite_save();
    bool cmdLU_save();
    bool cmdGrass_SU_save();
    bool cmdGrass_rec_save();

    /// Saves, tells the average stocking rate and turns to the stocking table; with no livestock or no fields
    /// it only saves. False: nothing was saved. Throws file_error.
    bool cmdLU_continue();
    /// Saves and turns to the recommendation of the stocking route. Throws file_error.
    bool cmdSU_continue();

    /// "Change Database", from the stocking table: what is asked, and what the answer leads to. Nothing
    /// reaches the file before a save.
    opening change_database() const;
    outcome enter_change_database(const std::string& choice);

    /// Asks whether the module may close; if so, the results in view are written. Throws file_error, with the
    /// site table in view.
    bool close();
    /// Shows the report of the results and of the silage table, as far as they have been worked out and the
    /// fields are still those that they were worked out for. Throws file_error.
    void report(report_desk& desk);

  private:
    std::optional<save_target> chosen_target();
    bool save(const std::optional<save_target>& target, const std::function<void(const database&)>& write);
    void take_saved_livestock();
    void set_site_saved(bool (*own)(int column));
    void leave_results();
    void save_rec(const text_grid& results);
    void take_from(const database& other, bool replace);

    application_state& state_;
    prompts& person_;
    grass_farm farm_;
    site_page site_;
    livestock_page livestock_;
    stocking_page stocking_;
    silage_page silage_;
    loaded_rows loaded_{{{"Site"}, {"LU"}}};
    grass_page page_ = grass_page::rain;
    stock_tab tab_ = stock_tab::livestock;
    std::optional<int> rain_answer_;
    std::optional<int> altitude_answer_;
    grid_history history_{farm_.site,          farm_.livestock,   farm_.rain_class,
                          farm_.altitude_step, farm_.stock_types, farm_.total_lus};
};

}  // namespace kel
