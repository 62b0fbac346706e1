#include "core/recent_assessments.h"

#include <algorithm>
#include <fstream>

#include "core/copy_notes.h"
#include "core/file_error.h"
#include "core/whole_file.h"

namespace kel {

namespace {

void write_list(const std::string& list, const std::vector<recent_assessment>& recent) {
    std::string lines;
    for (const recent_assessment& one : recent) {
        const std::string year = one.year_start ? iso_date_text(*one.year_start) : "";
        lines += as_line(one.path) + "\t" + as_line(one.farm) + "\t" + year + "\n";
    }
    try {
        write_whole_file(list, lines, "the list of recent assessments");
    } catch (const file_error&) {
        // A folder that takes no list takes no settings either, and that is told where they are written.
    }
}

void take_out(std::vector<recent_assessment>& recent, const std::string& path) {
    std::erase_if(recent, [&](const recent_assessment& one) { return one.path == path; });
}

}  // namespace

std::vector<recent_assessment> read_recent(const std::string& list) {
    std::vector<recent_assessment> recent;
    std::ifstream file(list, std::ios::binary);
    for (std::string line; recent.size() < most_recent_assessments && std::getline(file, line);) {
        const auto farm = line.find('\t');
        const auto year = farm == std::string::npos ? farm : line.find('\t', farm + 1);
        if (farm == 0 || year == std::string::npos) continue;
        recent.push_back({from_line(line.substr(0, farm)), from_line(line.substr(farm + 1, year - farm - 1)),
                          parse_date(line.substr(year + 1))});
    }
    return recent;
}

void note_recent(const std::string& list, const recent_assessment& opened) {
    std::vector<recent_assessment> recent = read_recent(list);
    if (!recent.empty() && recent.front() == opened) return;
    take_out(recent, opened.path);
    recent.insert(recent.begin(), opened);
    if (recent.size() > most_recent_assessments) recent.resize(most_recent_assessments);
    write_list(list, recent);
}

void forget_recent(const std::string& list, const std::string& path) {
    std::vector<recent_assessment> recent = read_recent(list);
    take_out(recent, path);
    write_list(list, recent);
}

}  // namespace kel
