// Step 4, applications of inorganic nitrogen: the working copy of the table and the flow of its edits.
// Nothing reaches the file before save. Rows count from 0 without the heading; the last row is the entry row.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/dates.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "inorganic/inorganic_grid.h"
#include "reports/report_viewer.h"

namespace kel {

enum class inorganic_box { none, field, application };

namespace application_part {
/// The parts of the application dialog, in their order.
enum : int { day, type, amount, content, comments };
}  // namespace application_part

class inorganic_module {
  public:
    inorganic_module(application_state& state, prompts& person);

    const text_grid& applications() const { return applications_; }
    const std::vector<std::string>& field_names() const { return field_names_; }
    /// The year to which the calendar opens, that in which the KEL year ends; nothing without an assessment.
    std::optional<int> calendar_year() const;
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }

    /// Fills table and field list from the assessment and works out the year limits. Every row is taken as it
    /// stands. Throws file_error and leaves everything as it was when the file cannot be read.
    void inorganic_load_stuff();

    opening click(int row, int column);
    outcome enter_field(int row, const std::string& name);
    /// The tests of a date picked for the row's field: what the calendar and the comments show instead. Only
    /// this tests closed periods. Throws file_error.
    outcome pick_date(int row, date picked);
    outcome enter_application(int row, const box_entry& entered);
    /// The same for an application that is pasted: its date is picked first, and behind the words that a
    /// closed period puts there stand its comments.
    outcome enter_pasted(int row, const box_entry& pasted);

    /// Does nothing for the entry row and without a row (-1).
    void delete_row(int row);

    /// Replaces the table in the file in one transaction. False: no file was chosen. Throws file_error; the
    /// file then holds its old rows.
    bool save();
    /// Asks whether the module may close.
    bool close();
    void report(report_desk& desk);

    /// Why a row has its total, and whether its day is a closed one; nothing for what was entered. Throws
    /// file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;

  private:
    opening application_of(int row, int focus) const;
    bool in_year_assessed(date day) const;
    explanation why_total(int row) const;
    std::optional<explanation> why_closed(int row) const;

    application_state& state_;
    prompts& person_;
    text_grid applications_;
    loaded_rows loaded_{{{"Inorganic N"}}};
    std::vector<std::string> field_names_;
    grid_history history_{applications_};
};

}  // namespace kel
