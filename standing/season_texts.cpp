#include "standing/season_texts.h"

#include <array>

#include "core/numbers.h"
#include "rules/nitrogen_limits.h"
#include "standing/season_messages.h"

namespace kel {

namespace {

namespace text = season_messages;
namespace col = season_column;

constexpr auto calculated = column_kind::calculated;

// clang-format off
constexpr std::array<grid_column, 5> columns{{
    // heading    stored  kind     width
    {"Field",     "", calculated,   20},
    {"From",      "", calculated,   12},
    {"To",        "", calculated,   12},
    {"What",      "", calculated,   32},
    {"Details",   "", calculated,   80},
}};
// clang-format on

void add_row(text_grid& table, const std::string& field, const std::string& first, const std::string& last,
             std::string_view what, const std::string& details) {
    const int row = table.add_row();
    table.set_cell(row, col::field, field);
    table.set_cell(row, col::first, first);
    table.set_cell(row, col::last, last);
    table.set_cell(row, col::what, std::string(what));
    table.set_cell(row, col::details, details);
}

void add_spans(text_grid& table, const field_season& field, const std::vector<season_span>& spans,
               std::string_view what) {
    for (const season_span& span : spans)
        add_row(table, field.name, short_date_text(span.first), short_date_text(span.last), what, span.rule);
}

std::string mark_text(const season_mark& mark) {
    std::string told = mark.type;
    if (!mark.amount.empty()) told += ", " + mark.amount;
    if (mark.rolling_n_kg_per_ha)
        told +=
            "; with it " + shortest_text(round_to_3(*mark.rolling_n_kg_per_ha)) + " kg N/ha in twelve months";
    return told + (mark.in_closed_period ? "; IN A CLOSED PERIOD" : "");
}

std::string field_text(const field_season& field) {
    std::string told = field.size_ha.empty() ? "No area" : field.size_ha + " ha";
    told += ", " + (field.soil.empty() ? "no soil" : field.soil);
    return told + ", " + (field.crops.empty() ? "no crops" : "crops " + field.crops);
}

void add_field(text_grid& table, const field_season& field) {
    add_row(table, field.name, "", "", "Field", field_text(field));
    for (const std::string& note : field.notes)
        add_row(table, field.name, "", "", "Note", note);
    if (!field.manure_missing.empty())
        add_row(table, field.name, "", "", "Slurries and manures not known", field.manure_missing);
    add_spans(table, field, field.manure_closed, "Closed to slurries and manures");
    add_spans(table, field, field.no_land, "No land free");
    if (!field.fertiliser_missing.empty())
        add_row(table, field.name, "", "", "Inorganic nitrogen not known", field.fertiliser_missing);
    add_spans(table, field, field.fertiliser_closed, "Closed to inorganic nitrogen");
    for (const season_mark& mark : field.marks)
        add_row(table, field.name, short_date_text(mark.day), short_date_text(mark.day), word_of(mark.kind),
                mark_text(mark));
    add_row(table, field.name, "", "", "Limit of 250 kg N/ha", use_text(field));
}

std::string manure_state(const field_season& field, date day) {
    if (!field.manure_missing.empty()) return field.manure_missing;
    if (const season_span* closed = span_of(field.manure_closed, day))
        return closed->rule + " " + std::string(text::exempt_open);
    if (const season_span* full = span_of(field.no_land, day)) return full->rule;
    return "Open to slurries and manures.";
}

std::string fertiliser_state(const field_season& field, date day) {
    if (!field.fertiliser_missing.empty()) return field.fertiliser_missing;
    const season_span* closed = span_of(field.fertiliser_closed, day);
    return closed ? closed->rule : "Open to inorganic nitrogen.";
}

}  // namespace

std::string_view word_of(applied_as kind) {
    switch (kind) {
        case applied_as::exempt_manure:
            return "Farmyard manure";
        case applied_as::fertiliser:
            return "Fertiliser";
        default:
            return "Slurry or manure";
    }
}

std::string use_text(const field_season& field) {
    if (!field.peak_missing.empty()) return field.peak_missing;
    if (!field.peak) return "No manure applied";
    return shortest_text(round_to_3(field.peak->n_kg_per_ha)) + " of " +
           shortest_text(rolling_field_limit_kg_per_ha) + " kg N/ha on " + short_date_text(field.peak->day) +
           (field.peak->over_limit ? ", OVER THE LIMIT" : "");
}

std::string day_text(const field_season& field, date day) {
    std::string told = field.name + ", " + long_date_text(day) + ": " + manure_state(field, day);
    const std::string of_fertiliser = fertiliser_state(field, day);
    if (of_fertiliser != field.manure_missing) told += " " + of_fertiliser;
    for (const season_mark& mark : field.marks)
        if (mark.day == day) told += " Applied: " + mark_text(mark) + ".";
    return told;
}

text_grid season_table(const season_calendar& season) {
    text_grid table(columns);
    if (!season.missing.empty()) add_row(table, "", "", "", "Nothing to show", season.missing);
    for (const std::string& note : season.notes)
        add_row(table, "", "", "", "Note", note);
    for (const field_season& field : season.fields)
        add_field(table, field);
    return table;
}

}  // namespace kel
