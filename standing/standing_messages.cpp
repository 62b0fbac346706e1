#include "standing/standing_messages.h"

#include <algorithm>

namespace kel::standing_messages {

namespace {

constexpr std::size_t names_listed = 5;

}  // namespace

std::string listed(const std::vector<std::string>& names) {
    std::string all;
    const std::size_t shown =
        names.size() == names_listed + 1 ? names.size() : std::min(names.size(), names_listed);
    for (std::size_t i = 0; i < shown; ++i) {
        if (i > 0) all += i + 1 == names.size() ? " and " : ", ";
        all += names[i];
    }
    if (shown < names.size()) all += " and " + std::to_string(names.size() - shown) + " more";
    return all;
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string links_to_itself() {
    return "The file linked as last year's is this year's own: it is left out.";
}

std::string links_in_a_circle() {
    return "The file linked as that of two years ago is one of the two newer ones.";
}

std::string half_a_chain() {
    return "A file of two years ago is linked, but none of last year.";
}

std::string not_the_year_before() {
    return "The file linked as last year's is not of the year before: it is left out.";
}

std::string of_another_farm(const std::string& farm) {
    return "The file linked as last year's is of another farm: " + (farm.empty() ? "it has no name" : farm) +
           ".";
}

std::string last_year_unreadable(const std::string& trouble) {
    return "Last year's file cannot be read: " + trouble;
}

std::string fields_without_soil(const std::vector<std::string>& fields) {
    return "No soil is entered for " + listed(fields) + ".";
}

std::string fields_without_area(const std::vector<std::string>& fields) {
    return "No area is entered for " + listed(fields) + ".";
}

std::string profile_entered(std::size_t fields) {
    return "The farm and its " + counted(fields, "field", "fields") + " are entered.";
}

std::string land_missing(const std::vector<std::string>& fields) {
    return "No land is entered for " + listed(fields) + ".";
}

std::string too_little_land(const std::string& production, const std::string& limit) {
    return "Too little land: the stock produces " + production + ", but only " + limit + " may be spread.";
}

std::string enough_land(const std::string& production, const std::string& limit) {
    return "Enough land: the stock produces " + production + ", and " + limit + " may be spread.";
}

std::string complete_land(const std::vector<std::string>& fields) {
    return "Enter the areas of " + listed(fields) + ".";
}

}  // namespace kel::standing_messages
