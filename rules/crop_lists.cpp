#include "rules/crop_lists.h"

#include <algorithm>
#include <array>

#include "rules/crop_catalogue.h"

namespace kel {

namespace {

// Source of the four tables: the lists of the KEL assessment, in the order in which they are offered.

// clang-format off
constexpr std::array<std::string_view, 33> planned_crops{
    "Beans",
    "Beetroot, Red (baby)",
    "Brussel Sprouts",
    "Cabbage",
    "Cabbage (pointed)",
    "Cabbage (spring)",
    "Calabrese/Broccoli",
    "Carrots",
    "Cauliflower",
    "Daffodil bulbs",
    "Direct sown grass and grass/clover (autumn sown)",
    "Direct sown grass and grass/clover (spring sown)",
    "Forage maize",
    "Kale",
    "Leek",
    "Lettuce",
    "Linseed",
    "Parsnip",
    "Peas",
    "Potatoes",
    "Set-aside",
    "Spring barley (feed or high N malting)",
    "Spring barley (low N malting)",
    "Spring oats",
    "Spring oilseed rape",
    "Spring wheat",
    "Swedes",
    "Swedes and turnips",
    "Triticale",
    "Winter barley",
    "Winter oats",
    "Winter oilseed rape",
    "Winter wheat",
};

constexpr std::size_t ley_count = 8;

constexpr std::array<std::string_view, 61> previous_crops{
    "1-2 year high N leys, grazed within 2 months of ploughing out or during September or October",
    "1-2 year high N leys, not grazed within 2 months of ploughing out or during September or October",
    "1-2 year low N leys, grazed within 2 months of ploughing out or during September or October",
    "1-2 year low N leys, not grazed within 2 months of ploughing out or during September or October",
    "3-5 year high N leys, grazed within 2 months of ploughing out or during September or October",
    "3-5 year high N leys, not grazed within 2 months of ploughing out or during September or October",
    "3-5 year low N leys, grazed within 2 months of ploughing out or during September or October",
    "3-5 year low N leys, not grazed within 2 months of ploughing out or during September or October",
    "Beans",
    "Beetroot, Red (baby)",
    "Brussel Sprouts",
    "Cabbage (above average yield)",
    "Cabbage (average yield - 30 t/ha)",
    "Cabbage (below average yield)",
    "Cabbage (pointed)",
    "Cabbage (spring)",
    "Calabrese/Broccoli (above average yield)",
    "Calabrese/Broccoli (average yield - 7.6 t/ha)",
    "Calabrese/Broccoli (below average yield)",
    "Carrots",
    "Cauliflower (above average yield)",
    "Cauliflower (average yield - 14 t/ha)",
    "Cauliflower (below average yield)",
    "Daffodil bulbs",
    "Forage maize",
    "Grain lupins",
    "Grazed fodder",
    "Harvested fodder (root only)",
    "Harvested fodder (whole crop)",
    "Hemp",
    "Kale",
    "Leafy brassica vegetables",
    "Leafy non-brassica vegetables",
    "Leek (above average yield)",
    "Leek (average yield - 17.5 t/ha)",
    "Leek (below average yield)",
    "Lettuce",
    "Linseed",
    "Long leys with short arable breaks",
    "Mature vegetable crop ploughed in",
    "Parsnip",
    "Peas",
    "Permanent grass",
    "Rotational set-aside (good clover cover)",
    "Rotational set-aside (natural regeneration)",
    "Rotational set-aside (stemmy cover)",
    "Rough grazing",
    "Seed potatoes",
    "Spring barley",
    "Spring oats",
    "Spring oilseed rape",
    "Spring wheat",
    "Swedes",
    "Triticale",
    "Turnips removed",
    "Ware potatoes",
    "Whole crop lupins",
    "Winter barley",
    "Winter oats",
    "Winter oilseed rape",
    "Winter wheat",
};

constexpr std::array<potato_type, 4> potatoes{{
    {"Dual purpose", "DPOT"},
    {"Punnets",      "PPOT"},
    {"Seed",         "SPOT"},
    {"Ware",         "WPOT"},
}};
// clang-format on

template <std::size_t size>
consteval bool each_once(const std::array<std::string_view, size>& names) {
    for (std::size_t i = 0; i < size; ++i)
        if (names[i].empty() || std::find(names.begin(), names.begin() + i, names[i]) != names.begin() + i)
            return false;
    return true;
}
static_assert(each_once(planned_crops) && each_once(previous_crops));

}  // namespace

std::span<const std::string_view> planned_crop_list() {
    return planned_crops;
}
std::span<const std::string_view> previous_crop_list() {
    return previous_crops;
}
std::span<const std::string_view> ley_list() {
    return previous_crop_list().first(ley_count);
}

std::optional<std::string_view> previous_crop_code(std::string_view name) {
    if (std::find(previous_crops.begin(), previous_crops.end(), name) == previous_crops.end())
        return std::nullopt;
    for (const crop& row : load_crop_catalogue())
        if (row.previous_name == name) return row.previous_code;
    return std::nullopt;
}

std::string_view previous_crop_name(std::string_view code) {
    if (code.empty()) return {};
    for (const crop& row : load_crop_catalogue())
        if (row.previous_code == code) return row.previous_name;
    return {};
}

std::span<const potato_type> potato_types() {
    return potatoes;
}

std::optional<std::string_view> potato_code(std::string_view type_name) {
    for (const potato_type& type : potatoes)
        if (type.name == type_name) return type.code;
    return std::nullopt;
}

}  // namespace kel
