// The third page of Step 2: the slurry production, land and spreading tables and the balance drawn from them,
// which is built anew after every change. Nothing reaches the file before save_storage.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/entry.h"
#include "core/grid_history.h"
#include "core/grid_rows.h"
#include "core/prompts.h"
#include "storage/land_plan.h"
#include "storage/production_grid.h"
#include "storage/storage_balance.h"

namespace kel {

enum class plan_tab { production, land, spreading };

enum class storage_box {
    none,
    stock,         // list of slurry_units()
    number,        // number box
    percent,       // number box
    month,         // two options, on_slurry_system and not_on_slurry_system
    field_use,     // two lists of field_uses() and the harvest date
    land_month,    // number box, hectares
    slurry_applic  // number box, cubic metres per hectare
};

class plan_page {
  public:
    plan_page(application_state& state, prompts& person);

    const text_grid& production() const { return production_; }
    const text_grid& land() const { return plan_.land; }
    const text_grid& spreading() const { return plan_.spreading; }
    const land_plan& fields() const { return plan_; }
    const store_totals& stores() const { return stores_; }
    /// balance_table, with what the chart and the warning panel show; nothing without a capacity: no chart.
    const std::optional<storage_balance>& balance() const { return balance_; }
    /// Undo and redo of its tables since the last load or save.
    grid_history& history() { return history_; }
    /// Whether its tables differ from what was loaded or last saved.
    bool unsaved() const { return history_.unsaved(); }

    plan_tab tab() const { return tab_; }
    /// The tab that is to stand in front when the person turns to `wanted`. Without a capacity the land table
    /// stays, with a message.
    plan_tab turn_to(plan_tab wanted);

    // Which box a click on a cell opens.
    opening click_production(int row, int column);
    opening click_land(int row, int column);
    opening click_spreading(int row, int column);

    // The entry boxes.
    outcome enter_stock(int row, const std::string& unit);
    outcome enter_number(int row, const std::string& text);
    outcome enter_percent(int row, const std::string& text);
    /// `text` is on_slurry_system or not_on_slurry_system.
    outcome enter_month(int row, int column, const std::string& text);
    /// The erase button of the boxes of stock, number and percentage. The empty line cannot be erased, and
    /// says so.
    outcome erase_line(int row);
    /// cmdStorage_crop: both crops as shown in the lists, empty when none is selected. Throws file_error.
    outcome enter_field_use(int row, const std::string& first_crop, const std::string& second_crop,
                            date harvest);
    /// cmdStorage_land_month.
    outcome enter_land_month(int row, int column, const std::string& text);
    /// cmdStorage_slurry_applic.
    outcome enter_slurry_applic(int row, int column, const std::string& text);
    /// Command10, "Get Slurry Data": the slurries of Step 3 in place of the rates. Throws file_error.
    void get_slurry_data();

    // The tables of another assessment; [Land] only in place of what is there. False: no file was chosen.
    // Throws file_error and leaves the tables as they were.
    bool import_production(import_mode mode);
    bool import_land();

    /// Whether there are entries that save_storage has not written.
    bool changed() const { return changed_; }
    /// Writes the stock and the fields. Call it within a save_transaction; set_saved once that is through.
    void save(const database& db) const;
    void set_saved();

    /// The tables as storage_cont2 read them.
    void take(text_grid production, land_plan plan);
    /// What the first two pages came to; builds totals and balance and puts the first tab in front.
    void begin(const store_totals& stores, const monthly_values& dirty_water);
    /// Empties the tables, as for an assessment to be read anew.
    void clear();

  private:
    opening field_use_box(int row) const;
    bool in_year(date harvest) const;
    date offered_harvest() const;
    /// The field's use as shown in the lists; empty texts for a field not assessed.
    crop_pair shown_field_use(int row) const;
    outcome set_stock_cell(int row, int column, const std::string& text);
    outcome entered();
    void changed_by_import();
    void rebuild();

    application_state& state_;
    prompts& person_;
    text_grid production_;
    land_plan plan_;
    store_totals stores_;
    std::optional<storage_balance> balance_;
    plan_tab tab_ = plan_tab::production;
    bool changed_ = false;
    bool land_imported_ = false;   // with soil and areas that are not those of the file
    std::optional<date> harvest_;  // entered last, of whatever field
    grid_history history_{production_, plan_.land, plan_.spreading, changed_, land_imported_};
};

}  // namespace kel
