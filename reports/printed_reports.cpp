#include "reports/printed_reports.h"

#include <fstream>
#include <optional>

#include "reports/contents_page.h"
#include "reports/page_origin.h"

namespace kel {

namespace {

// The head of a page is far shorter, also with the longest name of a farm.
constexpr std::size_t head_bytes = 64 * 1024;

/// The start of the file; nothing if it is not there.
std::optional<std::string> head_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string head(head_bytes, '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(file.gcount()));
    return head;
}

std::string whose(const std::optional<page_origin>& origin, const page_origin& open) {
    if (!origin) return "farm and year not known";
    const std::string year = year_text(*origin);
    const bool file_only = origin->farm == open.farm && origin->year_start == open.year_start;
    return origin->farm + (origin->farm.empty() || year.empty() ? "" : ", ") + year +
           (file_only ? ", in another file" : "");
}

struct found_reports {
    std::vector<std::string> own;
    std::vector<std::string> all;
    std::vector<std::string> others;  // as they are told
};

found_reports find_reports(const application_state& state) {
    const page_origin open = origin_of(state, {});
    found_reports found;
    for (const report_file& report : all_reports()) {
        const std::string path = state.places.report(report.file_name);
        const auto head = head_of(path);
        if (!head) continue;
        found.all.push_back(path);
        const auto origin = read_origin(*head);
        if (origin && same_farm_and_year(*origin, open))
            found.own.push_back(path);
        else
            found.others.push_back(std::string(report.row_text) + " " + whose(origin, open));
    }
    return found;
}

}  // namespace

message printed_reports_messages::others_too(const std::vector<std::string>& reports) {
    std::string text = "These reports were last generated for another farm, KEL year or file:";
    text.append(line_break);
    for (const std::string& report : reports)
        text.append(line_break).append(report);
    text.append(line_break).append(line_break).append("Do you want to print them too?");
    return {std::string(print_all_title), text, message_kind::question, message_buttons::yes_no_cancel};
}

std::vector<std::string> reports_to_print(const application_state& state, prompts& person) {
    found_reports found = find_reports(state);
    if (!found.others.empty()) {
        const answer too = person.ask(printed_reports_messages::others_too(found.others));
        if (too == answer::cancel) return {};
        if (too == answer::yes) return found.all;
    }
    if (found.own.empty()) person.tell(printed_reports_messages::none_generated);
    return found.own;
}

}  // namespace kel
