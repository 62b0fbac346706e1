// The program kel-check: where every farm of a folder stands, for a terminal or a job at night.
#pragma once

#include <csignal>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"

namespace kel {

/// What a call of the program asks for; an empty file name: none.
struct check_call {
    std::string folder;
    std::string csv_file;
    std::string html_file;
    bool help = false;
    bool version = false;
    bool operator==(const check_call&) const = default;
};

/// Reads the arguments behind the program's name; nothing, with the trouble told, for those it can't take.
std::optional<check_call> read_call(const std::vector<std::string>& arguments, std::ostream& trouble);

/// What the program finds where it runs.
struct check_surroundings {
    std::string climate_tables;
    std::string version;
    date today{};
    bool shows_progress = false;                // on the stream of troubles
    const volatile std::sig_atomic_t& stopped;  // anything but 0 ends the work
};

// The program's exit statuses.
inline constexpr int all_well = 0;
inline constexpr int wrong_on_a_farm = 1;
inline constexpr int could_not_read = 2;  // also: could not write, or did not understand the call
inline constexpr int was_stopped = 130;   // as shells tell Ctrl+C

/// Runs it and gives its exit status. Only the files of the call are written, whole or not at all, and none
/// after a stop.
int run_check(const std::vector<std::string>& arguments, const check_surroundings& here, std::ostream& out,
              std::ostream& trouble);

}  // namespace kel
