// The farms' files as the File menu offers them: the assessments worked on last, the folders, and the earlier
// copies with the way back to one of them.
#pragma once

#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/prompts.h"
#include "core/recent_assessments.h"
#include "shell/desktop.h"
#include "shell/years_module.h"

namespace kel {

class farm_files_module {
  public:
    farm_files_module(application_state& state, prompts& person, years_module& years, desktop& shown)
        : state_(state), person_(person), years_(years), screens_(shown) {}

    /// Puts the open assessment first among the recent ones.
    void note_open();
    std::vector<recent_assessment> recent() const;
    /// Opens it as a double click on its file does, once unsaved rows may go; one that is gone is told and
    /// taken out. False: it is open, and its links are wanted in the years dialog. Throws file_error and then
    /// leaves everything as it was.
    bool open_recent(const std::string& path);

    /// The folder of the open assessment, or that of new ones.
    void open_folder();
    void open_copies_folder();
    /// Lets the person choose an earlier copy and puts it back; what was there is another copy then. Throws
    /// file_error; the file is then as it was.
    void restore();

  private:
    void show_folder(const std::string& folder);
    bool may_lose_unsaved();
    bool works_on(const std::string& path) const;
    std::vector<earlier_copy> offered_copies() const;
    std::string place_of(const earlier_copy& copy);
    bool may_put_back(const std::string& path);
    bool put_back(const earlier_copy& copy, const std::string& path);
    void go_on_after(const std::string& path);

    application_state& state_;
    prompts& person_;
    years_module& years_;
    desktop& screens_;
};

}  // namespace kel
