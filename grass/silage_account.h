// The words in which the silage table tells how its figures came about. Without an explanation nothing is
// told.
#pragma once

#include <initializer_list>
#include <string>

#include "core/explanation.h"

namespace kel {

struct grazing_group;
struct silage_plan;
struct silage_row;
struct stocked_field;

/// What is worked out in a row of the silage table.
enum class silage_figure { grazing_lus, silage_lus, density, requirement, notes };

/// Whom the plan tells, and of which figure of which row.
struct silage_account {
    explanation* why = nullptr;
    std::size_t row = 0;
    silage_figure of = silage_figure::requirement;

    /// The explanation if it is about one of these figures of the row, else null.
    explanation* about(std::size_t of_row, std::initializer_list<silage_figure> figures) const;
};

// Livestock units (LU) are told with the digits that they are worked with, cells as they are shown.
void tell_group(const grazing_group& group, float ratio, bool listed, float units, explanation& why);
void tell_grazed(float units, const std::string& shown, explanation& why);
void tell_grazed_density(float units, const silage_row& row, explanation& why);
void tell_stored_rate(const std::string& rate, explanation& why);

/// What is left of the farm's livestock units for silage, and over how much land it is spread.
struct silage_share {
    float farm_lus;
    float grazed_lus;
    float own_rates_lus = 0;  // taken by the silage fields with a rate of their own
    float left_lus = 0;
    float area_without_rate_ha = 0;  // 0: every silage field has a rate of its own
    float rate_lus_per_ha = 0;
};
void tell_share(const silage_share& share, explanation& why);
void tell_shared_density(float rate, const std::string& shown, explanation& why);
void tell_silage_fed(const std::string& area_ha, float rate, const std::string& shown, explanation& why);

void tell_no_density(const silage_row& row, explanation& why);
/// A use or a site class without a line: what was worked out last stands.
void tell_no_line(const std::string& reason, float n_kg_per_ha, explanation& why);
void tell_whole_kg(const std::string& shown, explanation& why);

/// The farm's livestock units and the fields that they graze.
void tell_summary(float farm_lus, const silage_plan& plan, explanation& why);

/// One step of feed moved to (or, below 0, from) the field.
void tell_moved_feed(const std::string& before, double change_lu, const std::string& after, explanation& why);
void tell_moved_density(const silage_row& row, explanation& why);

}  // namespace kel
