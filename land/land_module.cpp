#include "land/land_module.h"

#include <algorithm>
#include <utility>

#include "core/carried_columns.h"
#include "core/module_messages.h"
#include "core/module_save.h"
#include "core/numbers.h"
#include "land/land_account.h"
#include "land/land_messages.h"
#include "land/land_report.h"
#include "land/stock_nitrogen.h"

namespace kel {

namespace {

int other_of_pair(int column) {
    return column == land_column::grass ? land_column::not_in_grass : land_column::grass;
}

}  // namespace

land_module::land_module(application_state& state, prompts& person)
    : state_(state),
      person_(person),
      land_(empty_land_grid()),
      animals_(empty_stock_grid()),
      loaded_({{"Land", own_columns(land_.columns())}, {"Land_animals"}}) {}

void land_module::load_land_stuff() {
    text_grid land = empty_land_grid();
    text_grid animals = empty_stock_grid();
    std::vector<std::string> names;
    load_messages told;
    float constant = working_constant_;
    loaded_rows loaded = loaded_;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        loaded.remember(db);
        const std::vector<farm_field> fields = read_farm_fields(db);
        names = kel::field_names(fields);
        land = load_land(db, fields, told);
        if (land.data_row_count() == 0) land = fields_to_grid(fields);
        animals = load_stock(db, constant);
    }
    imported_from_.reset();
    land_ = std::move(land);
    animals_ = std::move(animals);
    loaded_ = std::move(loaded);
    field_names_ = std::move(names);
    working_constant_ = constant;
    result_.reset();
    history_.begin_anew();
    told.tell(person_);
}

opening land_module::click_land(int row, int column) {
    using namespace land_messages;
    const auto opens = [&](land_box box, std::string_view caption, std::string_view instruction) {
        return opening(box, caption, instruction, {{part_kind::number, land_.cell(row, column)}});
    };
    switch (column) {
        case land_column::field:
            return {land_box::field,
                    field_caption,
                    field_instruction,
                    {{part_kind::list, land_.cell(row, column), field_names_}}};
        case land_column::grass:
            return opens(land_box::area, grass_caption, grass_instruction);
        case land_column::not_in_grass:
            return opens(land_box::area, not_in_grass_caption, not_in_grass_instruction);
        case land_column::buffer:
            return opens(land_box::deduction, deduction_caption, buffer_instruction);
        case land_column::slope:
            return opens(land_box::deduction, deduction_caption, slope_instruction);
        case land_column::other_deduction:
            return opens(land_box::deduction, deduction_caption, other_deduction_instruction);
        default:
            return opens_none(person_, module_messages::calculation);
    }
}

opening land_module::click_animals(int row, int column) {
    using namespace land_messages;
    const std::string& text = animals_.cell(row, column);
    switch (column) {
        case stock_column::stock:
            return {land_box::stock,
                    stock_caption,
                    stock_box_instruction,
                    {{part_kind::list, text, choices_of(stock_types(), &stock_type::name)}}};
        case stock_column::number:
            return {land_box::number, number_caption, number_instruction, {{part_kind::number, text}}};
        default:
            return opens_none(person_, module_messages::calculation);
    }
}

outcome land_module::enter_field(int row, const std::string& name) {
    if (name.empty()) return refuse(person_, land_messages::no_field_id);
    if (land_.in_other_row(row, land_column::field, name))
        return refuse(person_, land_messages::field_in_grid);
    // Read before the first cell is written: a file that cannot be read must leave the row as it was.
    auto [soil, size] = read_profile_texts(state_.assess_file, name).value_or(profile_texts{});
    land_.set_cell(row, land_column::field, name);
    land_.keep_entry_row(row);
    land_.set_cell(row, land_column::soil, std::move(soil));
    land_.set_cell(row, land_column::total_area, std::move(size));
    recalculate_land_row(land_, row);
    return box_closes();
}

void land_module::set_area(int row, int column, const area_pair& areas) {
    land_.set_cell(row, column, areas.entered);
    land_.set_cell(row, other_of_pair(column), areas.rest);
    recalculate_land_row(land_, row);
}

