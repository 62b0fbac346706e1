// The record over real files: which rows it reads, what the commands hand on, and files that fail.
#include "record/record_module.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>

#include "core/file_error.h"
#include "record/record_grid.h"
#include "record/record_messages.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace {

namespace says = record_messages;
namespace col = record_column;
using texts = std::vector<std::string>;

struct viewer_stub : report_viewer {
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id id) override { hidden = id; }
    void show(const viewer_request& request) override { shown = request; }
    screen_id hidden = screen_id::front;
    viewer_request shown;
};

}  // namespace

class FieldRecord : public farm_test {
  protected:
    // Long Rig: wheat with last year's file behind it; East Muir: nothing stored but the field.
    void open() {
        open_farm({{"Long Rig", "15"}, {"East \"Muir\"", "8"}}, 2004);
        state.prev1_file = make_farm("last.kel", {{"Long Rig", "15"}}, 2003);
        use_of(state.assess_file, "Grass / Other");
        use_of(state.prev1_file, "Grass / Grass");
        add_row(state.assess_file, "Crops",
                {{"Field Area ID", "Long Rig"},
                 {"Next Crop", "WW"},
                 {"Previous or Current Crop", "SB"},
                 {"Sowing date", "2005-01-10"},
                 {"Hdate p_crop", "2004-09-02"},
                 {"Hdate c_crop", "2005-08-20"}});
        add_row(state.assess_file, "Recommendations", {{"Field Area ID", "Long Rig"}, {"N required", "60"}});
        // A field's first row counts.
        for (const char* table : {"Land", "Crops", "Recommendations"})
            add_row(state.assess_file, table, {{"Field Area ID", "Long Rig"}});
        add_row(state.prev1_file, "Land", {{"Field Area ID", "Long Rig"}});
        apply_manure(state.assess_file, "Long Rig", "2005-03-01");
        apply_manure(state.assess_file, "Sold Field", "2005-03-02");
        apply_nitrogen(state.assess_file, "Long Rig", "2005-04-02", "Urea \"46\",\tlate\nor never");
        apply_manure(state.prev1_file, "Long Rig", "2004-09-02");
        apply_nitrogen(state.prev1_file, "Long Rig", "2004-09-15", "Urea");
        apply_nitrogen(state.prev1_file, "Long Rig", "2004-09-01", "Urea");
        module.record_load_stuff();
    }
    static void use_of(const std::string& file, const std::string& pair) {
        add_row(file, "Land", {{"Field Area ID", "Long Rig"}, {"Crop", pair}, {"September", "Closed"}});
    }
    static void apply_manure(const std::string& file, const std::string& field, const std::string& day) {
        add_row(file, "Manure_applic",
                {{"Field Area ID", field},
                 {"Manure Type", "Layer manure"},
                 {"Date", day},
                 {"Total N Content", "16"},
                 {"Applic Rate", "8"},
                 {"Total N Applic Rate", "128"}});
    }
    static void apply_nitrogen(const std::string& file, const std::string& field, const std::string& day,
                               const std::string& type) {
        add_row(file, "Inorganic N",
                {{"Field Area ID", field},
                 {"Type", type},
                 {"Date", day},
                 {"Amount", "100"},
                 {"Total N", "46"},
                 {"Comments", "dry"}});
    }
    texts column(int c) const {
        texts found;
        for (int row = 0; row < module.record().row_count(); ++row)
            found.push_back(module.record().cell(row, c));
        return found;
    }
    texts warnings() const {
        texts found;
        for (int row = 0; row < module.warnings().row_count(); ++row)
            found.push_back(module.warnings().cell(row, record_warning_column::text));
        return found;
    }
    std::string report(answer reply) {
        person.expect(says::which_fields, reply);
        report_desk desk{state, viewer, [] { return make_date(15, 11, 2026); }, "somebody"};
        module.report(desk);
        return viewer.shown.page.empty() ? "" : file_text(viewer.shown.page);
    }

    viewer_stub viewer;
    scripted_prompts person;
    record_module module{state, person};
};

