#include "rules/residue_groups.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "core/explanation.h"
#include "rules/crop_lists.h"

namespace kel {

namespace {

// N residue groups of the previous crop codes, lowest residue first. A code in no group leaves no known
// residue. Source: the residue groups of the KEL assessment. The yields run against the eye: a crop below the
// average yield ("CAB-1") leaves more nitrogen behind than one above it ("CAB+1").
using code_list = std::span<const std::string_view>;

// clang-format off
constexpr std::string_view group_1[] = {"SB", "SO", "SW", "WB", "WO", "WW", "T", "C", "SR", "TR", "LIN", "RGR", "DAF", "CABP", "LET", "PARS"};
constexpr std::string_view group_2[] = {"NRC", "HFW", "SOSR", "HS", "1LNG", "FM", "RB", "CAB+1", "BROC+1", "CAU+1", "LEEK+1"};
constexpr std::string_view group_3[] = {"HFR", "SPOT", "SGC", "SSC", "WOSR", "WCL", "1LG", "1HNG", "CAB 0", "CABS", "BROC 0", "CAU 0", "LEEK 0"};
constexpr std::string_view group_4[] = {"PP", "FB", "WPOT", "GL", "1HG", "3LNG", "CAB-1", "BROC-1", "CAU-1", "LEEK-1"};
constexpr std::string_view group_5[] = {"LBV", "LNV", "GF", "3HNG", "3LG", "K", "BS", "VEG-PL"};
constexpr std::string_view group_6[] = {"3HG", "PG", "LL"};

constexpr std::array<code_list, 6> residue_groups{group_1, group_2, group_3, group_4, group_5, group_6};

struct vegetable {
    std::string_view code;
    std::string_view name;
};

// Vegetables, by the planned code and name of the catalogue. A crop in no row is no vegetable.
constexpr std::array<vegetable, 15> vegetables{{
    {"C",      "Carrots"},
    {"SR",     "Swedes"},
    {"PP",     "Peas"},
    {"FB",     "Beans"},
    {"RB",     "Beetroot, Red (baby)"},
    {"BS",     "Brussel Sprouts"},
    {"CAB",    "Cabbage"},
    {"CABP",   "Cabbage (pointed)"},
    {"CABS",   "Cabbage (spring)"},
    {"BROC",   "Calabrese/Broccoli"},
    {"CAU",    "Cauliflower"},
    {"LEEK",   "Leek"},
    {"LET",    "Lettuce"},
    {"PARS",   "Parsnip"},
    {"VEG-PL", "Mature vegetable crop ploughed in"},
}};
// clang-format on

constexpr bool holds(code_list group, std::string_view code) {
    return std::find(group.begin(), group.end(), code) != group.end();
}

consteval bool each_code_in_one_group() {
    for (const code_list group : residue_groups)
        for (const std::string_view code : group)
            if (std::count_if(residue_groups.begin(), residue_groups.end(),
                              [&](code_list other) { return holds(other, code); }) != 1)
                return false;
    return true;
}
static_assert(each_code_in_one_group());

void tell_group(std::string_view code, int group, explanation& why) {
    const std::string_view listed = previous_crop_name(code);
    const std::string name(listed.empty() ? code : listed);
    why.rule("The group tells how much nitrogen the previous crop leaves in the soil, from 1 (least) to " +
             std::to_string(residue_groups.size()) +
             " (most). Soil, harvest date and manures play no part in it.");
    if (group > 0)
        why.source("Residue groups of previous crops: " + name + " is in group " + std::to_string(group));
    else
        why.source("Residue groups of previous crops: " + name + " is in none of them, which is told as 0");
}

}  // namespace

int residue_group(std::string_view previous_code, explanation* why) {
    int group = 0;
    for (std::size_t i = 0; i < residue_groups.size() && group == 0; ++i)
        if (holds(residue_groups[i], previous_code)) group = static_cast<int>(i) + 1;
    if (why) tell_group(previous_code, group, *why);
    return group;
}

bool is_vegetable_crop(std::string_view name_or_code) {
    return std::any_of(vegetables.begin(), vegetables.end(), [&](const vegetable& row) {
        return row.code == name_or_code || row.name == name_or_code;
    });
}

}  // namespace kel
