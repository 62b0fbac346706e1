#include "standing/season_bands.h"

#include <algorithm>

#include "core/numbers.h"
#include "rules/soils.h"
#include "standing/season_messages.h"

namespace kel {

namespace text = season_messages;

season_bands::season_bands(const farm_year& year)
    : zone_(year.profile.farm_zone),
      limits_(year_limits_of(year.profile.kel_year_start.value())),
      base_year_(year_of(*year.profile.kel_year_start) + 1) {
    for (recordset rows = year.current.file.open("Land"); !rows.eof(); rows.move_next()) {
        const auto [entry, is_new] = land_.try_emplace(rows.text("Field Area ID"));
        if (!is_new) continue;
        entry->second.use = read_land_use(rows);
        for (int month = 1; month <= months_in_year; ++month)
            entry->second.free_land.at(static_cast<std::size_t>(month - 1)) =
                leading_single(rows.text(month_name(month))) != 0;
    }
}

template <class Condition>
std::vector<season_bands::day_range> season_bands::ranges_where(const Condition& holds) const {
    std::vector<day_range> ranges;
    bool goes_on = false;
    const std::chrono::sys_days end(limits_.year_end);
    for (auto at = std::chrono::sys_days(limits_.year_start); at <= end; at += std::chrono::days(1)) {
        const date day(at);
        const bool now = holds(day);
        if (now && !goes_on) ranges.push_back({day, day});
        if (now) ranges.back().last = day;
        goes_on = now;
    }
    return ranges;
}

std::string season_bands::days_text(const day_range& days) {
    return short_date_text(days.first) + " to " + short_date_text(days.last);
}

std::optional<land_use> season_bands::use_of(const std::string& field) const {
    const auto found = land_.find(field);
    return found == land_.end() ? std::nullopt : std::optional(found->second.use);
}

bool season_bands::closed_to_manure(const std::string& field, date day) const {
    return closed_for_manure(use_of(field), day) == closed_answer::closed;
}

bool season_bands::closed_to_fertiliser(const std::string& field, date day) const {
    return closed_for_inorganic(use_of(field), day, base_year_, zone_) == closed_answer::closed;
}

void season_bands::add_to(field_season& field) {
    const auto land = land_.find(field.name);
    const std::string crops = land == land_.end() ? "" : land->second.use.crop_pair;
    const auto pair = split_crop_pair(crops);
    if (!pair) {
        field.manure_missing = land == land_.end() ? std::string(text::no_land_row)
                               : crops.empty()     ? std::string(text::no_crops)
                                                   : text::unreadable_crops(crops);
        field.fertiliser_missing = field.manure_missing;
        return;
    }
    field.crops = crops;
    add_fertiliser_band(field, *pair);
    if (find_soil(field.soil))
        add_manure_band(field, land->second, *pair);
    else
        field.manure_missing = text::no_soil;
}

// The months count as they are stored, as in every test of an application. Whether soil and crops would
// close them now only decides what is said of them.
void season_bands::add_manure_band(field_season& field, const land_row& land, const crop_pair& pair) const {
    const auto by_rule = closed_months(field.soil, pair.second);
    const auto closes = [&](int month) { return std::ranges::find(by_rule, month) != by_rule.end(); };
    const auto closed = [&](date day) { return closed_for_manure(land.use, day) == closed_answer::closed; };
    for (const day_range& days : ranges_where(closed)) {
        const bool now = closes(month_of(days.first)) && closes(month_of(days.last));
        field.manure_closed.push_back({days.first, days.last,
                                       now ? text::manure_closed(days_text(days), field.soil, field.crops)
                                           : text::manure_closed_as_stored(days_text(days))});
    }
    const auto full = [&](date day) {
        return !closed(day) && !land.free_land.at(static_cast<std::size_t>(month_of(day) - 1));
    };
    for (const day_range& days : ranges_where(full))
        field.no_land.push_back({days.first, days.last, text::no_land(days_text(days))});
    for (int month = 1; month <= months_in_year; ++month)
        if (closes(month) != land.use.closed_months.at(static_cast<std::size_t>(month - 1))) {
            field.notes.emplace_back(text::soil_has_changed);
            break;
        }
}

void season_bands::add_fertiliser_band(field_season& field, const crop_pair& pair) {
    const auto [days_of_crop, is_new] = fertiliser_days_.try_emplace(pair.second);
    if (is_new)
        days_of_crop->second =
            ranges_where([&](date day) { return closed_by_calendar(day, base_year_, zone_, pair.second); });
    for (const day_range& days : days_of_crop->second)
        field.fertiliser_closed.push_back(
            {days.first, days.last, text::fertiliser_closed(days_text(days), zone_, field.crops)});
}

int days_between(date first, date last) {
    return static_cast<int>((std::chrono::sys_days(last) - std::chrono::sys_days(first)).count());
}

const season_span* span_of(const std::vector<season_span>& spans, date day) {
    for (const season_span& span : spans)
        if (span.first <= day && day <= span.last) return &span;
    return nullptr;
}

}  // namespace kel
