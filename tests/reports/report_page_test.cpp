#include "reports/report_page.h"

#include <filesystem>

#include "core/file_error.h"
#include "tests/support/farm_files.h"

namespace kel {
namespace {

using test::file_text;
using test::write_file;

class ReportPage : public test::farm_test {};

TEST(ReportFrame, BodyStandsBetweenTheRulesOfHeadAndFoot) {
    const page_lines page = framed_page({"<p>one</p>"}, make_date(15, 11, 2026), "Some People");
    const page_lines tail(page.end() - 7, page.end());
    const page_lines expected{
        "<hr>",
        "<p>one</p>",
        "<hr>",
        "<font size=1>Generated from Guidelines For Farmers in Scottish KELs Computer Module, developed for "
        "ORDANE by Some People</font><br>",
        "<font size=1>Sunday 15 November 2026</font>",
        "</body>",
        "</html>",
    };
    EXPECT_EQ(expected, tail);
    for (const std::string& line : page)
        EXPECT_EQ(std::string::npos, line.find_first_of("\"\n")) << line;
}

TEST(ReportTable, CellsCarryTheirLayoutAndEmptyOnesKeepTheirBorder) {
    report_table table;
    table.add_heading_row(
        {{.text = "Deducted", .columns = 3}, {.text = "", .rows = 2, .width = "15%", .align = "left"}});
    table.add_row({{.text = "3.5", .width = "12%", .align = "right"}, {.text = ""}});
    table.add_row(std::vector<std::string>{"North < Park & Bràigh"});
    const page_lines expected{
        "<table border=1 width=100% cellpadding=3 cellspacing=0>",
        "<tr>",
        "<td align=center colspan=3 bgcolor=#e0e0e0><font color=black><strong>Deducted</strong></font></td>",
        "<td width=15% align=left rowspan=2 bgcolor=#e0e0e0><font "
        "color=black><strong>&nbsp;</strong></font></td>",
        "</tr>",
        "<tr>",
        "<td width=12% align=right>3.5</td>",
        "<td>&nbsp;</td>",
        "</tr>",
        "<tr>",
        "<td>North < Park & Bràigh</td>",
        "</tr>",
        "</table>",
    };
    EXPECT_EQ(expected, table.lines());
}

TEST_F(ReportPage, WritingReplacesTheWholeOldPageAndAFullDiscLeavesIt) {
    const std::string report = path("KEL_report_record.htm");
    write_file(report, "an older and much longer page\n");
    write_page(report, {"<HTML>", "</html>"});
    EXPECT_EQ("<HTML>\n</html>\n", file_text(report));
    EXPECT_FALSE(std::filesystem::exists(report + ".new"));
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device here that is always full";
    std::filesystem::create_symlink("/dev/full", report + ".new");
    EXPECT_THROW(write_page(report, {"another"}), file_error);
    EXPECT_EQ("<HTML>\n</html>\n", file_text(report));
    EXPECT_FALSE(std::filesystem::is_symlink(report + ".new"));
}

TEST_F(ReportPage, PageThatCannotBePutInPlaceIsNamedAndLeavesNoRemains) {
    const std::string report = path("KEL_report_storage.htm");
    std::filesystem::create_directories(report + "/in the way");
    try {
        write_page(report, {"<HTML>"});
        ADD_FAILURE() << report;
    } catch (const file_error& error) {
        EXPECT_EQ(report, error.file());
    }
    EXPECT_FALSE(std::filesystem::exists(report + ".new"));
}

}  // namespace
}  // namespace kel
