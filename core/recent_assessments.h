// The assessments worked on last, the newest first, in a list of their own beside the settings store.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"

namespace kel {

struct recent_assessment {
    std::string path;
    std::string farm;
    std::optional<date> year_start;
    bool operator==(const recent_assessment&) const = default;
};

inline constexpr std::size_t most_recent_assessments = 10;

/// Empty without a list that can be read. Never throws.
std::vector<recent_assessment> read_recent(const std::string& list);
/// Puts it first, in place of what the list said of the same path. A list that cannot be written stays as it
/// is. Never throws.
void note_recent(const std::string& list, const recent_assessment& opened);
/// Takes it out. Never throws.
void forget_recent(const std::string& list, const std::string& path);

}  // namespace kel
