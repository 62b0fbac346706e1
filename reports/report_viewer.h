// The report viewer as the modules see it, and the sequence in which every report is generated and shown.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "reports/report_page.h"

namespace kel {

/// What the viewer is told before it navigates: the page, the caption of its third button and which contents
/// page that button leads to.
struct viewer_request {
    std::string page;  // a path or a web address
    std::string caption = "Save";
    int mode = 0;  // 0 contents of the reports, 1 contents of the guides
    bool operator==(const viewer_request&) const = default;
};

class report_viewer {
  public:
    virtual ~report_viewer() = default;
    virtual void wait_cursor(bool on) = 0;
    /// Hides a screen, bringing it into being if needed.
    virtual void hide_screen(screen_id id) = 0;
    virtual void show(const viewer_request& request) = 0;
};

/// Everything report generation needs from its surroundings.
struct report_desk {
    application_state& state;
    report_viewer& viewer;
    std::function<date()> today;
    std::string developer;
};

/// Wait cursor, write the framed page into the report folder, show it, remember it, hide `hidden_screen`, set
/// viewer_back to `back`. `pictures` are the bare names of those that the page shows beside the logo, written
/// into the report folder before; they travel with a copy of the page. Throws file_error before anything is
/// shown when the page cannot be written. The page keeps whose it is: the open assessment's, or under another
/// name of the farm (`farm`).
void generate_report(report_desk& desk, std::string_view file_name, page_lines body, screen_id hidden_screen,
                     screen_id back, viewer_request request = {}, std::vector<std::string> pictures = {},
                     std::string_view farm = {});

/// Copies pictures of the program's folder, by their paths within it, into the report folder, where a page
/// that shows them looks for them. Throws file_error.
void lay_out_pictures(const installation& places, const std::vector<std::string>& pictures);

}  // namespace kel
