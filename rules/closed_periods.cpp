#include "rules/closed_periods.h"

#include <array>
#include <vector>

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

constexpr std::string_view any_other = "";  // zone or crop

date last_closed_in_spring(int base_year, std::string_view zone) {
    return make_date(zone == late_spring_zone ? 20 : 15, 2, base_year);
}

date first_closed_in_autumn(int base_year, std::string_view second_crop) {
    return make_date(second_crop == crop_types::grass ? 15 : 1, 9, base_year);
}

std::span<const int> months_closed_after(std::string_view second_crop) {
    for (const closing_row& row : closing_by_second_crop)
        if (row.second_crop == second_crop) return row.months;
    return {};
}

// "August, September and October"
template <class Texts>
std::string listed(const Texts& texts) {
    std::string list;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0) list += i + 1 < texts.size() ? ", " : " and ";
        list += texts[i];
    }
    return list;
}

std::string names_of(std::span<const int> months) {
    std::vector<std::string_view> names;
    names.reserve(months.size());
    for (const int month : months)
        names.push_back(month_name(month));
    return names.empty() ? "no month" : listed(names);
}

std::string light_soils() {
    std::vector<std::string_view> names;
    for (const soil_class& soil : soils())
        if (soil.light) names.push_back(soil.name);
    return listed(names);
}

void tell_months(std::string_view soil, std::string_view second_crop, std::span<const int> months,
                 explanation& why) {
    why.input("Soil", soil, "", "farm profile, Soil");
    why.input("Second crop", shown_crop_type(second_crop).value_or(second_crop), "",
              "Step 2, use of the field");
    if (!sensitive_soil(soil))
        return why.rule("Months are closed to slurry and manures on light soils only (" + light_soils() +
                        "), so here no month is closed, whatever the crop.");
    why.rule("On a light soil (" + light_soils() +
             ") the second crop decides which months are closed to slurry and manures; here: " +
             names_of(months) + ".");
    for (const closing_row& row : closing_by_second_crop)
        if (row.second_crop == second_crop)
            why.source("Closed periods for slurry of the KEL rules, light soils, second crop \"" +
                       std::string(*shown_crop_type(second_crop)) + "\": " + names_of(row.months) + '.');
}

std::string day_and_month(date day) {
    return std::to_string(day_of(day)) + ' ' + std::string(month_name(month_of(day)));
}

void tell_calendar(date day, date spring, bool until_spring, date autumn, bool from_autumn,
                   explanation& why) {
    why.rule("Inorganic nitrogen is closed by the calendar, whatever the soil: up to and including " +
             long_date_text(spring) + " in this zone, and from " + long_date_text(autumn) +
             " on before this second crop.");
    if (until_spring)
        why.step(long_date_text(day) + " is not after " + long_date_text(spring) + ": closed.");
    else if (from_autumn)
        why.step(long_date_text(day) + " is not before " + long_date_text(autumn) + ": closed.");
    else
        why.step(long_date_text(day) + " lies between the two: open.");
    const int year = year_of(spring);
    why.source("Closed periods for fertiliser of the KEL rules: until " +
               day_and_month(last_closed_in_spring(year, any_other)) + ", in the zone " +
               std::string(late_spring_zone) + " until " +
               day_and_month(last_closed_in_spring(year, late_spring_zone)) + "; from " +
               day_and_month(first_closed_in_autumn(year, any_other)) + ", before grass from " +
               day_and_month(first_closed_in_autumn(year, crop_types::grass)) + '.');
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

std::span<const int> closed_months(std::string_view soil, std::string_view second_crop, explanation* why) {
    const std::span<const int> months =
        sensitive_soil(soil) ? months_closed_after(second_crop) : std::span<const int>();
    if (why) tell_months(soil, second_crop, months, *why);
    return months;
}

bool closed_by_calendar(date day, int base_year, std::string_view zone, std::string_view second_crop,
                        explanation* why) {
    const date spring = last_closed_in_spring(base_year, zone);
    const date autumn = first_closed_in_autumn(base_year, second_crop);
    const bool until_spring = date_on_or_after(spring, day);
    const bool from_autumn = date_on_or_after(day, autumn);
    if (why) {
        why->input("Zone", zone, "", "farm profile, location");
        why->input("Second crop", shown_crop_type(second_crop).value_or(second_crop), "",
                   "Step 2, use of the field");
        tell_calendar(day, spring, until_spring, autumn, from_autumn, *why);
    }
    return until_spring || from_autumn;
}

bool date_on_or_after(date a, date b) {
    return a >= b;
}

}  // namespace kel