TEST_F(FieldRecord, DrawsBothYearsOfTheFieldTogether) {
    open();
    EXPECT_EQ(module.field_names(), (texts{"Long Rig", "East \"Muir\""}));
    EXPECT_EQ(module.field(), "Long Rig");
    const texts rows{"Winter wheat||02/09/2004||||Layer manure|16|8|128||",
                     "Winter wheat||15/09/2004|Urea|100|46|||||dry|",
                     "Winter wheat|10/01/2005|01/03/2005||||Layer manure|16|8|128||",
                     "Winter wheat|10/01/2005|02/04/2005|Urea \"46\",\tlate\nor never|100|46|||||dry|"};
    ASSERT_EQ(module.record().row_count(), 4);
    for (int row = 0; row < 4; ++row) {
        std::string cells;
        for (int c = 0; c < module.record().column_count(); ++c)
            cells += module.record().cell(row, c) + "|";
        EXPECT_EQ(cells, rows[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(warnings(), (texts{says::requirement_exceeded("92", "60"), says::manure_breach("02/09/2004"),
                                 says::inorganic_breach("15/09/2004"), std::string(says::limit_breached)}));
    EXPECT_EQ(module.warnings().cell(0, record_warning_column::icon_path), "graphics/alert.ico");
    EXPECT_EQ(module.warnings().cell(1, record_warning_column::icon_path), "graphics/closed.ico");
}

TEST_F(FieldRecord, AFieldIsTheSameWhicheverWasShownBefore) {
    open();
    module.select_field("East \"Muir\"");
    EXPECT_EQ(module.record().row_count(), 0);
    EXPECT_EQ(warnings(), texts{std::string(says::no_requirement)});
    EXPECT_EQ(module.warnings().cell(0, record_warning_column::icon_path), "graphics/info.ico");
    // What was stored meanwhile shows, and the field shown is kept where it still exists.
    apply_nitrogen(state.prev1_file, "East \"Muir\"", "2005-12-17", "Urea");
    apply_nitrogen(state.prev1_file, "East \"Muir\"", "2005-12-18", "Urea");
    module.record_load_stuff();
    EXPECT_EQ(module.field(), "East \"Muir\"");
    EXPECT_EQ(column(col::day), texts{"18/12/2005"});
    state.assess_file = make_farm("other.kel", {{"Home", "1"}}, 2004);
    module.record_load_stuff();
    EXPECT_EQ(module.field(), "Home");
    state.assess_file = make_farm("empty.kel", {}, 2004);
    module.record_load_stuff();
    EXPECT_EQ(module.field(), "");
    EXPECT_EQ(module.warnings().row_count(), 0);
}

TEST_F(FieldRecord, CopyAndCsvHoldEveryCellAndTheWarnings) {
    open();
    const std::string headings =
        R"~("Crop"|"Date planted"|"Date fertiliser/ manure applied"|"Type of inorganic N"|)~"
        R"~("Amount inorganic N applied kg/ha"|"Total N applied"|"Manure type"|)~"
        R"~("Analysis of N content (kg/t or m3)"|"Quantity applied (t or m3/ha)"|"Total N applied"|)~"
        R"~("Additional comments")~";
    const auto with = [](std::string line, char separator) {
        std::replace(line.begin(), line.end(), '|', separator);
        return line + "\r\n";
    };
    const std::string last_row =
        "\"Winter wheat\"|\"10/01/2005\"|\"02/04/2005\"|\"Urea \"\"46\"\",\tlate\nor never\""
        R"(|"100"|"46"|""|""|""|""|"dry")";
    const std::string copied = module.copied_text();
    const std::string copied_head = "Field Record: \t\"Long Rig\"\r\n\r\n" + with(headings, '\t');
    EXPECT_EQ(copied.substr(0, copied_head.size()), copied_head);
    EXPECT_NE(
        copied.find(with(last_row, '\t') + "\r\nWarnings:\r\n" + warnings()[0] + "\r\n" + warnings()[1]),
        std::string::npos);
    person.expect_file("CSV Export", path("record")).expect(says::csv_saved(path("record.csv")));
    module.export_csv("/documents");
    EXPECT_EQ(person.last_folder(), "/documents");
    const std::string csv = file_text(path("record.csv"));
    const std::string csv_head = "Field Record: Long Rig\r\n" + with(headings, ',');
    EXPECT_EQ(csv.substr(0, csv_head.size()), csv_head);
    EXPECT_NE(
        csv.find(with(last_row, ',') + "Warnings:\r\n" + warnings()[0] + "\r\n" + warnings()[1] + "\r\n"),
        std::string::npos);

    module.select_field("East \"Muir\"");
    EXPECT_NE(module.copied_text().find("\"East \"\"Muir\"\"\"\r\n\r\n"), std::string::npos);
    person.expect_file("CSV Export", "");
    module.export_csv("/documents");
    EXPECT_EQ(person.last_folder() + "/record.csv", path("record.csv")) << "the folder of the last export";
    person.verify_done();
}

TEST_F(FieldRecord, ACsvFileThatCannotBeWrittenLosesNothing) {
    open();
    // Also that of the chain's newest year, while an older one is worked on.
    for (std::string* file : {&state.prev1_file, &state.slot_current}) {
        std::filesystem::copy_file(state.assess_file, path("year.csv"),
                                   std::filesystem::copy_options::overwrite_existing);
        const std::string linked = std::exchange(*file, path("year.csv"));
        person.expect_file("CSV Export", path("year.csv")).expect(says::csv_over_assessment);
        module.export_csv("");
        EXPECT_EQ(file_text(path("year.csv")), file_text(state.assess_file));
        *file = linked;
    }
    person.expect_file("CSV Export", path("no such folder/x.csv"));
    EXPECT_THROW(module.export_csv(""), file_error);
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device here that is always full";
    write_file(path("kept.csv"), "mine");
    std::filesystem::create_symlink("/dev/full", path("kept.csv.unfinished"));
    person.expect_file("CSV Export", path("kept.csv"));
    EXPECT_THROW(module.export_csv(""), file_error);
    EXPECT_EQ(file_text(path("kept.csv")), "mine");
    person.verify_done();
}

TEST_F(FieldRecord, ReportsOneFieldOrAll) {
    open();
    EXPECT_EQ(report(answer::cancel), "");
    const std::string one = report(answer::yes);
    EXPECT_EQ(viewer.shown.page, path("KEL_report_record.htm"));
    EXPECT_EQ(viewer.hidden, screen_id::record);
    EXPECT_EQ(state.viewer_back, screen_id::record);
    std::size_t at = 0;
    for (const char* text :
         {"Field Record: Long Rig", "Date of fertiliser/ manure application", "Amount of inorganic N (kg/ha)",
          "Total N applied (kg)", "N content (kg/t or m3)", "Quantity applied (t or m3/ha)",
          "Total N applied (kg)", "Comments", "Winter wheat&nbsp;", ">&nbsp;<", "02/09/2004&nbsp;",
          "Layer manure&nbsp;", "Analysis:", "width=10%", "width=90%", "Warnings",
          "<img src=graphics/alert.ico&nbsp;</td>", "requires 60 kg/ha",
          "<img src=graphics/closed.ico&nbsp;</td>"}) {
        at = one.find(text, at);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << text;
    }
    EXPECT_EQ(one.find("Muir"), std::string::npos);
    for (const std::string& icon : state.last_report_pictures)
        EXPECT_FALSE(file_text(path(icon)).empty()) << icon << " does not lie beside the report";
    EXPECT_EQ(state.last_report_pictures.size(), 3U);

    apply_nitrogen(state.assess_file, "Long Rig", "2005-06-01", "Later");
    add_row(state.assess_file, "Recommendations", {{"Field Area ID", "East \"Muir\""}});
    const std::string all = report(answer::no);
    const auto first = all.find("Field Record: Long Rig");
    const auto second = all.find("Field Record: East \"Muir\"");
    ASSERT_NE(second, std::string::npos);
    const auto rule = all.find("<hr>", first);
    EXPECT_LT(rule, second);
    EXPECT_EQ(all.find("<hr>", second), all.find("<hr>\n<font size=1>Generated")) << "none behind the last";
    EXPECT_EQ(all.find("Analysis:", second), std::string::npos) << "nothing to warn of";
    EXPECT_EQ(module.field(), "Long Rig");
    EXPECT_EQ(column(col::inorganic_type).back(), "Later");
    person.verify_done();
}

TEST_F(FieldRecord, LastYearsFileThatFailsLeavesTheFieldInView) {
    open();
    const text_grid before = module.record();
    const std::string linked = state.prev1_file;
    std::unique_ptr<SQLite::Database> other_program;
    const std::pair<const char*, std::function<void()>> troubles[] = {
        {"gone", [&] { state.prev1_file = path("gone.kel"); }},
        {"locked",
         [&] {
             state.prev1_file = linked;
             other_program = std::make_unique<SQLite::Database>(linked, SQLite::OPEN_READWRITE);
             other_program->exec("BEGIN EXCLUSIVE");
         }},
        {"damaged",
         [&] {
             other_program.reset();
             write_file(linked, "no assessment");
         }},
    };
    for (const auto& [trouble, arises] : troubles) {
        SCOPED_TRACE(trouble);
        arises();
        EXPECT_THROW(module.select_field("East \"Muir\""), file_error);
        EXPECT_EQ(module.field(), "Long Rig");
        EXPECT_EQ(module.record(), before);
    }
    EXPECT_THROW(module.record_load_stuff(), file_error);
    EXPECT_THROW(report(answer::no), file_error);
    EXPECT_EQ(module.field() + column(col::day).back(), "Long Rig02/04/2005");
    EXPECT_EQ(module.field_names().size(), 2U);
    state.prev1_file.clear();
    module.select_field("Long Rig");
    EXPECT_EQ(column(col::day), (texts{"01/03/2005", "02/04/2005"}));
}

}  // namespace kel::test
