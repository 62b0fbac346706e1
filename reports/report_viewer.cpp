#include "reports/report_viewer.h"

#include <utility>

#include "core/whole_file.h"
#include "reports/contents_page.h"

namespace kel {

namespace {

class busy_cursor {
  public:
    explicit busy_cursor(report_viewer& viewer) : viewer_(viewer) { viewer_.wait_cursor(true); }
    ~busy_cursor() { viewer_.wait_cursor(false); }
    busy_cursor(const busy_cursor&) = delete;
    busy_cursor& operator=(const busy_cursor&) = delete;

  private:
    report_viewer& viewer_;
};

}  // namespace

void generate_report(report_desk& desk, std::string_view file_name, page_lines body, screen_id hidden_screen,
                     screen_id back, viewer_request request, std::vector<std::string> pictures,
                     std::string_view farm) {
    request.page = desk.state.places.report(file_name);
    // The list of the reports has those of any farm.
    std::optional<page_origin> origin;
    if (file_name != contents_file) origin = origin_of(desk.state, desk.today(), farm);
    {
        const busy_cursor busy(desk.viewer);
        write_page(request.page, framed_page(std::move(body), desk.today(), desk.developer, origin));
        desk.state.last_report_path = request.page;
        desk.state.last_report_pictures = std::move(pictures);
        desk.viewer.hide_screen(hidden_screen);
        desk.viewer.show(request);
    }
    desk.state.viewer_back = back;
}

void lay_out_pictures(const installation& places, const std::vector<std::string>& pictures) {
    if (places.written_folder == places.program_folder) return;
    for (const std::string& picture : pictures)
        copy_between(places.program_folder, places.written_folder, picture);
}

}  // namespace kel
