#include "grass/sward_choices.h"

#include <algorithm>
#include <array>

#include "rules/crop_lists.h"

namespace kel {

namespace {

constexpr std::array<std::string_view, 3> lasting_grass{"Long leys with short arable breaks",
                                                        "Permanent grass", "Rough grazing"};

constexpr std::string_view asked{};
constexpr std::string_view looked_up{};

// What each use of a sward fixes and what it leaves to be asked. A use in no row is not offered.
// clang-format off
constexpr std::array<sward_management, 6> managements{{
    // clover        use                 cuts     applications  adjustment
    {clover::high,   grass_use::silage,  "1",     "1",          "0"},
    {clover::high,   grass_use::hay,     "1",     "1",          "0"},
    {clover::high,   grass_use::grazing, not_cut, asked,        looked_up},
    {clover::low,    grass_use::silage,  asked,   asked,        looked_up},
    {clover::low,    grass_use::hay,     asked,   asked,        looked_up},
    {clover::low,    grass_use::grazing, not_cut, asked,        looked_up},
}};

constexpr std::array<std::string_view, 6> numbers{"0", "1", "2", "3", "4", "5"};
constexpr std::size_t cuts_low          = 4;  // "0" to "3"
constexpr std::size_t applications_low  = 6;  // "0" to "5"
constexpr std::size_t applications_high = 3;  // "0" to "2"
constexpr std::string_view usual_number = "1";
// clang-format on

number_choices up_to(std::size_t count) {
    return {std::span(numbers).first(count), usual_number};
}

}  // namespace

std::span<const std::string_view> previous_swards() {
    static const auto swards = [] {
        std::array<std::string_view, 11> names{};
        const auto leys = ley_list();
        std::copy(lasting_grass.begin(), lasting_grass.end(),
                  std::copy(leys.begin(), leys.end(), names.begin()));
        return names;
    }();
    return swards;
}

const sward_management* management_of(std::string_view clover, std::string_view use) {
    const auto* const found = std::ranges::find_if(
        managements, [=](const sward_management& row) { return row.clover == clover && row.use == use; });
    return found == managements.end() ? nullptr : found;
}

number_choices cut_choices() {
    return up_to(cuts_low);
}

number_choices application_choices(std::string_view clover) {
    return up_to(clover == clover::high ? applications_high : applications_low);
}

std::string lookup_cuts(std::string_view cuts) {
    return std::string(cuts == not_cut ? "0" : cuts);
}

}  // namespace kel
