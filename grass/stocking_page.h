// The stocking table: which field is grazed by what, and which is cut for silage. Its rows are those of the
// site table, without an entry row; what is entered here stands in both.
#pragma once

#include "core/entry.h"
#include "core/explanation.h"
#include "core/prompts.h"
#include "grass/grass_farm.h"

namespace kel {

enum class stocking_box { none, use, type, number, time, change_database };

class stocking_page {
  public:
    stocking_page(prompts& person, grass_farm& farm) : person_(person), farm_(farm) {}

    const text_grid& table() const { return farm_.stocking; }
    /// Shows the rows of the site table as they now are.
    void fill() { farm_.stocking = stocking_of(farm_.site); }

    opening click(int row, int column);
    /// Why a cell of the table is what it is; nothing for one that is entered.
    std::optional<explanation> why(int row, int column) const;

    /// Nothing chosen changes nothing.
    outcome enter_use(int row, const std::string& choice);
    outcome enter_type(int row, int column, const std::string& type);
    outcome enter_number(int row, int column, const std::string& text);
    outcome enter_time(int row, int column, const std::string& text);
    outcome clear_cell(int row, int column);

  private:
    opening click_group(int row, int column);
    void write(int row, int column, const std::string& text);

    prompts& person_;
    grass_farm& farm_;
};

}  // namespace kel
