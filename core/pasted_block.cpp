#include "core/pasted_block.h"

#include <algorithm>

namespace kel {

namespace {

// Takes a quoted cell off the front of the text; what follows the closing mark belongs to it as it stands.
std::string take_quoted(std::string_view& text) {
    std::string cell;
    text.remove_prefix(1);
    while (!text.empty()) {
        const auto mark = text.find('"');
        cell += text.substr(0, mark);
        if (mark == std::string_view::npos) {
            text = {};
        } else if (mark + 1 < text.size() && text[mark + 1] == '"') {
            cell += '"';
            text.remove_prefix(mark + 2);
        } else {
            text.remove_prefix(mark + 1);
            break;
        }
    }
    return cell;
}

// A mark that is never closed belongs to the text, or it would swallow all that follows.
bool begins_quoted(std::string_view text) {
    if (text.empty() || text.front() != '"') return false;
    for (auto mark = text.find('"', 1); mark != std::string_view::npos; mark = text.find('"', mark + 2)) {
        const bool doubled = mark + 1 < text.size() && text[mark + 1] == '"';
        if (doubled) continue;
        return mark + 1 == text.size() ||
               std::string_view("\t\r\n").find(text[mark + 1]) != std::string_view::npos;
    }
    return false;
}

bool needs_quotes(std::string_view cell) {
    return cell.find_first_of("\t\r\n") != std::string_view::npos || (!cell.empty() && cell.front() == '"');
}

std::string quoted(std::string_view cell) {
    std::string text = "\"";
    for (const char c : cell)
        text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

}  // namespace

cell_block parse_block(std::string_view text) {
    cell_block block;
    while (!text.empty()) {
        std::vector<std::string>& row = block.emplace_back();
        for (bool row_ends = false; !row_ends;) {
            std::string cell = begins_quoted(text) ? take_quoted(text) : std::string();
            const auto end = std::min(text.find_first_of("\t\r\n"), text.size());
            cell += text.substr(0, end);
            row.push_back(std::move(cell));
            row_ends = end == text.size() || text[end] != '\t';
            const bool two = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
            text.remove_prefix(std::min(end + (two ? 2 : 1), text.size()));
        }
    }
    return block;
}

std::size_t cells_of(const cell_block& block) {
    std::size_t cells = 0;
    for (const auto& row : block)
        cells += row.size();
    return cells;
}

std::string block_text(const cell_block& block) {
    std::string text;
    for (const auto& row : block) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            if (c > 0) text += '\t';
            text += needs_quotes(row[c]) ? quoted(row[c]) : row[c];
        }
        text += '\n';
    }
    return text;
}

}  // namespace kel
