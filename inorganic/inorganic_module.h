// Step 4, applications of inorganic nitrogen: the working copy of the table and the flow of its edits.
// Nothing reaches the file before save. Rows count from 0 without the heading; the last row is the entry row.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/dates.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "inorganic/inorganic_grid.h"
#include "reports/report_viewer.h"

namespace kel {

enum class inorganic_box { none, field, application };

/// The boxes of the application dialog.
enum class application_part { none, day, type, amount, content, comments };

/// What the application dialog holds; no day while none is chosen in the calendar.
struct fertiliser_application {
    std::optional<date> day;
    std::string type;
    std::string amount;
    std::string content;
    std::string comments;
    bool operator==(const fertiliser_application&) const = default;
};

/// What a pick in the calendar leads to.
struct date_pick {
    std::optional<date> day;              // the date to set in the calendar; nothing: none
    std::optional<std::string> comments;  // what the comments are overwritten with; nothing: they stay
    bool operator==(const date_pick&) const = default;
};

/// Whether the application dialog closes, and otherwise where the focus goes; none: it stays.
struct application_entry {
    bool closes = false;
    application_part focus = application_part::none;
    bool operator==(const application_entry&) const = default;
};

class inorganic_module {
  public:
    inorganic_module(application_state& state, prompts& person);

    const text_grid& applications() const { return applications_; }
    const std::vector<std::string>& field_names() const { return field_names_; }
    /// The year to which the calendar opens, that in which the KEL year ends; nothing without an assessment.
    std::optional<int> calendar_year() const;

    /// Fills table and field list from the assessment and works out the year limits. Every row is taken as it
    /// stands. Throws file_error and leaves everything as it was when the file cannot be read.
    void inorganic_load_stuff();

    inorganic_box click(int row, int column);
    /// What the application dialog opens with.
    fertiliser_application application_of(int row) const;

    /// True: the dialog closes.
    bool enter_field(int row, const std::string& name);
    /// The tests of a date picked for the row's field. Only this tests closed periods. Throws file_error.
    date_pick pick_date(int row, date picked);
    application_entry enter_application(int row, const fertiliser_application& entered);

    /// Does nothing for the entry row and without a row (-1).
    void delete_row(int row);

    /// Replaces the table in the file in one transaction. False: no file was chosen. Throws file_error; the
    /// file then holds its old rows.
    bool save();
    /// Asks whether the module may close.
    bool close();
    void report(report_desk& desk);

  private:
    application_entry refuse(const message& reason, application_part focus);
    bool in_year_assessed(date day) const;

    application_state& state_;
    prompts& person_;
    text_grid applications_;
    std::vector<std::string> field_names_;
};

}  // namespace kel
