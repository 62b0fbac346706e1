// How the farm's stock is fed from its grass: what the groups on the grazed fields take, and what is left
// over spread over the silage fields, each field with its density and the nitrogen that it needs for it. Feed
// can then be moved between silage fields in steps.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "grass/silage_account.h"

namespace kel {

inline constexpr int groups_per_field = 10;

/// A stock group on a field, as the stocking table holds it.
struct grazing_group {
    std::string type;
    std::string number;
    std::string percent;  // of the year
    bool operator==(const grazing_group&) const = default;
};

/// A field of the stocking table; figures are texts.
struct stocked_field {
    std::string field;
    std::string area_ha;
    std::string site_class;
    std::string use;
    std::array<grazing_group, groups_per_field> groups{};
    std::string silage_rate{};  // stored LU/ha; empty: none
    bool operator==(const stocked_field&) const = default;
};

/// A row of the silage table, all as text.
struct silage_row {
    std::string field{};
    std::string use{};
    std::string lus_fed_by_grazing{};
    std::string lus_fed_from_silage{};
    std::string lus_per_ha{};
    std::string n_kg_per_ha{};
    std::string area_ha{};
    std::string notes{};
    bool operator==(const silage_row&) const = default;
};

/// What was worked with last. It stands where a text has no figure of its own: a stock type that the list
/// lacks, silage without an area to spread it over, a class or a use without a line.
struct silage_working {
    float lu_per_animal = 0;
    float silage_rate = 0;  // LU/ha
    float n_kg_per_ha = 0;
};

struct silage_plan {
    std::vector<silage_row> rows;
    float grazed_lus = 0;
    float lus_left_for_silage = 0;  // below 0 where more is grazed than the farm has
    silage_working working{};
    /// Fields without an area, whose density cannot be worked out; their cells are empty.
    std::vector<std::string> without_area;
};

/// The whole table for the farm's LU, one row a field. A field that is not silage counts as grazed, and with
/// a use that has no line of its own it shows the requirement of the row above. A stored rate goes before
/// what is worked out; the feed from silage always goes by the rate worked with last. `before` is what the
/// plan before this one worked with.
silage_plan fill_silage_table(const std::vector<stocked_field>& fields, float farm_lus,
                              const silage_working& before = {}, const silage_account& account = {});

inline constexpr double feed_step_lu = 0.1;
/// Takes one step of feed from every row of the one field and gives it to the other. `site_classes` has the
/// class of each row. Refills `without_area` with the rows that could not be worked out.
void move_feed(silage_plan& plan, const std::string& decrease, const std::string& increase,
               const std::vector<int>& site_classes, const silage_account& account = {});

}  // namespace kel
