#include "composting/composting_module.h"

#include <utility>

#include "composting/composting_grid.h"
#include "composting/composting_messages.h"
#include "core/module_messages.h"
#include "core/module_save.h"
#include "core/numbers.h"

namespace kel {

namespace text = composting_messages;
namespace col = composting_column;

composting_module::composting_module(application_state& state, prompts& person)
    : state_(state), person_(person), calculations_(empty_composting_grid()) {}

composting_shown composting_module::shown() const {
    if (!worked_) return {};
    const auto& [inputs, result] = *worked_;
    return {.residue = inputs.residue,
            .soil_n = inputs.soil_n,
            .waste = std::string(inputs.waste == straw_waste ? text::straw_option : text::sludge_option),
            .waste_n = inputs.waste_n,
            .rate = text::rate_text(result.rate, inputs.waste),
            .release = text::release_text(result.release),
            .note = std::string(text::note(result.release))};
}

std::string_view composting_module::instruction() const {
    return panel_open_ ? text::panel_instruction : text::instruction;
}

std::string composting_module::panel_caption() const {
    if (!worked_) return std::string(text::panel_caption_alone);
    const composting_inputs& from = worked_->inputs;
    return text::panel_caption(from.residue, from.soil_n, from.waste, from.waste_n);
}

void composting_module::get_straw_data() {
    text_grid calculations = empty_composting_grid();
    std::vector<std::string> names;
    load_messages told;
    loaded_rows loaded = loaded_;
    if (!state_.assess_file.empty()) {
        const database db(state_.assess_file);
        const std::vector<farm_field> fields = read_farm_fields(db);
        names = field_names(fields);
        loaded.remember(db);
        calculations = load_calculations(db, fields, told);
    }
    loaded_ = std::move(loaded);
    calculations_ = std::move(calculations);
    field_names_ = std::move(names);
    history_.begin_anew();
    told.tell(person_);
}

bool composting_module::refuse_calculation(const message& reason) {
    person_.tell(reason);
    return false;
}

bool composting_module::calculate(const composting_inputs& inputs) {
    inputs_ = inputs;
    if (inputs.residue.empty()) return refuse_calculation(text::no_residue);
    if (!holds_number(inputs.soil_n)) return refuse_calculation(text::no_soil_n);
    if (!holds_number(inputs.waste_n)) return refuse_calculation(text::no_content);
    const float waste_n = leading_single(inputs.waste_n);
    if (waste_n >= high_n_percent && person_.ask(text::high_content) == answer::no) return false;
    const auto residue = find_residue(inputs.residue);
    if (!residue) return refuse_calculation(text::unknown_residue);
    auto result = compost(residue->n_kg_per_ha, leading_single(inputs.soil_n), inputs.waste, waste_n);
    if (!result) return refuse_calculation(text::no_quantity);
    worked_ = worked_out{inputs, *std::move(result)};
    return true;
}

void composting_module::view_database() {
    if (worked_) person_.tell(text::how_to_add);
    get_straw_data();
    panel_open_ = true;
}

opening composting_module::add_result() {
    if (!worked_) return opens_none(person_, text::no_result);
    return {composting_box::field,
            text::field_caption,
            text::field_instruction,
            {{part_kind::drop_down, {}, field_names_}}};
}

outcome composting_module::enter_field(const std::string& name) {
    if (name.empty()) return refuse(person_, text::no_field_id);
    const auto& [inputs, result] = *worked_;
    const int row = calculations_.data_row_count();
    const std::pair<int, std::string> cells[] = {
        {col::field, name},
        {col::soil_n, inputs.soil_n},
        {col::residue, inputs.residue},
        {col::waste, inputs.waste},
        {col::waste_n, inputs.waste_n},
        {col::rate, result.rate},
        {col::release, result.release},
    };
    for (const auto& [column, text] : cells)
        calculations_.set_cell(row, column, text);
    calculations_.keep_entry_row(row);
    return box_closes();
}

bool composting_module::edit_row(int row) {
    if (row < 0 || row >= calculations_.data_row_count()) {
        person_.tell(text::no_calculation_in_row);
        return false;
    }
    const auto cell = [&](int column) { return calculations_.cell(row, column); };
    const auto number = [&](int column) { return default_text(calculations_.number(row, column)); };
    inputs_ = {cell(col::residue), cell(col::soil_n), cell(col::waste), cell(col::waste_n)};
    worked_ = worked_out{inputs_, {number(col::rate), number(col::release)}};
    leave_panel();
    return true;
}

void composting_module::delete_row(int row) {
    erase_data_row(person_, calculations_, row);
}

bool composting_module::import_records(import_mode mode) {
    const auto source = open_import(state_, person_, mode);
    if (!source) return false;
    load_messages told;
    import_calculations(*source, mode, calculations_, told);
    told.tell(person_);
    return true;
}

bool composting_module::save() {
    const auto target = file_to_save(state_, person_, text::cannot_save);
    if (!target) return false;
    module_save file(state_, person_, loaded_, *target);
    if (!file) return false;
    save_calculations(file.db(), calculations_);
    file.commit();
    history_.begin_anew();
    return true;
}

bool composting_module::close_panel() {
    if (!save()) return false;
    leave_panel();
    return true;
}

void composting_module::leave_panel() {
    calculations_ = empty_composting_grid();
    panel_open_ = false;
    history_.begin_anew();
}

std::optional<explanation> composting_module::why(const text_grid& grid, std::size_t row,
                                                  std::size_t column) const {
    const auto cell = [&](int c) { return grid.cell(static_cast<int>(row), c); };
    if (column != col::rate && column != col::release) return std::nullopt;
    return why_recorded({cell(col::residue), cell(col::soil_n), cell(col::waste), cell(col::waste_n)},
                        column == col::rate ? composting_figure::rate : composting_figure::release);
}

std::optional<explanation> composting_module::why(std::string_view result) const {
    if (!worked_) return std::nullopt;
    return why_shown(result, worked_->inputs);
}

bool composting_module::close() {
    return person_.ask(module_messages::close_module) != answer::no;
}

// Step 1 is the screen that is hidden; this one stays open behind the viewer.
void composting_module::print_result(report_desk& desk) {
    if (worked_)
        generate_report(desk, composting_result_file, composting_result_report(shown()), screen_id::land,
                        screen_id::straw);
}

void composting_module::report(report_desk& desk) {
    generate_report(desk, composting_report_file, composting_report(calculations_), screen_id::land,
                    screen_id::straw);
}

}  // namespace kel
