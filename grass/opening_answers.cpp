#include "grass/opening_answers.h"

#include "core/explanation.h"
#include "grass/site_class.h"

namespace kel {

namespace {

constexpr std::string_view table = "Grass_data";
constexpr std::string_view rain_column = "Apr-Sep Rain";
constexpr std::string_view altitude_column = "Altitude";

int place_of(const rain_level* level) {
    return static_cast<int>(level - rain_levels().data());
}
int place_of(const altitude_level* level) {
    return static_cast<int>(level - altitude_levels().data());
}

void tell(explanation* why, std::string_view where) {
    if (why) why->rule("The answer that " + std::string(where) + " has stands before the climate tables.");
}

void add_stored(const database& db, std::string_view where, opening_answers& answers,
                const opening_accounts& why) {
    const recordset row = db.open(table);
    if (row.eof()) return;
    if (!answers.rain)
        if (const rain_level* const level = rain_level_stored_as(row.text(rain_column))) {
            answers.rain = place_of(level);
            tell(why.rain, where);
        }
    if (!answers.altitude)
        if (const altitude_level* const level = altitude_level_stored_as(row.text(altitude_column))) {
            answers.altitude = place_of(level);
            tell(why.altitude, where);
        }
}

// At most one row; it is made when the first answer is kept.
void store(const application_state& state, std::string_view column, std::string_view answer) {
    const database db(state.assess_file);
    save_transaction transaction(db, *state.copies);
    recordset row = db.open(table);
    if (row.eof())
        row.add_new();
    else if (row.text(column) == answer)
        return;
    else
        row.edit();
    row.set(column, answer);
    row.update();
    transaction.commit();
}

}  // namespace

opening_answers answers_in_advance(const database& assessment, const application_state& state,
                                   const opening_accounts& why) {
    opening_answers answers;
    add_stored(assessment, "this assessment", answers, why);
    const bool complete = answers.rain && answers.altitude;
    if (!complete && !state.prev1_file.empty())
        add_stored(database(state.prev1_file), "last year's assessment", answers, why);
    if (!answers.rain)
        if (const auto mm = apr_to_sep_rain_mm(database(state.places.climate_tables()), why.rain))
            answers.rain = place_of(&rain_level_of(*mm));
    return answers;
}

void store_rain(const application_state& state, int answer) {
    store(state, rain_column, rain_levels()[static_cast<std::size_t>(answer)].stored);
}

void store_altitude(const application_state& state, int answer) {
    store(state, altitude_column, altitude_levels()[static_cast<std::size_t>(answer)].stored);
}

}  // namespace kel
