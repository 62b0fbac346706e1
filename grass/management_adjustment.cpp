#include "grass/management_adjustment.h"

#include "core/numbers.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

std::string words_of(const managed_sward& sward) {
    std::string words = "clover ";
    words.append(sward.clover).append(", ").append(sward.use);
    if (sward.cuts != not_cut) words.append(", cuts ").append(sward.cuts);
    return words.append(", applications ").append(sward.applications);
}

}  // namespace

std::string management_adjustment(const grass_tables& tables, const managed_sward& sward, explanation* why) {
    const sward_management* const management = management_of(sward.clover, sward.use);
    if (management && !management->adjustment_kg_per_ha.empty()) {
        std::string fixed(management->adjustment_kg_per_ha);
        if (why)
            why->rule("Clover " + std::string(sward.clover) + ", " + std::string(sward.use) +
                      ": this management takes a fixed adjustment of " + fixed + " kg/ha.");
        return fixed;
    }
    const auto found =
        tables.grass_adjustment(sward.clover, sward.use, lookup_cuts(sward.cuts), sward.applications);
    std::string text = found ? default_text(*found) : std::string{};
    if (why && found)
        why->source("Adjustment table of grassland: " + words_of(sward) + ": " + text + " kg N/ha. " +
                    tables.source());
    if (why && !found)
        why->rule("The adjustment table of grassland has no figure for " + words_of(sward) + ".");
    return text;
}

}  // namespace kel
