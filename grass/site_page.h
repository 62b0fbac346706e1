// The site table: for each grass field its site class, the previous sward, clover and use, manures, and what
// is worked out from them. Rows count from 0 without the heading; the last row is the entry row.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/text_grid.h"
#include "grass/grass_farm.h"
#include "grass/grass_tables.h"

namespace kel {

enum class site_box {
    none,
    field,
    previous,  // a list and a day
    clover,
    use,
    cuts,
    after_low,  // applications, by clover
    after_high,
    manure_current,
    manure_previous,
};

class site_page {
  public:
    site_page(application_state& state, prompts& person, screens& shown, grass_farm& farm);

    const text_grid& table() const { return farm_.site; }
    /// Of the calculation in view; without rows while there is none.
    const text_grid& results() const { return results_; }

    opening click(int row, int column);

    /// Why a cell of the table is what it is; nothing for one that is entered. Throws file_error, as the
    /// next.
    std::optional<explanation> why(int row, int column) const;
    explanation why_result(int row, int column) const;

    outcome enter_field(int row, const std::string& name);
    /// The sward and the end of its season.
    outcome enter_previous(int row, const box_entry& entered);
    outcome enter_clover(int row, const std::string& content);
    outcome enter_use(int row, const std::string& use);
    outcome enter_cuts(int row, const std::string& cuts);
    outcome enter_applications(int row, const std::string& applications);
    outcome enter_manure(int row, int column, const std::string& text);
    /// Puts into the manure box what the stored applications supply. Throws file_error.
    outcome transfer_manure(int row, int column);
    /// Opens the manure module for this or for last year; the box stays open behind it. Throws file_error.
    outcome open_manures(int row, int column);

    outcome clear_field(int row);
    outcome clear_previous(int row);
    outcome clear_clover(int row);
    outcome clear_manure(int row, int column);
    outcome erase_row(int row);

    /// Works out the site class of every row, as after the opening questions.
    void set_site_classes();
    /// Fills the results. False, after a message, for a row that lacks something. Throws file_error.
    bool calculate();
    /// The line that says where the figures come from. Throws file_error.
    std::string figures_source();
    void clear_results();
    /// Forgets the reference tables too, as before an assessment is read anew.
    void clear();

  private:
    const grass_tables& tables() const;
    explanation why_soil(int row) const;
    explanation why_site_class(int row) const;
    explanation why_residue_group(int row) const;
    explanation why_choice(int row, int column) const;
    explanation why_adjustment(int row) const;
    explanation why_manures(int row, int column) const;
    std::optional<std::string> stored_manures(application_state& state, int row, int column,
                                              explanation* why = nullptr) const;
    opening manure_opening(int row, int column, site_box box, std::string_view instruction) const;
    opening previous_opening(int row) const;
    opening choice_opening(int row, int column, site_box box) const;
    opening cuts_opening(int row) const;
    opening applications_opening(int row) const;
    bool field_is_grass(const database& db, const std::string& name);
    bool field_was_grass(const std::string& name);
    void set_site_class(int row);
    std::string adjustment(int row, std::string_view cuts, std::string_view applications);
    std::optional<message> missing_in(int row) const;

    application_state& state_;
    prompts& person_;
    screens& screens_;
    grass_farm& farm_;
    text_grid results_;
    mutable std::optional<grass_tables> tables_;  // read once, when first asked
};

}  // namespace kel
