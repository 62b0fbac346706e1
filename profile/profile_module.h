// The farm profile: its working copy and edit flow. The screen stays alive between uses; the field list on it
// is the working copy until Set Profile, which is where an assessment file comes into being and where changes
// of fields reach all modules and all linked years.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/grid_history.h"
#include "core/grid_rows.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "profile/farm_profile.h"
#include "profile/field_paste.h"
#include "profile/profile_file.h"
#include "reports/report_viewer.h"

namespace kel {

/// Entry boxes over the grid.
enum class profile_box { none, name, area, soil };

enum class set_profile_result {
    refused,
    refused_focus_kel_area,
    refused_focus_farm_area,
    cancelled,
    saved,  // the screen gives way to the assessments screen
};

class profile_module {
  public:
    profile_module(application_state& state, prompts& person) : state_(state), person_(person) {}

    const farm_details& farm() const { return farm_; }
    const text_grid& fields() const { return fields_; }
    /// The year of an existing assessment cannot be edited.
    bool year_list_enabled() const { return year_list_enabled_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }
    /// Whether fields or entries above them differ from what was loaded or last saved.
    bool unsaved() const { return history_.unsaved() || farm_ != saved_farm_; }

    // What the person types above the grid.
    void set_name(std::string text) { farm_.name = std::move(text); }
    void set_total_area(std::string text) { farm_.total_area = std::move(text); }
    void set_kel_area(std::string text) { farm_.kel_area = std::move(text); }
    void set_field_count(std::string text) { farm_.field_count = std::move(text); }
    void set_year(std::string text) { farm_.year = std::move(text); }
    /// Shows the place that the location screen put into the state.
    void show_location();

    /// Reads the open file into the working copy and the state. Throws file_error and then leaves both as
    /// they were.
    void load_profile() { show_profile(read_profile(state_.assess_file)); }
    /// The two halves of it, for one who has something to do in between that may fail.
    loaded_profile read_profile(const std::string& path) const;
    void show_profile(loaded_profile fresh);
    /// Back to the last write of the settings store, and to the file that it names. Throws file_error for
    /// one that cannot be read; then no assessment is open, and the slots stay.
    void reopen();
    /// Reads the open file's year into the state. Throws file_error.
    void ass_year();
    void new_farm();
    /// Moves on whenever other rows come to stand in the working copy.
    int loads() const { return loads_; }
    void edit_existing() { year_list_enabled_ = false; }

    // The grid. Rows count from 0 without the heading, which is row -1. Areas and soils go into all rows from
    // `row` to `row_selection`, whichever is larger.
    opening click(int row, int row_selection, int column) const;
    outcome enter_name(int row, const std::string& text);
    /// Hectares.
    outcome enter_area(int row, int row_selection, int column, const std::string& text);
    /// Nothing chosen keeps the box open.
    outcome enter_soil(int row, int row_selection, const std::string& text);
    outcome clear_cell(int row, int column);
    outcome erase_row(int row);

    /// The fields of another farm; in adding, one whose name is in the list is told and left out. False: no
    /// file was chosen. Throws file_error and leaves the list as it was.
    bool import_records(import_mode mode);

    std::string create_caption() const;
    void create_fields();
    void paste_names_and_sizes(std::string_view clipboard);
    void paste_names(std::string_view clipboard);

    /// Tests, questions and the save. Throws file_error; then nothing is saved and the same file is open.
    set_profile_result set_profile();
    void report(report_desk& desk) const;

  private:
    void show_field_count() { farm_.field_count = std::to_string(fields_.row_count()); }
    void add_pasted(const std::vector<pasted_field>& pasted);
    bool kel_areas_agree();
    void forget_carried_names();
    bool save_new_farm(const std::string& path);

    application_state& state_;
    prompts& person_;
    loaded_rows loaded_{loaded_profile{}.rows};
    farm_details farm_;
    farm_details saved_farm_;
    text_grid fields_{field_columns};
    bool year_list_enabled_ = true;
    int loads_ = 0;
    grid_history history_{fields_, farm_.field_count};
};

}  // namespace kel
