#include "grass/livestock_page.h"

#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/livestock_units.h"

namespace kel {

namespace text = grass_messages;
namespace col = livestock_column;

namespace {

void recalculate(text_grid& livestock, int row) {
    const float units = livestock_units(livestock.number(row, col::time), livestock.number(row, col::number),
                                        livestock.number(row, col::ratio));
    livestock.set_cell(row, col::units, default_text(units));
}

}  // namespace

opening livestock_page::click(int row, int column) {
    const std::string& cell = farm_.livestock.cell(row, column);
    switch (column) {
        case col::type:
            return {livestock_box::type,
                    text::stock_caption,
                    {},
                    {{part_kind::list, cell, choices_of(grazing_stock_list(), &grazing_stock::type)}}};
        case col::number:
            return {livestock_box::number, text::stock_number_caption, {}, {{part_kind::number, cell}}};
        case col::time:
            return {livestock_box::time, text::stock_time_caption, {}, {{part_kind::number, cell, {}, "%"}}};
        default:
            return opens_none(person_, text::stock_calculation);
    }
}

outcome livestock_page::write(int row, int column, const std::string& text) {
    farm_.livestock.set_cell(row, column, text);
    recalculate(farm_.livestock, row);
    farm_.livestock.keep_entry_row(row);
    return box_closes();
}

outcome livestock_page::enter_type(int row, const std::string& type) {
    if (type.empty()) return refuse(person_, text::no_stock_type);
    if (const auto ratio = lu_ratio(type)) {
        farm_.working.lu_per_animal = *ratio;
        farm_.livestock.set_cell(row, col::ratio, default_text(*ratio));
    }
    return write(row, col::type, type);
}

outcome livestock_page::enter_number(int row, const std::string& entered) {
    if (!holds_number(entered)) return refuse(person_, text::no_stock_number);
    return write(row, col::number, entered);
}

outcome livestock_page::enter_time(int row, const std::string& entered) {
    if (!holds_number(entered)) return refuse(person_, text::no_stock_time);
    return write(row, col::time, entered);
}

// A type that is cleared leaves its ratio, and with it the units of the row.
outcome livestock_page::clear_cell(int row, int column) {
    farm_.livestock.set_cell(row, column, "");
    recalculate(farm_.livestock, row);
    return box_closes();
}

outcome livestock_page::erase_row(int row) {
    return erase_data_row(person_, farm_.livestock, row);
}

}  // namespace kel
