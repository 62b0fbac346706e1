#include "rules/crop_catalogue.h"

#include <algorithm>
#include <array>

namespace kel {

namespace {

using crop_types::autumn_sown_crop;
using crop_types::grass;
using crop_types::other;

constexpr std::string_view same = "same";  // the previous column equals the planned column
constexpr std::string_view empty = "";

// Crops: number, name and code as a crop to be grown, name and code as a crop that has been grown, crop type.
// Source: the crop list of the KEL assessment. Several rows may carry one code or one name: rows 6 and 7
// share a previous crop, rows 47 and 48 differ only in type, and the yields of a vegetable share its planned
// crop. A search takes the first row.
// clang-format off
constexpr std::array<crop, 71> printed_catalogue{{
//   no  planned name                                        planned code     previous name                                    previous  type
    { 1, "Winter wheat",                                    "WW",            same,                                            same,     autumn_sown_crop},
    { 2, "Winter barley",                                   "WB",            same,                                            same,     autumn_sown_crop},
    { 3, "Winter oilseed rape",                             "WOSR",          same,                                            same,     autumn_sown_crop},
    { 4, "Winter oats",                                     "WO",            same,                                            same,     autumn_sown_crop},
    { 5, "Triticale",                                       "T",             same,                                            same,     autumn_sown_crop},
    { 6, "Spring barley (feed or high N malting)",          "SB (F/high N)", "Spring barley",                                 "SB",     other},
    { 7, "Spring barley (low N malting)",                   "SB (low N)",    "Spring barley",                                 "SB",     other},
    { 8, "Spring oats",                                     "SO",            same,                                            same,     other},
    { 9, "Spring oilseed rape",                             "SOSR",          same,                                            same,     other},
    {10, "Potatoes (seed)",                                 "SPOT",          "Seed potatoes",                                 same,     other},
    {11, "Potatoes (ware)",                                 "WPOT",          "Ware potatoes",                                 same,     other},
    {12, "Potatoes (dual purpose)",                         "DPOT",          empty,                                           empty,    other},
    {13, "Potatoes (punnets)",                              "PPOT",          empty,                                           empty,    other},
    {14, "Grass",                                           "G",             empty,                                           empty,    grass},
    {15, "Grass/clover",                                    "G/C",           empty,                                           empty,    grass},
    {16, "Swedes and turnips",                              "SR/TR",         "Swedes",                                        "SR",     other},
    {17, "Carrots",                                         "C",             same,                                            same,     other},
    {18, "Swedes",                                          "SR",            same,                                            same,     other},
    {19, "Turnips removed",                                 "TR",            same,                                            same,     other},
    {20, "Linseed",                                         "LIN",           same,                                            same,     other},
    {21, "Rotational set-aside (natural regeneration)",     "NRC",           same,                                            same,     other},
    {22, "Harvested fodder (whole crop)",                   "HFW",           same,                                            same,     other},
    {23, "Hemp",                                            "HS",            same,                                            same,     other},
    {24, "Harvested fodder (root only)",                    "HFR",           same,                                            same,     other},
    {25, "Rotational set-aside (good clover cover)",        "SGC",           same,                                            same,     other},
    {26, "Rotational set-aside (stemmy cover)",             "SSC",           same,                                            same,     other},
    {27, "Whole crop lupins",                               "WCL",           same,                                            same,     other},
    {28, "Peas",                                            "PP",            same,                                            same,     other},
    {29, "Beans",                                           "FB",            same,                                            same,     other},
    {30, "Grain lupins",                                    "GL",            same,                                            same,     other},
    {31, "Leafy brassica vegetables",                       "LBV",           same,                                            same,     other},
    {32, "Leafy non-brassica vegetables",                   "LNV",           same,                                            same,     other},
    {33, "Grazed fodder",                                   "GF",            same,                                            same,     other},
    {34, "Rough grazing",                                   "RGR",           same,                                            same,     grass},
    {35, "1-2 year low N leys, not grazed within 2 months of ploughing out or during September or October",  "1LNG", same, same, grass},
    {36, "1-2 year low N leys, grazed within 2 months of ploughing out or during September or October",      "1LG",  same, same, grass},
    {37, "1-2 year high N leys, not grazed within 2 months of ploughing out or during September or October", "1HNG", same, same, grass},
    {38, "1-2 year high N leys, grazed within 2 months of ploughing out or during September or October",     "1HG",  same, same, grass},
    {39, "3-5 year low N leys, not grazed within 2 months of ploughing out or during September or October",  "3LNG", same, same, grass},
    {40, "3-5 year high N leys, not grazed within 2 months of ploughing out or during September or October", "3HNG", same, same, grass},
    {41, "3-5 year low N leys, grazed within 2 months of ploughing out or during September or October",      "3LG",  same, same, grass},
    {42, "3-5 year high N leys, grazed within 2 months of ploughing out or during September or October",     "3HG",  same, same, grass},
    {43, "Permanent grass",                                 "PG",            same,                                            same,     grass},
    {44, "Long leys with short arable breaks",              "LL",            same,                                            same,     grass},
    {45, "Spring wheat",                                    "SW",            same,                                            same,     other},
    {46, "Potatoes",                                        empty,           same,                                            same,     other},
    {47, "Direct sown grass and grass/clover (spring sown)","G",             "Direct sown grass and grass/clover",            same,     other},
    {48, "Direct sown grass and grass/clover (autumn sown)","G",             "Direct sown grass and grass/clover",            same,     autumn_sown_crop},
    {49, "Kale",                                            "K",             same,                                            same,     other},
    {50, "Daffodil bulbs",                                  "DAF",           same,                                            same,     autumn_sown_crop},
    {51, "Forage maize",                                    "FM",            same,                                            same,     other},
    {52, "Beetroot, Red (baby)",                            "RB",            same,                                            same,     other},
    {53, "Brussel Sprouts",                                 "BS",            same,                                            same,     other},
    {54, "Cabbage",                                         "CAB",           "Cabbage (below average yield)",                 "CAB-1",  other},
    {55, "Cabbage",                                         "CAB",           "Cabbage (average yield - 30 t/ha)",             "CAB 0",  other},
    {56, "Cabbage",                                         "CAB",           "Cabbage (above average yield)",                 "CAB+1",  other},
    {57, "Cabbage (pointed)",                               "CABP",          same,                                            same,     other},
    {58, "Cabbage (spring)",                                "CABS",          same,                                            same,     autumn_sown_crop},
    {59, "Calabrese/Broccoli",                              "BROC",          "Calabrese/Broccoli (below average yield)",      "BROC-1", other},
    {60, "Calabrese/Broccoli",                              "BROC",          "Calabrese/Broccoli (average yield - 7.6 t/ha)", "BROC 0", other},
    {61, "Calabrese/Broccoli",                              "BROC",          "Calabrese/Broccoli (above average yield)",      "BROC+1", other},
    {62, "Cauliflower",                                     "CAU",           "Cauliflower (below average yield)",             "CAU-1",  other},
    {63, "Cauliflower",                                     "CAU",           "Cauliflower (average yield - 14 t/ha)",         "CAU 0",  other},
    {64, "Cauliflower",                                     "CAU",           "Cauliflower (above average yield)",             "CAU+1",  other},
    {65, "Leek",                                            "LEEK",          "Leek (below average yield)",                    "LEEK-1", other},
    {66, "Leek",                                            "LEEK",          "Leek (average yield - 17.5 t/ha)",              "LEEK 0", other},
    {67, "Leek",                                            "LEEK",          "Leek (above average yield)",                    "LEEK+1", other},
    {68, "Lettuce",                                         "LET",           same,                                            same,     other},
    {69, "Parsnip",                                         "PARS",          same,                                            same,     other},
    {70, "Mature vegetable crop ploughed in",               "VEG-PL",        same,                                            same,     other},
    {71, "Set-aside",                                       "SET-A",         same,                                            same,     other},
}};
// clang-format on

consteval auto with_same_columns_filled(std::array<crop, 71> rows) {
    for (crop& row : rows) {
        if (row.previous_name == same) row.previous_name = row.planned_name;
        if (row.previous_code == same) row.previous_code = row.planned_code;
    }
    return rows;
}

constexpr std::array<crop, 71> crop_catalogue = with_same_columns_filled(printed_catalogue);

consteval bool numbered_from_one() {
    for (std::size_t i = 0; i < crop_catalogue.size(); ++i)
        if (crop_catalogue[i].no != static_cast<int>(i) + 1) return false;
    return true;
}
static_assert(numbered_from_one());

// "Set-aside" is recorded under this code, but no name is printed for it.
constexpr std::string_view unprinted_code = "SET-A";

// The two kinds of spring barley are told apart only while they are planned.
constexpr std::string_view spring_barley_code = "SB";

template <class Predicate>
const crop* first_row(Predicate matches) {
    const auto found = std::find_if(crop_catalogue.begin(), crop_catalogue.end(), matches);
    return found == crop_catalogue.end() ? nullptr : &*found;
}

}  // namespace

std::span<const crop> load_crop_catalogue() {
    return crop_catalogue;
}

std::string_view crop_long_name(std::string_view code) {
    if (code.empty() || code == unprinted_code) return unknown_crop;
    if (code == spring_barley_code)
        return first_row([&](const crop& row) { return row.previous_code == code; })->previous_name;
    const crop* row = first_row([&](const crop& candidate) { return candidate.planned_code == code; });
    return row ? row->planned_name : unknown_crop;
}

std::string_view ley_long_name(std::string_view code) {
    // Established grass, which is no previous sward, has no previous code.
    if (code.empty()) return unknown_crop;
    const crop* row = first_row(
        [&](const crop& candidate) { return candidate.type == grass && candidate.previous_code == code; });
    return row ? row->planned_name : unknown_crop;
}

bool crop_in_type(std::string_view type, std::string_view name, name_column column) {
    const auto name_of = column == name_column::planned ? &crop::planned_name : &crop::previous_name;
    return first_row([&](const crop& row) { return row.type == type && row.*name_of == name; });
}

std::vector<std::string_view> crop_type_members(std::string_view type) {
    std::vector<std::string_view> members;
    for (const crop& row : crop_catalogue)
        if (row.type == type && std::find(members.begin(), members.end(), row.planned_name) == members.end())
            members.push_back(row.planned_name);
    return members;
}

}  // namespace kel
