// A farm opened in the land module, with the person scripted.
#pragma once

#include <string>
#include <vector>

#include "land/land_messages.h"
#include "land/land_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace says = land_messages;
namespace land_col = land_column;
using texts = std::vector<std::string>;

class land_test : public farm_test {
  protected:
    /// Opens the farm and loads it; there is no [Land] yet, so the grid holds the fields without areas.
    void open(const std::vector<test_field>& fields) {
        open_farm(fields);
        module.load_land_stuff();
    }
    std::string land(int row, int column) const { return module.land().cell(row, column); }
    static texts cells(const text_grid& grid, int row, int first, int last) {
        texts found;
        for (int c = first; c <= last; ++c)
            found.push_back(grid.cell(row, c));
        return found;
    }
    texts land_cells(int row, int first, int last) const { return cells(module.land(), row, first, last); }
    texts stock_line(int row) const { return cells(module.animals(), row, 0, 3); }
    texts stored(const std::string& table, const std::string& column) const {
        return column_of(state.assess_file, table, column);
    }
    /// Each sheep produces 9 kg N.
    void enter_sheep(int row, const std::string& number) {
        module.enter_stock(row, "1 sheep");
        module.enter_number(row, number);
    }

    scripted_prompts person;
    land_module module{state, person};
};

}  // namespace kel::test
