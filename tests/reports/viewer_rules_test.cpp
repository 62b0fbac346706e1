#include "reports/viewer_rules.h"

#include <filesystem>

#include "core/file_error.h"
#include "reports/report_page.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel {
namespace {

namespace fs = std::filesystem;
using test::file_text;
using test::write_file;

TEST(ViewerThirdButton, CaptionAndModeSayWhereItLeads) {
    const installation places{"/farm/kel_calc", "/farm", "/home/written"};
    const struct {
        std::string caption;
        int mode;
        third_button expected;
    } cases[] = {
        {"Back", 0, {third_button_action::back, {}}},
        {"Contents", 0, {third_button_action::contents, "/home/written/KEL_report_contents.htm"}},
        {"Contents",
         1,
         {third_button_action::contents, "/farm/kel_calc/help/viewlets/KEL_showme_contents.htm"}},
        {"Save", 0, {third_button_action::save, {}}},
        {"Save", 1, {third_button_action::save, {}}},
        {"", 0, {third_button_action::save, {}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, third_button_of(c.caption, c.mode, places)) << c.caption;
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
        state.viewer_back = "land";
    }

    void save_as(const std::string& name) {
        person.expect_file("Save the report", name.empty() ? name : path(name));
        save_report(state, person, report_folder, "/documents");
    }

    test::scripted_prompts person;
    std::string report_folder;
};

TEST_F(SaveReport, TwoFoldersGetALogoEach) {
    save_as("first/land.htm");
    save_as("second/land 2026.htm");
    EXPECT_EQ("page", file_text(path("first/land.htm")));
    EXPECT_EQ("page", file_text(path("second/land 2026.htm")));
    EXPECT_EQ("logo", file_text(path("first/tolmlogoscot.jpg")));
    EXPECT_EQ("logo", file_text(path("second/tolmlogoscot.jpg")));
    EXPECT_FALSE(fs::exists(path("first/rep_chart1.bmp")));
    EXPECT_EQ(path("second"), report_folder);
    EXPECT_EQ("", state.last_dir);
}

TEST_F(SaveReport, StorageReportTakesItsChartAlong) {
    state.viewer_back = "storage";
    save_as("first/storage.htm");
    EXPECT_EQ("chart", file_text(path("first/rep_chart1.bmp")));
}

TEST_F(SaveReport, FolderOfTheLastSaveCountsOnlyOnceAnyFolderIsRemembered) {
    const struct {
        std::string last_dir, last_save, expected;
    } cases[] = {
        {"", "", "/documents"},
        {"", "/saved", "/documents"},
        {"/farms", "/saved", "/saved"},
        {"/farms", "", "/documents"},
    };
    for (const auto& c : cases) {
        state.last_dir = c.last_dir;
        report_folder = c.last_save;
        save_as("");
        EXPECT_EQ(c.expected, person.last_folder()) << c.last_dir << " " << c.last_save;
        EXPECT_EQ(c.last_save, report_folder);
    }
}

TEST_F(SaveReport, NameWithoutExtensionBecomesAPageAndAsksBeforeItReplacesOne) {
    save_as("first/land");
    EXPECT_EQ("page", file_text(path("first/land.htm")));
    EXPECT_FALSE(fs::exists(path("first/land")));

    const message replace{"Save the report", "The file land.htm already exists. Do you want to replace it?",
                          message_kind::warning, message_buttons::yes_no};
    for (const answer reply : {answer::no, answer::yes}) {
        write_file(path("first/land.htm"), "older page");
        person.expect_file("Save the report", path("first/land")).expect(replace, reply);
        save_report(state, person, report_folder, "/documents");
        EXPECT_EQ(reply == answer::yes ? "page" : "older page", file_text(path("first/land.htm")));
    }
}

TEST_F(SaveReport, ReportSavedOverItselfStaysWhole) {
    save_as("KEL_report_land.htm");
    EXPECT_EQ("page", file_text(path("KEL_report_land.htm")));
    state.viewer_back = "storage";
    state.places.program_folder = state.places.written_folder;
    write_file(path("tolmlogoscot.jpg"), "logo");
    save_as("KEL_report_land.htm");
    EXPECT_EQ("logo", file_text(path("tolmlogoscot.jpg")));
    EXPECT_EQ("chart", file_text(path("rep_chart1.bmp")));
}

TEST_F(SaveReport, FailedCopyNamesItsFile) {
    const auto failed_file = [&](const std::string& name) -> std::string {
        try {
            save_as(name);
        } catch (const file_error& error) {
            return error.file();
        }
        return "none";
    };
    EXPECT_EQ(path("no such folder/land.htm"), failed_file("no such folder/land.htm"));
    state.viewer_back = "storage";
    fs::remove(path("rep_chart1.bmp"));
    EXPECT_EQ(path("first/rep_chart1.bmp"), failed_file("first/land.htm"));
    fs::remove(path("program/tolmlogoscot.jpg"));
    EXPECT_EQ(path("first/tolmlogoscot.jpg"), failed_file("first/land.htm"));
}

TEST_F(SaveReport, EveryPictureOfTheFrameIsSavedBesideThePage) {
    save_as("first/land.htm");
    for (const std::string& line : framed_page({}, make_date(19, 12, 2024), "")) {
        const auto source = line.find("<img src=");
        if (source == std::string::npos) continue;
        const std::string name = line.substr(source + 9, line.find(' ', source + 9) - source - 9);
        EXPECT_TRUE(fs::exists(path("first/" + name))) << line;
    }
}

}  // namespace
}  // namespace kel
