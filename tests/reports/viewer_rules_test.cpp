#include "reports/viewer_rules.h"

#include <filesystem>

#include "core/file_error.h"
#include "reports/report_page.h"
#include "reports/report_viewer.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel {
namespace {

namespace fs = std::filesystem;
using test::file_text;
using test::write_file;

TEST(ViewerThirdButton, CaptionAndModeSayWhereItLeads) {
    const installation places{"/farm/kel_calc", "/farm", "/home/written"};
    EXPECT_EQ(third_button_of("Contents", 0, places).page, "/home/written/KEL_report_contents.htm");
    EXPECT_EQ(third_button_of("Contents", 1, places).page,
              "/farm/kel_calc/help/viewlets/KEL_showme_contents.htm");
    EXPECT_EQ(third_button_of("Back", 0, places).action, third_button_action::back);
    EXPECT_EQ(third_button_of("", 1, places).action, third_button_action::save);
}

class SaveReport : public test::farm_test {
  protected:
    SaveReport() {
        state.places.program_folder = path("program");
        for (const char* folder : {"program", "first", "second"})
            fs::create_directories(path(folder));
        write_file(path("program/tolmlogoscot.jpg"), "logo");
        write_file(path("rep_chart1.bmp"), "chart");
        write_file(path("KEL_report_land.htm"), "page");
        state.last_report_path = path("KEL_report_land.htm");
        state.viewer_back = screen_id::land;
    }

    void save_as(const std::string& name) {
        person.expect_file("Save the report", name.empty() ? name : path(name));
        save_report(state, person, report_folder, "/documents");
    }

    test::scripted_prompts person;
    std::string report_folder;
};

TEST_F(SaveReport, TwoFoldersGetTheLogoEachAndAPageItsOwnPictures) {
    save_as("first/land.htm");
    EXPECT_FALSE(fs::exists(path("first/rep_chart1.bmp")));
    EXPECT_EQ(path("first"), report_folder);
    fs::create_directories(path("program/graphics"));
    write_file(path("program/graphics/info.ico"), "icon");
    lay_out_pictures(state.places, {"graphics/info.ico"});
    EXPECT_EQ("icon", file_text(path("graphics/info.ico")));
    state.last_report_pictures = {"rep_chart1.bmp", "graphics/info.ico"};
    save_as("second/storage.htm");
    EXPECT_EQ("chart", file_text(path("second/rep_chart1.bmp")));
    EXPECT_EQ("icon", file_text(path("second/graphics/info.ico")));
    for (const char* saved : {"first/land.htm", "second/storage.htm"}) {
        EXPECT_EQ("page", file_text(path(saved)));
        EXPECT_EQ("logo", file_text(folder_of(path(saved)) + "/tolmlogoscot.jpg"));
    }
    EXPECT_EQ("", state.last_dir);
    for (const std::string& line : framed_page({}, make_date(19, 12, 2024), ""))
        EXPECT_TRUE(line.find("<img") == std::string::npos ||
                    line.find("tolmlogoscot.jpg") != std::string::npos);
}

TEST_F(SaveReport, FolderOfTheLastSaveCountsOnlyOnceAnyFolderIsRemembered) {
    const std::string cases[][3] = {
        {"", "/saved", "/documents"}, {"/farms", "/saved", "/saved"}, {"/farms", "", "/documents"}};
    for (const auto& [last_dir, last_save, expected] : cases) {
        state.last_dir = last_dir;
        report_folder = last_save;
        save_as("");
        EXPECT_EQ(expected, person.last_folder()) << last_dir << " " << last_save;
        EXPECT_EQ(last_save, report_folder);
    }
}

TEST_F(SaveReport, ReportSavedOverItselfStaysWhole) {
    state.last_report_pictures = {"rep_chart1.bmp"};
    state.places.program_folder = state.places.written_folder;
    write_file(path("tolmlogoscot.jpg"), "logo");
    save_as("KEL_report_land.htm");
    EXPECT_EQ("page", file_text(path("KEL_report_land.htm")));
    EXPECT_EQ("logo", file_text(path("tolmlogoscot.jpg")));
    EXPECT_EQ("chart", file_text(path("rep_chart1.bmp")));
}

TEST_F(SaveReport, FailedCopyNamesItsFile) {
    fs::remove(path("program/tolmlogoscot.jpg"));
    try {
        save_as("first/land");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const file_error& error) {
        EXPECT_EQ(path("first/tolmlogoscot.jpg"), error.file());
    }
    EXPECT_EQ("page", file_text(path("first/land.htm")));
}

}  // namespace
}  // namespace kel
