// Set Profile: its tests and questions in their order, the new farm's file, and the save.
#include "core/file_choice.h"
#include "core/fresh_file.h"
#include "core/numbers.h"
#include "core/settings_store.h"
#include "core/whole_file.h"
#include "profile/field_changes.h"
#include "profile/profile_messages.h"
#include "profile/profile_module.h"

namespace kel {

namespace messages = profile_messages;

bool profile_module::kel_areas_agree() {
    const float total = fields_.sum(field_column::kel_area, fields_.row_count());
    if (leading_single(farm_.kel_area) == total) return true;
    if (person_.ask(messages::kel_area_query) == answer::yes) {
        farm_.kel_area = shortest_text(total);
        return true;
    }
    person_.tell(messages::kel_area_to_adjust);
    return false;
}

// The names stored before are known anew only after the next load; until then a renamed field finds nothing
// in the files. Its old name may be another field's by now, and must not bring that one's rows.
void profile_module::forget_carried_names() {
    for (int row = 0; row < fields_.row_count(); ++row) {
        const std::string& old_name = fields_.cell(row, field_column::stored_name);
        if (!old_name.empty() && old_name != fields_.cell(row, field_column::name))
            fields_.set_cell(row, field_column::stored_name, std::string(1, '\x1a'));
    }
}

set_profile_result profile_module::set_profile() {
    if (const message* refusal = missing_from_profile(farm_, fields_)) {
        person_.tell(*refusal);
        return set_profile_result::refused;
    }
    state_.kel_year_start = parse_date(farm_.year);
    if (!kel_areas_agree()) return set_profile_result::refused_focus_kel_area;
    if (leading_single(farm_.total_area) < leading_single(farm_.kel_area)) {
        person_.tell(messages::kel_area_above_total);
        return set_profile_result::refused_focus_farm_area;
    }
    bool areas_changed = false;
    if (state_.assess_file.empty()) {
        const std::string path = choose_file_to_save(state_, person_, messages::new_file_title);
        if (path.empty()) return set_profile_result::cancelled;
        areas_changed = save_new_farm(path);
    } else {
        if (!loaded_.may_be_replaced(state_.assess_file, person_)) return set_profile_result::refused;
        areas_changed = save_prof(database(state_.assess_file), farm_, fields_, state_);
    }
    loaded_.remember(database(state_.assess_file));
    forget_carried_names();
    saved_farm_ = farm_;
    history_.begin_anew();
    if (areas_changed) person_.tell(messages::areas_changed);
    return set_profile_result::saved;
}

// The farm is written whole beside its place, so that a failure leaves no empty assessment behind; the state
// follows when file and store are written.
bool profile_module::save_new_farm(const std::string& path) {
    application_state chosen = state_;
    for (std::string* link : {&chosen.slot_prev1, &chosen.slot_prev2, &chosen.prev1_file, &chosen.prev2_file})
        link->clear();
    chosen.slot_current = chosen.assess_file = path;
    fresh_file fresh(state_.places.blank_assessment(), path);
    const bool areas_changed = save_prof(fresh.open(), farm_, fields_, chosen);
    fresh.put_in_place(*state_.copies);
    write_store(chosen);
    state_ = chosen;
    mark_open_file(state_, person_);
    return areas_changed;
}

}  // namespace kel
