#include "rules/manure_catalogue.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace kel {

namespace {

constexpr auto solid = manure_kind::solid;
constexpr auto slurry = manure_kind::slurry;
constexpr std::string_view tonne = "tonne";
constexpr std::string_view cubic_m = "cubic m";
constexpr incorporation_choices none = no_choice;

// Manure types: position, name, kind, unit applied, default N content (kg total N per tonne or cubic metre),
// incorporation offered, manure code for early and for late incorporation. Source: the manure list of the KEL
// assessment. The codes of slurries run over the three dry matter classes first, early then late. A name in
// no row is no manure.
// clang-format off
constexpr std::array<manure_type, 23> catalogue{{
//   no  manure type                                               kind    unit     N      incorp.   early late
    { 1, "Cattle FYM stored under cover",                            solid,  tonne,   "6",   hours_24,  1,  2},
    { 2, "Cattle FYM stored uncovered, outside",                     solid,  tonne,   "5",   hours_24,  3,  4},
    { 3, "Pig FYM stored under cover",                               solid,  tonne,   "7",   hours_24,  5,  6},
    { 4, "Pig FYM stored uncovered, outside",                        solid,  tonne,   "6",   hours_24,  7,  8},
    { 5, "Layer manure stored under cover",                          solid,  tonne,   "16",  hours_24,  9, 10},
    { 6, "Layer manure stored uncovered",                            solid,  tonne,   "14",  hours_24, 11, 12},
    { 7, "Broiler/Turkey litter stored under cover",                 solid,  tonne,   "30",  hours_24, 13, 14},
    { 8, "Broiler/Turkey litter stored uncovered",                   solid,  tonne,   "25",  hours_24, 15, 16},
    { 9, "Dairy slurry - high dry matter (10%)",                     slurry, cubic_m, "4.0", hours_6,  17, 20},
    {10, "Dairy slurry - medium dry matter (6%)",                    slurry, cubic_m, "3.0", hours_6,  18, 21},
    {11, "Dairy slurry - low dry matter (2%)",                       slurry, cubic_m, "1.5", hours_6,  19, 22},
    {12, "Young cattle slurry (250kg) - high dry matter (10%)",      slurry, cubic_m, "5.0", hours_6,  23, 26},
    {13, "Young cattle slurry (250kg) - medium dry matter (6%)",     slurry, cubic_m, "3.5", hours_6,  24, 27},
    {14, "Young cattle slurry (250kg) - low dry matter (2%)",        slurry, cubic_m, "2.0", hours_6,  25, 28},
    {15, "Fattening cattle slurry (400kg) - high dry matter (10%)",  slurry, cubic_m, "3.5", hours_6,  29, 32},
    {16, "Fattening cattle slurry (400kg) - medium dry matter (6%)", slurry, cubic_m, "2.5", hours_6,  30, 33},
    {17, "Fattening cattle slurry (400kg) - low dry matter (2%)",    slurry, cubic_m, "1.5", hours_6,  31, 34},
    {18, "Separated cattle slurry - strainer box",                   slurry, cubic_m, "1.5", none,     35, 35},
    {19, "Separated cattle slurry - weeping wall",                   slurry, cubic_m, "2.0", none,     36, 36},
    {20, "Separated cattle slurry - mechanical separator",           slurry, cubic_m, "3.0", none,     37, 37},
    {21, "Pig slurry - high dry matter (6%)",                        slurry, cubic_m, "5.0", hours_6,  38, 41},
    {22, "Pig slurry - medium dry matter (4%)",                      slurry, cubic_m, "4.0", hours_6,  39, 42},
    {23, "Pig slurry - low dry matter (2%)",                         slurry, cubic_m, "3.0", hours_6,  40, 43},
}};

constexpr std::array<std::string_view, 4> exempt_fym{
    "Cattle FYM stored under cover",
    "Cattle FYM stored uncovered, outside",
    "Pig FYM stored under cover",
    "Pig FYM stored uncovered, outside",
};
// clang-format on

consteval bool exempt_are_in_catalogue() {
    for (const std::string_view name : exempt_fym)
        if (std::none_of(catalogue.begin(), catalogue.end(),
                         [&](const auto& row) { return row.name == name; }))
            return false;
    return true;
}
static_assert(exempt_are_in_catalogue());

const manure_type* row_of(std::string_view name) {
    const auto found = std::find_if(catalogue.begin(), catalogue.end(),
                                    [&](const manure_type& row) { return row.name == name; });
    return found == catalogue.end() ? nullptr : &*found;
}

}  // namespace

std::span<const manure_type> manure_catalogue() {
    return catalogue;
}

std::optional<manure_type> find_manure(std::string_view name) {
    const manure_type* row = row_of(name);
    return row ? std::optional(*row) : std::nullopt;
}

int resolve_code(std::string_view manure, std::string_view incorporation, int working_code) {
    const manure_type* row = row_of(manure);
    if (!row) return working_code;
    if (row->incorporation == no_choice) return row->code_early;
    if (incorporation == row->incorporation.early) return row->code_early;
    if (incorporation == row->incorporation.late) return row->code_late;
    return working_code;
}

std::string name_of_code(int manure_code) {
    for (const manure_type& row : catalogue) {
        if (row.code_early != manure_code && row.code_late != manure_code) continue;
        const bool early = row.code_early == manure_code;
        std::string time(early ? row.incorporation.early : row.incorporation.late);
        if (row.incorporation == no_choice) time = surface_or_rapid_incorporation;
        time.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(time.front())));
        return std::string(row.name) + ", " + time;
    }
    return {};
}

std::optional<std::string_view> default_n_content(int manure_code) {
    for (const manure_type& row : catalogue)
        if (row.code_early == manure_code || row.code_late == manure_code) return row.default_n_content;
    return std::nullopt;
}

bool slurry_test(std::string_view manure) {
    const manure_type* row = row_of(manure);
    return row && row->kind == manure_kind::slurry;
}

std::span<const std::string_view> exempt_fym_types() {
    return exempt_fym;
}

bool is_exempt_fym(std::string_view manure) {
    return std::find(exempt_fym.begin(), exempt_fym.end(), manure) != exempt_fym.end();
}

}  // namespace kel
