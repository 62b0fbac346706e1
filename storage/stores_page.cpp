#include "storage/stores_page.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/assessment_files.h"
#include "core/grid_rows.h"
#include "core/module_save.h"
#include "core/numbers.h"
#include "core/record_import.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr std::string_view stored_table = "Slurry_store";

// The table of stores. The file's column of the diameter is named after the circumference.
// clang-format off
constexpr std::array<grid_column, 9> columns{{
    // heading                 stored column          kind     width
    {"Store Name",             "Store_name",          entered, 22},
    {"Shape",                  "Store_shape",         entered, 22},
    {"Depth (m)",              "Store_depth",         entered, 10},
    {"Length (m)",             "Store_length",        entered, 10},
    {"Width (m)",              "Store_width",         entered, 10},
    {"Diameter (m)",           "Store_circumference", entered, 10},
    {"Bank Angle (o)",         "Store_angle",         entered, 10},
    {"% Full At Year Start",   "Store_%",             entered, 12},
    {"Drainage Area (sq m)",   "Rain_area",           entered, 12},
}};
// clang-format on
static_assert(columns[store_column::diameter].stored == "Store_circumference" &&
              columns[store_column::area].stored == "Rain_area");

// The first thing that is missing; nothing for a complete store.
const message* size_missing(const store_form& form) {
    using namespace storage_messages;
    const offered_boxes boxes = boxes_of_shape(form.shape);
    const store_size size = size_of(form);
    if (!boxes.depth) return &no_store_shape;
    const bool tank = boxes.length_and_width && !boxes.angle;
    if (size.depth_m == 0) return tank ? &no_tank_depth : &no_store_depth;
    if (boxes.length_and_width && size.length_m == 0) return &no_store_length;
    if (boxes.length_and_width && size.width_m == 0) return &no_store_width;
    if (boxes.diameter && size.diameter_m == 0) return &no_store_diameter;
    if (boxes.angle && size.bank_angle_degrees == 0) return &no_bank_angle;
    return nullptr;
}

void put_store(text_grid& stores, int row, const store_form& form) {
    const offered_boxes boxes = boxes_of_shape(form.shape);
    stores.set_cell(row, store_column::name, form.name);
    stores.set_cell(row, store_column::shape, form.shape);
    stores.set_cell(row, store_column::depth, form.depth);
    if (boxes.length_and_width) {
        stores.set_cell(row, store_column::length, form.length);
        stores.set_cell(row, store_column::width, form.width);
    }
    if (boxes.diameter) stores.set_cell(row, store_column::diameter, form.diameter);
    if (boxes.angle) stores.set_cell(row, store_column::angle, form.angle);
    stores.set_cell(row, store_column::percent, form.percent);
    stores.set_cell(row, store_column::area, form.area);
}

store_form form_of(const text_grid& stores, int row) {
    return {
        .name = stores.cell(row, store_column::name),
        .shape = stores.cell(row, store_column::shape),
        .depth = stores.cell(row, store_column::depth),
        .length = stores.cell(row, store_column::length),
        .width = stores.cell(row, store_column::width),
        .diameter = stores.cell(row, store_column::diameter),
        .angle = stores.cell(row, store_column::angle),
        .percent = stores.cell(row, store_column::percent),
        .area = stores.cell(row, store_column::area),
    };
}

}  // namespace

stores_page::stores_page(application_state& state, prompts& person)
    : state_(state), person_(person), stores_(empty_stores()) {
    history_.on_restored([this] { save(); });
}

bool stores_page::refuse(const message& reason) {
    person_.tell(reason);
    return false;
}

bool stores_page::acceptable(const store_form& form) {
    using namespace storage_messages;
    if (!form.name.empty() && stores_.find(store_column::name, form.name) >= 0)
        return refuse(store_name_exists);
    if (const message* missing = size_missing(form)) return refuse(*missing);
    if (!holds_number(form.percent)) return refuse(no_store_percent);
    if (form.name.empty()) return refuse(no_store_name);
    if (!holds_number(form.area)) return refuse(no_drainage_area);
    return true;
}

// The file first: when it cannot be written, the table still shows what the file holds.
bool stores_page::write(const text_grid& stores) {
    if (state_.assess_file.empty()) return true;
    module_save file(state_, person_, loaded_, {state_.assess_file, {}});
    if (!file) return false;
    save_stores(file.db(), stores);
    file.commit();
    return true;
}

bool stores_page::keep(text_grid stores) {
    if (!imported_ && !write(stores)) return false;
    stores_ = std::move(stores);
    return true;
}

bool stores_page::add_store(const store_form& form) {
    if (!acceptable(form)) return false;
    text_grid stores = stores_;
    const int row = stores.row_count() - 1;
    put_store(stores, row, form);
    stores.add_row();
    return keep(std::move(stores));
}

std::optional<store_form> stores_page::edit_store(int row) {
    if (row == stores_.row_count() - 1) {
        person_.tell(storage_messages::empty_store_not_edited);
        return std::nullopt;
    }
    store_form form = form_of(stores_, row);
    text_grid stores = stores_;
    stores.erase_row(row);
    if (!keep(std::move(stores))) return std::nullopt;
    return form;
}

bool stores_page::delete_store(int row) {
    if (row == stores_.row_count() - 1) return refuse(storage_messages::empty_store_not_deleted);
    text_grid stores = stores_;
    stores.erase_row(row);
    return keep(std::move(stores));
}

void stores_page::take(text_grid stores, const database& db) {
    loaded_.remember(db);
    take(std::move(stores));
}

bool stores_page::may_save_imported() const {
    return !imported_ || loaded_.may_be_replaced(state_.assess_file, person_);
}

void stores_page::save_imported(const database& db) const {
    if (imported_) save_stores(db, stores_);
}

void stores_page::set_saved(const database& db) {
    if (std::exchange(imported_, false)) loaded_.remember(db);
    history_.begin_anew();
}

bool stores_page::import_records(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    load_messages none;
    imported_ = import_rows(source->file, stored_table, stores_, {}, mode, {}, none) || imported_;
    return true;
}

void stores_page::take(text_grid stores) {
    stores_ = std::move(stores);
    imported_ = false;
    history_.begin_anew();
}

text_grid empty_stores() {
    text_grid stores(columns);
    stores.add_row();
    return stores;
}

text_grid load_stores(const database& db, const std::optional<std::string>& percent_full) {
    text_grid stores(columns);
    append_rows(db, stored_table, stores);
    for (int row = 0; percent_full && row < stores.row_count(); ++row)
        if (!stores.cell(row, store_column::percent).empty())
            stores.set_cell(row, store_column::percent, *percent_full);
    stores.add_row();
    return stores;
}

void save_stores(const database& db, const text_grid& stores) {
    save_grid(db, stored_table, stores, stores.data_row_count());
}

std::optional<std::string> get_previous_percent_full(const application_state& state) {
    if (state.prev1_file.empty()) return std::nullopt;
    return get_previous_percent_full(database(state.prev1_file));
}

std::optional<std::string> get_previous_percent_full(const database& last_year) {
    const auto stored = last_year.lookup("Value", "Misc", "Item", december_percent_item);
    if (!stored) return std::nullopt;
    return shortest_text(round_half_even(std::min(leading_single(*stored), 100.0F), 1));
}

}  // namespace kel
