// The field record: the year of one field drawn together, with its analysis. It stores nothing; every choice
// of a field reads the files anew.
#pragma once

#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/explanation.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "record/field_history.h"
#include "reports/report_viewer.h"

namespace kel {

class record_module {
  public:
    record_module(application_state& state, prompts& person);

    /// The farm's fields, in table order.
    const std::vector<std::string>& field_names() const { return field_names_; }
    /// The field shown; empty without any.
    const std::string& field() const { return shown_.field; }
    const text_grid& record() const { return shown_.record; }
    const text_grid& warnings() const { return shown_.warnings; }

    /// Why a cell of the record, or a warning, is what it is; from what was read of the files for the field
    /// shown.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;

    /// Fills the list of fields and shows the one that was shown before, where it still exists, else the
    /// first. Throws file_error and leaves everything as it was when a file cannot be read.
    void record_load_stuff();
    /// Throws file_error; the field shown then stays.
    void select_field(const std::string& field);

    /// What the copy command puts on the clipboard.
    std::string copied_text() const;
    /// Asks for a file and writes the record shown there. `documents_folder` is where the first dialog opens.
    /// Throws file_error; a file of that name then stays as it was.
    void export_csv(const std::string& documents_folder);
    /// Asks whether for this field or for all, and shows the report. Throws file_error.
    void report(report_desk& desk);

  private:
    struct view {
        std::string field;
        text_grid record;
        text_grid warnings;
        field_history history{};
    };
    explanation why_record(std::size_t row, int column) const;
    explanation why_warning(std::size_t row, int column) const;
    view view_of(const std::string& field, const field_history& history) const;
    page_lines all_sections();

    application_state& state_;
    prompts& person_;
    std::vector<std::string> field_names_;
    view shown_;
};

}  // namespace kel
