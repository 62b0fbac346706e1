#include "shell/years_module.h"

#include <exception>

#include "core/assessment_files.h"
#include "core/file_choice.h"
#include "core/held_still.h"
#include "core/settings_store.h"
#include "core/whole_file.h"
#include "shell/assessments_messages.h"
#include "shell/reopen_assessment.h"
#include "shell/year_data.h"
#include "shell/years_messages.h"

namespace kel {

namespace {

namespace text = years_messages;

year_row shown(const std::string& path) {
    year_row row;
    if (path.empty()) return row;
    row.path = path;
    row.file_name = file_name_of(path);
    // A damaged slot must not keep the dialog from opening: it is where another file is chosen.
    try {
        row.farm_name = read_farm_name(path);
        if (const auto year = read_assessment_year(path)) row.year_text = short_date_text(*year);
    } catch (const file_error& failure) {
        row.trouble = failure.trouble();
    }
    return row;
}

/// Nothing for a file without a profile.
std::optional<std::string> stored_farm_name(const std::string& path) {
    const recordset farm = database(path).open("FarmProfile");
    if (farm.eof()) return std::nullopt;
    return farm.text("Name");
}

}  // namespace

void years_module::open() {
    close_create();
    set_threefiles();
    do_not_check_link = state_.no_link_prompt == 1;
    do_not_check_related = state_.no_related_prompt == 1;
}

void years_module::set_threefiles() {
    rows_ = {shown(state_.slot_current), shown(state_.slot_prev1), shown(state_.slot_prev2)};
    // A slot selected in an earlier run may have lost its file, so it is selected as a click would.
    const bool older = state_.slot_selected == 2 || state_.slot_selected == 3;
    click_option(older ? static_cast<year_option>(state_.slot_selected) : year_option::current);
}

/// The one way to another chain or another file of it: memory moves after the file was read and the store
/// written whole, so a failure of either leaves everything as it was.
void years_module::go_on_with(const application_state& chosen) {
    loaded_profile fresh = profile_.read_profile(chosen.assess_file);
    write_store(chosen);
    const bool other_file = state_.assess_file != chosen.assess_file;
    state_ = chosen;
    if (other_file) ++state_.assessment;
    profile_.show_profile(std::move(fresh));
}

void years_module::content_changed() {
    ++state_.assessment;  // also where the store cannot be written: the rows are others already
    const application_state chosen = state_;
    go_on_with(chosen);
}

void years_module::browse_current() {
    const std::string path = choose_file_to_open(state_, person_, text::open_title);
    if (!path.empty()) open_file(path);
}

void years_module::open_file(const std::string& path) {
    const bool newest = same_file(path, state_.slot_current);
    if (newest && same_file(path, state_.assess_file)) return;
    application_state chosen = state_;
    if (!newest) {
        chosen.slot_current = path;
        chosen.slot_prev1.clear();
        chosen.slot_prev2.clear();
    }
    chosen.slot_selected = 1;
    set_working_files(chosen);
    chosen.last_dir = folder_of(path);
    go_on_with(chosen);
    set_threefiles();
    if (creating()) open_create();
}

bool years_module::open_from_desktop(const std::string& path) {
    open();
    if (same_file(path, state_.assess_file)) return true;
    state_.picker_caller = picker_module::front;
    const bool was_in_chain = same_file(path, state_.slot_current);
    open_file(path);
    return was_in_chain || ok();
}

/// The tests that the older file must pass, `newer` being the file it is linked to.
bool years_module::may_link(const std::string& path, const std::string& newer, const message& wrong_year) {
    const auto farm_name = stored_farm_name(path);
    if (!farm_name) return false;
    if (*farm_name != state_.farm_name && person_.ask(text::other_farm_name) != answer::yes) return false;
    if (is_year_before(read_assessment_year(path), read_assessment_year(newer))) return true;
    person_.tell(wrong_year);
    return false;
}

void years_module::browse_prev1() {
    if (state_.slot_current.empty()) return person_.tell(text::no_assessment_open);
    const std::string path = choose_file_to_open(state_, person_, text::link_title);
    if (path.empty() || !may_link(path, state_.slot_current, text::not_previous_year)) return;
    state_.slot_prev1 = path;
    state_.slot_prev2.clear();
    if (state_.slot_selected == 3) state_.slot_selected = 2;
    set_threefiles();
}

void years_module::browse_prev2() {
    if (state_.slot_prev1.empty()) return person_.tell(text::no_previous_year);
    const std::string path = choose_file_to_open(state_, person_, text::link_title);
    if (path.empty() || !may_link(path, state_.slot_prev1, text::not_year_before_previous)) return;
    state_.slot_prev2 = path;
    set_threefiles();
}

void years_module::click_option(year_option chosen) {
    while (chosen != year_option::current && row(chosen).path.empty())
        chosen = static_cast<year_option>(static_cast<int>(chosen) - 1);
    option_ = chosen;
}

bool years_module::double_click_option(year_option chosen) {
    click_option(chosen);
    return option_ == chosen && ok();
}

/// The state as the boxes, the options and the paths shown have it.
application_state years_module::as_chosen() const {
    application_state chosen = state_;
    chosen.no_link_prompt = do_not_check_link ? 1 : 0;
    chosen.no_related_prompt = do_not_check_related ? 1 : 0;
    chosen.slot_selected = static_cast<int>(option_);
    chosen.slot_current = row(year_option::current).path;
    chosen.slot_prev1 = row(year_option::prev1).path;
    chosen.slot_prev2 = row(year_option::prev2).path;
    set_working_files(chosen);
    return chosen;
}

bool years_module::ok() {
    if (row(year_option::current).path.empty()) {
        person_.tell(text::nothing_opened);
        return false;
    }
    const bool unlinked = !do_not_check_link && row(year_option::prev1).path.empty();
    if (unlinked && person_.ask(text::nothing_linked) != answer::yes) return false;
    go_on_with(as_chosen());
    const picker_module caller = state_.picker_caller;
    if (caller != picker_module::front && caller != picker_module::profile) reload_(caller);
    return true;
}

void years_module::cancel() {
    close_create();
    if (const auto trouble = reopen_assessment(state_, profile_)) person_.tell(*trouble);
}

bool years_module::open_create() {
    if (state_.slot_current.empty()) {
        person_.tell(text::no_current_file);
        return false;
    }
    close_create();
    const auto year = read_assessment_year(state_.slot_current);
    if (!year) throw file_error(state_.slot_current, "it does not say which year it is for.");
    new_date_ = add_years(*year, 1);
    last_year_ = year;
    return true;
}

void years_module::close_create() {
    last_year_.reset();
    new_path_.clear();
}

void years_module::change_date(const std::string& year_text) {
    if (const auto chosen = parse_date(year_text)) new_date_ = *chosen;
}

void years_module::browse_new_file() {
    const std::string path = choose_file_to_save(state_, person_, assessments_messages::save_as_title);
    if (!path.empty()) new_path_ = path;
}

bool years_module::may_use_new_file(bool& overwrite) {
    if (new_path_.empty()) {
        person_.tell(text::no_new_file);
        return false;
    }
    overwrite = same_file(new_path_, state_.slot_current) || same_file(new_path_, state_.slot_prev1);
    return !overwrite || person_.ask(text::new_file_is_linked) == answer::yes;
}

bool years_module::create() {
    bool overwrite = false;
    if (!may_use_new_file(overwrite)) return false;
    try {
        make_new_year(overwrite);
        return true;
    } catch (const std::exception&) {
        person_.tell(assessments_messages::save_error);
        return false;
    }
}

application_state years_module::moved_chain(bool overwrite) const {
    application_state moved = state_;
    const bool linked = !overwrite && year_of(new_date_) == year_of(*last_year_) + 1;
    moved.slot_prev2 = linked ? state_.slot_prev1 : "";
    moved.slot_prev1 = linked ? state_.slot_current : "";
    moved.slot_current = new_path_;
    moved.slot_selected = 1;
    set_working_files(moved);
    return moved;
}

void years_module::write_new_year(const database& db) const {
    save_transaction save(db, *state_.copies);
    write_assessment_year(db, new_date_);
    clear_year_data(db, year_of(new_date_) - year_of(*last_year_), year_data_mode::delete_rows);
    save.commit();
}

void years_module::make_new_year(bool overwrite) {
    // To write over a linked file means to go on with it as it is; nothing is copied into it.
    if (overwrite) {
        state_.copies->keep(new_path_);
        write_new_year(database(new_path_));
    } else {
        fresh_file fresh = fresh_assessment(state_.slot_current, new_path_);
        write_new_year(fresh.open());
        fresh.put_in_place(*state_.copies);
    }
    if (same_file(new_path_, state_.assess_file)) ++state_.assessment;  // it has another content now
    // The profile screen may be open underneath: its Set Profile must not write the old year into the new
    // file.
    go_on_with(moved_chain(overwrite));
    set_threefiles();
    close_create();
}

}  // namespace kel
