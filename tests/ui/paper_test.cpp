// Pages on paper: what each sheet of a print says, where, and how large.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>
#include <stdexcept>

#include "reports/report_page.h"
#include "tests/support/farm_files.h"
#include "tests/ui/paper_recorder.h"

namespace kel::test {

using texts = std::vector<std::string>;

class Paper : public farm_test {
  protected:
    static constexpr int dots = 600;
    static constexpr double line = dots * 12.0 / 72;  // of text, about

    Paper() {
        device.setResolution(dots);
        device.setPageSize(QPageSize(QPageSize::A4));
        device.setPageMargins({15, 15, 15, 15}, QPageLayout::Millimeter);
    }
    /// The sheets of a report with this body.
    void print(const page_lines& body, const std::string& farm = "Mains of Test") {
        const page_origin origin{
            .farm = farm, .year_start = make_date(19, 12, 2025), .made = make_date(3, 4, 2026)};
        const page_lines page = framed_page(body, make_date(3, 4, 2026), "Some People", origin);
        job = std::make_unique<print_job>(std::vector{page_of_lines(page, path(""))}, device,
                                          make_date(21, 11, 2026));
        sheets.clear();
        for (int sheet = 0; sheet < job->sheets(); ++sheet)
            sheets.push_back(recorded(*job, sheet, dots));
    }
    /// The one sheet that has the text once; -1 if there is not exactly that.
    int sheet_of(const std::string& text) const {
        int found = -1;
        for (std::size_t i = 0; i < sheets.size(); ++i) {
            const int here = sheets[i].count(text);
            if (here > 1 || (here == 1 && found >= 0)) return -1;
            if (here == 1) found = static_cast<int>(i);
        }
        return found;
    }
    int count(const std::string& text) const {
        int all = 0;
        for (const recorded_sheet& sheet : sheets)
            all += sheet.count(text);
        return all;
    }
    double height(int sheet, const std::string& text) const {
        return sheets[static_cast<std::size_t>(sheet)].found(text).at(0).place.y();
    }
    double smallest_text() const {
        double smallest = 99;
        for (const recorded_sheet& sheet : sheets)
            for (const written_text& run : sheet.texts)
                smallest = std::min(smallest, run.size_pt);
        return smallest;
    }

