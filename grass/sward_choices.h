// What a person picks from for a grass field: the previous sward, the clover, the use of the grass, and how
// often it is cut and dressed, with what of it is asked at all.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kel {

namespace clover {
inline constexpr std::string_view high = "High";
inline constexpr std::string_view low = "Low";
}  // namespace clover

namespace grass_use {
inline constexpr std::string_view silage = "Silage";
inline constexpr std::string_view hay = "Hay";
inline constexpr std::string_view grazing = "Grazing";
}  // namespace grass_use

/// The eleven swards offered as the previous crop: the leys, then the lasting grass. Their codes and residue
/// groups are those of the crop catalogue.
std::span<const std::string_view> previous_swards();

/// How a use of the grass is managed. A text that is not empty is written as it stands and not asked for.
struct sward_management {
    std::string_view clover;
    std::string_view use;
    std::string_view cuts;
    std::string_view applications;
    std::string_view adjustment_kg_per_ha;  // empty: looked up
};
/// Null for a clover or a use that is not offered.
const sward_management* management_of(std::string_view clover, std::string_view use);

/// Choices of a drop-down and the one that it opens with.
struct number_choices {
    std::span<const std::string_view> texts;
    std::string_view usual;
};
number_choices cut_choices();
number_choices application_choices(std::string_view clover);

/// After this many cuts there is no aftermath to dress: applications are none, and nothing is asked.
inline constexpr std::string_view cuts_without_aftermath = "3";
inline constexpr std::string_view no_applications = "0";
/// Instead of a number of cuts of grass that is grazed.
inline constexpr std::string_view not_cut = "-";

/// The cuts under which the adjustment of a row is looked up: none for grass that is grazed.
std::string lookup_cuts(std::string_view cuts);

}  // namespace kel
