#include "standing/step_standings.h"

#include <algorithm>

namespace kel {

const field_history& history_of(const field_histories& fields, const std::string& field) {
    static const field_history none;
    const auto found = fields.find(field);
    return found == fields.end() ? none : found->second;
}

void add_missing(farm_standing& farm, farm_step step, std::string_view sentence) {
    farm.missing.push_back({step, std::string(sentence)});
}

bool add_told(farm_standing& farm, farm_step step, const load_messages& told) {
    heard_messages heard;
    told.tell(heard);
    for (const std::string& sentence : heard.told)
        if (std::ranges::count(farm.missing, missing_data{step, sentence}) == 0)
            add_missing(farm, step, sentence);
    return !heard.told.empty();
}

step_standing not_done(farm_step step, std::string_view verdict, std::string_view next) {
    return {step, false, severity::not_done, std::string(verdict), std::string(next)};
}

step_standing incomplete(farm_step step, std::string_view verdict, std::string_view next) {
    return {step, false, severity::attention, std::string(verdict), std::string(next)};
}

void raise(step_standing& standing, severity to) {
    standing.worst = std::max(standing.worst, to);
}

}  // namespace kel
