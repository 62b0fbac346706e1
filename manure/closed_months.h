// Whether applications lie in months that are closed to them. Cattle and pig farmyard manure never do.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/assessment_store.h"
#include "core/explanation.h"
#include "core/text_grid.h"
#include "rules/closed_period_lookups.h"

namespace kel {

/// `use` is what [Land] has of the row's field.
bool in_closed_month(const text_grid& table, int row, const std::optional<land_use>& use,
                     explanation* why = nullptr);
/// The same with what the file has of the field; without a file nothing is known of it.
bool in_closed_month(const std::string& path, const text_grid& table, int row, explanation* why = nullptr);

/// Rows of the table whose day is in a month that [Land] of the file has closed for their field, in row
/// order. Fields without a row are not among them. [Land] is read in one pass; throws file_error.
std::vector<int> rows_in_closed_months(const database& db, const text_grid& table);

}  // namespace kel
