// A page of 1,000 fields, three small tables to each as the reports on crops have them: written, shown in the
// viewer to its last line, and printed into a PDF; and how its print grows with the farm.
#include <QScrollBar>
#include <string>
#include <vector>

#include "reports/report_page.h"
#include "tools/bench/bench_farm.h"
#include "tools/bench/bench_screen.h"
#include "tools/bench/groups.h"
#include "ui/widgets/page_view.h"
#include "ui/widgets/print_job.h"
#include "ui/widgets/qt_text.h"

namespace kel::bench {

namespace {

constexpr int fields_usual = 1000;
constexpr int fields_small = 250;
constexpr int repetitions = 3;
constexpr double page_ms_at_most = 3000;
constexpr double growth_at_most = 1.2;

page_lines field_part(const std::string& field) {
    page_lines lines{"<hr>"};
    append(lines, report_section("Field and crop details:"));
    append(lines, label_table({{"Field name:", field},
                               {"Soil Type:", "Other mineral soils"},
                               {"Planned Crop:", "Spring barley (feed or high N malting)"},
                               {"Previous Crop:", "Winter wheat (Residue Group = 1)"}}));
    report_table manures;
    manures.add_heading_row(std::vector<std::string>{"Manure/Slurry Type", "Incorporation Time",
                                                     "Date of Application", "Application Rate (tonnes/ha)"});
    for (const char* day : {"19/09/2023", "14/11/2024", "10/09/2025"})
        manures.add_row(
            std::vector<std::string>{"Dairy slurry - medium dry matter (6%)", "Within 6 hours", day, "20"});
    append(lines, manures.lines());
    append(lines, report_section("Recommendation summary:"));
    append(lines, label_table({{"Total N Requirement (kg/ha)", "130"},
                               {"Obtained From Manures/Slurries (kg/ha)", "16.2"},
                               {"Remaining Total Requirement (kg/ha)", "113.8"},
                               {"Spring Application (kg/ha)", "113.8"},
                               {"Seedbed Application (kg/ha)", "0"}}));
    return lines;
}

page_lines page_of(int fields) {
    page_lines body;
    for (int field = 0; field < fields; ++field)
        append(body, field_part("Field " + std::to_string(field)));
    return framed_page(body, make_date(15, 11, 2026), "the bench",
                       page_origin{"Bench Farm", make_date(19, 12, 2025), make_date(15, 11, 2026)});
}

double print_ms(const std::string& page) {
    return median_of(repetitions, [&] {
        return cpu_ms_of([&] { pdf_of({page_of_file(page)}, "Bench", make_date(15, 11, 2026)); });
    });
}

double show_ms(const std::string& page) {
    return median_of(repetitions, [&] {
        page_view view;
        view.resize(1000, 700);
        view.show();
        return painted_ms({view.viewport()}, [&] {
            view.navigate(qt(page));
            view.document()->size();
            view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
        });
    });
}

}  // namespace

std::vector<bench_line> print_bench() {
    const bench_desktop desktop;
    const bench_farm farm(1);
    const std::string usual = farm.folder() + "/usual.htm";
    const std::string small = farm.folder() + "/small.htm";
    write_page(small, page_of(fields_small));
    const double written =
        median_of(repetitions, [&] { return cpu_ms_of([&] { write_page(usual, page_of(fields_usual)); }); });
    const double printed = print_ms(usual);
    return {
        {"page of 1,000 fields: written", "ms", written, {}, page_ms_at_most},
        {"page of 1,000 fields: shown to its end", "ms", show_ms(usual), {}, page_ms_at_most},
        {"page of 1,000 fields: printed to PDF", "ms", printed, {}, page_ms_at_most},
        {"print: a field of 1,000 beside one of 250", "ms", printed / fields_usual,
         print_ms(small) / fields_small, growth_at_most},
    };
}

}  // namespace kel::bench
