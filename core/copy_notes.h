// The note beside an earlier copy of an assessment: where the copy came from, and whose it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/dates.h"

namespace kel {

struct copy_note {
    std::string came_from;  // path
    std::string farm;
    std::optional<date> year_start;
    bool operator==(const copy_note&) const = default;
};

/// Nothing without a note that can be read.
std::optional<copy_note> read_copy_note(const std::string& copy);
/// Throws file_error.
void write_copy_note(const std::string& copy, const copy_note& note);
/// Never throws.
void remove_copy_note(const std::string& copy);

/// A text of any characters as one line of a file, and back.
std::string as_line(std::string_view text);
std::string from_line(std::string_view line);

}  // namespace kel
