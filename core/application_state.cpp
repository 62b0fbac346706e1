#include "core/application_state.h"

namespace kel {

void set_short_date(application_state& state) {
    state.short_date_format = "dd/MM/yyyy";
}

void set_long_date(application_state& state) {
    state.long_date_format = "dd MMMM yyyy";
}

std::string dialog_folder(const application_state& state) {
    return state.last_dir.empty() ? state.places.user_files() : state.last_dir;
}

}  // namespace kel
