// The words in which the requirement of a crop tells how it came about. The rules call them beside their
// arithmetic when somebody asks; without an explanation nothing is told.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/explanation.h"

namespace kel {

struct base_requirement;
struct crop_row;
struct rained_on;
struct requirement_cell;

/// The figures of a row of results.
enum class crop_figure { spring, seedbed, total, requirement, manures, notes };

/// Whom the rules tell, and of which of the figures.
struct crop_account {
    explanation* why = nullptr;
    crop_figure of = crop_figure::total;

    /// The explanation if it is about one of these figures, else null.
    explanation* about(std::initializer_list<crop_figure> figures) const;
};

/// The crop's name, or the code of one without.
std::string crop_words(std::string_view code);

void tell_requirement_keys(const crop_row& row, explanation& why);
/// `table` names the table of the cell: "Requirement table of vegetables".
void tell_requirement_cell(std::string_view table, std::string_view crop, int residue_group,
                           std::string_view soil, const requirement_cell& cell, explanation& why);
/// That the tables have nothing for the row, and what it goes on from.
void tell_carried_requirement(const crop_row& row, const base_requirement& working, explanation& why);

// Which advice the crop and its market bring, and whether a vegetable's requirement brings that on base
// dressings.
void tell_split_advice(const crop_row& row, bool split, bool any, explanation& why);
void tell_base_dressing(double total_kg_per_ha, double limit_kg_per_ha, explanation& why);

/// `place` is that of the adjustment in its row; the figures are kg/ha as text.
void tell_adjustment(const crop_row& row, std::size_t place, const std::string& added,
                     const std::string& before, const std::string& after, explanation& why);
/// `part` is the spring amount that the percentage works on.
void tell_variety(const crop_row& row, const std::string& before, const std::string& part,
                  const std::string& after, explanation& why);
/// Which adjustments are empty or 0.
void tell_idle_adjustments(const crop_row& row, explanation& why);

// An adjusted sum, kg/ha as text.
void tell_floor(const std::string& sum, explanation& why);
void tell_rounding(const std::string& rounded, explanation& why);
/// `text` is what the cell shows for a figure with a range above it.
void tell_range(const std::string& range, const std::string& text, explanation& why);
void tell_manures(const crop_row& row, const std::string& sum, explanation& why);

// What a rainfall rule came to: not wet, a figure of its table, none in the table, or a row without its
// cells.
enum class rain_outcome { dry, figure, kept, row_incomplete };
struct rain_words {
    std::string_view season;  // "Winter rainfall"
    std::string_view wet;     // "More than 450 mm (18 inches)"
    std::string_view dry;
};
/// `months` are the summands, mm; `high`: the sum is above the bound.
void tell_winter_default(const std::string& months, const std::string& sum_mm, const std::string& bound_mm,
                         bool high, explanation& why);
void tell_rain(const rain_words& words, std::string_view status, rain_outcome outcome, const rained_on& row,
               int kg_per_ha, explanation& why);

}  // namespace kel
