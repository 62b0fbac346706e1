// The viewer: pages, its third button, links, and the screen that comes back.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QDesktopServices>
#include <QDialog>
#include <QImage>
#include <QSignalSpy>
#include <QTimer>
#include <atomic>
#include <filesystem>
#include <thread>

#include "core/file_error.h"
#include "core/module_messages.h"
#include "land/land_messages.h"
#include "reports/printed_reports.h"
#include "shell/years_messages.h"
#include "storage/storage_messages.h"
#include "tests/ui/screen_fixture.h"
#include "ui/widgets/page_view.h"
#include "ui/widgets/print_job.h"

namespace kel::test {

class Viewer : public screen_test {
  protected:
    page_view* page() const { return drive::control<page_view>(screen("viewer"), "WebBrowser1"); }
    std::string page_file() const { return from_qt(page()->source().toLocalFile()); }
    std::string third_button() const {
        return from_qt(drive::control<QAbstractButton>(screen("viewer"), "Command8")->text().remove('&'));
    }
    /// Whether the action asks for a printer, which is then declined.
    template <class Action>
    static bool printer_asked(Action action) {
        bool asked = false;
        QTimer looking;
        QObject::connect(&looking, &QTimer::timeout, [&asked, &looking] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            looking.stop();
            asked = dialog->inherits("QPrintDialog");
            dialog->reject();
        });
        looking.start(1);
        action();
        return asked;
    }
    void close_viewer() {
        press("viewer", "Command1");
        EXPECT_FALSE(screen("viewer"));
    }
};

TEST_F(Viewer, ContentsPageLinksToAReportAndThirdButtonLeadsBack) {
    start_with({{"Long <b>Rig", "15"}});
    press("front", "cmdFront_edit");
    press("profile", "cmdReport");
    EXPECT_EQ(third_button(), "Save");
    EXPECT_FALSE(in_view("profile"));
    close_viewer();
    ASSERT_TRUE(in_view("profile"));
    press("profile", "cmdProfile_cancel");

    press("front", "cmdFront_reports");
    EXPECT_EQ(third_button(), "Contents");
    EXPECT_EQ(page_file(), path("KEL_report_contents.htm"));
    press_key(Qt::Key_Tab);
    press_key(Qt::Key_Return);
    EXPECT_EQ(page_file(), path("KEL_report_farmprof.htm"));
    EXPECT_TRUE(page()->toPlainText().contains("Farm name: Test Farm"));
    press("viewer", "Command8");
    EXPECT_EQ(page_file(), path("KEL_report_contents.htm"));
    close_viewer();
    EXPECT_TRUE(in_view("front"));
}

// A web page goes to the desktop; nothing of it is loaded here. The About box comes back.
TEST_F(Viewer, WebAddressesAreHandedToTheDesktop) {
    QTextBrowser desktop;
    QDesktopServices::setUrlHandler("https", &desktop, "setSource");
    start();
    run->open(screen_id::about);
    press("splash", "imgSplash_logo1");
    EXPECT_EQ(desktop.source().scheme(), "https");
    EXPECT_TRUE(page()->source().isEmpty());
    EXPECT_TRUE(page()->toPlainText().contains(desktop.source().host() + "/ is shown in your web browser."));
    EXPECT_FALSE(in_view("splash"));
    EXPECT_EQ(third_button(), "Back");
    close_viewer();
    EXPECT_TRUE(in_view("splash"));
    QDesktopServices::unsetUrlHandler("https");
}

