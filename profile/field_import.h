// The fields of another farm, added to the list or put in its place.
#pragma once

#include "core/assessment_store.h"
#include "core/grid_rows.h"
#include "core/text_grid.h"

namespace kel {

/// [Field Data] of `source` into the list. In adding, a field whose name is in the list is left out and told.
/// Those that come in count as new. False, and the list as it was, for a table without a row. Throws
/// file_error.
bool import_fields(const database& source, import_mode mode, text_grid& fields, load_messages& told);

}  // namespace kel
