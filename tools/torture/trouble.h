// What comes over a save: a kill at a random moment, or a disc that is full after a random number of bytes.
#pragma once

#include <chrono>
#include <cstdint>
#include <random>
#include <string>

#include "tools/torture/saves.h"

namespace kel::torture {

enum class save_end { completed, refused, killed };

using chance = std::mt19937;

/// Runs the save in a process of its own and kills it within the time given.
save_end run_and_kill(const tortured_save& save, const tortured_farm& farm, std::chrono::microseconds longest,
                      chance& random);

/// Runs the save in a process of its own with little room: on a small file system all but a random rest of it
/// is filled first; on a large one no file may grow beyond a random size.
save_end run_on_full_disc(const tortured_save& save, const tortured_farm& farm, std::uintmax_t most_bytes,
                          chance& random);

}  // namespace kel::torture
