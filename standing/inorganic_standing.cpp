// Step 4: the closed periods of inorganic nitrogen, as its date box tests them, and the reasons given.
#include <algorithm>

#include "core/dates.h"
#include "inorganic/inorganic_grid.h"
#include "inorganic/inorganic_messages.h"
#include "rules/closed_period_lookups.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;
namespace col = inorganic_column;

namespace {

// Step 4 begins the comments of such an application with these words; what is typed behind them is the
// reason. Comments of one's own are taken for one too.
bool gives_reason(const std::string& comments) {
    const std::string_view opening = inorganic_messages::closed_period_comment;
    const bool begins_so = comments.starts_with(opening.substr(0, opening.size() - 1));
    return begins_so ? comments.size() > opening.size() : !comments.empty();
}

struct found_rows {
    std::vector<closed_breach> breaches;
    std::vector<std::string> not_assessed;  // fields
    std::vector<std::string> gaps;          // fields
};

void add_once(std::vector<std::string>& names, const std::string& name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

bool has_gap(const text_grid& table, int row) {
    for (const int column : {col::field, col::type, col::amount, col::content, col::total_n})
        if (table.cell(row, column).empty()) return true;
    return !parse_date(table.cell(row, col::day));
}

found_rows judge_rows(const farm_year& year, const field_histories& fields, const text_grid& table) {
    const int base_year = year_of(*year.profile.kel_year_start) + 1;
    found_rows found;
    for (int row = 0; row < table.data_row_count(); ++row) {
        const std::string& field = table.cell(row, col::field);
        const auto day = parse_date(table.cell(row, col::day));
        if (has_gap(table, row)) add_once(found.gaps, field);
        if (!day) continue;
        const auto answer = closed_for_inorganic(history_of(fields, field).current.land, *day, base_year,
                                                 year.profile.farm_zone);
        if (answer == closed_answer::field_unknown) add_once(found.not_assessed, field);
        if (answer == closed_answer::closed)
            found.breaches.push_back({field, *day, table.cell(row, col::type), true,
                                      gives_reason(table.cell(row, col::comments))});
    }
    return found;
}

bool all_justified(const std::vector<closed_breach>& breaches) {
    return std::ranges::all_of(breaches, &closed_breach::justified);
}

step_standing told(const found_rows& found, int applications) {
    step_standing standing{farm_step::inorganic, found.gaps.empty(), severity::fine};
    standing.verdict = found.breaches.empty()
                           ? text::inorganic_entered(static_cast<std::size_t>(applications))
                           : text::in_closed_period(found.breaches);
    if (!found.breaches.empty()) {
        const bool justified = all_justified(found.breaches);
        raise(standing, justified ? severity::attention : severity::wrong);
        standing.next = justified ? text::keep_the_notice : text::give_reasons;
    } else if (!found.gaps.empty()) {
        standing.next = text::fill_gaps(found.gaps);
    } else if (!found.not_assessed.empty()) {
        standing.next = text::assess_fields(found.not_assessed);
    }
    if (!found.gaps.empty() || !found.not_assessed.empty()) raise(standing, severity::attention);
    return standing;
}

}  // namespace

step_standing inorganic_standing(const farm_year& year, const field_histories& fields, farm_standing& farm) {
    if (!year.profile.kel_year_start) {
        add_missing(farm, farm_step::inorganic, text::no_year);
        return incomplete(farm_step::inorganic, text::no_year, text::complete_profile);
    }
    const text_grid table = inorganic_table::get_data(year.current.file);
    if (table.data_row_count() == 0)
        return not_done(farm_step::inorganic, text::no_inorganic, text::enter_inorganic);
    const found_rows found = judge_rows(year, fields, table);
    farm.breaches.insert(farm.breaches.end(), found.breaches.begin(), found.breaches.end());
    if (!found.gaps.empty()) add_missing(farm, farm_step::inorganic, text::inorganic_gaps(found.gaps));
    if (!found.not_assessed.empty())
        add_missing(farm, farm_step::inorganic, text::calendar_not_known(found.not_assessed));
    return told(found, table.data_row_count());
}

}  // namespace kel
