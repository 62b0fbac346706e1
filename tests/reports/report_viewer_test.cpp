#include "reports/report_viewer.h"

#include "core/file_error.h"
#include "tests/support/farm_files.h"

namespace kel {
namespace {

// Writes down what it is told, together with the state the viewer sees at that moment.
struct recording_viewer : report_viewer {
    explicit recording_viewer(const application_state& s) : state(s) {}
    void wait_cursor(bool on) override { events.emplace_back(on ? "wait" : "normal"); }
    void hide_screen(std::string_view tag) override { events.push_back("hide " + std::string(tag)); }
    void show(const viewer_request& request) override {
        events.emplace_back("show");
        shown = request;
        page_at_show = test::file_text(request.page);
        last_report_at_show = state.last_report_path;
    }

    const application_state& state;
    std::vector<std::string> events;
    viewer_request shown;
    std::string page_at_show, last_report_at_show;
};

class ReportGeneration : public test::farm_test {
  protected:
    recording_viewer viewer{state};
    report_desk desk{state, viewer, [] { return make_date(1, 12, 2024); }, "Some People"};
};

TEST_F(ReportGeneration, WritesShowsRemembersAndHidesInOrder) {
    generate_report(desk, "KEL_report_manureN.htm", {"<p>Slurry</p>"}, "land", "reduction");
    EXPECT_EQ((std::vector<std::string>{"wait", "hide land", "show", "normal"}), viewer.events);
    const std::string report = path("KEL_report_manureN.htm");
    EXPECT_EQ((viewer_request{report, "Save", 0}), viewer.shown);
    EXPECT_EQ(report, viewer.last_report_at_show);
    EXPECT_NE(std::string::npos, viewer.page_at_show.find("\n<p>Slurry</p>\n<hr>\n"));
    EXPECT_NE(std::string::npos, viewer.page_at_show.find("Sunday 01 December 2024"));
    EXPECT_EQ("reduction", state.viewer_back);
}

TEST_F(ReportGeneration, PageThatCannotBeWrittenShowsNothingAndRestoresTheCursor) {
    state.viewer_back = "front";
    state.last_report_path = "earlier.htm";
    state.places.written_folder = path("gone");
    EXPECT_THROW(generate_report(desk, "KEL_report_record.htm", {}, "record", "record"), file_error);
    EXPECT_EQ((std::vector<std::string>{"wait", "normal"}), viewer.events);
    EXPECT_EQ("earlier.htm", state.last_report_path);
    EXPECT_EQ("front", state.viewer_back);
}

}  // namespace
}  // namespace kel
