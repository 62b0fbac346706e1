#include "standing/standing_report.h"

#include <algorithm>
#include <map>

#include "reports/page_origin.h"
#include "rules/nitrogen_limits.h"
#include "standing/standing_messages.h"

namespace kel {

namespace text = standing_messages;

namespace {

// The names of the program's own texts hold no marks; whatever a farmer has typed may.
std::string strong(std::string_view words) {
    return "<strong>" + std::string(words) + "</strong> ";
}

// Closer to what it stands over than a paragraph, for the page to fit on one sheet.
page_lines caption(const std::string& text) {
    return {"<p style=margin-top:8px;margin-bottom:2px>" + text + "</p>"};
}

std::string verdict_cell(const step_standing& step) {
    const bool marked = step.worst == severity::wrong || step.worst == severity::attention;
    return (marked ? strong(std::string(word_of(step.worst)) + ":") : "") + escaped(step.verdict);
}

// A line of the page has room for so much.
std::string_view short_title_of(farm_step step) {
    const std::string_view title = title_of(step);
    switch (step) {
        case farm_step::crops:
            return "Crops";
        case farm_step::grass:
            return "Grassland";
        case farm_step::composting:
            return "Composting";
        default:
            return title.substr(0, title.find(':'));
    }
}

page_lines steps_table(const farm_standing& farm) {
    report_table table;
    table.add_heading_row(std::vector<report_cell>{{.text = "Step", .width = "17%"},
                                                   {.text = "Done", .width = "7%"},
                                                   {.text = "Verdict", .width = "48%"},
                                                   {.text = "Look at next", .width = "28%"}});
    for (const step_standing& step : farm.steps)
        table.add_row(std::vector<report_cell>{{.text = std::string(short_title_of(step.step))},
                                               {.text = step.done ? "Yes" : "No", .align = "center"},
                                               {.text = verdict_cell(step)},
                                               {.text = escaped(step.next)}});
    return std::move(table).lines();
}

// What is to be told of one field, column by column.
struct field_row {
    std::string manure;
    std::string closed;
    std::string inorganic;
};

void add_line(std::string& cell, const std::string& line) {
    cell += (cell.empty() ? "" : "<br>") + line;
}

using field_rows = std::map<std::string, field_row, std::less<>>;

field_rows rows_of(const farm_standing& farm) {
    field_rows rows;
    const auto sum = [](const field_nitrogen& field) {
        return text::figure(field.n_kg_per_ha, rolling_field_limit_kg_per_ha);
    };
    for (const field_nitrogen& field : farm.over_limit)
        rows[field.field].manure = strong(sum(field)) + "over";
    for (const field_nitrogen& field : farm.near_limit)
        rows[field.field].manure = sum(field) + " close";
    for (const closed_breach& breach : farm.breaches)
        add_line(rows[breach.field].closed, short_date_text(breach.day) + " " + escaped(breach.applied) +
                                                (breach.justified ? ", reason given" : ""));
    for (const requirement_excess& field : farm.requirement_exceeded)
        rows[field.field].inorganic = strong(escaped(field.applied)) + "of " + escaped(field.required);
    return rows;
}

page_lines fields_table(const farm_standing& farm) {
    const field_rows rows = rows_of(farm);
    if (rows.empty()) return report_paragraph("No field is over a limit or within a tenth of one.");
    report_table table;
    table.add_heading_row(std::vector<report_cell>{{.text = "Field", .width = "18%"},
                                                   {.text = "Manure N, limit 250", .width = "15%"},
                                                   {.text = "In a closed period", .width = "48%"},
                                                   {.text = "Inorganic N", .width = "19%"}});
    for (const auto& [field, row] : rows)
        table.add_row({escaped(field), row.manure, row.closed, row.inorganic});
    return std::move(table).lines();
}

std::string stores_told(const farm_standing& farm) {
    std::string told;
    for (const store_level& level : farm.months_over_full)
        told += (told.empty() ? "" : ", ") + std::string(month_name(level.month)) + " " +
                text::figure(level.percent, text::full_percent) + "%";
    return "Months in which the stores are over 100%: " + told + ".";
}

page_lines missing_list(const farm_standing& farm) {
    std::vector<std::string> points;
    points.reserve(farm.missing.size());
    for (const missing_data& missing : farm.missing)
        points.push_back(std::string(short_title_of(missing.step)) + ": " + escaped(missing.text));
    return report_list(points);
}

}  // namespace

page_lines standing_report(const farm_standing& farm) {
    page_lines body = report_heading("Where the farm stands");
    if (!farm.trouble.empty()) {
        append(body, report_paragraph("The assessment cannot be judged: " + escaped(farm.trouble)));
        return body;
    }
    std::string whose = escaped(farm.farm);
    if (farm.year_start) whose += (whose.empty() ? "" : ", ") + year_text({{}, farm.year_start});
    append(body, caption(whose + ". By what is saved."));
    append(body, steps_table(farm));
    if (farm.months_over_full.size() > 1) append(body, report_paragraph(stores_told(farm)));
    append(
        body,
        caption(strong("Fields to look at.") +
                "In kg N/ha; of manures the most in any twelve months, of the others given and required."));
    append(body, fields_table(farm));
    if (farm.missing.empty()) return body;
    append(body, caption(strong("What is missing")));
    append(body, missing_list(farm));
    return body;
}

}  // namespace kel
