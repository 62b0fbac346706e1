// The flow of the assessments screen, the hub of the program: start-up and shut-down, the steps with their
// prompts, the File and Help commands. What is open lies in the application state; the screen only forwards.
#pragma once

#include <string>
#include <string_view>

#include "core/application_state.h"
#include "core/prompts.h"
#include "profile/profile_module.h"
#include "reports/report_viewer.h"
#include "shell/desktop.h"

namespace kel {

/// "1.0.0".
std::string program_version();

class assessments_module {
  public:
    assessments_module(application_state& state, prompts& person, profile_module& profile, desktop& shown,
                       report_desk& desk)
        : state_(state), person_(person), profile_(profile), screens_(shown), desk_(desk) {}

    /// Name of the open farm as its profile has it; the state's name follows only at the next load.
    const std::string& farm_name() const { return profile_.farm().name; }
    /// Title of the screen.
    const std::string& title() const { return title_; }

    /// Once, as the screen loads: the last assessment reopens by itself. `places` of the state must be set.
    void start_up();

    void new_farm();
    /// The years dialog, with this screen still in view.
    void open_assessments();
    void edit_profile();
    void save_as();

    void step1();
    void step2();
    void step3();
    void step4();
    void crops();
    void grassland();
    void composting();
    void field_record();
    void season_calendar();
    void blank_sheets();

    void view_reports();
    /// All reports of the open assessment in one print.
    void print_all_reports();
    void check_farms();

    /// Where the open farm stands.
    void show_standing();

    void show_me();
    void guidelines();
    void whats_this();
    /// Shows a topic of help file 1 to 6 in the viewer, which returns to `back`. The window type names a
    /// window of the help file; the viewer is the only one here.
    void run_help(int help_file, std::string_view window_type, std::string_view topic, screen_id back);
    void update();
    void about();
    /// A logo of the About box: opens the partner's web address.
    void show_partner(const std::string& address);

    void exit();
    /// The close box of the window: as exit, with no question.
    void close_window();

  private:
    bool assessment_is_open();
    answer ask_order(const message& question);
    void open_module(screen_id module);
    void open_if_assessment(screen_id module);
    void copy_to(const std::string& target);
    void show_page(std::string_view title, const viewer_request& request, screen_id back);

    application_state& state_;
    prompts& person_;
    profile_module& profile_;
    desktop& screens_;
    report_desk& desk_;
    std::string title_ = "KEL Calculator: Assessments";
};

}  // namespace kel
