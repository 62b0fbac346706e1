#include "crops/crop_account.h"

#include <algorithm>
#include <array>

#include "core/numbers.h"
#include "crops/crop_adjustments.h"
#include "crops/crop_advice.h"
#include "crops/requirement_table.h"
#include "rules/crop_catalogue.h"
#include "rules/residue_groups.h"
#include "rules/soils.h"

namespace kel {

namespace {

constexpr std::string_view unit = "kg/ha";
constexpr std::string_view crops_table = "Crops table";

// Why an adjustment applies, in the order of the columns; what it is called where it does not.
struct adjustment_words {
    std::string_view reason;
    std::string_view name;
};
// clang-format off
constexpr std::array<adjustment_words, adjustment_count> words{{
    {"Intended market",                      "intended market"},
    {"The crop is undersown",                "undersowing"},
    {"Sowing was delayed",                   "delayed sowing"},
    {"Take-all is expected",                 "take-all"},
    {"The crop is turnip rape",              "turnip rape"},
    {"Manures applied to this crop",         "manures"},
    {"Manures applied to the previous crop", "manures to the previous crop"},
    {"High winter rainfall",                 "winter rainfall"},
    {"High spring rainfall",                 "spring rainfall"},
    {"Variety",                              "variety"},
}};
// clang-format on

std::string amount(const std::string& figure) {
    return figure + ' ' + std::string(unit);
}

std::string reason_of(const crop_row& row, std::size_t place) {
    std::string reason(words.at(place).reason);
    switch (static_cast<adjustment>(place)) {
        case adjustment::market: {
            if (is_vegetable_crop(row.crop)) return "A wet summer is expected";
            const std::string_view word = row.crop == "WB" ? row.notes_wb : row.notes_ww;
            return word.empty() ? reason : reason + " (" + std::string(word) + ')';
        }
        case adjustment::delayed_sowing: {
            const float daily = delayed_sowing_kg_per_ha(row.crop, 1);
            return daily == 0 ? reason
                              : reason + " (" + default_text(-daily) + " kg/ha less for each day of delay)";
        }
        default:
            return reason;
    }
}

// "after residue group 4 on Sandy loams"
std::string conditions(std::string_view group, std::string_view soil) {
    return "after residue group " + std::string(group.empty() ? "(none)" : group) + " on " +
           std::string(soil.empty() ? "no soil" : soil);
}

std::string_view variety_name(std::string_view percent) {
    const auto answers = variety_answers();
    const auto found = std::ranges::find(answers, leading_number(percent), &crop_answer::value);
    return found == answers.end() ? std::string_view{} : found->text;
}

}  // namespace

explanation* crop_account::about(std::initializer_list<crop_figure> figures) const {
    return std::ranges::find(figures, of) == figures.end() ? nullptr : why;
}

std::string crop_words(std::string_view code) {
    const std::string_view name = crop_long_name(code);
    return std::string(name == unknown_crop ? code : name);
}

void tell_requirement_keys(const crop_row& row, explanation& why) {
    why.input("Planned crop", crop_words(row.crop), "", "Crops table, Planned Crop");
    why.input("Residue group of the previous crop", row.residue_group, "", "Crops table, from Previous Crop");
    why.input("Soil", row.soil, "", "farm profile, of the field");
}

void tell_requirement_cell(std::string_view table, std::string_view crop, int residue_group,
                           std::string_view soil, const requirement_cell& cell, explanation& why) {
    std::string text = std::string(table) + ": " + crop_words(crop) + ' ' +
                       conditions(std::to_string(residue_group), soil) + ": " +
                       default_text(cell.n_kg_per_ha);
    if (cell.range_kg_per_ha != 0) text += " to " + default_text(cell.n_kg_per_ha + cell.range_kg_per_ha);
    why.source(text + " kg N/ha");
}

void tell_carried_requirement(const crop_row& row, const base_requirement& working, explanation& why) {
    why.rule("The requirement tables have no figure for " + crop_words(row.crop) + ' ' +
             conditions(row.residue_group, row.soil) +
             ". The row goes on from the figures that the row above it ended with (the first row from those "
             "of the calculation before): spring " +
             amount(default_text(working.spring_n)) + ", seedbed " + amount(default_text(working.seedbed_n)) +
             ", total " + amount(default_text(working.total_n)) + '.');
}

void tell_split_advice(const crop_row& row, bool split, bool any, explanation& why) {
    const std::string_view word = row.crop == "WB" ? row.notes_wb : row.crop == "WW" ? row.notes_ww : "";
    why.input("Planned crop", crop_words(row.crop) + (word.empty() ? "" : " (" + std::string(word) + ')'), "",
              crops_table);
    if (split)
        why.rule("For this crop and its market there is advice on how the spring dressing is split.");
    else if (any)
        why.rule(
            "The advice comes with the crop's row of the requirement tables; a crop that they lack keeps "
            "that of the row above.");
    else
        why.rule("Neither the crop nor its row of the requirement tables brings any advice.");
}

void tell_base_dressing(double total_kg_per_ha, double limit_kg_per_ha, explanation& why) {
    const bool advised = total_kg_per_ha >= limit_kg_per_ha;
    why.step("A vegetable that requires " + amount(default_text(limit_kg_per_ha)) +
             " or more before its adjustments gets the advice on base dressings: it requires " +
             amount(default_text(total_kg_per_ha)) + (advised ? ", so it does" : ", so it does not"));
}

void tell_adjustment(const crop_row& row, std::size_t place, const std::string& added,
                     const std::string& before, const std::string& after, explanation& why) {
    const bool less = added.starts_with('-');
    why.step(reason_of(row, place) + ": " + before + (less ? " - " : " + ") +
             (less ? added.substr(1) : added) + " = " + amount(after));
}

void tell_variety(const crop_row& row, const std::string& before, const std::string& part,
                  const std::string& after, explanation& why) {
    const std::string_view percent = row.cell(adjustment::variety);
    const std::string_view name = variety_name(percent);
    why.step("Variety" + (name.empty() ? std::string{} : " (" + std::string(name) + ')') +
             ": the percentage is taken off the spring amount: " + before + " - " + part + " x " +
             std::string(percent) + " / 100 = " + amount(after));
}

void tell_idle_adjustments(const crop_row& row, explanation& why) {
    std::string idle;
    for (std::size_t i = 0; i < adjustment_count; ++i)
        if (leading_number(row.adjustments[i]) == 0) {
            if (!idle.empty()) idle += ", ";
            idle += words.at(i).name;
        }
    if (!idle.empty()) why.rule("Empty or 0 in the row, so nothing changes for: " + idle + '.');
}

void tell_floor(const std::string& sum, explanation& why) {
    why.step(amount(sum) + " is below 0, so it is 0 kg/ha");
}

void tell_rounding(const std::string& rounded, explanation& why) {
    why.step("Rounded to 1 decimal, halves to the even digit: " + amount(rounded));
}

void tell_range(const std::string& range, const std::string& text, explanation& why) {
    why.step("The table gives a range of " + amount(range) +
             " above the figure; the high figure is shown first: " + text);
}

void tell_manures(const crop_row& row, const std::string& sum, explanation& why) {
    why.rule(
        "What the crop takes from manures: those applied to it and what is left of those applied to the "
        "crop before. An empty cell counts as 0.");
    const std::string_view current = row.cell(adjustment::manures);
    const std::string_view previous = row.cell(adjustment::previous_manures);
    why.input("Manures applied to this crop", current, unit, crops_table);
    why.input("Manures applied to the previous crop", previous, unit, crops_table);
    why.step(default_text(leading_number(current)) + " + " + default_text(leading_number(previous)) + " = " +
             amount(sum));
}

void tell_winter_default(const std::string& months, const std::string& sum_mm, const std::string& bound_mm,
                         bool high, explanation& why) {
    why.source("Climate tables, mean rainfall of the farm's town in mm a month");
    why.step(months + " = " + sum_mm + " mm, which is " + (high ? "more than " : "not more than ") +
             bound_mm + " mm");
}

void tell_rain(const rain_words& words, std::string_view status, rain_outcome outcome, const rained_on& row,
               int kg_per_ha, explanation& why) {
    const std::string season(words.season);
    const std::string figure = amount(std::to_string(kg_per_ha));
    const std::string keys = crop_words(row.crop) + ' ' + conditions(row.residue_group, row.soil) +
                             (soil_code(row.soil) ? "" : " (worked with the soil of the row above)");
    switch (outcome) {
        case rain_outcome::dry:
            return why.input(season, status.empty() ? "" : words.dry, "", "nothing is added");
        case rain_outcome::figure:
            return why.source(season + ": " + std::string(words.wet) + ". Rainfall adjustments: " + keys +
                              ": " + figure);
        case rain_outcome::kept:
            return why.rule(season + ": " + std::string(words.wet) +
                            ". The rainfall adjustments have no figure for " + keys +
                            ", so that of the row above stands: " + figure + '.');
        case rain_outcome::row_incomplete:
            return why.rule(season + ": " + std::string(words.wet) +
                            ". The row lacks its residue group or its soil, so its figure stays as it is.");
    }
}

}  // namespace kel
