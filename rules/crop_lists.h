// What a person picks from in the crops module, in the order shown, and the short codes behind it: planned
// crops, previous crops and kinds of potato.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kel {

/// The 33 crops offered as the crop to be grown.
std::span<const std::string_view> planned_crop_list();
/// The 61 crops offered as the crop before; the eight leys come first.
std::span<const std::string_view> previous_crop_list();
/// The eight leys of the previous crop list.
std::span<const std::string_view> ley_list();
/// Code of a name of the previous crop list ("Spring barley": "SB"); nothing for a name that the list does
/// not offer.
std::optional<std::string_view> previous_crop_code(std::string_view name);
/// The name behind such a code; empty for a code that the catalogue does not have.
std::string_view previous_crop_name(std::string_view code);

struct potato_type {
    std::string_view name;
    std::string_view code;
};
std::span<const potato_type> potato_types();
std::optional<std::string_view> potato_code(std::string_view type_name);

}  // namespace kel
