#include "standing/season_report.h"

#include "standing/season_messages.h"
#include "standing/season_months.h"
#include "standing/season_texts.h"

namespace kel {

namespace {

namespace text = season_messages;

constexpr std::string_view one_closed = "#e0e0e0";
constexpr std::string_view both_closed = "#bdbdbd";
constexpr std::string_view line = "<br>";

void add_line(std::string& cell, const std::string& added) {
    if (!cell.empty()) cell += line;
    cell += added;
}

// "S", "N to 15", or nothing.
std::string closing_text(const month_closing& month, std::string_view letter) {
    if (month.how == closing::open) return {};
    return std::string(letter) + (month.days.empty() ? "" : "&nbsp;" + month.days);
}

std::string mark_text(const season_mark& mark) {
    return std::string(letter_of(mark.kind)) + "&nbsp;" + std::to_string(day_of(mark.day)) +
           (mark.in_closed_period ? "!" : "");
}

report_cell month_cell(const field_season& field, const month_piece& month) {
    const month_closing manure = closing_of(field.manure_closed, month);
    const month_closing full = closing_of(field.no_land, month);
    const month_closing fertiliser = closing_of(field.fertiliser_closed, month);
    report_cell cell{.text = {}, .align = "center"};
    for (const std::string& told :
         {closing_text(manure, "S"), closing_text(full, "L"), closing_text(fertiliser, "N")})
        if (!told.empty()) add_line(cell.text, told);
    for (const season_mark& mark : field.marks)
        if (month.first <= mark.day && mark.day <= month.last) add_line(cell.text, mark_text(mark));
    const int closed = (manure.how != closing::open ? 1 : 0) + (fertiliser.how != closing::open ? 1 : 0);
    if (closed > 0) cell.shade = closed == 1 ? one_closed : both_closed;
    return cell;
}

std::string field_cell(const field_season& field) {
    std::string cell = "<strong>" + escaped(field.name) + "</strong>";
    add_line(cell, escaped(field.size_ha) + " ha" + (field.soil.empty() ? "" : ", " + escaped(field.soil)));
    if (!field.crops.empty()) add_line(cell, escaped(field.crops));
    if (!field.manure_missing.empty() && field.fertiliser_missing.empty())
        add_line(cell, escaped(field.manure_missing));
    for (const std::string& note : field.notes)
        add_line(cell, escaped(note));
    return cell;
}

// What was applied to a field whose bands cannot be told.
std::string missing_cell(const field_season& field) {
    std::string cell = escaped(field.manure_missing);
    for (const season_mark& mark : field.marks)
        add_line(cell, mark_text(mark) + " " + std::string(month_name(month_of(mark.day))));
    return cell;
}

page_lines legend() {
    page_lines lines = report_list({
        "S: closed to slurries and manures. " + std::string(text::exempt_open),
        "N: closed to inorganic nitrogen; \"to 15\" up to and including that day, \"from 1\" from that day "
        "on.",
        "L: open, but no land free for slurries and manures.",
        "Applied, with the day of the month: M slurry or manure, Y farmyard manure of cattle or pigs, "
        "F fertiliser; ! in a closed period.",
        "Light grey: one of the two is closed; dark grey: both.",
    });
    return lines;
}

std::vector<report_cell> heading_cells(const std::vector<month_piece>& months) {
    std::vector<report_cell> cells{{.text = "Field", .width = "18%"}};
    for (const month_piece& month : months)
        cells.push_back({.text = std::string(month.letters), .width = "5%"});
    cells.push_back({.text = "Of 250 kg N/ha in 12 months", .width = "17%"});
    return cells;
}

std::vector<report_cell> field_cells(const field_season& field, const std::vector<month_piece>& months) {
    std::vector<report_cell> cells{{.text = field_cell(field)}};
    if (!field.fertiliser_missing.empty())
        cells.push_back({.text = missing_cell(field), .columns = static_cast<int>(months.size())});
    else
        for (const month_piece& month : months)
            cells.push_back(month_cell(field, month));
    cells.push_back({.text = escaped(use_text(field))});
    return cells;
}

std::vector<std::string> escaped_notes(const season_calendar& season) {
    std::vector<std::string> notes;
    notes.reserve(season.notes.size());
    for (const std::string& note : season.notes)
        notes.push_back(escaped(note));
    return notes;
}

}  // namespace

std::string_view letter_of(applied_as kind) {
    switch (kind) {
        case applied_as::exempt_manure:
            return "Y";
        case applied_as::fertiliser:
            return "F";
        default:
            return "M";
    }
}

page_lines season_report(const season_calendar& season) {
    page_lines body = report_heading(text::calendar_title);
    if (!season.missing.empty()) {
        append(body, report_paragraph(escaped(season.missing)));
        return body;
    }
    append(body, report_paragraph(escaped(season.farm) + ", KEL year " + long_date_text(season.first) +
                                  " to " + long_date_text(season.last)));
    append(body, legend());
    append(body, report_list(escaped_notes(season)));
    const std::vector<month_piece> months = months_of(season.first, season.last);
    report_table table;
    table.add_heading_row(heading_cells(months));
    for (const field_season& field : season.fields)
        table.add_row(field_cells(field, months));
    append(body, std::move(table).lines());
    return body;
}

}  // namespace kel
