// Whether a file is unchanged since it was looked at, whoever wrote to it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace kel {

/// Two stamps of a file that nobody wrote to in between are equal. A file that is gone or cannot be read has
/// the stamp of its path alone.
struct file_stamp {
    std::string path;
    std::uint32_t change_counter = 0;  // of the database's header; every transaction that writes moves it on
    std::uintmax_t size = 0;
    std::filesystem::file_time_type written{};
    bool operator==(const file_stamp&) const = default;
};

/// Never throws; an empty path gives the empty stamp. Opens the file and closes it again, which ends every
/// lock of this process on it: within a save ask database::stamp instead.
file_stamp stamp_of(const std::string& path);

/// The same without a look into the file: its change counter is 0.
file_stamp stamp_from_outside(const std::string& path);

}  // namespace kel
