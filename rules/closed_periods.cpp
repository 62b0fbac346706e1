#include "rules/closed_periods.h"

#include <array>

#include "rules/crop_catalogue.h"
#include "rules/soils.h"

namespace kel {

namespace {

constexpr std::string_view pair_separator = " / ";

// Uses of a field, as offered and as stored. A text in no row is no use.
// clang-format off
constexpr std::array<field_use, 3> uses{{
    {"In grass",                            crop_types::grass},
    {"To be sown with an autumn sown crop", crop_types::autumn_sown_crop},
    {"Other",                               crop_types::other},
}};

// Closed months of light soils by second crop. Source: the closed periods for slurry of the KEL rules; a crop
// in no row closes none.
constexpr std::array<int, 1> october{10};
constexpr std::array<int, 3> august_to_october{8, 9, 10};

struct closing_row {
    std::string_view second_crop;
    std::span<const int> months;
};
constexpr std::array<closing_row, 3> closing_by_second_crop{{
    {crop_types::grass,            october},
    {crop_types::autumn_sown_crop, october},
    {crop_types::other,            august_to_october},
}};
// clang-format on

// Closed days of inorganic nitrogen. Source: the closed periods for fertiliser of the KEL rules.
constexpr std::string_view late_spring_zone = "Moray/Aberdeenshire/Banff and Buchan KEL";

date last_closed_in_spring(int base_year, std::string_view zone) {
    return make_date(zone == late_spring_zone ? 20 : 15, 2, base_year);
}

date first_closed_in_autumn(int base_year, std::string_view second_crop) {
    return make_date(second_crop == crop_types::grass ? 15 : 1, 9, base_year);
}

}  // namespace

std::string compose_crop_pair(std::string_view first, std::string_view second) {
    return std::string(first).append(pair_separator).append(second);
}

std::optional<crop_pair> split_crop_pair(std::string_view text) {
    const auto slash = text.find('/');
    if (slash == std::string_view::npos) return std::nullopt;
    std::string_view first = text.substr(0, slash);
    std::string_view second = text.substr(slash + 1);
    if (first.ends_with(' ')) first.remove_suffix(1);
    if (second.starts_with(' ')) second.remove_prefix(1);
    return crop_pair{std::string(first), std::string(second)};
}

std::span<const field_use> field_uses() {
    return uses;
}

std::optional<std::string_view> stored_crop_type(std::string_view shown) {
    for (const field_use& use : uses)
        if (use.shown == shown) return use.stored;
    return std::nullopt;
}

std::optional<std::string_view> shown_crop_type(std::string_view stored) {
    for (const field_use& use : uses)
        if (use.stored == stored) return use.shown;
    return std::nullopt;
}

bool sensitive_soil(std::string_view soil) {
    const auto found = find_soil(soil);
    return found && found->light;
}

std::span<const int> closed_months(std::string_view soil, std::string_view second_crop) {
    if (!sensitive_soil(soil)) return {};
    for (const closing_row& row : closing_by_second_crop)
        if (row.second_crop == second_crop) return row.months;
    return {};
}

bool closed_by_calendar(date day, int base_year, std::string_view zone, std::string_view second_crop) {
    return date_on_or_after(last_closed_in_spring(base_year, zone), day) ||
           date_on_or_after(day, first_closed_in_autumn(base_year, second_crop));
}

bool date_on_or_after(date a, date b) {
    return a >= b;
}

}  // namespace kel
