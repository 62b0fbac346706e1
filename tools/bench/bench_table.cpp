#include "tools/bench/bench_table.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace kel::bench {

namespace {

using table_row = std::array<std::string, 5>;

std::string figure(const char* format, double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string amount(double value, const std::string& unit) {
    return figure(value < 100 ? "%.2f" : "%.0f", value) + " " + unit;
}

std::string wanted(const bench_line& line) {
    if (!line.at_most) return "-";
    const double found = line.reference ? line.ours / *line.reference : line.ours;
    const std::string bound = line.reference ? "<= " + figure("%g", *line.at_most)
                                             : "<= " + figure("%g", *line.at_most) + " " + line.unit;
    return found <= *line.at_most ? bound : bound + "  MISSED";
}

table_row row_of(const bench_line& line) {
    return {line.measure, amount(line.ours, line.unit),
            line.reference ? amount(*line.reference, line.unit) : "-",
            line.reference ? figure("%.2f", line.ours / *line.reference) : "-", wanted(line)};
}

std::string laid_out(const table_row& row, const std::array<std::size_t, 5>& widths) {
    std::string text;
    for (std::size_t c = 0; c < row.size(); ++c) {
        const std::string room(widths[c] - row[c].size(), ' ');
        const bool figures = c >= 1 && c <= 3;
        text += (c == 0 ? "" : " | ") + (figures ? room + row[c] : row[c] + room);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text + "\n";
}

}  // namespace

double cpu_ms() {
    timespec spent{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) * 1e3 + static_cast<double>(spent.tv_nsec) / 1e6;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string table_text(const std::vector<bench_line>& lines) {
    std::vector<table_row> rows{{"measure", "ours", "reference", "ratio", "wanted"}};
    for (const bench_line& line : lines)
        rows.push_back(row_of(line));
    std::array<std::size_t, 5> widths{};
    for (const table_row& row : rows)
        for (std::size_t c = 0; c < row.size(); ++c)
            widths[c] = std::max(widths[c], row[c].size());
    std::string text;
    for (const table_row& row : rows) {
        text += laid_out(row, widths);
        if (&row != &rows.front()) continue;
        for (std::size_t c = 0; c < widths.size(); ++c)
            text += (c == 0 ? "" : "-+-") + std::string(widths[c], '-');
        text += "\n";
    }
    return text;
}

}  // namespace kel::bench
