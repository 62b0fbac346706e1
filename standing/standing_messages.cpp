#include "standing/standing_messages.h"

#include <algorithm>

#include "core/numbers.h"
#include "rules/nitrogen_limits.h"

namespace kel::standing_messages {

namespace {

constexpr std::size_t most_listed = 3;

// A list of one more than is listed is shown whole: its name is not longer than its count.
template <class Items, class Text>
std::string list_of(const Items& items, const Text& text) {
    const std::size_t shown =
        items.size() == most_listed + 1 ? items.size() : std::min(items.size(), most_listed);
    std::string all;
    for (std::size_t i = 0; i < shown; ++i) {
        if (i > 0) all += i + 1 == items.size() ? " and " : ", ";
        all += text(items[i]);
    }
    if (shown < items.size()) all += " and " + std::to_string(items.size() - shown) + " more";
    return all;
}

std::string with_sums(const std::vector<field_nitrogen>& fields) {
    return list_of(fields, [](const field_nitrogen& field) {
        return field.field + " (" + figure(field.n_kg_per_ha, rolling_field_limit_kg_per_ha) + ")";
    });
}

names names_of(const std::vector<field_nitrogen>& fields) {
    names all;
    all.reserve(fields.size());
    for (const field_nitrogen& field : fields)
        all.push_back(field.field);
    return all;
}

std::string with_days(const std::vector<closed_breach>& breaches) {
    return list_of(breaches, [](const closed_breach& breach) {
        return breach.field + " on " + short_date_text(breach.day) + " (" + breach.applied + ")";
    });
}

std::string percent(const store_level& level) {
    return figure(level.percent, full_percent) + "%";
}

std::string applications(std::size_t count) {
    return counted(count, "application", "applications");
}

}  // namespace

std::string listed(const names& all) {
    return list_of(all, [](const std::string& name) { return name; });
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string figure(float value, float limit) {
    std::string rounded = format_fixed(value, 1);
    const bool same_side = exceeds_limit(leading_single(rounded), limit) == exceeds_limit(value, limit);
    return same_side ? rounded : default_text(round_to_3(value));
}

std::string of_another_farm(const std::string& farm) {
    const std::string whose = farm.empty() ? "of a farm without a name" : "of another farm, " + farm;
    return "The file linked as last year's is " + whose + ".";
}

std::string last_year_unreadable(const std::string& trouble) {
    return "Last year's file cannot be read: " + trouble;
}

std::string fields_without_soil(const names& fields) {
    return "No soil is entered for " + listed(fields) + ".";
}

std::string fields_without_area(const names& fields) {
    return "No area is entered for " + listed(fields) + ".";
}

std::string profile_entered(std::size_t fields) {
    return "The farm and its " + (fields == 1 ? "one field" : counted(fields, "field", "fields")) +
           " are entered.";
}

std::string land_missing(const names& fields) {
    return "No land is entered for " + listed(fields) + ".";
}

std::string complete_land(const names& fields) {
    return "Enter the areas of " + listed(fields) + ".";
}

std::string too_little_land(const std::string& production, const std::string& limit) {
    return "Too little land: the stock produces " + production + ", but only " + limit + " may be spread.";
}

std::string enough_land(const std::string& production, const std::string& limit) {
    return "Enough land: the stock produces " + production + ", and " + limit + " may be spread.";
}

std::string no_rain(const std::string& town) {
    return town.empty() ? "Without a nearest town the rain that falls into the stores is not known."
                        : "There is no rainfall for the town " + town + ".";
}

std::string stores_incomplete(const names& stores) {
    return "Shape, depth or the level at the start is missing for the store " + listed(stores) + ".";
}

std::string stock_incomplete(const names& stock) {
    return "Number or percentage is missing for " + listed(stock) + ".";
}

std::string fields_without_use(const names& fields) {
    return "No use, and so no closed period, is entered for " + listed(fields) + ".";
}

std::string level_unknown(const names& lacks) {
    std::string text = "How full the stores get cannot be worked out.";
    for (const std::string& lack : lacks)
        text.append(" ").append(lack);
    return text;
}

std::string stores_hold(const store_level& highest) {
    return std::string("The stores hold: fullest at the end of ")
        .append(month_name(highest.month))
        .append(", at ")
        .append(percent(highest))
        .append(".");
}

std::string stores_too_small(const store_level& highest, const std::vector<store_level>& over_full) {
    const std::string most = percent(highest) + " at the end of " + std::string(month_name(highest.month));
    if (over_full.size() == 1) return "Too little storage: the stores are at " + most + ".";
    const std::string months =
        list_of(over_full, [](const store_level& level) { return std::string(month_name(level.month)); });
    return "Too little storage: the stores are over 100% in " + months + ", at most " + most + ".";
}

std::string make_room(int month) {
    return std::string("Find room for slurry before the end of ").append(month_name(month)).append(".");
}

std::string manure_gaps(const names& fields) {
    return "Data is missing from applications of manure to " + listed(fields) + ".";
}

std::string fill_gaps(const names& fields) {
    return "Fill in what is missing for " + listed(fields) + ".";
}

std::string over_field_limit(const std::vector<field_nitrogen>& fields) {
    return "Over 250 kg N/ha in twelve months: " + with_sums(fields) + ".";
}

std::string near_field_limit(const std::vector<field_nitrogen>& fields) {
    return "Little is left of the 250 kg N/ha: " + with_sums(fields) + ".";
}

std::string look_at_limit(const std::vector<field_nitrogen>& fields) {
    return "Look at the applications to " + listed(names_of(fields)) + ", those of last year too.";
}

std::string within_field_limit(std::size_t count, const field_nitrogen& most) {
    return applications(count) + ", none over the field limit; the most in twelve months is " +
           figure(most.n_kg_per_ha, rolling_field_limit_kg_per_ha) + " of 250 kg N/ha (" + most.field + ").";
}

std::string limit_not_judged(std::size_t count) {
    return applications(count) + "; whether they keep the field limit cannot be said.";
}

std::string in_closed_months(const std::vector<closed_breach>& breaches) {
    return applications(breaches.size()) + " in a closed period: " + with_days(breaches) + ".";
}

std::string inorganic_entered(std::size_t count) {
    return applications(count) + ", none known to be in a closed period.";
}

std::string inorganic_gaps(const names& fields) {
    return "Data is missing from applications of inorganic nitrogen to " + listed(fields) + ".";
}

std::string in_closed_period(const std::vector<closed_breach>& breaches) {
    return in_closed_months(breaches);
}

std::string calendar_not_known(const names& fields) {
    return "Without a use in Step 2 the closed period for inorganic nitrogen is not known for " +
           listed(fields) + ".";
}

std::string assess_fields(const names& fields) {
    return "Enter the use of " + listed(fields) + " in Step 2.";
}

std::string requirement_missing(const names& fields) {
    return "No nitrogen requirement is worked out for " + listed(fields) + ".";
}

std::string requirements_none(std::size_t fields) {
    return "Not worked out yet for " + counted(fields, "field", "fields") + ".";
}

std::string requirements_some(std::size_t done, std::size_t fields) {
    return "Worked out for " + std::to_string(done) + " of " + counted(fields, "field", "fields") + ".";
}

std::string requirements_all(std::size_t fields) {
    return fields == 1 ? "Worked out for the one field."
                       : "Worked out for all " + std::to_string(fields) + " fields.";
}

std::string composting_recorded(std::size_t calculations) {
    if (calculations == 0) return "No calculation is recorded; none is needed without vegetables.";
    return counted(calculations, "calculation is", "calculations are") + " recorded.";
}

std::string record_warnings(std::size_t warnings, std::size_t fields) {
    return counted(warnings, "warning", "warnings") + " in the records of " +
           counted(fields, "field", "fields") + ".";
}

std::string requirement_exceeded(const std::vector<requirement_excess>& fields) {
    return "More inorganic nitrogen than the crop requires, in kg N/ha: " +
           list_of(fields,
                   [](const requirement_excess& field) {
                       return field.field + " (" + field.applied + ", required " + field.required + ")";
                   }) +
           ".";
}

std::string look_at_record(const names& fields) {
    return "Look at the record of " + listed(fields) + ".";
}

}  // namespace kel::standing_messages
