// What a file can have gone through on its way: bytes and pages spoilt, rows and layouts that no farm has.
#pragma once

#include <random>
#include <span>
#include <string>
#include <string_view>

namespace kel::mutants {

using chance = std::mt19937;

/// Changes the file at random and tells what was done.
std::string mutate(const std::string& file, chance& random);

/// Files made to hurt. `sql` runs on a copy of the sample farm; an empty one leaves an empty file.
struct hostile_file {
    std::string_view name;
    std::string_view sql;
};
std::span<const hostile_file> hostile_files();
void run_sql(const std::string& file, std::string_view sql);

}  // namespace kel::mutants
