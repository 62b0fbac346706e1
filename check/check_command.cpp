#include "check/check_command.h"

#include <filesystem>
#include <ostream>
#include <string_view>

#include "core/file_error.h"
#include "core/whole_file.h"
#include "standing/check_tables.h"
#include "standing/folder_check.h"

namespace kel {

namespace {

constexpr std::string_view usage =
    "Usage: kel-check FOLDER [--csv FILE] [--html FILE]\n"
    "\n"
    "Tells where the farm of every .kel file below FOLDER stands, worst first.\n"
    "\n"
    "  --csv FILE    write the list as a table for a spreadsheet, too\n"
    "  --html FILE   write the list as a page, too\n"
    "  --help        this text\n"
    "  --version     the version\n"
    "\n"
    "Exit status: 0 all well, 1 something is wrong on a farm, 2 a file could not be read.\n";

bool is_assessment(const std::string& path) {
    return std::filesystem::path(path).extension() == ".kel";
}

// A farm's file is never what a list is written over.
bool check_output(const std::string& option, const std::string& path, std::ostream& trouble) {
    if (!is_assessment(path)) return true;
    trouble << "kel-check: " << option << ": " << path << " is an assessment file. Choose another name.\n";
    return false;
}

/// True while there is more to come.
void work_through(folder_check& check, const check_surroundings& here, std::ostream& trouble) {
    std::size_t shown = 0;
    while (here.stopped == 0 && check.step()) {
        if (!here.shows_progress || check.files_judged() == shown) continue;
        shown = check.files_judged();
        trouble << '\r' << shown << " of " << check.files_found() << std::flush;
    }
    if (shown > 0) trouble << '\r' << std::string(24, ' ') << '\r' << std::flush;
}

int tell(const check_call& call, const std::vector<checked_file>& files, date today, std::ostream& out) {
    if (!call.csv_file.empty()) write_whole_file(call.csv_file, check_csv(files, call.folder), "the table");
    if (!call.html_file.empty())
        write_whole_file(call.html_file, check_html(files, call.folder, today), "the page");
    out << check_text(files, call.folder);
    return exit_status(files);
}

}  // namespace

std::optional<check_call> read_call(const std::vector<std::string>& arguments, std::ostream& trouble) {
    check_call call;
    bool options_end = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool option = !options_end && argument.starts_with('-') && argument != "-";
        if (option && (argument == "--csv" || argument == "--html")) {
            if (++i == arguments.size() || arguments[i].empty()) {
                trouble << "kel-check: " << argument << " asks for a file name.\n";
                return {};
            }
            (argument == "--csv" ? call.csv_file : call.html_file) = arguments[i];
        } else if (option && argument == "--") {
            options_end = true;
        } else if (option && (argument == "--help" || argument == "-h")) {
            call.help = true;
        } else if (option && argument == "--version") {
            call.version = true;
        } else if (option || !call.folder.empty()) {
            trouble << "kel-check: " << argument << " is " << (option ? "no option" : "one folder too many")
                    << ". See kel-check --help.\n";
            return {};
        } else {
            call.folder = argument;
        }
    }
    if (!call.folder.empty() || call.help || call.version) return call;
    trouble << usage;
    return {};
}

int run_check(const std::vector<std::string>& arguments, const check_surroundings& here, std::ostream& out,
              std::ostream& trouble) {
    const auto call = read_call(arguments, trouble);
    if (!call) return could_not_read;
    if (call->help || call->version) {
        out << (call->help ? std::string(usage) : "kel-check " + here.version + '\n');
        return all_well;
    }
    if (!check_output("--csv", call->csv_file, trouble) || !check_output("--html", call->html_file, trouble))
        return could_not_read;
    try {
        folder_check check(call->folder, here.climate_tables);
        work_through(check, here, trouble);
        if (here.stopped != 0) return was_stopped;
        return tell(*call, check.files(), here.today, out);
    } catch (const file_error& failure) {
        trouble << "kel-check: " << failure.file() << ": " << failure.trouble() << '\n';
        return could_not_read;
    }
}

}  // namespace kel