TEST_F(Viewer, BackTakesOnePressAlsoBehindALinkWithinThePage) {
    write_file(path("first.htm"), "<p><a href='#end'>to the end</a></p>" + std::string(90, '\n') +
                                      "<p style='margin-top:4000px'><a name='end'>The end</a></p>");
    write_file(path("second.htm"), "<p>Second</p>");
    start();
    run->show({path("first.htm"), "Back", 0});
    press_key(Qt::Key_Tab);
    press_key(Qt::Key_Return);
    EXPECT_EQ(page()->source().fragment(), "end");
    press("viewer", "Command8");
    EXPECT_EQ(page()->source().fragment(), "");
    EXPECT_EQ(page_file(), path("first.htm"));
    run->show({path("second.htm"), "Back", 0});
    press("viewer", "Command8");
    EXPECT_EQ(page_file(), path("first.htm"));
    write_file(path("first.htm"), "<p>Written anew</p>");
    run->show({path("first.htm"), "Back", 0});
    EXPECT_EQ(page()->toPlainText(), "Written anew");
}

// Reports hold names as they are typed, so a page may ask for a file that never ends.
TEST_F(Viewer, PagesGetPlainFilesAndNothingElseAlsoOnPaper) {
    const std::string pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::atomic<bool> read = false, ended = false;
    std::thread writer([&] {
        const int end = open(pipe.c_str(), O_WRONLY);  // waits for a reader
        read = !ended;
        close(end);
    });
    QImage(40, 40, QImage::Format_RGB32).save(qt(path("plain.bmp")));
    const page_lines lines{"<p><img src=plain.bmp><img src=pipe>"};
    write_file(path("page.htm"), lines.front());
    start();
    run->show({path("page.htm"), "Back", 0});
    screen("viewer")->grab();
    const auto size_on_paper = [](const printed_page& printed) {
        return pdf_of({printed}, "", make_date(15, 11, 2026)).size();
    };
    const auto size_of_print = size_on_paper(page_of_file(path("page.htm")));
    const auto size_of_lines = size_on_paper(page_of_lines(lines, path("")));
    run->show({pipe, "Back", 0});
    EXPECT_TRUE(page()->toPlainText().startsWith("There is no page"));
    EXPECT_FALSE(read);
    ended = true;
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    writer.join();
    close(reader);
    const auto size_of_blank = size_on_paper(page_of_lines({"<p>"}, path("")));
    EXPECT_GT(std::min(size_of_print, size_of_lines), size_of_blank + 500) << "with the plain picture";
}

TEST_F(Viewer, AMissingPageIsNamedAsItIsSpelled) {
    start();
    run->show({path("no <i>such page.htm"), "Save", 0});
    EXPECT_EQ(page()->toPlainText().toStdString(), "There is no page " + path("no <i>such page.htm") + ".");
}

