#include "core/whole_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/file_error.h"
#include "core/fresh_file.h"
#include "core/held_still.h"

namespace kel {

namespace fs = std::filesystem;

void write_whole_file(const std::string& path, std::string_view content, std::string_view what) {
    const std::string fresh = path + std::string(unfinished_ending);
    std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    std::error_code trouble;
    if (out) fs::rename(fresh, path, trouble);
    if (out && !trouble) return;
    std::error_code ignored;
    fs::remove(fresh, ignored);
    throw file_error(
        path, std::string(what) + " could not be written. The folder may be read-only or the disc full.");
}

void copy_whole_file(const std::string& from, const std::string& to) {
    fresh_file(from, to).put_in_place();
}

void copy_assessment(const std::string& from, const std::string& to) {
    fresh_assessment(from, to).put_in_place();
}

void copy_between(const std::string& from_folder, const std::string& to_folder, const std::string& path) {
    const fs::path target = fs::path(to_folder) / path;
    std::error_code ignored;  // the copy tells of it
    fs::create_directories(target.parent_path(), ignored);
    copy_whole_file((fs::path(from_folder) / path).string(), target.string());
}

}  // namespace kel
