// The window that checks a folder of farms: which folder, how far it has come, the list, and its copies as a
// table and as a page. The work is done in small pieces, between which the window lives.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/application_state.h"
#include "core/prompts.h"
#include "core/text_grid.h"
#include "standing/folder_check.h"

namespace kel {

class folder_module {
  public:
    folder_module(application_state& state, prompts& person, std::function<date()> today);

    /// Asks for a folder, the last one first; false when none was chosen. work() then begins anew.
    bool choose_folder();
    /// The next piece; false when the list stands.
    bool work();
    /// Ends the work; the list holds what was judged until then.
    void stop();

    bool working() const { return check_ && !done_; }
    std::size_t files_found() const { return check_ ? check_->files_found() : 0; }
    std::size_t files_judged() const { return check_ ? check_->files_judged() : 0; }
    const std::string& folder() const { return folder_; }
    /// What the list comes to, or what can be done.
    std::string told() const;
    const text_grid& list() const { return list_; }
    /// The file of a row.
    const std::string& path_of(int row) const { return check_->files()[static_cast<std::size_t>(row)].path; }

    /// Each asks for a name; nothing is written without one. Throws file_error.
    void save_table();
    void save_page();

  private:
    void fill_list();
    std::string file_name(std::string_view filter, std::string_view extension);

    application_state& state_;
    prompts& person_;
    std::function<date()> today_;
    std::string folder_;
    std::unique_ptr<folder_check> check_;
    bool done_ = false;
    bool stopped_ = false;
    text_grid list_;
};

}  // namespace kel
