#include "core/file_stamp.h"

#include <array>
#include <fstream>
#include <system_error>

namespace kel {

namespace fs = std::filesystem;

namespace {

// A big-endian number in the bytes 24 to 27 of the database's header.
std::uint32_t change_counter_of(const std::string& path) {
    constexpr int counter_at = 24;
    std::array<char, 4> bytes{};
    std::ifstream file(path, std::ios::binary);
    if (!file.seekg(counter_at) || !file.read(bytes.data(), bytes.size())) return 0;
    std::uint32_t counter = 0;
    for (const char byte : bytes)
        counter = counter << 8U | static_cast<unsigned char>(byte);
    return counter;
}

}  // namespace

file_stamp stamp_from_outside(const std::string& path) {
    file_stamp stamp{.path = path};
    if (path.empty()) return stamp;
    std::error_code trouble;
    const auto size = fs::file_size(path, trouble);
    if (trouble) return stamp;
    stamp.size = size;
    stamp.written = fs::last_write_time(path, trouble);
    return stamp;
}

file_stamp stamp_of(const std::string& path) {
    file_stamp stamp = stamp_from_outside(path);
    if (stamp.size > 0) stamp.change_counter = change_counter_of(path);
    return stamp;
}

}  // namespace kel
