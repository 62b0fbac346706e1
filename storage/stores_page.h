// The second page of Step 2: the table of the farm's slurry stores. Every change is written to the file at
// once, but for imported stores, which wait for the save of the third page. Rows count from 0 without the
// heading; the last row is the empty one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/grid_history.h"
#include "core/grid_rows.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "storage/store_form.h"
#include "storage/store_totals.h"

namespace kel {

class stores_page {
  public:
    stores_page(application_state& state, prompts& person);

    /// stores_table.
    const text_grid& stores() const { return stores_; }
    bool has_stores() const { return stores_.data_row_count() > 0; }

    /// Undo and redo of the stores since they were last read from the file; what is undone there is written
    /// at once, too.
    grid_history& history() { return history_; }

    /// cmdStores_add, "Add To List". True: the store stands in the table, and the boxes are emptied.
    bool add_store(const store_form& form);
    /// cmdStores_edit, "Edit Row": takes the row out of the table and gives what goes into the boxes.
    /// Nothing, after a message, for the empty row.
    std::optional<store_form> edit_store(int row);
    /// cmdStores_delete, "Delete Row". False, after a message, for the empty row.
    bool delete_store(int row);

    /// The stores of another assessment. False: no file was chosen. Throws file_error and leaves the table as
    /// it was. From then on the table is written by save_imported only.
    bool import_records(import_mode mode);
    bool imported() const { return imported_; }
    /// For the save of the third page: whether imported stores, if there are any, may go over what the file
    /// holds; their writing, within its save_transaction; and what follows once that is through.
    bool may_save_imported() const;
    void save_imported(const database& db) const;
    void set_saved(const database& db);

    /// The table as storage_cont1 read it from the file, in place of what stands here.
    void take(text_grid stores, const database& db);
    void take(text_grid stores);
    /// Writes the table to the file, unless it waits for save_imported. False if the person keeps what
    /// another program wrote there.
    bool save() { return keep(stores_); }

  private:
    bool refuse(const message& reason);
    bool acceptable(const store_form& form);
    bool write(const text_grid& stores);
    bool keep(text_grid stores);

    application_state& state_;
    prompts& person_;
    loaded_rows loaded_{{{"Slurry_store"}}};
    text_grid stores_;
    bool imported_ = false;  // rows that the file does not hold yet
    grid_history history_{stores_, imported_};
};

/// The empty row only.
text_grid empty_stores();
/// [Slurry_store] with an empty row behind it. With `percent_full` every store whose start level is not empty
/// gets that level.
text_grid load_stores(const database& db, const std::optional<std::string>& percent_full);
/// Replaces the rows of [Slurry_store]. Call it within a save_transaction.
void save_stores(const database& db, const text_grid& stores);

/// The row of [Misc] from one year to the next.
inline constexpr std::string_view december_percent_item = "December store percent full";

/// How full last year's stores were at the end of December, as the text of this year's start level: at most
/// 100, with at most 1 decimal. Nothing without a linked file or without a figure in it. Throws file_error
/// for a file that cannot be read.
std::optional<std::string> get_previous_percent_full(const application_state& state);
/// The same of a file that is open.
std::optional<std::string> get_previous_percent_full(const database& last_year);

}  // namespace kel
