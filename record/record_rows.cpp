#include "record/record_rows.h"

#include <algorithm>
#include <utility>

#include "rules/closed_periods.h"
#include "rules/crop_catalogue.h"
#include "rules/manure_catalogue.h"

namespace kel {

namespace {

// A bound that is missing lies before every day, as comparisons of an empty optional have it.
using bound = std::optional<date>;

struct crop_facts {
    std::string current_crop;
    std::string other_crop;
    std::string sowing_day;
    bound lower;
    bound upper;
    std::string next_crop;
};

std::string day_text(const std::string& stored) {
    const auto day = parse_date(stored);
    return day ? short_date_text(*day) : stored;
}

// Only the first manure stored decides whether the field's use is looked at.
bool asks_for_closed_periods(const field_year& year) {
    return !year.manures.empty() && !is_exempt_fym(year.manures.front().manure);
}

void take_crop(const crop_record& crop, crop_facts& facts) {
    if (!crop.next_crop.empty()) facts.current_crop = crop_long_name(crop.next_crop);
    if (!crop.previous_crop.empty()) facts.other_crop = crop_long_name(crop.previous_crop);
    facts.sowing_day = day_text(crop.sowing_day);
    facts.lower = parse_date(crop.previous_harvest);
    facts.upper = parse_date(crop.current_harvest);
}

// A season whose end was not entered ends on 1 November.
void take_season(const site_record& grass, const record_year& year, crop_facts& facts) {
    if (!grass.use.empty()) facts.current_crop = grass.use;
    facts.lower = parse_date(grass.season_end);
    if (!facts.lower && year.start) facts.lower = make_date(1, 11, year_of(*year.start));
    facts.upper = facts.lower ? bound(add_years(*facts.lower, 1)) : std::nullopt;
}

crop_facts facts_of(const field_history& field, const record_year& year, bool not_assessed) {
    crop_facts facts;
    if (not_assessed) {
        facts.next_crop = unknown_crop;
    } else {
        if (asks_for_closed_periods(field.current)) {
            const std::string& pair = field.current.land->crop_pair;
            const auto slash = pair.find('/');
            facts.next_crop = slash == std::string::npos ? "" : pair.substr(slash + 1);
        }
        if (field.crop) take_crop(*field.crop, facts);
        if (field.grass) take_season(*field.grass, year, facts);
    }
    if (facts.current_crop.empty()) facts.current_crop = unknown_crop;
    return facts;
}

std::string day_or_none(const bound& day) {
    return day ? short_date_text(*day) : "";
}

void tell_bounds(const crop_facts& facts, explanation& why) {
    constexpr std::string_view where = "Crops or grassland module";
    why.input("Crop grown", facts.current_crop, "", where);
    why.input("End of the crop or season before", day_or_none(facts.lower), "", where);
    why.input("End of the crop or season", day_or_none(facts.upper), "", where);
}

// On the lower bound itself the crop is left open.
void name_crop(record_row& row, const crop_facts& facts, explanation* why = nullptr) {
    const bound day = row.day;
    const auto tell = [&](std::string_view rule) {
        if (why) why->rule(std::string(rule));
    };
    if (why) tell_bounds(facts, *why);
    if (day > facts.lower && day < facts.upper) {
        row.crop = facts.current_crop;
        row.date_planted = facts.sowing_day;
        tell(
            "Applied after the end of the crop or season before and before the end of this one: it went to "
            "the crop grown.");
    } else if (day < facts.lower) {
        row.crop = facts.other_crop;
        tell("Applied before the end of the crop before, so it went to that one.");
    } else if (day >= facts.upper) {
        row.crop = facts.next_crop;
        tell(
            "Applied on or after the end of the crop grown, or that is not known: it goes to the crop that "
            "Step 2 "
            "has behind it, if the field's use is entered there.");
    } else {
        tell("Applied on the day on which the crop before ended, so the crop is left open.");
    }
}

record_row row_of(const manure_record& applied, date day) {
    return {.crop = {},
            .date_planted = {},
            .day = day,
            .inorganic_type = {},
            .amount = {},
            .inorganic_n = {},
            .manure = applied.manure,
            .n_content = applied.n_content,
            .rate = applied.rate,
            .manure_n = applied.total_n,
            .comments = {}};
}

record_row row_of(const inorganic_record& applied, date day) {
    return {.crop = {},
            .date_planted = {},
            .day = day,
            .inorganic_type = applied.type,
            .amount = applied.amount,
            .inorganic_n = applied.total_n,
            .manure = {},
            .n_content = {},
            .rate = {},
            .manure_n = {},
            .comments = applied.comments};
}

// Before the first row that is not earlier.
void place(std::vector<record_row>& rows, record_row row) {
    const auto before = std::lower_bound(rows.begin(), rows.end(), row.day,
                                         [](const record_row& r, date day) { return r.day < day; });
    rows.insert(before, std::move(row));
}

// `finish` names the crop of a row; a day before `from` leaves its application out.
template <class application, class finish_row>
void place_all(const std::vector<application>& applications, const bound& from, const finish_row& finish,
               field_record& record) {
    for (const application& applied : applications) {
        if (applied.day.empty()) continue;
        const bound day = parse_date(applied.day);
        if (!day) record.unreadable_days.push_back(applied.day);
        if (!day || day < from) continue;
        record_row row = row_of(applied, *day);
        finish(row);
        place(record.rows, std::move(row));
    }
}

// What of last year belongs to this record: the crop it went to, and from which day on.
struct last_year_facts {
    std::string crop;
    bound harvest;
    bool with_manures = true;
};

// Without a harvest the last day of the year assessed is the bound, and last year's manures stay out.
last_year_facts last_year_facts_of(const field_history& field, const record_year& year) {
    last_year_facts facts;
    std::string harvest;
    if (field.crop) {
        facts.crop = crop_long_name(field.crop->next_crop);
        harvest = field.crop->previous_harvest;
    } else if (field.grass) {
        facts.crop = field.grass->use;
        harvest = field.grass->season_end;
    }
    facts.harvest = parse_date(harvest);
    facts.with_manures = facts.harvest || (!field.crop && !field.grass);
    if (!facts.harvest && year.start) facts.harvest = year_limits_of(*year.start).year_end;
    return facts;
}

void name_last_years(record_row& row, const last_year_facts& facts, explanation* why = nullptr) {
    row.crop = facts.crop;
    row.last_year = true;
    if (!why) return;
    why->input("Crop grown", facts.crop, "", "Crops or grassland module");
    why->input("End of the crop or season before", day_or_none(facts.harvest), "",
               "Crops or grassland module");
    why->rule(
        "Last year's applications since the end of the crop before were made for the crop grown this year.");
}

// Whether Step 2 still has to settle when the field is closed.
bool is_not_assessed(const field_history& field) {
    const auto& land = field.current.land;
    return asks_for_closed_periods(field.current) && (!land || land->crop_pair.empty());
}

void get_record_previous(const field_history& field, const record_year& year, field_record& record) {
    const last_year_facts facts = last_year_facts_of(field, year);
    const auto name = [&](record_row& row) { name_last_years(row, facts); };
    if (facts.with_manures) place_all(field.previous.manures, facts.harvest, name, record);
    place_all(field.previous.inorganics, facts.harvest, name, record);
}

}  // namespace

field_record get_record(const field_history& field, const record_year& year) {
    field_record record;
    record.not_assessed = is_not_assessed(field);
    const crop_facts facts = facts_of(field, year, record.not_assessed);
    const auto name = [&](record_row& row) { name_crop(row, facts); };
    place_all(field.current.manures, {}, name, record);
    place_all(field.current.inorganics, {}, name, record);
    get_record_previous(field, year, record);
    return record;
}

void name_crop(record_row& row, const field_history& field, const record_year& year, explanation* why) {
    row.crop.clear();
    row.date_planted.clear();
    if (row.last_year)
        name_last_years(row, last_year_facts_of(field, year), why);
    else
        name_crop(row, facts_of(field, year, is_not_assessed(field)), why);
}

}  // namespace kel
