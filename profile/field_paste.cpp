#include "profile/field_paste.h"

namespace kel {

namespace {

struct pasted_line {
    std::string_view text;
    bool ended;
};

/// Cuts the first line off `text`.
pasted_line take_line(std::string_view& text) {
    const auto end = text.find_first_of("\r\n");
    if (end == std::string_view::npos) {
        const pasted_line last{text, false};
        text = {};
        return last;
    }
    const pasted_line line{text.substr(0, end), true};
    const bool two = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (two ? 2 : 1));
    return line;
}

pasted_field with_size(const pasted_line& line) {
    const auto tab = line.text.find('\t');
    pasted_field field{std::string(line.text.substr(0, tab)), {}};
    if (line.ended && tab != std::string_view::npos) field.size = line.text.substr(tab + 1);
    return field;
}

}  // namespace

std::vector<pasted_field> parse_names_and_sizes(std::string_view text) {
    std::vector<pasted_field> fields;
    while (!text.empty())
        fields.push_back(with_size(take_line(text)));
    return fields;
}

std::vector<pasted_field> parse_names(std::string_view text) {
    std::vector<pasted_field> fields;
    while (!text.empty())
        fields.push_back({std::string(take_line(text).text), {}});
    return fields;
}

}  // namespace kel
