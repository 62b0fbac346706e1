// The nitrogen requirement of crops: the working copy of the table, the flow of its edits and its results.
// Nothing reaches the file before save, apart from the recommendations, which are stored as the results are
// left. Rows count from 0 without the heading; the last row is the entry row.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/explanation.h"
#include "core/grid_history.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/text_grid.h"
#include "crops/crop_calculation.h"
#include "crops/crop_grids.h"
#include "crops/crop_questions.h"
#include "reports/report_viewer.h"

namespace kel {

enum class crop_phase { winter_question, table, results };

class crop_module {
  public:
    crop_module(application_state& state, prompts& person, screens& others);

    crop_phase phase() const { return phase_; }
    /// The line that leads the person.
    std::string_view instruction() const;
    const text_grid& crops() const { return crops_; }
    const text_grid& results() const { return results_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }

    /// Why a cell of either table is what it is; nothing for one that a person enters. The results are those
    /// of the calculation in view. Throws file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// Why the answer to the winter rainfall question, "Crops_winter_rain", is preselected. Throws
    /// file_error.
    std::optional<explanation> why(std::string_view result) const;

    /// Begins with the winter rainfall question, answered by the climate of the farm's town or by what is
    /// stored. Throws file_error and leaves everything as it was when a file cannot be read.
    void open();
    /// Fills the table from the assessment and tells which stored fields the profile lacks; with another
    /// assessment than before it begins anew. Throws as open does.
    void crop_load_stuff();

    // The winter rainfall question.
    /// Its two answers.
    static std::vector<std::string> winter_answers();
    /// The one that is preselected; nothing without rainfall for the town.
    std::optional<int> winter_answer() const;
    /// Confirms an answer by its place and leads to the table; false, after a message, without one.
    bool enter_winter_rain(std::optional<int> choice);

    opening click(int row, int column);

    // The steps. What the person chose or typed goes into the row, with the cells that follow from it. Those
    // that read a file throw file_error before the first cell is written.
    outcome enter_field(int row, const std::string& name);
    outcome enter_planned_crop(int row, const box_entry& entered);
    outcome enter_previous_crop(int row, const box_entry& entered);
    /// The answer to the question that is open; leads to the crop's next one.
    outcome enter_answer(int row, const box_entry& entered);
    /// Asks whether a wet summer is expected, the row's next answer. No click leads here.
    opening ask_summer_rain();
    outcome enter_manures(int row, int column, const std::string& text);
    /// Puts the figure of the stored applications into the box, for the person to confirm.
    outcome transfer(int row, int column);
    /// Brings the applications to this or to the previous crop to view; the box stays.
    outcome open_manures(int row, int column);

    outcome clear_field(int row);
    outcome clear_planned_crop(int row);
    outcome clear_previous_crop(int row);
    // The entry row cannot be erased, and says so.
    outcome erase_row(int row);

    /// Works out the results and shows them. False, after a message, when a row lacks a crop.
    bool calculate();
    /// Stores the recommendations and returns to the table. Throws file_error; the table is back in view.
    void back();

    /// Replaces the table in the file in one transaction. False: no file was chosen. Throws file_error; the
    /// file then holds its old rows.
    bool save();
    /// Stores the recommendations in view and asks whether the module may close; the winter rainfall question
    /// is left without asking.
    bool close();
    /// Shows the report of the results; does nothing while the table is in view.
    void report(report_desk& desk);

  private:
    void load(std::string winter_status);
    void save_rec();
    explanation why_soil(int row) const;
    explanation why_residue_group(int row) const;
    explanation why_manures(int row, int column) const;
    explanation why_result(int row, int column) const;

    // The steps and their questions.
    opening field_opening(int row) const;
    opening planned_opening(int row);
    opening previous_opening(int row) const;
    opening manures_opening(int row, int column) const;
    std::optional<std::string> stored_manures(application_state& state, int row, int column,
                                              explanation* why = nullptr) const;
    outcome start_questions(int row, const std::string& name);
    outcome next_question() const;
    bool write_code(int row, std::string_view code);
    void write_delay(int row, float days);
    void write_spring_status(int row, int choice);
    void write_summer_rain(int row, int choice);
    void write_answer(int row, crop_question question, int choice);

    // Their tests.
    std::optional<date> date_in(int row, int column) const;
    std::string day_of_year(int day, int month, int years_on) const;
    std::string shown_harvest(int row, int column, int years_on) const;
    outcome refuse_with_year(const message& reason, int part, date day, int years_on);
    bool planned_type_fits(const std::string& field, const std::string& name);
    bool previous_type_fits(const std::string& field, const std::string& name);

    // Cells that follow from others.
    bool guard_malting(int row);
    void set_winter_rain(int row);
    void set_spring_rain(int row);
    void clear_columns(int row, int first, int last);
    void clear_answers(int row);

    application_state& state_;
    prompts& person_;
    screens& screens_;
    crop_phase phase_ = crop_phase::winter_question;
    text_grid crops_;
    text_grid results_;
    loaded_rows loaded_{{{"Crops"}}};
    std::vector<std::string> field_names_;
    int opened_assessment_ = -1;
    std::string winter_status_;             // "High", "Low" or empty
    std::string sowing_shown_;              // the sowing date that the box held last
    std::span<const crop_question> asked_;  // the open question and those behind it

    // What a row without a figure of its own falls back on; kept as long as the module is open.
    base_requirement working_;
    rain_memory rain_;
    crop_memory before_results_;  // what the calculation in view went on from
    bool winter_is_stored_ = false;
    grid_history history_{crops_, sowing_shown_, rain_};
};

}  // namespace kel
