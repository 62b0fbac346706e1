#include "core/copy_notes.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/whole_file.h"

namespace kel {

namespace {

constexpr std::string_view first_line = "kel-calculator copy";

std::string note_beside(const std::string& copy) {
    return copy + ".note";
}

}  // namespace

std::string as_line(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\')
            line += "\\\\";
        else if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (c == '\t')
            line += "\\t";
        else
            line += c;
    }
    return line;
}

std::string from_line(std::string_view line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            text += line[i];
            continue;
        }
        const char c = line[++i];
        text += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
    }
    return text;
}

std::optional<copy_note> read_copy_note(const std::string& copy) {
    std::ifstream file(note_beside(copy), std::ios::binary);
    std::array<std::string, 4> lines;
    for (std::string& line : lines)
        if (!std::getline(file, line)) return std::nullopt;
    if (lines[0] != first_line) return std::nullopt;
    return copy_note{from_line(lines[1]), from_line(lines[2]), parse_date(lines[3])};
}

void write_copy_note(const std::string& copy, const copy_note& note) {
    const std::string year = note.year_start ? iso_date_text(*note.year_start) : "";
    write_whole_file(note_beside(copy),
                     std::string(first_line) + "\n" + as_line(note.came_from) + "\n" + as_line(note.farm) +
                         "\n" + year + "\n",
                     "the copy's note");
}

void remove_copy_note(const std::string& copy) {
    std::error_code ignored;
    std::filesystem::remove(note_beside(copy), ignored);
}

}  // namespace kel
