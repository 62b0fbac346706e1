// One file opened in a program of its own, with every screen that is built, by a person who answers every
// box.
#pragma once

#include <string>

namespace kel::mutants {

enum class opening_end { opened, refused, failed };

struct opening_figures {
    opening_end end = opening_end::failed;
    double seconds = 0;  // processor time of the whole process, start-up included
    double megabytes = 0;
    std::string trouble;  // of a failed one
};

/// Opens the file as the desktop would hand it over, in a child process. `folder` takes what is written.
opening_figures open_in_a_process(const std::string& file, const std::string& folder);

}  // namespace kel::mutants
