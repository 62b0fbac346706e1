// The reference tables of grassland: the nitrogen requirement by clover, site class and residue group, and
// what is added for the management. They lie in a database of their own, so that an adviser can put other
// figures in their place; what is read is therefore checked cell by cell.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/assessment_store.h"

namespace kel {

class grass_tables {
  public:
    /// Reads and checks both tables. Throws file_error, with the name of the cell, for a figure that is
    /// missing, that is there twice or that is no number.
    explicit grass_tables(const database& reference);

    /// Requirement in kg N/ha; `group_label` is "Group 1" to "Group 6". Nothing for a key that the table
    /// lacks, which counts as 0.
    std::optional<float> grass_rec_value(std::string_view clover, std::string_view site_class,
                                         std::string_view group_label) const;
    /// kg N/ha added to the requirement, or taken from it. Nothing for a key that the table lacks, which
    /// counts as 0.
    std::optional<float> grass_adjustment(std::string_view clover, std::string_view management,
                                          std::string_view cuts, std::string_view apps) const;

    /// Where the figures come from, as the tables themselves tell it; empty: they do not.
    const std::string& source() const { return source_; }

  private:
    std::map<std::string, float, std::less<>> requirements_;
    std::map<std::string, float, std::less<>> adjustments_;
    std::string source_;
};

}  // namespace kel
