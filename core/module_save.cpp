#include "core/module_save.h"

#include "core/file_choice.h"
#include "core/held_still.h"

namespace kel {

std::optional<save_target> file_to_save(application_state& state, prompts& person,
                                        std::string_view refusal_title) {
    if (!state.assess_file.empty()) return save_target{state.assess_file, {}};
    const std::string chosen = choose_file_to_save(state, person, "Save the assessment");
    if (chosen.empty()) return std::nullopt;
    if (!state.prev1_file.empty() && same_file(chosen, state.prev1_file)) {
        person.tell(
            {std::string(refusal_title), "This is last years file and cannot be saved to at this time!"});
        return std::nullopt;
    }
    return save_target{chosen, state.places.blank_assessment()};
}

module_save::module_save(application_state& state, prompts& person, loaded_rows& rows,
                         const save_target& target)
    : target_(target), state_(state), person_(person), rows_(rows) {
    if (target.made_from.empty()) {
        begin(target.path);
    } else {
        const held_still still(target.made_from);
        fresh_.emplace(target.made_from, target.path);
        transaction_.emplace(db_.emplace(fresh_->open()));
    }
}

void module_save::begin(const std::string& path) {
    db_.emplace(path);
    lock();
    if (!rows_.changed(*db_, at_start_)) return;
    transaction_.reset();  // no other program waits behind the question
    if (person_.ask(rows_changed_meanwhile(path)) == answer::yes) lock();
}

void module_save::lock() {
    transaction_.emplace(*db_, *state_.copies);
    at_start_ = db_->stamp();
}

void module_save::commit() {
    const bool as_loaded = !fresh_ && !db_->has_written() && rows_.stamp_ == at_start_;
    const std::uint64_t saved = as_loaded ? rows_.digest_ : rows_.digest(*db_);  // before another can write
    const bool wrote = !fresh_ && db_->has_written();
    transaction_->commit();
    transaction_.reset();
    if (fresh_) {
        put_in_place();
        at_start_ = db_->stamp();
    }
    rows_.remember_saved(*db_, saved, at_start_, wrote ? 1 : 0);
}

void module_save::put_in_place() {
    db_.reset();
    fresh_->put_in_place(*state_.copies);
    db_.emplace(target_.path);
    state_.*target_.worked_on = target_.path;
    mark_open_file(state_, person_);
}

}  // namespace kel