outcome land_module::enter_area(int row, int column, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, land_messages::no_area);
    const area_pair areas =
        split_field_area(leading_single(text), land_.number(row, land_column::total_area));
    if (areas.cut_to_field) person_.tell(land_messages::area_adjusted);
    set_area(row, column, areas);
    return box_closes();
}

outcome land_module::enter_deduction(int row, int column, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, land_messages::no_deduction);
    const float room = room_for_deduction(land_, row, column);
    const bool too_much = leading_single(text) > room;
    if (too_much) person_.tell(land_messages::figure_amended);
    land_.set_cell(row, column, too_much ? shortest_text(room) : text);
    recalculate_land_row(land_, row);
    return box_closes();
}

outcome land_module::enter_stock(int row, const std::string& type) {
    if (type.empty()) return refuse(person_, land_messages::no_livestock);
    animals_.set_cell(row, stock_column::stock, type);
    recalculate_stock_row(animals_, row, working_constant_);
    animals_.keep_entry_row(row);
    return box_closes();
}

outcome land_module::enter_number(int row, const std::string& text) {
    if (!holds_number(text)) return refuse(person_, land_messages::no_livestock_number);
    animals_.set_cell(row, stock_column::number, text);
    recalculate_stock_row(animals_, row, working_constant_);
    animals_.keep_entry_row(row);
    return box_closes();
}

outcome land_module::clear_field(int row) {
    land_.set_cell(row, land_column::field, "");
    recalculate_land_row(land_, row);
    return box_closes();
}

outcome land_module::clear_area(int row, int column) {
    set_area(row, column, split_field_area(0, land_.number(row, land_column::total_area)));
    return box_closes();
}

outcome land_module::clear_deduction(int row, int column) {
    land_.set_cell(row, column, "");
    recalculate_land_row(land_, row);
    return box_closes();
}

outcome land_module::clear_stock(int row) {
    animals_.set_cell(row, stock_column::stock, "");
    recalculate_stock_row(animals_, row, working_constant_);
    return box_closes();
}

outcome land_module::clear_number(int row) {
    animals_.set_cell(row, stock_column::number, "");
    recalculate_stock_row(animals_, row, working_constant_);
    return box_closes();
}

outcome land_module::erase_land_row(int row) {
    if (imported_from_ && row < *imported_from_) --*imported_from_;
    return erase_data_row(person_, land_, row);
}

outcome land_module::erase_stock_row(int row) {
    return erase_data_row(person_, animals_, row);
}

bool land_module::import_land(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    load_messages told;
    const int first = mode == import_mode::over_write ? 0 : land_.data_row_count();
    if (kel::import_land(*source, mode, land_, told))
        imported_from_ = std::min(imported_from_.value_or(first), first);
    told.tell(person_);
    return true;
}

bool land_module::import_animals(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    float constant = working_constant_;
    import_stock(*source, mode, animals_, constant);
    working_constant_ = constant;
    return true;
}

void land_module::calculate() {
    result_ = compare_with_limits(sums_of(land_, animals_));
}

std::optional<explanation> land_module::why(const text_grid& grid, std::size_t row,
                                            std::size_t column) const {
    const auto at = [](std::size_t i) { return static_cast<int>(i); };
    if (&grid == &land_) return why_land_cell(land_, at(row), at(column), state_.assess_file);
    return why_stock_cell(animals_, at(row), at(column));
}

std::optional<explanation> land_module::why(std::string_view result) const {
    if (!result_) return std::nullopt;
    return why_land_result(result, land_, animals_);
}

void land_module::back() {
    result_.reset();
}

bool land_module::save() {
    const auto target = file_to_save(state_, person_);
    if (!target) return false;
    text_grid land = land_;
    fill_deductions(land);
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    take_carried(file.db(), "Land", land, imported_from_.value_or(land.data_row_count()));
    save_land(file.db(), land);
    save_stock(file.db(), animals_);
    file.commit();
    land_ = std::move(land);
    imported_from_.reset();
    history_.begin_anew();
    return true;
}

bool land_module::close() {
    return person_.ask(land_messages::close_module) != answer::no;
}

void land_module::report(report_desk& desk) {
    if (result_)
        generate_report(desk, land_report_file, land_report(*result_, land_, animals_), screen_id::land,
                        screen_id::land);
}

}  // namespace kel
