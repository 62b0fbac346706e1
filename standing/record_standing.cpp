// The field record's analysis of every field, and what is recorded of composting.
#include <algorithm>

#include "composting/composting_grid.h"
#include "core/numbers.h"
#include "record/record_analysis.h"
#include "record/record_messages.h"
#include "record/record_rows.h"
#include "standing/standing_messages.h"
#include "standing/step_standings.h"

namespace kel {

namespace text = standing_messages;

namespace {

struct warned_fields {
    std::vector<std::string> alerts;
    std::vector<std::string> others;
    std::size_t warnings = 0;
};

// Where manures supply more than is required, nobody can have applied less than nothing.
std::optional<excess_nitrogen> excess_given(const field_record& record, const field_history& history) {
    auto excess = nitrogen_above_requirement(record.rows, history.n_required);
    if (excess && leading_single(excess->applied) == 0) excess.reset();
    return excess;
}

void judge(const std::string& field, const field_history& history, const record_year& year,
           warned_fields& warned, farm_standing& farm) {
    const field_record record = get_record(history, year);
    const auto warnings = analysis(record, history, year);
    const auto limit_breached = [](const record_warning& warning) {
        return warning.text == record_messages::limit_breached;
    };
    const auto excess = excess_given(record, history);
    const bool alert = excess || std::ranges::any_of(warnings, limit_breached);
    if (!warnings.empty()) (alert ? warned.alerts : warned.others).push_back(field);
    warned.warnings += warnings.size();
    if (excess) farm.requirement_exceeded.push_back({field, excess->applied, excess->required});
}

bool has_applications(const field_history& field) {
    return !field.current.manures.empty() || !field.current.inorganics.empty();
}

}  // namespace

step_standing record_standing(const farm_year& year, const field_histories& fields, farm_standing& farm) {
    const record_year record{year.profile.kel_year_start, year.profile.farm_zone};
    warned_fields warned;
    bool any = false;
    for (const farm_field& field : year.fields) {
        const field_history& history = history_of(fields, field.name);
        any = any || has_applications(history);
        judge(field.name, history, record, warned, farm);
    }
    if (!any) return not_done(farm_step::record, text::nothing_recorded, {});
    if (warned.warnings == 0)
        return {farm_step::record, true, severity::fine, std::string(text::no_warnings)};
    step_standing standing{farm_step::record, true, severity::attention};
    standing.verdict =
        farm.requirement_exceeded.empty()
            ? text::record_warnings(warned.warnings, warned.alerts.size() + warned.others.size())
            : text::requirement_exceeded(farm.requirement_exceeded);
    standing.next = text::look_at_record(warned.alerts.empty() ? warned.others : warned.alerts);
    if (!warned.alerts.empty()) raise(standing, severity::wrong);
    return standing;
}

step_standing composting_standing(const farm_year& year, farm_standing& farm) {
    load_messages told;
    const text_grid table = load_calculations(year.current.file, year.fields, told);
    step_standing standing{farm_step::composting, table.data_row_count() > 0, severity::fine};
    standing.verdict = text::composting_recorded(static_cast<std::size_t>(table.data_row_count()));
    if (add_told(farm, farm_step::composting, told)) raise(standing, severity::attention);
    return standing;
}

}  // namespace kel