TEST_F(Viewer, ViewReportsLeavesAHiddenStep1ThatIsNotLoadedAgainAtItsEntry) {
    const message dropped = module_messages::field_does_not_exist("Sold Field");
    start_with({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Sold Field"}});
    person.expect(dropped);
    press("front", "cmdFront_reports");
    EXPECT_TRUE(in_view("front"));
    ASSERT_TRUE(screen("land"));
    EXPECT_FALSE(in_view("land"));
    close_viewer();
    EXPECT_FALSE(in_view("land"));
    press("front", "cmdFront_land");
    ASSERT_TRUE(in_view("land"));
    person.expect(land_messages::close_module, answer::no);
    screen("land")->close();
    drive::settle();
    EXPECT_TRUE(in_view("land"));
    person.expect(land_messages::close_module, answer::yes);
    press("land", "cmdLand_cancel");
    ASSERT_TRUE(in_view("front"));
    person.expect(dropped);
    press("front", "cmdFront_land");
    person.verify_done();
}

// The box is left open beside a step; its page must not take the way back to the step's rows.
TEST_F(Viewer, APageOfTheAboutBoxLeavesTheReportOfAStepItsWayBack) {
    QTextBrowser desktop;
    QDesktopServices::setUrlHandler("https", &desktop, "setSource");
    start_with({{"Long Rig", "15"}});
    const QSignalSpy ended(run.get(), &program::ended);
    run->open(screen_id::about);
    press("front", "cmdFront_land");
    press("land", "cmdLand_continue");
    press("land", "cmdReport");
    ASSERT_FALSE(in_view("land"));
    press("splash", "imgSplash_logo1");
    close_viewer();
    EXPECT_TRUE(in_view("land"));
    press("splash", "cmdSplash_close");
    EXPECT_TRUE(in_view("land"));
    EXPECT_EQ(ended.count(), 0);
    QDesktopServices::unsetUrlHandler("https");
}

TEST_F(Viewer, TheLastWindowsEndIsTheProgramsEnd) {
    start();
    const QSignalSpy ended(run.get(), &program::ended);
    run->open(screen_id::about);
    run->hide_screen(screen_id::front);
    press("splash", "cmdSplash_close");
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(Viewer, PrintAsksForThePrinterOnTheViewerAndOnAResult) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_land");
    press("land", "cmdLand_continue");
    EXPECT_TRUE(printer_asked([this] { press("land", "cmdLand_print"); }));
    press("land", "cmdReport");
    EXPECT_TRUE(printer_asked([this] { press("viewer", "Command7"); }));
}

TEST_F(Viewer, CtrlPPrintsAndTheZoomKeysChangeTheTextOnly) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_whats_this");
    EXPECT_EQ(from_qt(screen("viewer")->windowTitle()),
              "KEL Calculator: Help - " + from_qt(page()->documentTitle()));
    EXPECT_FALSE(page()->documentTitle().isEmpty());
    const double usual = page()->font().pointSizeF();
    press_key(Qt::Key_Plus, 1, Qt::ControlModifier);
    EXPECT_NEAR(page()->font().pointSizeF(), usual * 1.1, 0.01);
    press("viewer", "cmdViewer_larger");
    EXPECT_EQ(page()->zoom_percent(), 125);
    press_key(Qt::Key_0, 1, Qt::ControlModifier);
    EXPECT_NEAR(page()->font().pointSizeF(), usual, 0.01);
    press_key(Qt::Key_Minus, 20, Qt::ControlModifier);
    EXPECT_EQ(page()->zoom_percent(), 60);
    press("viewer", "cmdViewer_smaller");
    EXPECT_EQ(page()->zoom_percent(), 60);
    EXPECT_TRUE(printer_asked([&] { press_key(Qt::Key_P, 1, Qt::ControlModifier); }));
}

TEST_F(Viewer, APageIsSavedAsAPdfAndFromTheListAllReportsAre) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_edit");
    press("profile", "cmdReport");
    EXPECT_FALSE(drive::control(screen("viewer"), "cmdViewer_print_all")->isVisible());
    const auto saved_as = [&](const std::string& name) {
        person.expect_file("Save as PDF", path(name));
        press("viewer", "cmdViewer_pdf");
        return file_text(path(name));
    };
    const auto pages = [](const std::string& pdf) {
        return QByteArray::fromStdString(pdf).count("/MediaBox");
    };
    const std::string profile = saved_as("profile.pdf");
    EXPECT_TRUE(profile.starts_with("%PDF"));
    EXPECT_EQ(pages(profile), 1);
    person.expect_file("Save as PDF", path("no such folder/profile.pdf"))
        .expect(stop_box(
            file_error(path("no such folder/profile.pdf"),
                       "the PDF could not be written. The folder may be read-only or the disc full.")));
    click(screen("viewer"), "cmdViewer_pdf");
    close_viewer();
    press("profile", "cmdProfile_cancel");
    press("front", "cmdFront_land");
    press("land", "cmdLand_continue");
    press("land", "cmdReport");
    close_viewer();
    press("land", "cmdLand_back");
    person.expect(land_messages::close_module, answer::yes);
    press("land", "cmdLand_cancel");
    press("front", "cmdFront_reports");
    ASSERT_TRUE(drive::control(screen("viewer"), "cmdViewer_print_all")->isVisible());
    EXPECT_EQ(pages(saved_as("all.pdf")), 2);
    page()->navigate(qt(path("KEL_report_landspread.htm")));
    EXPECT_EQ(pages(saved_as("land.pdf")), 1);
}