    QBuffer content;
    QPdfWriter device{(content.open(QIODevice::WriteOnly), &content)};
    std::unique_ptr<print_job> job;
    std::vector<recorded_sheet> sheets;
};

texts row_texts(int row, int columns) {
    texts cells;
    cells.reserve(static_cast<std::size_t>(columns));
    for (int c = 0; c < columns; ++c)
        cells.push_back("r" + std::to_string(row) + "c" + std::to_string(c));
    return cells;
}

// The second cell of every third row takes three lines.
report_table long_table(int rows) {
    report_table table;
    table.add_heading_row(std::vector<report_cell>{
        {.text = "Field", .rows = 2}, {.text = "Remark", .rows = 2}, {.text = "Areas", .columns = 2}});
    table.add_heading_row(texts{"Grass", "Other"});
    for (int row = 0; row < rows; ++row) {
        texts cells = row_texts(row, 4);
        if (row % 3 == 0) cells[1] += "<br>m" + std::to_string(row) + "<br>l" + std::to_string(row);
        table.add_row(cells);
    }
    return table;
}

TEST_F(Paper, RowsStayWholeUnderHeadingsThatEverySheetRepeats) {
    constexpr int rows = 130;
    page_lines body = report_heading("A long table");
    append(body, long_table(rows).lines());
    print(body);
    ASSERT_GE(sheets.size(), 3U);
    for (int row = 0; row < rows; ++row) {
        const texts cells = row_texts(row, 4);
        const int sheet = sheet_of(cells[0]);
        ASSERT_GE(sheet, 0) << cells[0];
        for (const std::string& cell : cells)
            EXPECT_EQ(sheet_of(cell), sheet) << cell;
        if (row % 3 == 0) {
            EXPECT_EQ(sheet_of("l" + std::to_string(row)), sheet) << row;
        }
        for (const char* heading : {"Field", "Remark", "Areas", "Grass", "Other"}) {
            ASSERT_EQ(sheets[static_cast<std::size_t>(sheet)].count(heading), 1) << heading;
            EXPECT_LT(height(sheet, heading), height(sheet, cells[0]));
        }
        EXPECT_LT(height(sheet, cells[0]), height(sheet, job->foot(sheet).farm.toStdString()) - line / 2);
    }
    // Every sheet but the last is full: no row's room is left.
    for (int sheet = 0; sheet + 1 < job->sheets(); ++sheet) {
        double lowest = 0;
        for (const written_text& run : sheets[static_cast<std::size_t>(sheet)].texts)
            if (run.text != job->foot(sheet).farm.toStdString() &&
                run.place.y() < height(sheet, "Mains of Test"))
                lowest = std::max(lowest, run.place.y());
        EXPECT_LT(height(sheet, "Mains of Test") - lowest, 6 * line) << sheet;
    }
    EXPECT_GE(smallest_text(), 9);
}

TEST_F(Paper, EveryFootTellsFarmYearDayAndNumber) {
    page_lines body;
    append(body, long_table(90).lines());
    print(body, "Mains & <b>Sons");
    ASSERT_GE(job->sheets(), 2);
    for (int i = 0; i < job->sheets(); ++i) {
        const sheet_foot expected{
            .farm = "Mains & <b>Sons",
            .number = QString("Page %1 of %2").arg(i + 1).arg(job->sheets()),
            .year = "KEL year 19 December 2025 to 18 December 2026",
            .day = "03 April 2026",
        };
        EXPECT_EQ(job->foot(i), expected);
        for (const QString& text : {expected.farm, expected.number, expected.year, expected.day})
            EXPECT_EQ(sheets[static_cast<std::size_t>(i)].count(from_qt(text)), 1) << from_qt(text);
    }
}

TEST_F(Paper, WideTablesLieAcrossWithTheirFiguresWhole) {
    report_table months;
    texts headings{"Store Name", "Drainage Area (sq. m)"};
    texts figures{"Steading tower", "314.2"};
    for (int month = 0; month < 12; ++month) {
        headings.push_back("M" + std::to_string(month));
        figures.push_back(std::to_string(100 + month) + ".1155");
    }
    months.add_heading_row(headings);
    months.add_row(figures);
    print(months.lines());
    EXPECT_TRUE(job->lies_across(0));
    for (int month = 0; month < 12; ++month)
        EXPECT_EQ(sheet_of(std::to_string(100 + month) + ".1155"), 0);
    // A name that no paper has room for breaks; the figures do not.
    figures[0] = std::string(400, 'W');
    months.add_row(figures);
    print(months.lines());
    for (const recorded_sheet& sheet : sheets)
        for (const written_text& run : sheet.texts)
            EXPECT_TRUE(run.text.size() < 30 || run.text.find("WWW") == std::string::npos) << run.text;
    for (int month = 0; month < 12; ++month)
        EXPECT_EQ(count(std::to_string(100 + month) + ".1155"), 2);
    print(long_table(3).lines());
    EXPECT_FALSE(job->lies_across(0));
    report_table applications;
    applications.add_row(texts(8, "20"));
    print(applications.lines());
    EXPECT_TRUE(job->lies_across(0)) << "however short its words are";
}

TEST_F(Paper, AHeadingStaysWithTheFirstRowOfItsTable) {
    for (int lines = 20; lines < 60; ++lines) {
        page_lines body;
        for (int i = 0; i < lines; ++i)
            append(body, report_paragraph("filling"));
        append(body, report_section("Heading"));
        append(body, report_paragraph("What follows:"));
        append(body, long_table(2).lines());
        print(body);
        ASSERT_EQ(sheet_of("Heading"), sheet_of("r0c0")) << lines;
        ASSERT_EQ(sheet_of("What follows:"), sheet_of("r0c0")) << lines;
        ASSERT_EQ(sheets.at(static_cast<std::size_t>(sheet_of("r0c0"))).count("Field"), 1) << lines;
    }
}

TEST_F(Paper, ARowHigherThanASheetLosesNoLine) {
    std::string remark;
    constexpr int lines = 150;
    for (int i = 0; i < lines; ++i)
        remark += "line" + std::to_string(i) + "<br>";
    report_table table;
    table.add_heading_row(texts{"Field", "Remark"});
    table.add_row(texts{"Long Rig", remark});
    print(table.lines());
    EXPECT_GE(job->sheets(), 3);
    for (int i = 0; i < lines; ++i)
        EXPECT_GE(sheet_of("line" + std::to_string(i)), 0) << i;
}

TEST_F(Paper, APictureStaysWholeAndNoWiderThanThePaper) {
    QImage picture(3000, 900, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    ASSERT_TRUE(picture.save(qt(path("wide.png"))));
    for (int lines = 25; lines < 45; ++lines) {
        page_lines body;
        for (int i = 0; i < lines; ++i)
            append(body, report_paragraph("filling"));
        append(body, report_paragraph("<img src=wide.png>"));
        print(body);
        int drawn = 0;
        for (std::size_t i = 0; i < sheets.size(); ++i)
            for (const QRectF& place : sheets[i].pictures) {
                if (place.width() < 2 * place.height()) continue;  // the logo
                ++drawn;
                EXPECT_LE(place.right(), 180.5 / 25.4 * dots);
                EXPECT_NEAR(place.width() / place.height(), 3000.0 / 900, 0.05);
                EXPECT_LT(place.bottom(), height(static_cast<int>(i), "Mains of Test"));
            }
        EXPECT_EQ(drawn, 1) << lines;
    }
}

TEST_F(Paper, PicturesSideBySideAreEachMadeToFit) {
    QImage picture(3000, 900, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    ASSERT_TRUE(picture.save(qt(path("wide.png"))));
    std::string pictures;
    for (const char* size : {"width=3000 height=900", "width=2000 height=600", "width=1000 height=300"})
        pictures.append("<img src=wide.png ").append(size).append(">");
    print(report_paragraph(pictures + "behind them"));
    int drawn = 0;
    for (const recorded_sheet& sheet : sheets)
        for (const QRectF& place : sheet.pictures) {
            if (place.width() < 2 * place.height()) continue;  // the logo
            ++drawn;
            EXPECT_LE(place.right(), 180.5 / 25.4 * dots);
        }
    EXPECT_EQ(drawn, 3);
    EXPECT_EQ(count("behind them"), 1);
}

TEST_F(Paper, PaperWithoutRoomForTextIsRefused) {
    device.setPageSize(QPageSize(QSizeF(45, 40), QPageSize::Millimeter));
    EXPECT_THROW(print(report_paragraph("Some text")), std::runtime_error);
}

TEST_F(Paper, APdfHasTheSheetsOfAllPagesEachInItsOwnDirection) {
    report_table wide;
    wide.add_row(row_texts(0, 12));
    const std::vector<printed_page> pages{
        page_of_lines(framed_page(long_table(10).lines(), make_date(3, 4, 2026), ""), path("")),
        page_of_lines(framed_page(wide.lines(), make_date(3, 4, 2026), ""), path("")),
        page_of_lines(framed_page(long_table(10).lines(), make_date(3, 4, 2026), ""), path(""))};
    const std::string pdf = pdf_of(pages, "Reports", make_date(21, 11, 2026));
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    const auto boxes =
        QRegularExpression("/MediaBox \\[0 0 (\\d+)[^\\]]*\\]").globalMatch(QString::fromLatin1(pdf));
    QStringList widths;
    for (auto box = boxes; box.hasNext();)
        widths << box.next().captured(1);
    EXPECT_EQ(widths.join(' ').toStdString(), "595 842 595");
}

}  // namespace kel::test
