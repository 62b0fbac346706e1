// In-field composting: a calculator, and a panel with the calculations recorded for the farm's fields. The
// two views take each other's place. Closing the panel saves, as its save command does; nothing else reaches
// the file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "composting/composting_account.h"
#include "composting/composting_report.h"
#include "composting/composting_rules.h"
#include "core/application_state.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/grid_rows.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "reports/report_viewer.h"

namespace kel {

enum class composting_box { none, field };

class composting_module {
  public:
    composting_module(application_state& state, prompts& person);

    /// What the calculator's boxes hold after a row was chosen for editing.
    const composting_inputs& inputs() const { return inputs_; }
    bool has_result() const { return worked_.has_value(); }
    /// The result as it is shown, with what it was worked out from; empty texts without one.
    composting_shown shown() const;
    std::string_view instruction() const;

    bool panel_open() const { return panel_open_; }
    std::string panel_caption() const;
    const text_grid& calculations() const { return calculations_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }
    /// Fills the recorded calculations from the assessment and tells which stored fields the profile lacks.
    /// Throws file_error and leaves everything as it was when the file cannot be read.
    void get_straw_data();

    /// False, after a message, leaves an earlier result standing.
    bool calculate(const composting_inputs& inputs);

    /// Opens the panel with what is stored. Throws file_error; the panel then stays closed.
    void view_database();
    /// Which box asks for the field of the result to be recorded.
    opening add_result();
    outcome enter_field(const std::string& name);
    /// Brings a recorded calculation back into the calculator and closes the panel without saving. False,
    /// after a message, for the entry row.
    bool edit_row(int row);
    void delete_row(int row);
    /// Takes over those of another assessment. False: no file was chosen. Throws file_error and leaves the
    /// table as it was.
    bool import_records(import_mode mode);
    /// Replaces the recorded calculations in the file in one transaction. False: no file was chosen,
    /// or the person keeps what another program wrote there. Throws file_error; the file then holds its old
    /// rows.
    bool save();
    /// Saves and closes the panel; it stays open when nothing was saved. Whether it was.
    bool close_panel();

    /// Why a quantity or a release of the recorded calculations is what it is; nothing for the other columns.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// The same of a label of the result.
    std::optional<explanation> why(std::string_view result) const;

    /// Asks whether the module may close.
    bool close();
    /// Shows the result that stands; does nothing without one.
    void print_result(report_desk& desk);
    /// Shows the report of the recorded calculations.
    void report(report_desk& desk);

  private:
    struct worked_out {
        composting_inputs inputs;
        composting_result result;
    };
    bool refuse_calculation(const message& reason);
    void leave_panel();

    application_state& state_;
    prompts& person_;
    composting_inputs inputs_;
    std::optional<worked_out> worked_;
    bool panel_open_ = false;
    loaded_rows loaded_{{{"Straw"}}};
    text_grid calculations_;
    std::vector<std::string> field_names_;
    grid_history history_{calculations_};
};

}  // namespace kel
