#include "reports/contents_page.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kel {
namespace {

int lines_with(const page_lines& page, std::string_view piece) {
    return static_cast<int>(std::count_if(page.begin(), page.end(), [&](const std::string& line) {
        return line.find(piece) != std::string::npos;
    }));
}

// The line of the first cell with this text, or an empty line; the one after it is the row's second cell.
std::string cell_after(const page_lines& page, std::string_view row_text, int step = 1) {
    const auto found = std::find_if(page.begin(), page.end(), [&](const std::string& line) {
        return line.find(row_text) != std::string::npos;
    });
    return found == page.end() ? std::string{} : *(found + step);
}

TEST(ContentsPage, FolderWithoutReportsOffersNone) {
    const page_lines body = contents_body({"kelstore.ini", std::string(contents_file), "User_files"});
    EXPECT_EQ(9, lines_with(body, "No report generated"));
    EXPECT_EQ(0, lines_with(body, "<a href"));
    EXPECT_EQ(9, lines_with(body, "width=70%"));
}

TEST(ContentsPage, OnlyTheReportThatExistsIsLinked) {
    const page_lines body = contents_body({"KEL_report_landspread.htm"});
    EXPECT_EQ(8, lines_with(body, "No report generated"));
    EXPECT_EQ("<td width=30%><a href=KEL_report_landspread.htm>Click here to view report</a></td>",
              cell_after(body, "Land availability"));
}

TEST(ContentsPage, NamesAreComparedExactly) {
    const page_lines body = contents_body({"kel_report_storage.htm", "KEL_report_storage.html",
                                           "KEL_report_storage.htm.new", "/KEL_report_manureN.htm"});
    EXPECT_EQ(9, lines_with(body, "No report generated"));
}

TEST(ContentsPage, CropsRowIsNarrowOnlyWhenItsReportExists) {
    constexpr std::string_view crops = "Crops: Assessment";
    const page_lines without = contents_body({"KEL_report_grassrec.htm"});
    EXPECT_NE(std::string::npos, cell_after(without, crops, 0).find("width=70%"));
    const page_lines with = contents_body({"KEL_report_grassrec.htm", "KEL_report_croprec.htm"});
    EXPECT_NE(std::string::npos, cell_after(with, crops, 0).find("width=30%"));
    EXPECT_EQ(8, lines_with(with, "width=70%"));
}

TEST(ContentsPage, RowsComeInTheOrderOfTheModules) {
    std::vector<std::string> files;
    for (const report_file& report : report_files)
        files.insert(files.begin(), std::string(report.file_name));
    const page_lines body = contents_body(files);
    std::size_t reached = 0;
    for (const report_file& report : report_files) {
        const auto found = std::find_if(body.begin(), body.end(), [&](const std::string& line) {
            return line.find(report.row_text) != std::string::npos;
        });
        ASSERT_NE(body.end(), found) << report.row_text;
        const auto at = static_cast<std::size_t>(found - body.begin());
        EXPECT_GT(at, reached) << report.row_text;
        EXPECT_NE(std::string::npos, body[at + 1].find(report.file_name)) << report.row_text;
        reached = at;
    }
}

}  // namespace
}  // namespace kel
