#include "core/whole_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/file_error.h"

namespace kel {

namespace fs = std::filesystem;

void write_whole_file(const std::string& path, std::string_view content, std::string_view what) {
    const std::string fresh = path + ".new";
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
    const fs::path target(to);
    fs::path fresh = target;
    fresh += ".new";
    std::error_code trouble;
    fs::copy_file(from, fresh, fs::copy_options::overwrite_existing, trouble);
    if (!trouble) fs::permissions(fresh, fs::perms::owner_write, fs::perm_options::add, trouble);
    // A journal left behind by the file that goes would be rolled back into the one that comes.
    if (!trouble) fs::remove(to + "-journal", trouble);
    if (!trouble) fs::rename(fresh, target, trouble);
    if (!trouble) return;
    std::error_code ignored;
    fs::remove(fresh, ignored);
    throw file_error(to, "the file could not be copied there: " + trouble.message() + ".");
}

}  // namespace kel
