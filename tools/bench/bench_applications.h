// The applications of manure of the farms under measure: ten a year to each field.
#pragma once

#include <string>

namespace kel::bench {

/// Puts them in place of those of the file.
void write_applications(const std::string& file);

}  // namespace kel::bench
