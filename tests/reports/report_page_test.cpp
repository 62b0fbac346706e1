#include "reports/report_page.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/file_error.h"
#include "reports/contents_page.h"
#include "tests/support/farm_files.h"

namespace kel {
namespace {

using test::file_text;
using test::write_file;

class ReportPage : public test::farm_test {};

TEST(ReportFrame, BodyStandsBetweenTheRulesOfHeadAndFoot) {
    const page_lines page = framed_page({"<p>one</p>"}, make_date(1, 12, 2024), "Some People");
    EXPECT_EQ(page_lines(page.end() - 7, page.end() - 4), (page_lines{"<hr>", "<p>one</p>", "<hr>"}));
    EXPECT_TRUE(page.end()[-4].ends_with("developed for ORDANE by Some People</font><br>"));
    EXPECT_EQ(page.end()[-3], "<font size=1>Sunday 01 December 2024</font>");
    for (const std::string& line : page)
        EXPECT_EQ(std::string::npos, line.find_first_of("\"\n")) << line;
}

TEST(ReportTable, CellsCarryTheirLayoutAndEmptyOnesKeepTheirBorder) {
    report_table table;
    table.add_heading_row(
        {{.text = "Deducted", .columns = 3}, {.text = "", .rows = 2, .width = "15%", .align = "left"}});
    table.add_row({{.text = "3.5", .width = "12%", .align = "right"}, {.text = ""}});
    table.add_row(std::vector<std::string>{"North < Park & Bràigh"});
    table.add_row({{.text = escaped("<b>&"), .shade = "#d0d0d0"}});
    const page_lines lines = table.lines();
    EXPECT_EQ(
        lines.at(3),
        "<td align=center colspan=3 bgcolor=#e0e0e0><font color=black><strong>Deducted</strong></font></td>");
    EXPECT_TRUE(lines.at(4).starts_with("<td width=15% align=left rowspan=2 bgcolor=#e0e0e0>"));
    EXPECT_EQ(page_lines(lines.begin() + 5, lines.end()),
              (page_lines{"</tr>", "</thead>", "<tr>", "<td width=12% align=right>3.5</td>",
                          "<td>&nbsp;</td>", "</tr>", "<tr>", "<td>North < Park & Bràigh</td>", "</tr>",
                          "<tr>", "<td bgcolor=#d0d0d0><font color=black>&lt;b&gt;&amp;</font></td>", "</tr>",
                          "</table>"}));
}

TEST(ReportTable, ColumnsOfAGridComeInTheOrderAskedForWithoutTheEntryRow) {
    constexpr std::array<grid_column, 3> columns{{{"A", "", column_kind::entered, 1},
                                                  {"B", "", column_kind::carried, 1},
                                                  {"C", "", column_kind::entered, 1}}};
    text_grid grid(columns);
    grid.set_row_count(2);
    for (int column = 0; column < 3; ++column)
        grid.set_cell(0, column, std::string(columns.at(static_cast<std::size_t>(column)).heading));
    report_table table;
    table.add_grid(grid, grid.data_row_count(), {2, 0});
    EXPECT_EQ(table.lines(), (page_lines{"<table border=1 width=100% cellpadding=3 cellspacing=0>", "<tr>",
                                         "<td>C</td>", "<td>A</td>", "</tr>", "</table>"}));
}

TEST_F(ReportPage, WritingReplacesTheWholeOldPageAndAFullDiscLeavesIt) {
    const std::string report = path("KEL_report_record.htm");
    write_file(report, "an older and much longer page\n");
    write_page(report, {"<HTML>", "</html>"});
    EXPECT_EQ("<HTML>\n</html>\n", file_text(report));
    EXPECT_FALSE(std::filesystem::exists(report + ".unfinished"));
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device here that is always full";
    std::filesystem::create_symlink("/dev/full", report + ".unfinished");
    EXPECT_THROW(write_page(report, {"another"}), file_error);
    EXPECT_EQ("<HTML>\n</html>\n", file_text(report));
    EXPECT_FALSE(std::filesystem::is_symlink(report + ".unfinished"));
}

auto holds(std::string_view piece) {
    return [piece](const std::string& line) { return line.find(piece) != std::string::npos; };
}

// The line of the row's first cell; the one after it is its second cell.
page_lines::const_iterator row_of(const page_lines& page, std::string_view row_text) {
    return std::ranges::find_if(page, holds(row_text));
}

TEST(ContentsPage, OnlyFilesOfExactlyTheReportsNamesAreLinked) {
    const page_lines none =
        contents_body({"kelstore.ini", std::string(contents_file), "kel_report_storage.htm",
                       "KEL_report_storage.html", "/KEL_report_manureN.htm"});
    EXPECT_EQ(9, std::ranges::count_if(none, holds("No report generated")));
    const page_lines one = contents_body({"KEL_report_landspread.htm"});
    EXPECT_EQ(8, std::ranges::count_if(one, holds("No report generated")));
    EXPECT_EQ("<td width=30%><a href=KEL_report_landspread.htm>Click here to view report</a></td>",
              *(row_of(one, "Land availability") + 1));
}

TEST(ContentsPage, PagesBesidesTheNineStandThereOnlyWhenTheyHaveBeenMade) {
    const page_lines without = contents_body({});
    EXPECT_EQ(without.end(), row_of(without, "Where the farm stands"));
    const page_lines with = contents_body({"KEL_report_standing.htm"});
    EXPECT_LT(row_of(with, "Where the farm stands"), row_of(with, "Farm Profile"));
    EXPECT_EQ(9, std::ranges::count_if(with, holds("No report generated")));
}

TEST(ContentsPage, CropsRowIsNarrowOnlyWhenItsReportExists) {
    for (const bool exists : {false, true}) {
        const page_lines page =
            contents_body({"KEL_report_grassrec.htm", exists ? "KEL_report_croprec.htm" : ""});
        EXPECT_TRUE(holds(exists ? "width=30%" : "width=70%")(*row_of(page, "Crops: Assessment")));
        EXPECT_EQ(exists ? 8 : 9, std::ranges::count_if(page, holds("width=70%")));
    }
}

}  // namespace
}  // namespace kel
