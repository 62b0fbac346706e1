#include "grass/silage_account.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/told_rows.h"
#include "grass/silage_plan.h"

namespace kel {

namespace {

constexpr std::string_view two_decimals = "rounded to 2 decimals, halves away from 0";
constexpr std::string_view silage_table = "silage table";

std::string lu(const std::string& figure) {
    return figure + " LU";
}

}  // namespace

explanation* silage_account::about(std::size_t of_row, std::initializer_list<silage_figure> figures) const {
    const bool asked = of_row == row && std::ranges::find(figures, of) != figures.end();
    return asked ? why : nullptr;
}

void tell_group(const grazing_group& group, float ratio, bool listed, float units, explanation& why) {
    why.step(group.type + (listed ? "" : " (not in the list of ratios, so that of the group before stands)") +
             ": " + default_text(ratio) + " LU x " + (group.number.empty() ? "0" : group.number) +
             " animals x " + (group.percent.empty() ? "0" : group.percent) +
             " % of the year / 100 = " + lu(default_text(units)));
}

void tell_grazed(float units, const std::string& shown, explanation& why) {
    why.step("Together " + lu(default_text(units)) + ", " + std::string(two_decimals) + ": " + lu(shown));
}

void tell_grazed_density(float units, const silage_row& row, explanation& why) {
    why.input("Livestock that grazes the field", default_text(units), "LU",
              "stocking table, LUs Fed By Grazing here");
    why.input("Area", row.area_ha, "ha", "stocking table");
    if (row.lus_per_ha.empty()) return why.rule("Without an area there is no density.");
    why.step(default_text(units) + " / " + row.area_ha + ", " + std::string(two_decimals) + ": " +
             row.lus_per_ha + " LU/ha");
}

void tell_stored_rate(const std::string& rate, explanation& why) {
    why.input("Rate saved with this table before", rate, "LU/ha", "it goes before what is worked out");
}

void tell_share(const silage_share& share, explanation& why) {
    why.input("Livestock units of the farm", default_text(share.farm_lus), "LU", "livestock table, as saved");
    why.step("Less what is grazed: " + default_text(share.farm_lus) + " - " + default_text(share.grazed_lus) +
             " = " + lu(default_text(share.farm_lus - share.grazed_lus)));
    if (share.own_rates_lus != 0)
        why.step("Less what the silage fields with a rate of their own take: " +
                 lu(default_text(share.own_rates_lus)) + ", which leaves " +
                 lu(default_text(share.left_lus)));
    if (share.area_without_rate_ha == 0)
        return why.rule("No silage field with an area lacks a rate, so the rate worked with last stands: " +
                        default_text(share.rate_lus_per_ha) + " LU/ha.");
    why.step("Spread over the silage fields without a rate of their own: " + default_text(share.left_lus) +
             " LU / " + default_text(share.area_without_rate_ha) +
             " ha = " + default_text(share.rate_lus_per_ha) + " LU/ha");
}

void tell_shared_density(float rate, const std::string& shown, explanation& why) {
    why.step(default_text(rate) + " LU/ha, " + std::string(two_decimals) + ": " + shown + " LU/ha");
}

void tell_silage_fed(const std::string& area_ha, float rate, const std::string& shown, explanation& why) {
    why.input("Area", area_ha, "ha", "stocking table");
    why.step((area_ha.empty() ? "0" : area_ha) + " ha x " + default_text(rate) + " LU/ha, " +
             std::string(two_decimals) + ": " + lu(shown));
}

void tell_no_density(const silage_row& row, explanation& why) {
    why.rule("The field \"" + row.field +
             "\" has no stocking density, so nothing can be worked out from it.");
}

void tell_no_line(const std::string& reason, float n_kg_per_ha, explanation& why) {
    why.rule(reason + ", so the figure that was worked out last stands: " + default_text(n_kg_per_ha) +
             " kg N/ha.");
}

void tell_whole_kg(const std::string& shown, explanation& why) {
    why.step("Rounded to whole kilograms, halves away from 0: " + shown + " kg N/ha");
}

void tell_summary(float farm_lus, const silage_plan& plan, explanation& why) {
    why.input("Livestock units of the farm", default_text(farm_lus), "LU", "livestock table, as saved");
    std::vector<told_row> grazed;
    for (const silage_row& row : plan.rows)
        if (!row.lus_fed_by_grazing.empty())
            grazed.push_back(
                {row.field + ": " + lu(row.lus_fed_by_grazing), leading_number(row.lus_fed_by_grazing)});
    tell_rows(why, grazed, "fields", "LU");
    why.step("Grazed in all: " + lu(default_text(plan.grazed_lus)));
    why.step("Left for silage: " + default_text(farm_lus) + " - " + default_text(plan.grazed_lus) + " = " +
             lu(default_text(farm_lus - plan.grazed_lus)) +
             "; both told with 2 decimals, halves away from 0");
}

void tell_moved_feed(const std::string& before, double change_lu, const std::string& after,
                     explanation& why) {
    const bool taken = change_lu < 0;
    why.step((before.empty() ? "0" : before) + (taken ? " - " : " + ") +
             default_text(taken ? -change_lu : change_lu) + " = " + lu(after));
}

void tell_moved_density(const silage_row& row, explanation& why) {
    why.input("Livestock fed from silage", row.lus_fed_from_silage, "LU", silage_table);
    why.input("Area", row.area_ha, "ha", "stocking table");
    if (row.lus_per_ha.empty()) return why.rule("Without an area there is no density.");
    why.step(row.lus_fed_from_silage + " / " + row.area_ha + ", " + std::string(two_decimals) + ": " +
             row.lus_per_ha + " LU/ha");
}

}  // namespace kel
