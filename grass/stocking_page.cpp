#include "grass/stocking_page.h"

#include <algorithm>

#include "core/numbers.h"
#include "grass/grass_messages.h"
#include "grass/sward_choices.h"

namespace kel {

namespace text = grass_messages;
namespace col = stocking_column;

opening stocking_page::click(int row, int column) {
    if (column == col::use) {
        const std::string& use = farm_.stocking.cell(row, column);
        const std::string_view chosen =
            use == grass_use::silage ? text::silage_choice : std::string_view(use);
        return {stocking_box::use,
                text::area_use_caption,
                {},
                {{part_kind::options,
                  std::string(chosen),
                  {std::string(text::grazing_choice), std::string(text::silage_choice)}}}};
    }
    if (column < col::first_group || column >= col::grazing_lus) return {};
    return click_group(row, column);
}

std::optional<explanation> stocking_page::why(int row, int column) const {
    const grid_column& described = farm_.stocking.columns()[static_cast<std::size_t>(column)];
    if (described.kind != column_kind::calculated) return std::nullopt;
    const std::string& field = farm_.stocking.cell(row, col::field);
    explanation why(std::string(farm_.stocking.columns()[static_cast<std::size_t>(column)].heading) +
                    " for " + field);
    const auto profile = std::ranges::find(farm_.fields, field, &farm_field::name);
    std::string result = farm_.stocking.cell(row, column);
    if (column == col::area && profile != farm_.fields.end()) {
        why.rule("The size that the farm profile has for the field, taken over when the field is selected.");
        result = profile->size;
    } else if (column == col::grazing_lus) {
        why.rule("Kept as it is stored; what grazes the field now is worked out in the silage table.");
    } else if (column == col::silage_rate) {
        why.rule(
            "The stocking density that was saved with the silage table. It goes before what the next silage "
            "table works out.");
    } else {
        why.rule("As the site table has it.");
    }
    const bool density = column == col::silage_rate;
    why.set_result(std::move(result), column == col::area ? "ha" : density ? "LU/ha" : "");
    return why;
}

opening stocking_page::click_group(int row, int column) {
    const std::string& use = farm_.stocking.cell(row, col::use);
    if (use == grass_use::silage) return opens_none(person_, text::not_grazed);
    if (use.empty()) return opens_none(person_, text::no_area_use);
    const std::string& cell = farm_.stocking.cell(row, column);
    switch (static_cast<group_part>((column - col::first_group) % columns_per_group)) {
        case group_part::type:
            if (!farm_.has_stock) return opens_none(person_, text::no_farm_stock);
            return {stocking_box::type,
                    text::group_type_caption,
                    {},
                    {{part_kind::list, cell, farm_.stock_types}}};
        case group_part::number:
            return {stocking_box::number, text::group_number_caption, {}, {{part_kind::number, cell}}};
        case group_part::time:
            break;
    }
    return {stocking_box::time, text::group_time_caption, {}, {{part_kind::number, cell, {}, "%"}}};
}

void stocking_page::write(int row, int column, const std::string& entered) {
    farm_.stocking.set_cell(row, column, entered);
    farm_.site.set_cell(row, site_column_of(column), entered);
}

outcome stocking_page::enter_use(int row, const std::string& choice) {
    if (choice == text::grazing_choice) write(row, col::use, std::string(grass_use::grazing));
    if (choice == text::silage_choice) {
        write(row, col::use, std::string(grass_use::silage));
        for (int c = col::first_group; c < col::grazing_lus; ++c)
            write(row, c, "");
    }
    return box_closes();
}

outcome stocking_page::enter_type(int row, int column, const std::string& type) {
    if (type.empty()) return refuse(person_, text::no_group_type);
    write(row, column, type);
    return box_closes();
}

outcome stocking_page::enter_number(int row, int column, const std::string& entered) {
    if (!holds_number(entered)) return refuse(person_, text::no_group_number);
    write(row, column, entered);
    return box_closes();
}

outcome stocking_page::enter_time(int row, int column, const std::string& entered) {
    if (!holds_number(entered)) return refuse(person_, text::no_group_time);
    write(row, column, entered);
    return box_closes();
}

outcome stocking_page::clear_cell(int row, int column) {
    write(row, column, "");
    return box_closes();
}

}  // namespace kel
