// A farm with the shell's modules around it; what the screens were told is kept in order.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/assessment_files.h"
#include "core/settings_store.h"
#include "profile/profile_module.h"
#include "reports/report_viewer.h"
#include "shell/desktop.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

using texts = std::vector<std::string>;

/// One thing that the screens were told; `text` stands for what names no screen.
struct screen_event {
    std::string text;
    std::optional<screen_id> screen{};
    bool operator==(const screen_event&) const = default;
};
using events = std::vector<screen_event>;

struct recording_screens : desktop, report_viewer {
    void open(screen_id id) override { told.push_back({"open", id}); }
    void open_in_place_of(screen_id opener, screen_id id) override {
        open(id);
        hide_screen(opener);
    }
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }
    bool start_updater(const std::string&) override { return told.push_back({"start"}), updater_starts; }
    void print_pages(const std::vector<std::string>& pages) override {
        told.push_back({"print"}), printed = pages;
    }
    bool open_folder(const std::string& folder) override {
        return told.push_back({"folder " + folder}), true;
    }
    std::optional<std::size_t> choose_copy(const std::vector<earlier_copy>& copies) override {
        offered = copies;
        return chosen_copy;
    }
    bool has_unsaved() const override { return unsaved; }
    void show_standing() override { told.push_back({"standing"}); }
    void end() override { told.push_back({"end"}); }
    void wait_cursor(bool on) override { told.push_back({on ? "wait" : "ready"}); }
    void hide_screen(screen_id id) override { told.push_back({"hide", id}); }
    void show(const viewer_request& request) override { told.push_back({"show"}), shown = request; }

    events told;
    viewer_request shown;
    std::vector<std::string> printed;
    bool updater_starts = true;
    std::vector<earlier_copy> offered;
    std::optional<std::size_t> chosen_copy;
    bool unsaved = false;
};

class shell_test : public farm_test {
  protected:
    static void change(const std::string& file, const char* table, const char* column,
                       const std::string& text) {
        recordset row = database(file).open(table);
        row.edit();
        row.set(column, text);
        row.update();
    }
    /// A file that is no assessment at all.
    std::string make_damaged(const std::string& name) {
        write_file(path(name), "no database, but long enough to be taken for one");
        return path(name);
    }
    std::string settings() const { return file_text(state.places.settings_store()); }
    texts working() const { return {state.assess_file, state.prev1_file, state.prev2_file}; }
    texts slots() const { return {state.slot_current, state.slot_prev1, state.slot_prev2}; }

    scripted_prompts person;
    recording_screens shown;
    profile_module profile{state, person};
    report_desk desk{state, shown, [] { return make_date(15, 11, 2026); }, "the developer"};
};

}  // namespace kel::test
