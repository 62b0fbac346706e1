// Step 2, slurry storage and closed periods: three pages that are walked with Continue and Back. The answers
// of the first two are written on the way; the tables of the third only by save_storage.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/explanation.h"
#include "core/loaded_rows.h"
#include "core/prompts.h"
#include "reports/report_viewer.h"
#include "storage/dirty_water_page.h"
#include "storage/plan_page.h"
#include "storage/stores_page.h"

namespace kel {

enum class storage_page { water, stores, plan };

class storage_module {
  public:
    storage_module(application_state& state, prompts& person);

    storage_page page() const { return page_; }
    /// What stands above the page.
    std::string instruction() const;
    dirty_water_page& water() { return water_; }
    stores_page& stores() { return stores_; }
    plan_page& plan() { return plan_; }
    const dirty_water_page& water() const { return water_; }
    const stores_page& stores() const { return stores_; }
    const plan_page& plan() const { return plan_; }

    /// Opens on the first page with the answers of the assessment and works out the limits of the year.
    /// Throws file_error and leaves everything as it was when the file cannot be read.
    void storage_load_stuff();
    /// After the years dialog: loads, then walks on to the page that was showing.
    void reload();

    /// Continue of the first page: reads the rain, writes [Store_in], takes over last December's level and
    /// turns to the stores. False, after a message, with an answer missing. Throws file_error.
    bool storage_cont1();
    /// Continue of the second page, cmdStores_continue: writes [Slurry_store], fills the three tables and
    /// turns to them. False: there is no store, and the person stays. Throws file_error.
    bool storage_cont2();
    /// To the page before; nothing on the first.
    void back();

    /// Writes the three tables and December's level in one transaction. False: no file was chosen. Throws
    /// file_error; the file then holds its old rows.
    bool save_storage();
    /// Why a cell of one of its tables is what it is, or what follows from what is entered there. Throws
    /// file_error.
    std::optional<explanation> why(const text_grid& grid, std::size_t row, std::size_t column) const;
    /// The same of a result of the last page.
    std::optional<explanation> why(std::string_view result) const;

    /// Asks whether the module may close.
    bool close();
    /// Shows the report of the third page; nothing on the others. With a capacity the page shows the picture
    /// storage_chart_file, which the screen has written into the reports' folder before.
    void storage_report(report_desk& desk);

  private:
    bool write_first_page();
    void fill_plan(load_messages& told);

    application_state& state_;
    prompts& person_;
    storage_page page_ = storage_page::water;
    bool came_back_ = false;  // to the stores, from the third page
    monthly_values rain_mm_{};
    bool rain_missing_told_ = false;
    loaded_rows water_rows_{{{"Store_in"}}};
    loaded_rows plan_rows_;
    dirty_water_page water_;
    stores_page stores_;
    plan_page plan_;
};

}  // namespace kel
