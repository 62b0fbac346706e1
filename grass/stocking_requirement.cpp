#include "grass/stocking_requirement.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/explanation.h"
#include "core/numbers.h"

namespace kel {

namespace {

// kg N/ha = slope x LU/ha - offset. The grazing line of class 3 is the silage line of class 5; so it stands.
// Source: the stocking lines of the KEL assessment. A class in no row has no line.
struct line {
    float slope_kg_per_lu;
    float offset_kg_per_ha;
};
struct line_row {
    int site_class;
    line grazing;
    line silage;
};
// clang-format off
constexpr std::array<line_row, 5> lines{{
    // class  grazing: slope  offset     silage: slope  offset
    {1,       {250.0F,    475.0F},       {194.83F,    499.61F}},
    {2,       {286.27F,   490.59F},      {214.88F,    488.43F}},
    {3,       {336.96F,   498.91F},      {250.0F,     500.0F}},
    {4,       {375.63F,   477.66F},      {290.32F,    492.74F}},
    {5,       {420.38F,   460.83F},      {336.96F,    498.91F}},
}};

// A requirement above the figure takes this many cuts; the first row that it is above counts.
struct cuts_row {
    float above_kg_per_ha;
    std::string_view note;
};
constexpr std::array<cuts_row, 3> cuts{{
    {300.0F, "3 cuts"},
    {150.0F, "2 cuts"},
    {0.0F,   "1 cut"},
}};
// clang-format on

// One of the two columns of lines, and what it is called.
struct line_use {
    line line_row::*line_of;
    std::string_view name;
};
constexpr line_use grazing{&line_row::grazing, "grazing"};
constexpr line_use silage{&line_row::silage, "silage"};

void tell_line(const line_use& use, int site_class, const line& along, float lu_per_ha, explanation& why) {
    const std::string slope = default_text(along.slope_kg_per_lu);
    const std::string offset = default_text(along.offset_kg_per_ha);
    const float n_kg_per_ha = along.slope_kg_per_lu * lu_per_ha - along.offset_kg_per_ha;
    why.source("Stocking lines, " + std::string(use.name) + " on site class " + std::to_string(site_class) +
               ": " + slope + " x LU/ha - " + offset + " kg N/ha, never below 0");
    why.step(slope + " x " + default_text(lu_per_ha) + " - " + offset + " = " + default_text(n_kg_per_ha) +
             " kg N/ha" + (n_kg_per_ha < 0 ? ", which is below 0, so it is 0 kg N/ha" : ""));
}

std::optional<float> on_line(int site_class, float lu_per_ha, const line_use& use, explanation* why) {
    const auto* const row = std::ranges::find(lines, site_class, &line_row::site_class);
    if (row == lines.end()) return std::nullopt;
    const line& along = row->*use.line_of;
    if (why) tell_line(use, site_class, along, lu_per_ha, *why);
    return std::max(0.0F, along.slope_kg_per_lu * lu_per_ha - along.offset_kg_per_ha);
}

}  // namespace

std::optional<float> grazing_requirement(int site_class, float lu_per_ha, explanation* why) {
    return on_line(site_class, lu_per_ha, grazing, why);
}

std::optional<float> silage_requirement(int site_class, float lu_per_ha, explanation* why) {
    return on_line(site_class, lu_per_ha, silage, why);
}

std::optional<std::string_view> cuts_note(float n_kg_per_ha, explanation* why) {
    const auto* const row =
        std::ranges::find_if(cuts, [=](const cuts_row& c) { return n_kg_per_ha > c.above_kg_per_ha; });
    if (row == cuts.end()) {
        if (why) why->rule("A requirement of 0 brings no number of cuts.");
        return std::nullopt;
    }
    if (why)
        why->source("Cuts by requirement: " + default_text(n_kg_per_ha) + " kg N/ha is more than " +
                    default_text(row->above_kg_per_ha) + " kg N/ha: " + std::string(row->note));
    return row->note;
}

}  // namespace kel