TEST_F(Viewer, PrintAllReportsStandsInTheFileMenuAndBesideTheList) {
    start_with({{"Long Rig", "15"}});
    auto* menu = screen("front")->findChild<QAction*>("mnuFront_print_all");
    person.expect(printed_reports_messages::none_generated);
    menu->trigger();
    press("front", "cmdFront_reports");
    person.expect(printed_reports_messages::none_generated);
    press("viewer", "cmdViewer_print_all");
    close_viewer();
    press("front", "cmdFront_edit");
    press("profile", "cmdReport");
    close_viewer();
    press("profile", "cmdProfile_cancel");
    EXPECT_TRUE(printer_asked([&] { menu->trigger(); }));
    person.verify_done();
}

// The chart in the folder may be another farm's.
TEST_F(Viewer, AStorageReportIsSavedWithItsChartAndWithoutOneWhenItHasNone) {
    open_farm({{"Long Rig", "15"}});
    add_row(state.assess_file, "Land", {{"Field Area ID", "Long Rig"}});
    add_row(state.assess_file, "Store_in", {{"Water_cow", "50"}, {"Water_pig", "0"}});
    add_row(state.assess_file, "Slurry_store",
            {{"Store_name", "Pit"},
             {"Store_shape", "Circular"},
             {"Store_depth", "3"},
             {"Store_circumference", "10"},
             {"Store_%", "0"},
             {"Rain_area", "78.5"}});
    write_store(state);
    start();
    const std::string chart = path("rep_chart1.bmp");
    run->open(screen_id::storage);
    press("storage", "cmdStorage_continue");
    press("storage", "cmdStores_continue");
    write_file(chart, "the chart of before");
    std::filesystem::create_directories(chart + ".unfinished/in the way");
    person.expect(stop_box(
        file_error(chart, "the chart could not be written. The folder may be read-only or the disc full.")));
    click(screen("storage"), "cmdReport");
    EXPECT_EQ(file_text(chart), "the chart of before");
    std::filesystem::remove_all(chart + ".unfinished");
    person.expect(module_messages::close_module, answer::yes);
    press("storage", "cmdStorage_cancel");
    for (const bool with_stores : {true, false}) {
        const std::string folder = path(with_stores ? "with" : "without");
        std::filesystem::create_directory(folder);
        run->open(screen_id::storage);
        press("storage", "cmdStorage_continue");
        if (!with_stores)
            person.expect(storage_messages::no_stores, answer::yes)
                .expect(storage_messages::capacity_not_assessed);
        press("storage", "cmdStores_continue");
        press("storage", "cmdReport");
        person.expect_file("Save the report", folder + "/saved.htm");
        press("viewer", "Command8");
        EXPECT_TRUE(std::filesystem::exists(folder + "/saved.htm"));
        EXPECT_EQ(QImage(qt(folder + "/rep_chart1.bmp")).size(),
                  with_stores ? QSize(2160, 1020) : QSize(0, 0));
        close_viewer();
        person.expect(module_messages::close_module, answer::yes);
        press("storage", "cmdStorage_cancel");
        database(state.assess_file).delete_rows("Slurry_store");
    }
}

TEST_F(Viewer, AHiddenStep1NeverShowsOneFarmsLandOverAnotherFarm) {
    start_with({{"Long Rig", "15"}});
    press("front", "cmdFront_reports");
    close_viewer();
    person.expect_file("Open an existing assessment", make_farm("other.kel", {{"East Muir", "8"}}))
        .expect(years_messages::nothing_linked, answer::yes);
    press("front", "cmdFront_open");
    press("years", "cmdYear_browse1");
    press("years", "cmdYear_ok");
    press("front", "cmdFront_land");
    EXPECT_EQ(cell(grid("land", "MSFlexGridLand"), 0, 0), "East Muir");
}

}  // namespace kel::test
