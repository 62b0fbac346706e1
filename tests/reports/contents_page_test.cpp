#include "reports/contents_page.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kel {
namespace {

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
