// What loading makes of a file, what saving leaves in it, and the report.
#include <SQLiteCpp/SQLiteCpp.h>

#include "core/dates.h"
#include "tests/inorganic/inorganic_fixture.h"

namespace kel::test {

namespace {

struct viewer_stub : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id id) override { hidden = id; }
    void show(const viewer_request& request) override { shown = request; }
    std::optional<screen_id> hidden;
    viewer_request shown;
};

}  // namespace

class InorganicFile : public inorganic_test {
  protected:
    void add_application(const std::string& field, const std::string& day, const std::string& total) {
        add_row(state.assess_file, "Inorganic N",
                {{"Field Area ID", field}, {"Date", day}, {"Amount", "100"}, {"Total N", total}});
    }
};

TEST_F(InorganicFile, EveryRowLoadsAsItStands) {
    open();
    add_application("Sold Field", "2005-03-07", "1.23");
    add_application("", "in spring", "");
    module.inorganic_load_stuff();
    EXPECT_EQ(module.field_names(), (texts{"Long Rig", "East Muir"}));
    ASSERT_EQ(module.applications().row_count(), 3);
    EXPECT_EQ(row(0), (texts{"Sold Field", "07/03/2005", "", "100", "", "1.23", ""}));
    EXPECT_EQ(row(1), (texts{"", "in spring", "", "100", "", "", ""}));
    EXPECT_EQ(row(2), texts(7));
    person.expect(says::no_field_selected);
    EXPECT_TRUE(module.click(1, col::day).box.none());
    EXPECT_EQ(module.calendar_year(), 2005);
    EXPECT_EQ(state.limits, year_limits_of(make_date(19, 12, 2004)));
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Date"), (texts{"2005-03-07", "in spring"}));
}

TEST_F(InorganicFile, SaveReplacesTheRowsAndKeepsDatesAsDates) {
    open();
    add_application("Long Rig", "2005-04-02", "");
    module.enter_field(0, "East Muir");
    module.enter_application(
        0, application{make_date(7, 3, 2005), "Urea \"46\"", "50", "34.5", "Reason: it's <cold>"});
    module.enter_field(1, "Long Rig");  // a field alone is a row, too
    EXPECT_EQ(stored("Field Area ID"), texts{"Long Rig"});
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    ASSERT_TRUE(module.save());
    EXPECT_EQ(stored("Field Area ID"), (texts{"East Muir", "Long Rig"}));
    EXPECT_EQ(stored("Date"), (texts{"2005-03-07", ""}));
    EXPECT_EQ(stored("N content"), (texts{"34.5", ""}));
    EXPECT_EQ(stored("Total N"), (texts{"17.2", ""}));
    const texts before = row(0);
    module.inorganic_load_stuff();
    EXPECT_EQ(row(0), before);
    module.delete_row(0);
    module.delete_row(0);
    ASSERT_TRUE(module.save());
    EXPECT_TRUE(stored("Field Area ID").empty());
}

TEST_F(InorganicFile, AFileThatFailsLosesNothing) {
    open();
    add_application("Long Rig", "2005-04-02", "");
    module.enter_field(0, "East Muir");
    // The rows are deleted before the missing column shows.
    SQLite::Database(state.assess_file, SQLite::OPEN_READWRITE)
        .exec("ALTER TABLE [Inorganic N] DROP COLUMN [Comments]");
    person.expect(rows_changed_meanwhile(state.assess_file), answer::yes);
    EXPECT_THROW(module.save(), file_error);
    EXPECT_EQ(stored("Field Area ID"), texts{"Long Rig"});
    EXPECT_THROW(module.inorganic_load_stuff(), file_error);
    EXPECT_EQ(row(0).front(), "East Muir");
    EXPECT_EQ(module.field_names().size(), 2U);
}

TEST_F(InorganicFile, ReportHasTheRowsWithoutTheEntryRow) {
    open();
    module.enter_field(0, "East Muir");
    module.enter_application(0, application{make_date(7, 3, 2005), "Urea", "33", "27", ""});
    viewer_stub viewer;
    report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
    module.report(desk);
    EXPECT_EQ(viewer.shown.page, path("KEL_report_inorganic.htm"));
    EXPECT_EQ(viewer.hidden, screen_id::inorganic);
    EXPECT_EQ(state.viewer_back, screen_id::inorganic);
    const std::string page = file_text(viewer.shown.page);
    std::size_t at = 0;
    // clang-format off
    for (const char* text : {
             "Inorganic Nitrogen Applications",
             "width=15%", "Field Area ID", "width=12%", "Date of application", "Type of fertiliser",
             "Amount applied (kg/ha)", "N content (%)", "Total N applied (kg)", "width=25%", "Comments",
             ">East Muir&nbsp;<", ">07/03/2005&nbsp;<", ">Urea&nbsp;<", ">33&nbsp;<", ">27&nbsp;<",
             ">8.9&nbsp;<", ">&nbsp;<", "</table>"}) {
        at = page.find(text, at);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text;
        ++at;
    }
    // clang-format on
    EXPECT_EQ(page.find("<td>", page.find(">8.9&nbsp;<") + 20), std::string::npos)
        << "the entry row is there";
}

TEST_F(InorganicFile, SaveAsksBeforeItWritesOverRowsChangedMeanwhile) {
    open();
    add_row(state.assess_file, "Inorganic N", {{"Field Area ID", "East Muir"}});
    person.expect(rows_changed_meanwhile(state.assess_file), answer::no);
    EXPECT_FALSE(module.save());
    EXPECT_EQ(column_of(state.assess_file, "Inorganic N", "Field Area ID"), texts{"East Muir"});
}

}  // namespace kel::test
