#include "core/fresh_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "core/file_error.h"

namespace kel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view unfinished_assessment = ".kel.unfinished";

// In whatever case a person has written the ending of the assessment.
bool is_unfinished_assessment(const std::string& path) {
    if (path.size() < unfinished_assessment.size()) return false;
    return std::equal(
        unfinished_assessment.rbegin(), unfinished_assessment.rend(), path.rbegin(),
        [](char a, char b) { return a == static_cast<char>(std::tolower(static_cast<unsigned char>(b))); });
}

void throw_if(const std::error_code& trouble, const std::string& target) {
    if (trouble) throw file_error(target, "the file could not be written: " + trouble.message() + ".");
}

void remove_quietly(const std::string& path) {
    std::error_code ignored;
    fs::remove(path + "-journal", ignored);
    fs::remove(path, ignored);
}

bool lock(int file) {
    return flock(file, LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

fresh_file::fresh_file(const std::string& from, std::string target)
    : target_(std::move(target)), path_(target_ + std::string(unfinished_ending)) {
    remove_abandoned_files(fs::path(target_).parent_path().string());
    held_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (held_ >= 0 && !lock(held_)) {
        close(held_);
        throw file_error(target_, "it is in use by another program.", true);
    }
    try {
        make(from);
    } catch (...) {
        let_go();
        throw;
    }
}

void fresh_file::make(const std::string& from) {
    std::error_code trouble;
    fs::copy_file(from, path_, fs::copy_options::overwrite_existing, trouble);
    if (!trouble) fs::permissions(path_, fs::perms::owner_write, fs::perm_options::add, trouble);
    throw_if(trouble, target_);
}

fresh_file::~fresh_file() {
    let_go();
}

void fresh_file::let_go() {
    if (held_ < 0) return;
    remove_quietly(path_);
    close(std::exchange(held_, -1));
}

void fresh_file::put_in_place(earlier_copies& copies) {
    copies.keep(target_);
    put_in_place();
}

void fresh_file::put_in_place() {
    std::error_code trouble;
    // A journal left behind by the file that goes would be rolled back into the one that comes.
    fs::remove(target_ + "-journal", trouble);
    if (!trouble) fs::rename(path_, target_, trouble);
    throw_if(trouble, target_);
    close(std::exchange(held_, -1));
}

void remove_abandoned_files(const std::string& folder) {
    std::vector<std::string> found;
    std::error_code trouble;
    for (fs::directory_iterator entry(folder, trouble), end; !trouble && entry != end;
         entry.increment(trouble))
        if (std::string path = entry->path().string(); is_unfinished_assessment(path)) {
            std::error_code unknown;
            if (entry->is_regular_file(unknown)) found.push_back(std::move(path));
        }
    for (const std::string& path : found) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0) continue;
        if (lock(file)) remove_quietly(path);
        close(file);
    }
}

}  // namespace kel
