// The nitrogen recommended for a field, as the crop and the grassland module leave it for the field record.
#pragma once

#include <string>
#include <vector>

#include "core/assessment_store.h"

namespace kel {

struct recommendation {
    std::string field;
    std::string n_required;  // kg N/ha; a range has its high figure first: "140 - 110"
};

/// Puts each in place of every record that the file holds for its field; of two for one field the later one
/// stands, and one without a field is left out. Records of other fields stay. Belongs into a
/// save_transaction. Throws file_error.
void save_recommendations(const database& db, const std::vector<recommendation>& found);

}  // namespace kel
