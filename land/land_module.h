// Step 1, land available for spreading: the working copy of the land and the stock table and the flow of its
// edits. Nothing reaches the file before save. Rows count from 0 without the heading; the last row of each
// grid is the entry row.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "land/land_grids.h"
#include "land/spreading_limits.h"
#include "reports/report_viewer.h"

namespace kel {

enum class land_box { none, field, area, deduction, stock, number };

class land_module {
  public:
    land_module(application_state& state, prompts& person);

    const text_grid& land() const { return land_; }
    const text_grid& animals() const { return animals_; }
    const std::vector<std::string>& field_names() const { return field_names_; }
    /// What the result panel shows; nothing while it is closed.
    const std::optional<spreading_result>& result() const { return result_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }

    /// Fills both tabs from the assessment and tells which stored fields the profile lacks. Throws file_error
    /// and leaves everything as it was when the file cannot be read.
    void load_land_stuff();

    opening click_land(int row, int column);
    opening click_animals(int row, int column);

    // The entry boxes: what the person chose or typed goes into the cell, with the cells that follow from it.
    outcome enter_field(int row, const std::string& name);
    outcome enter_area(int row, int column, const std::string& text);
    outcome enter_deduction(int row, int column, const std::string& text);
    outcome enter_stock(int row, const std::string& type);
    outcome enter_number(int row, const std::string& text);

    outcome clear_field(int row);
    outcome clear_area(int row, int column);
    outcome clear_deduction(int row, int column);
    outcome clear_stock(int row);
    outcome clear_number(int row);

    // The entry row cannot be erased, and says so.
    outcome erase_land_row(int row);
    outcome erase_stock_row(int row);

    // The rows of the table in another assessment. False: no file was chosen. Throws file_error and leaves
    // the tables as they were.
    bool import_land(import_mode mode);
    bool import_animals(import_mode mode);

    /// Opens the result panel.
    void calculate();
    /// Closes the result panel.
    void back();

    /// Why a cell of one of its tables is what it is; nothing for what a person enters. Throws file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// The same of a label of the result panel, by its name; nothing while it is closed.
    std::optional<explanation> why(std::string_view result) const;

    /// Replaces both tables in the file in one transaction. False: no file was chosen. Throws file_error; the
    /// file then holds its old rows.
    bool save();
    /// Asks whether the module may close.
    bool close();
    /// Shows the report of the result panel; does nothing while the panel is closed.
    void report(report_desk& desk);

  private:
    void set_area(int row, int column, const area_pair& areas);

    application_state& state_;
    prompts& person_;
    text_grid land_;
    std::optional<int> imported_from_;  // the row from which on carried columns are not those of the file
    text_grid animals_;
    loaded_rows loaded_;
    std::vector<std::string> field_names_;
    float working_constant_ = 0;  // nitrogen constant of the stock row recalculated last
    std::optional<spreading_result> result_;
    grid_history history_{land_, animals_, imported_from_, working_constant_};
};

}  // namespace kel
