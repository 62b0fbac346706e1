#include "core/application_state.h"

namespace kel {

void set_short_date(application_state& state) {
    state.short_date_format = "dd/MM/yyyy";
}

void set_long_date(application_state& state) {
    state.long_date_format = "dd MMMM yyyy";
}

bool for_previous_year(manure_opener opener) {
    return opener == manure_opener::old_crop || opener == manure_opener::old_grass;
}

screen_id screen_of(manure_opener opener) {
    switch (opener) {
        case manure_opener::new_crop:
        case manure_opener::old_crop:
            return screen_id::crops;
        case manure_opener::new_grass:
        case manure_opener::old_grass:
            return screen_id::grass;
        case manure_opener::front:
            break;
    }
    return screen_id::front;
}

void mark_open_file(const application_state& state, prompts& person) {
    if (const auto computer = state.mark->move_to(state.assess_file))
        person.tell(open_elsewhere(state.assess_file, *computer));
}

void go_on_in(application_state& state, prompts& person, const std::string& path) {
    state.assess_file = path;
    mark_open_file(state, person);
}

void close_assessment(application_state& state) {
    for (std::string* path : {&state.assess_file, &state.prev1_file, &state.prev2_file})
        path->clear();
    ++state.assessment;
    state.mark->move_to({});
}

std::string dialog_folder(const application_state& state) {
    return state.last_dir.empty() ? state.places.user_files() : state.last_dir;
}

}  // namespace kel
