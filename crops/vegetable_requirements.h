// The requirement tables of vegetables, by residue group and soil.
#pragma once

#include "crops/requirement_table.h"

namespace kel {

/// What goes on in spring, the tenth for shallow soils and sands included.
requirement_table vegetable_requirements();

}  // namespace kel
