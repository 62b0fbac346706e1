// The way of stored rows into a grid: the load of a table, and the import of the same table from another
// assessment. Rows of fields that the farm profile lacks are left out and told.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/farm_fields.h"
#include "core/module_messages.h"
#include "core/prompts.h"
#include "core/text_grid.h"

namespace kel {

/// What a load has to tell, kept until the loaded rows stand: box by box up to the 20th, then one that says
/// how many more there were.
class load_messages {
  public:
    void add(message box);
    void tell(prompts& person) const;

  private:
    std::vector<message> boxes_;
    int more_ = 0;
};

/// Completes a row that has just been filled (recalculation, a second grid); `source` stands on its stored
/// row.
using row_completion = std::function<void(text_grid& grid, int row, const recordset& source)>;

/// What is the same in a module's load and its import.
struct row_rules {
    const known_fields* fields = nullptr;  // nothing: the rows belong to no field
    bool nameless_rows_pass = false;
    std::function<message(const std::string& field)> unknown = module_messages::field_does_not_exist;
    row_completion complete{};
    std::string_view field_column = "Field Area ID";
};

/// Adds the rows of the table to the end of the grid, in stored order. Those of unknown fields are left out,
/// each adding its message.
void append_rows(const database& db, std::string_view table, text_grid& grid, const row_rules& rules,
                 load_messages& told);
/// All of them, as they stand.
void append_rows(const database& db, std::string_view table, text_grid& grid);

/// Rows of a grid that are no stored rows: those above and those below them.
struct grid_frame {
    int above = 0;
    int below = 1;
};

enum class import_mode { add, over_write };

/// The rows of the same table in another assessment: below those of the grid or in their place. False, and
/// the grid as it was, for an empty table; over-writing with rows that are all left out leaves none. The rows
/// below come back empty.
bool import_rows(const database& source, std::string_view table, text_grid& grid, const grid_frame& frame,
                 import_mode mode, const row_rules& rules, load_messages& told);

}  // namespace kel
