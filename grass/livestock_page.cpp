#include "grass/livestock_page.h"

#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/livestock_units.h"

namespace kel {

namespace text = grass_messages;
namespace col = livestock_column;

namespace {

std::string units_text(const text_grid& livestock, int row, explanation* why = nullptr) {
    return default_text(livestock_units(livestock.number(row, col::time), livestock.number(row, col::number),
                                        livestock.number(row, col::ratio), why));
}

void recalculate(text_grid& livestock, int row) {
    livestock.set_cell(row, col::units, units_text(livestock, row));
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

std::optional<explanation> livestock_page::why(int row, int column) const {
    if (column != col::ratio && column != col::units) return std::nullopt;
    const auto cell = [&](int c) -> const std::string& { return farm_.livestock.cell(row, c); };
    const std::string& type = cell(col::type);
    explanation why((column == col::ratio ? "Livestock unit ratio" : "Livestock units") +
                    (type.empty() ? std::string{} : " of " + type));
    if (column == col::units) {
        why.input("Number of animals", cell(col::number), "", "livestock table");
        why.input("Part of the year on the farm", cell(col::time), "%", "livestock table");
        why.input("Ratio", cell(col::ratio), "LU per animal", "from the stock type");
    }
    if (type.empty() && cell(column).empty()) {
        why.set_missing("No stock type has been entered in this row.");
    } else if (column == col::units) {
        why.set_result(units_text(farm_.livestock, row, &why), "LU");
    } else {
        const auto ratio = lu_ratio(type, &why);
        why.set_result(ratio ? default_text(*ratio) : cell(col::ratio), "LU per animal");
    }
    return why;
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
