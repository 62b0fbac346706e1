// The crops of the program: one table of 71 crops with the name and the code of each as a crop to be grown
// and as a crop that has been grown. The crop, grassland, storage and field record modules share it.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace kel {

/// The broad classes in which a field's use is recorded, as they are stored.
namespace crop_types {
inline constexpr std::string_view grass = "Grass";
inline constexpr std::string_view autumn_sown_crop = "Autumn sown crop";
inline constexpr std::string_view other = "Other";
}  // namespace crop_types

/// One row of the catalogue. A crop that is not offered as a previous crop has empty previous columns;
/// "Potatoes" has no code, since the kind of potato has to be asked for.
struct crop {
    int no;
    std::string_view planned_name;
    std::string_view planned_code;
    std::string_view previous_name;
    std::string_view previous_code;
    std::string_view type;  // one of crop_types
};

/// The 71 rows, in their printed order.
std::span<const crop> load_crop_catalogue();

/// What is printed for a code that names no crop.
inline constexpr std::string_view unknown_crop = "Unknown";

/// The planned crop name to print for a crop code. "SB" is "Spring barley". Codes with a yield ("CAB 0"),
/// "SET-A", the empty code and any other text give "Unknown".
std::string_view crop_long_name(std::string_view code);
/// The same for the eleven previous swards: leys, rough grazing and permanent grass. Any other text gives
/// "Unknown".
std::string_view ley_long_name(std::string_view code);

enum class name_column { planned, previous };

/// Whether a row of the crop type carries the name in that column.
bool crop_in_type(std::string_view type, std::string_view name, name_column column);
/// The planned crop names of the type in row order, each once.
std::vector<std::string_view> crop_type_members(std::string_view type);

}  // namespace kel
