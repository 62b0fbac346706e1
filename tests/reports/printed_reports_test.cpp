// Whose a page is, and which pages "Print all reports" prints.
#include "reports/printed_reports.h"

#include "core/assessment_files.h"
#include "reports/contents_page.h"
#include "reports/page_origin.h"
#include "reports/report_page.h"
#include "reports/report_viewer.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel {
namespace {

class PrintedReports : public test::farm_test, public report_viewer {
  protected:
    void wait_cursor(bool /*on*/) override {}
    void hide_screen(screen_id /*id*/) override {}
    void show(const viewer_request& /*request*/) override {}

    void generate(const std::string& file, std::string_view farm = {}) {
        report_desk desk{state, *this, [] { return make_date(3, 4, 2026); }, "Some People"};
        generate_report(desk, file, {}, screen_id::land, screen_id::land, {}, {}, farm);
    }
    std::optional<page_origin> origin(const std::string& file) const {
        return read_origin(test::file_text(path(file)));
    }

    test::scripted_prompts person;
};

TEST_F(PrintedReports, AReportKeepsWhoseItIsHoweverTheFarmIsCalled) {
    open_farm({});
    state.kel_year_start = make_date(19, 12, 2024);
    const std::string mark = origin_of(state, {}).file;
    EXPECT_EQ(mark.find("kel"), std::string::npos) << "a page that goes to others names no folder";
    for (const char* farm :
         {"Mains & Sons", "a --> b <body> c", "&amp;lt; \"x\"; year 2", "two\nlines\r", "Bràigh"}) {
        generate("KEL_report_record.htm", farm);
        EXPECT_EQ(origin("KEL_report_record.htm"),
                  (page_origin{farm, make_date(19, 12, 2024), make_date(3, 4, 2026), mark}));
    }
    // The name that the file has counts, not the one from the last load.
    state.farm_name = "Old Name";
    generate("KEL_report_landspread.htm");
    EXPECT_EQ(origin("KEL_report_landspread.htm")->farm, "Test Farm");
    generate(std::string(contents_file));
    EXPECT_FALSE(origin(std::string(contents_file)));
    EXPECT_EQ(year_text(*origin("KEL_report_landspread.htm")),
              "KEL year 19 December 2024 to 18 December 2025");
    // What a person has typed into a page is not read for it.
    EXPECT_FALSE(read_origin("<html><body><!-- Made 2026-01-01; year 2025-12-19; farm Foe -->"));
}

TEST_F(PrintedReports, OnlyThoseOfTheOpenAssessmentUnlessThePersonWantsTheOthers) {
    open_farm({});
    state.kel_year_start = make_date(19, 12, 2024);
    person.expect(printed_reports_messages::none_generated);
    EXPECT_TRUE(reports_to_print(state, person).empty());
    generate("KEL_report_record.htm");
    generate("KEL_report_farmprof.htm");
    const std::vector<std::string> own{path("KEL_report_farmprof.htm"), path("KEL_report_record.htm")};
    EXPECT_EQ(reports_to_print(state, person), own);

    generate("KEL_report_storage.htm", "Other Farm");
    test::write_file(path("KEL_report_compost.htm"), "<html><body>of an older version");
    const message others = printed_reports_messages::others_too(
        {"Slurry storage and closed periods: Other Farm, KEL year 19 December 2024 to 18 December 2025",
         "In Field Composting of Vegetable Crop Residues to Minimise Nitrate Leaching: farm and year not "
         "known"});
    person.expect(others, answer::no).expect(others, answer::cancel).expect(others, answer::yes);
    EXPECT_EQ(reports_to_print(state, person), own);
    EXPECT_TRUE(reports_to_print(state, person).empty());
    EXPECT_EQ(reports_to_print(state, person),
              (std::vector<std::string>{own[0], path("KEL_report_storage.htm"),
                                        path("KEL_report_compost.htm"), own[1]}));
    // So is another file with a farm of the same name in the same year.
    const std::string first = std::exchange(state.assess_file, make_farm("second.kel", {}));
    person.expect(
        printed_reports_messages::others_too(
            {"Farm Profile: Test Farm, KEL year 19 December 2024 to 18 December 2025, in another file",
             "Slurry storage and closed periods: Other Farm, KEL year 19 December 2024 to 18 "
             "December 2025",
             "In Field Composting of Vegetable Crop Residues to Minimise Nitrate Leaching: farm and "
             "year not known",
             "Field Record: Test Farm, KEL year 19 December 2024 to 18 December 2025, in another file"}),
        answer::cancel);
    EXPECT_TRUE(reports_to_print(state, person).empty());
    state.assess_file = first;
    // Another year of the same farm is another assessment.
    state.kel_year_start = make_date(19, 12, 2025);
    person
        .expect(printed_reports_messages::others_too(
                    {"Farm Profile: Test Farm, KEL year 19 December 2024 to 18 December 2025",
                     "Slurry storage and closed periods: Other Farm, KEL year 19 December 2024 to 18 "
                     "December 2025",
                     "In Field Composting of Vegetable Crop Residues to Minimise Nitrate Leaching: farm and "
                     "year not known",
                     "Field Record: Test Farm, KEL year 19 December 2024 to 18 December 2025"}),
                answer::no)
        .expect(printed_reports_messages::none_generated);
    EXPECT_TRUE(reports_to_print(state, person).empty());
    person.verify_done();
}

}  // namespace
}  // namespace kel
