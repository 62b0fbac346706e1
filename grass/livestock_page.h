// The livestock of the farm in livestock units. Rows count from 0 without the heading; the last row is the
// entry row.
#pragma once

#include "core/entry.h"
#include "core/explanation.h"
#include "core/prompts.h"
#include "grass/grass_farm.h"

namespace kel {

enum class livestock_box { none, type, number, time };

class livestock_page {
  public:
    livestock_page(prompts& person, grass_farm& farm) : person_(person), farm_(farm) {}

    const text_grid& table() const { return farm_.livestock; }

    opening click(int row, int column);
    /// Why a cell of the table is what it is; nothing for one that is entered.
    std::optional<explanation> why(int row, int column) const;

    // The entry boxes; each recalculates its row.
    outcome enter_type(int row, const std::string& type);
    outcome enter_number(int row, const std::string& text);
    outcome enter_time(int row, const std::string& text);

    outcome clear_cell(int row, int column);
    outcome erase_row(int row);

  private:
    outcome write(int row, int column, const std::string& text);

    prompts& person_;
    grass_farm& farm_;
};

}  // namespace kel
