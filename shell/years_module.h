// The flow of the years dialog: opens an assessment, links it to the files of the two years before it, says
// which of the three is worked on, and creates the next year's file.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "core/application_state.h"
#include "core/prompts.h"
#include "profile/profile_module.h"

namespace kel {

/// One slot as the dialog shows it; all empty for an empty slot.
struct year_row {
    std::string farm_name;
    std::string file_name;
    std::string year_text;
    std::string path;
    std::string trouble;  // why name and year of a file cannot be shown
    bool operator==(const year_row&) const = default;
};

/// Which file is worked on; the value is its slot_selected.
enum class year_option { current = 1, prev1 = 2, prev2 = 3 };

/// Every file_error leaves the slots as they were, unless an operation says otherwise.
class years_module {
  public:
    /// `reload` has the module that opened the dialog load its data again.
    years_module(application_state& state, prompts& person, profile_module& profile,
                 std::function<void(picker_module)> reload)
        : state_(state), person_(person), profile_(profile), reload_(std::move(reload)) {}

    /// The dialog as it opens: slots, flags, the creation frame closed.
    void open();

    const std::array<year_row, 3>& rows() const { return rows_; }
    year_option option() const { return option_; }

    // The two check boxes; they count from OK on.
    bool do_not_check_link = false;
    bool do_not_check_related = false;

    void browse_current();
    /// What Browse does with the file chosen, and every other way of opening one: the file becomes the newest
    /// of a chain without links, and the store is written whole. Nothing happens for the file worked on; the
    /// newest file of the chain is gone back to with its links.
    void open_file(const std::string& path);
    /// A file worked on, or linked to, has become another one: everything is loaded anew. Throws file_error.
    void content_changed();
    /// An assessment handed over by the desktop: as Browse and OK. Whether that is done with; if not, the
    /// person wants to link files first, and the dialog should be shown. Nothing is asked about the file
    /// that is worked on already.
    bool open_from_desktop(const std::string& path);
    void browse_prev1();
    void browse_prev2();

    void click_option(year_option chosen);
    /// Whether the dialog closes.
    bool double_click_option(year_option chosen);

    /// Whether the dialog closes.
    bool ok();
    void cancel();

    /// Opens the creation frame with the proposed date; false if there is no file to go on from.
    bool open_create();
    bool creating() const { return last_year_.has_value(); }
    std::string new_date_text() const { return short_date_text(new_date_); }
    const std::string& new_path() const { return new_path_; }
    /// `year_text` is one of year_choices().
    void change_date(const std::string& year_text);
    void browse_new_file();
    /// Makes the new year's file and goes on with it. Whether the frame closes; after a "Save Error" chain,
    /// dialog and store are as they were.
    bool create();
    void close_create();

  private:
    void set_threefiles();
    const year_row& row(year_option which) const { return rows_[static_cast<std::size_t>(which) - 1]; }
    void go_on_with(const application_state& chosen);
    application_state as_chosen() const;
    bool may_link(const std::string& path, const std::string& newer, const message& wrong_year);
    bool may_use_new_file(bool& overwrite);
    void make_new_year(bool overwrite);
    void write_new_year(const database& db) const;
    application_state moved_chain(bool overwrite) const;

    application_state& state_;
    prompts& person_;
    profile_module& profile_;
    std::function<void(picker_module)> reload_;
    std::array<year_row, 3> rows_;
    year_option option_ = year_option::current;
    std::optional<date> last_year_;  // of the current file, while the creation frame is open
    date new_date_{};
    std::string new_path_;
};

}  // namespace kel
