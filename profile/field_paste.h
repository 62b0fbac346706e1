// Field lists as a spreadsheet puts them on the clipboard: one field a line, name and size parted by a tab.
// Lines end in carriage return and line feed, or in either alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kel {

struct pasted_field {
    std::string name;
    std::string size;  // ha; empty if none was given
    bool operator==(const pasted_field&) const = default;
};

/// Name before the first tab of each line, size behind it. A last piece without a line end is a name alone.
std::vector<pasted_field> parse_names_and_sizes(std::string_view text);

/// Each line as a name.
std::vector<pasted_field> parse_names(std::string_view text);

}  // namespace kel
