#include "shell/farm_files_module.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/assessment_store.h"
#include "core/file_choice.h"
#include "core/fresh_file.h"
#include "shell/farm_files_messages.h"

namespace kel {

namespace fs = std::filesystem;
namespace text = farm_files_messages;

void farm_files_module::note_open() {
    if (state_.assess_file.empty()) return;
    note_recent(state_.places.recent_list(), {state_.assess_file, state_.farm_name, state_.kel_year_start});
}

std::vector<recent_assessment> farm_files_module::recent() const {
    return read_recent(state_.places.recent_list());
}

bool farm_files_module::may_lose_unsaved() {
    return !screens_.has_unsaved() || person_.ask(text::unsaved_rows_go) == answer::yes;
}

bool farm_files_module::open_recent(const std::string& path) {
    std::error_code unknown;
    if (!fs::exists(path, unknown)) {
        forget_recent(state_.places.recent_list(), path);
        person_.tell(text::recent_gone(path));
        return true;
    }
    if (same_file(path, state_.assess_file) || !may_lose_unsaved()) return true;
    return years_.open_from_desktop(path);
}

void farm_files_module::show_folder(const std::string& folder) {
    if (!screens_.open_folder(folder)) person_.tell(text::folder_not_opened(folder));
}

void farm_files_module::open_folder() {
    show_folder(state_.assess_file.empty() ? dialog_folder(state_) : folder_of(state_.assess_file));
}

void farm_files_module::open_copies_folder() {
    std::error_code told_by_its_opening;
    fs::create_directories(state_.copies->folder(), told_by_its_opening);
    show_folder(state_.copies->folder());
}

// Whether rows that the screens show, or that they look up, come from it.
bool farm_files_module::works_on(const std::string& path) const {
    const std::array files{&state_.assess_file, &state_.prev1_file, &state_.prev2_file};
    return std::ranges::any_of(files,
                               [&](const auto* file) { return !file->empty() && same_file(path, *file); });
}

std::vector<earlier_copy> farm_files_module::offered_copies() const {
    std::vector<earlier_copy> copies = state_.copies->list();
    std::stable_partition(copies.begin(), copies.end(),
                          [this](const earlier_copy& copy) { return copy.farm == state_.farm_name; });
    return copies;
}

// Empty: it goes nowhere. Where it came from may not be known, or be gone.
std::string farm_files_module::place_of(const earlier_copy& copy) {
    std::error_code unknown;
    if (copy.came_from.empty() || !fs::is_directory(folder_of(copy.came_from), unknown))
        return choose_file_to_save(state_, person_, text::restore_title);
    return person_.ask(text::put_back_question(copy, copy.came_from)) == answer::yes ? copy.came_from : "";
}

bool farm_files_module::may_put_back(const std::string& path) {
    const auto computer = state_.mark->held_elsewhere(path);
    if (computer && person_.ask(text::in_use_elsewhere(path, *computer)) != answer::yes) return false;
    return !works_on(path) || may_lose_unsaved();
}

void farm_files_module::restore() {
    const std::vector<earlier_copy> copies = offered_copies();
    if (copies.empty()) return person_.tell(text::no_copies(state_.copies->folder()));
    const auto chosen = screens_.choose_copy(copies);
    if (!chosen) return;
    const earlier_copy& copy = copies.at(*chosen);
    try {
        check_copy(copy.file);
    } catch (const file_error& failure) {
        return person_.tell(text::copy_damaged(copy, failure.trouble()));
    }
    const std::string path = place_of(copy);
    if (!path.empty() && may_put_back(path) && put_back(copy, path)) go_on_after(path);
}

// No other program saves into the file on the way; a damaged one cannot be locked and need not be.
bool farm_files_module::put_back(const earlier_copy& copy, const std::string& path) {
    std::optional<database> there;
    std::optional<save_transaction> lock;
    try {
        std::error_code unknown;
        if (fs::exists(path, unknown)) lock.emplace(there.emplace(path));
    } catch (const file_error& failure) {
        if (failure.in_use()) throw;
    }
    // Before what is there is kept: that may take the oldest copy away, which may be the one chosen.
    fresh_file fresh(copy.file, path);
    if (!state_.copies->keep(path) &&
        person_.ask(text::present_not_kept(state_.copies->take_trouble())) != answer::yes)
        return false;
    fresh.put_in_place();
    return true;
}

void farm_files_module::go_on_after(const std::string& path) {
    if (works_on(path)) {
        years_.content_changed();
        return person_.tell(text::put_back(path));
    }
    if (person_.ask(text::open_what_was_put_back(path)) == answer::yes && may_lose_unsaved())
        years_.open_file(path);
}

}  // namespace kel
