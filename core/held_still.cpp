#include "core/held_still.h"

namespace kel {

held_still::held_still(const std::string& path) {
    try {
        db_.emplace(path);
        nobody_saves_.emplace(*db_);
    } catch (const file_error& failure) {
        if (failure.in_use()) throw;
        // Whoever reads it tells.
    }
}

fresh_file fresh_assessment(const std::string& from, const std::string& target) {
    const held_still still(from);
    return fresh_file(from, target);
}

}  // namespace kel
