// The season calendar in words and on paper, and the blank sheets.
#include <gtest/gtest.h>

#include <algorithm>

#include "standing/blank_sheets.h"
#include "standing/season_messages.h"
#include "standing/season_months.h"
#include "standing/season_report.h"
#include "standing/season_texts.h"
#include "tests/support/sample_chain.h"

namespace kel::test {
namespace {

namespace col = season_column;

season_span span(date first, date last, const std::string& rule = "Rule.") {
    return {first, last, rule};
}

/// A year with one field that is closed in October and, for fertiliser, to 15 February and from 15 September.
season_calendar small_season() {
    season_calendar season;
    season.farm = "Mains <b>& Sons";
    season.first = make_date(19, 12, 2024);
    season.last = make_date(18, 12, 2025);
    field_season field{.name = "Rig <i>", .size_ha = "5", .soil = "Sands"};
    field.crops = "Grass / Grass";
    field.manure_closed = {span(make_date(1, 10, 2025), make_date(31, 10, 2025), "October.")};
    field.fertiliser_closed = {span(season.first, make_date(15, 2, 2025), "Spring."),
                               span(make_date(15, 9, 2025), season.last, "Autumn.")};
    field.marks = {{make_date(20, 2, 2025), applied_as::fertiliser, "Urea", "100 kg/ha"},
                   {make_date(3, 10, 2025), applied_as::manure, "Slurry", "30 cubic m/ha", true, 84.5F}};
    field.peak = rolling_peak{make_date(3, 10, 2025), 84.5F, false};
    season.fields = {field};
    return season;
}

int count(const page_lines& lines, const std::string& text) {
    return static_cast<int>(std::ranges::count_if(
        lines, [&](const std::string& line) { return line.find(text) != std::string::npos; }));
}

/// The lines of the last row, without its tags.
page_lines last_row(const page_lines& lines) {
    const auto begins = std::find(lines.rbegin(), lines.rend(), "<tr>").base();
    return {begins, lines.end() - 2};
}

TEST(SeasonMonths, AreThirteenAndTellHowMuchOfThemIsClosed) {
    const auto months = months_of(make_date(19, 12, 2023), make_date(18, 12, 2024));
    std::string told;
    for (const month_piece& month : months)
        told += std::string(month.letters) + std::to_string(days_between(month.first, month.last) + 1) + " ";
    EXPECT_EQ(told, "Dec13 Jan31 Feb29 Mar31 Apr30 May31 Jun30 Jul31 Aug31 Sep30 Oct31 Nov30 Dec18 ");
    const auto in_february = [&](int first, int first_month, int last, int last_month) {
        const month_closing how = closing_of(
            {span(make_date(first, first_month, 2024), make_date(last, last_month, 2024))}, months[2]);
        return how.how == closing::wholly ? std::string("whole") : how.days;
    };
    EXPECT_EQ(in_february(1, 2, 29, 2), "whole");
    EXPECT_EQ(in_february(1, 1, 28, 2), "to 28");
    EXPECT_EQ(in_february(2, 2, 1, 3), "from 2");
    EXPECT_EQ(in_february(3, 2, 9, 2), "3-9");
    EXPECT_EQ(in_february(1, 3, 9, 3), "");
    EXPECT_EQ(in_february(1, 1, 31, 1), "");
}

TEST(SeasonTexts, ADayTellsItsRulesAndWhatWasApplied) {
    const field_season field = small_season().fields[0];
    EXPECT_EQ(day_text(field, make_date(20, 2, 2025)),
              "Rig <i>, 20 February 2025: Open to slurries and manures. Open to inorganic nitrogen. "
              "Applied: Urea, 100 kg/ha.");
    const std::string october = day_text(field, make_date(3, 10, 2025));
    EXPECT_NE(october.find("October. Farmyard manure"), std::string::npos) << october;
    EXPECT_NE(october.find("Autumn. Applied: Slurry, 30 cubic m/ha; with it 84.5 kg N/ha in twelve months; "
                           "IN A CLOSED PERIOD."),
              std::string::npos)
        << october;
    field_season missing{.name = "New", .size_ha = "1", .soil = ""};
    missing.manure_missing = missing.fertiliser_missing = "Enter it.";
    EXPECT_EQ(day_text(missing, make_date(3, 10, 2025)), "New, 03 October 2025: Enter it.");
}

class SampleSeasonTable : public sample_chain_test {};

// What is drawn and what is read are the same.
TEST_F(SampleSeasonTable, HoldsEveryBandAndMarkOfTheDrawing) {
    open_year(2);
    const season_calendar season = season_of(state);
    const text_grid table = season_table(season);
    int expected = static_cast<int>(season.notes.size());
    const auto in_table = [&](const std::string& field, date first, date last, const std::string& details) {
        for (int row = 0; row < table.row_count(); ++row)
            if (table.cell(row, col::field) == field &&
                table.cell(row, col::first) == short_date_text(first) &&
                table.cell(row, col::last) == short_date_text(last) &&
                table.cell(row, col::details).starts_with(details))
                return true;
        return false;
    };
    for (const field_season& field : season.fields) {
        for (const auto& spans : {field.manure_closed, field.no_land, field.fertiliser_closed})
            for (const season_span& drawn : spans) {
                ++expected;
                EXPECT_TRUE(in_table(field.name, drawn.first, drawn.last, drawn.rule)) << drawn.rule;
            }
        for (const season_mark& mark : field.marks) {
            ++expected;
            EXPECT_TRUE(in_table(field.name, mark.day, mark.day, mark.type)) << mark.type;
        }
        expected += 2 + static_cast<int>(field.notes.size()) + (field.manure_missing.empty() ? 0 : 1) +
                    (field.fertiliser_missing.empty() ? 0 : 1);
    }
    EXPECT_EQ(table.row_count(), expected);
    EXPECT_GT(expected, 100);
}

TEST(SeasonReport, ShadesAndLettersTellTheMonthsAndNamesAreNoMarkup) {
    const page_lines page = season_report(small_season());
    const page_lines row = last_row(page);
    ASSERT_EQ(row.size(), 15U);  // the field, thirteen months, the limit
    EXPECT_EQ(row[0], "<td><strong>Rig &lt;i&gt;</strong><br>5 ha, Sands<br>Grass / Grass</td>");
    EXPECT_EQ(row[1], "<td align=center bgcolor=#e0e0e0><font color=black>N</font></td>");
    EXPECT_EQ(row[3],
              "<td align=center bgcolor=#e0e0e0><font color=black>N&nbsp;to 15<br>F&nbsp;20</font></td>");
    EXPECT_EQ(row[4], "<td align=center>&nbsp;</td>");
    EXPECT_EQ(row[11], "<td align=center bgcolor=#bdbdbd><font color=black>S<br>N<br>M&nbsp;3!</font></td>");
    EXPECT_EQ(row[14], "<td>84.5 of 250 kg N/ha on 03/10/2025</td>");
    EXPECT_EQ(count(page, "<b>& Sons"), 0);
    EXPECT_EQ(count(page, "Mains &lt;b&gt;&amp; Sons"), 1);
    season_calendar unknown = small_season();
    unknown.fields[0].manure_missing = unknown.fields[0].fertiliser_missing = "Enter <it>.";
    EXPECT_EQ(last_row(season_report(unknown)).at(1),
              "<td colspan=13>Enter &lt;it&gt;.<br>F&nbsp;20 February<br>M&nbsp;3! October</td>");
}

TEST(BlankSheet, GivesEachFieldItsLinesAndGreysItsClosedMonths) {
    season_calendar season = small_season();
    season.fields.resize(1000, season.fields[0]);
    for (const auto& [asked, given] : {std::pair{1, 1}, {3, 3}, {5, 5}, {0, 1}, {9, 5}}) {
        const page_lines page = blank_sheet_page(season, blank_sheet::manure, asked);
        EXPECT_EQ(count(page, "<span style=font-size:20pt>"), 1000 * given);
        EXPECT_EQ(count(page, "<strong>Rig &lt;i&gt;</strong>"), 1000);
        EXPECT_EQ(count(page, "rowspan=" + std::to_string(given)), given == 1 ? 0 : 15'000);
        EXPECT_EQ(count(page, "bgcolor=#b4b4b4"), 1000);
    }
    season = small_season();
    const page_lines row = last_row(blank_sheet_page(season, blank_sheet::fertiliser, 1));
    ASSERT_EQ(row.size(), 20U);
    std::string months;
    for (int month = 2; month < 15; ++month)
        months += row[static_cast<std::size_t>(month)].find("#b4b4b4") != std::string::npos   ? "#"
                  : row[static_cast<std::size_t>(month)].find("#e0e0e0") != std::string::npos ? "+"
                                                                                              : ".";
    EXPECT_EQ(months, "##+......+###");
    EXPECT_NE(row[4].find("to 15"), std::string::npos);
    season.fields.clear();
    season.missing = "Nothing <here>.";
    EXPECT_EQ(count(blank_sheet_page(season, blank_sheet::manure, 1), "Nothing &lt;here&gt;."), 1);
}

}  // namespace
}  // namespace kel::test
