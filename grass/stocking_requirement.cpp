#include "grass/stocking_requirement.h"

#include <algorithm>
#include <array>

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

std::optional<float> on_line(int site_class, float lu_per_ha, line line_row::*use) {
    const auto* const row = std::ranges::find(lines, site_class, &line_row::site_class);
    if (row == lines.end()) return std::nullopt;
    const line& along = row->*use;
    return std::max(0.0F, along.slope_kg_per_lu * lu_per_ha - along.offset_kg_per_ha);
}

}  // namespace

std::optional<float> grazing_requirement(int site_class, float lu_per_ha) {
    return on_line(site_class, lu_per_ha, &line_row::grazing);
}

std::optional<float> silage_requirement(int site_class, float lu_per_ha) {
    return on_line(site_class, lu_per_ha, &line_row::silage);
}

std::optional<std::string_view> cuts_note(float n_kg_per_ha) {
    const auto* const row =
        std::ranges::find_if(cuts, [=](const cuts_row& c) { return n_kg_per_ha > c.above_kg_per_ha; });
    if (row == cuts.end()) return std::nullopt;
    return row->note;
}

}  // namespace kel
