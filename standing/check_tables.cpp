#include "standing/check_tables.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "core/quoted_cell.h"
#include "reports/page_origin.h"
#include "reports/report_page.h"

namespace kel {

namespace {

// In the order of the columns.
constexpr std::array steps{farm_step::profile, farm_step::land,       farm_step::storage,
                           farm_step::manure,  farm_step::inorganic,  farm_step::crops,
                           farm_step::grass,   farm_step::composting, farm_step::record};

constexpr auto told = column_kind::calculated;

constexpr std::size_t first_step = 8;
using column_table = std::array<grid_column, first_step + std::size(steps) + 1>;

column_table made_columns() {
    // clang-format off
    column_table table{{
        // heading                  stored kind  width
        {"Verdict",                 "",    told, 12},
        {"Farm",                    "",    told, 22},
        {"KEL year from",           "",    told, 11},
        {"Highest store level",     "",    told, 16},
        {"Fields over the limit",   "",    told, 26},
        {"In a closed period",      "",    told, 26},
        {"More than required",      "",    told, 26},
        {"Missing",                 "",    told, 30},
    }};
    // clang-format on
    std::size_t next = first_step;
    for (const farm_step step : steps)
        table[next++] = {title_of(step), "", told, 24};
    table[next] = {"File", "", told, 40};
    return table;
}

std::vector<std::string> headings() {
    std::vector<std::string> all;
    all.reserve(check_columns().size());
    for (const grid_column& column : check_columns())
        all.emplace_back(column.heading);
    return all;
}

std::string below(std::string_view path, std::string_view folder) {
    if (!path.starts_with(folder)) return std::string(path);
    path.remove_prefix(folder.size());
    while (path.starts_with('/'))
        path.remove_prefix(1);
    return path.empty() ? "." : std::string(path);
}

std::string year_start_text(const checked_file& file) {
    return file.year_start ? short_date_text(*file.year_start) : std::string();
}

// A file name may hold what a terminal takes as a command to it.
std::string printable(std::string text) {
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
    return text;
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count) + ' ' + std::string(count == 1 ? one : many);
}

std::string lines_below(const checked_file& file) {
    std::string lines;
    const auto add = [&](std::string_view name, const std::string& text) {
        if (!text.empty()) lines += "    " + std::string(name) + printable(text) + '\n';
    };
    add("", file.trouble);
    for (std::size_t i = 0; i < file.steps.size(); ++i) {
        const std::string& verdict = file.steps[i];
        if (verdict.starts_with(word_of(severity::wrong)) ||
            verdict.starts_with(word_of(severity::attention)))
            add(std::string(title_of(steps[i])) + ". ", verdict);
    }
    add("Highest store level: ", file.store_level);
    add("Over the field limit: ", file.over_limit);
    add("In a closed period: ", file.breaches);
    add("More than required: ", file.over_required);
    add("Missing: ", file.missing);
    return lines;
}

// On paper the steps share one column, in which only those stand that are not fine.
std::vector<std::string> page_cells(const std::vector<std::string>& cells, std::string of_steps) {
    std::vector<std::string> row(cells.begin(), cells.begin() + first_step);
    row.push_back(std::move(of_steps));
    row.push_back(cells.back());
    return row;
}

std::string steps_cell(const checked_file& file) {
    std::string lines;
    for (std::size_t i = 0; i < file.steps.size(); ++i) {
        if (file.steps[i].starts_with(word_of(severity::fine))) continue;
        lines +=
            (lines.empty() ? "" : "<br>") + escaped(std::string(title_of(steps[i])) + ". " + file.steps[i]);
    }
    return lines;
}

}  // namespace

std::span<const grid_column> check_columns() {
    static const column_table columns = made_columns();
    return columns;
}

std::vector<std::string> check_cells(const checked_file& file, std::string_view folder) {
    std::vector<std::string> cells{std::string(state_of(file)),
                                   file.farm,
                                   year_start_text(file),
                                   file.store_level,
                                   file.over_limit,
                                   file.breaches,
                                   file.over_required,
                                   file.trouble.empty() ? file.missing : file.trouble};
    for (std::size_t i = 0; i < std::size(steps); ++i)
        cells.push_back(i < file.steps.size() ? file.steps[i] : std::string());
    cells.push_back(below(file.path, folder));
    return cells;
}

std::string check_summary(const std::vector<checked_file>& files) {
    std::set<std::string_view> farms;
    std::map<std::string_view, std::size_t> by_state;
    for (const checked_file& file : files) {
        if (!file.farm.empty()) farms.insert(file.farm);
        ++by_state[state_of(file)];
    }
    std::string text =
        counted(files.size(), "file", "files") + " of " + counted(farms.size(), "farm", "farms");
    std::string_view mark = ": ";
    for (const auto& [state, count] : by_state) {
        text += std::string(mark) + std::to_string(count) + ' ' + std::string(state);
        mark = ", ";
    }
    return text;
}

std::string check_csv(const std::vector<checked_file>& files, std::string_view folder) {
    std::string text = separated_line(headings(), ',');
    for (const checked_file& file : files)
        text += separated_line(check_cells(file, folder), ',');
    return text;
}

std::string check_html(const std::vector<checked_file>& files, std::string_view folder, date today) {
    report_table table;
    table.add_heading_row(page_cells(headings(), "Steps"));
    for (const checked_file& file : files) {
        std::vector<std::string> cells = check_cells(file, folder);
        std::ranges::transform(cells, cells.begin(), [](const std::string& cell) { return escaped(cell); });
        table.add_row(page_cells(cells, steps_cell(file)));
    }
    page_lines page{"<!DOCTYPE html>",
                    "<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Farms checked</title>",
                    "<style>body{font-family:sans-serif} td,th{vertical-align:top;text-align:left}",
                    "@page{size:A4 landscape}</style></head><body>"};
    append(page, report_heading("Farms below " + escaped(folder)));
    append(page, report_paragraph(check_summary(files) + ". Checked on " + long_date_text(today) + '.'));
    append(page, std::move(table).lines());
    append(page, {"</body></html>"});
    std::string text;
    for (const std::string& line : page)
        text += line + '\n';
    return text;
}

std::string check_text(const std::vector<checked_file>& files, std::string_view folder) {
    std::string text;
    for (const checked_file& file : files) {
        text += std::string(state_of(file)) + ": ";
        if (!file.farm.empty()) text += printable(file.farm) + ", ";
        if (file.year_start) text += "KEL year from " + year_start_text(file) + ", ";
        text += printable(below(file.path, folder)) + '\n' + lines_below(file);
    }
    return text + check_summary(files) + ".\n";
}

}  // namespace kel
