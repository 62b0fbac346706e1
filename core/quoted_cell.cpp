#include "core/quoted_cell.h"

namespace kel {

std::string quoted_cell(std::string_view text) {
    std::string cell = "\"";
    for (const char c : text) {
        if (c == '"') cell += '"';
        cell += c;
    }
    return cell + '"';
}

}  // namespace kel
