// Step 3, slurry and manure applications: the working copy of the table, the flow of its edits and the
// results. The module also serves the crop and the grassland module, for this year's or for last year's file.
// Nothing reaches the file before save. Rows count from 0 without the heading; the last row of the table is
// the entry row.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/module_save.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "manure/manure_grids.h"
#include "reports/report_viewer.h"
#include "rules/manure_catalogue.h"

namespace kel {

enum class manure_box { none, field, manure, incorporation, day, area, amount, n_content };

class manure_module {
  public:
    manure_module(application_state& state, prompts& person);

    const text_grid& applications() const { return applications_; }
    const text_grid& results() const { return results_; }
    /// Whether the results are in view in place of the table.
    bool results_shown() const { return results_shown_; }
    const std::vector<std::string>& field_names() const { return field_names_; }
    const std::string& instructions() const { return instructions_; }
    const std::string& warnings() const { return warnings_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }

    /// Fills the table from the file of manure_caller and tells what was not taken over; sets the year limits
    /// of the state. Throws file_error and leaves everything as it was when a file cannot be read.
    void manure_load_stuff();

    opening click(int row, int column);

    // The entry boxes: what the person chose or typed goes into the cell, with the cells that follow from it.
    outcome enter_field(int row, const std::string& name);
    /// Most manures lead to the question for their incorporation.
    outcome enter_manure(int row, const std::string& type);
    /// Nothing chosen leaves the incorporation cell.
    outcome enter_incorporation(int row, const std::string& chosen);
    outcome enter_date(int row, date day);
    outcome enter_area(int row, const std::string& text);
    outcome enter_amount(int row, const std::string& text);
    outcome enter_n_content(int row, const std::string& text);

    outcome erase_row(int row);

    /// The applications of another assessment. False: no file was chosen. Throws file_error and leaves the
    /// table as it was.
    bool import_records(import_mode mode);

    /// Sums the fields and tests limit and closed periods. False, after a message, leaves the table in view.
    /// Each file is read once; throws file_error before anything has changed.
    bool calculate();
    /// Back to the table.
    void back();

    /// Replaces the table in the file in one transaction. False: no file was chosen. Throws file_error; the
    /// file then holds its old rows.
    bool save();
    /// Asks whether the module may close.
    bool close();
    /// Shows the report of the results; does nothing while the table is in view.
    void report(report_desk& desk);

    /// Why a cell of the applications or of the results is what it is; of a date, whether its month is
    /// closed. Nothing for what else was entered. Throws file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// The same of the field limit ("lblReductions_instruction") and of the closed periods
    /// ("txtReductions_warnings") that the results tell of.
    std::optional<explanation> why(std::string_view result) const;

  private:
    opening list_box(manure_box box, int row) const;
    opening number_box(manure_box box, int row) const;
    opening date_box(int row) const;
    opening incorporation_box(int row, const incorporation_choices& choices) const;
    bool proceeds(const message& question) { return person_.ask(question) == answer::yes; }
    bool for_previous_year() const { return kel::for_previous_year(state_.manure_caller); }
    year_limits limits_of_year() const;
    date_window window(const year_limits& limits) const;
    bool land_allows(const std::string& field, int month);
    void take_default_n_content(int row);
    void recalculate_share(int row);
    outcome recalculate_rate(int row);
    outcome entered(int row);
    std::optional<save_target> save_file();
    void mark_over_limit(const std::optional<std::vector<dated_rate>>& last_year);
    void fm_closed_rep(const std::vector<int>& closed_rows);
    std::optional<explanation> why_cell(int row, int column) const;
    std::optional<explanation> why_result(int row, int column) const;
    explanation why_percentage(int row) const;
    explanation why_total_n(int row) const;
    explanation why_closed(int row) const;
    explanation why_marked(int row) const;
    explanation why_over_limit() const;
    explanation why_closed_periods() const;
    bool tell_limit(const std::string& field, explanation& why) const;

    application_state& state_;
    prompts& person_;
    text_grid applications_;
    loaded_rows loaded_{{{"Manure_applic"}}};
    text_grid results_;
    bool results_shown_ = false;
    std::vector<std::string> field_names_;
    std::string instructions_;
    std::string warnings_;
    std::vector<std::string> over_limit_;      // fields, in the order of the results
    std::vector<int> closed_rows_;             // applications in closed months
    std::vector<std::string> closed_periods_;  // sentences, in row order

    // What the open module remembers from entry to entry.
    int working_code_ = no_manure_code;
    std::string listed_manure_;  // chosen in the manure list last, in whatever row
    date calendar_ = make_date(1, 1, 2000);
    grid_history history_{applications_, working_code_, listed_manure_, calendar_};
};

}  // namespace kel
