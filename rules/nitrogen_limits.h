// The legal limits on nitrogen that more than one module judges.
#pragma once

namespace kel {

/// Total nitrogen of organic manures on a field in any twelve months, kg N/ha, without that of grazing
/// animals.
inline constexpr float rolling_field_limit_kg_per_ha = 250.0F;

}  // namespace kel
