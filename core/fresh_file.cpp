#include "core/fresh_file.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "core/file_error.h"

namespace kel {

namespace fs = std::filesystem;

namespace {

void throw_if(const std::error_code& trouble, const std::string& target) {
    if (trouble) throw file_error(target, "the file could not be written: " + trouble.message() + ".");
}

void remove_quietly(const std::string& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}

}  // namespace

fresh_file::fresh_file(const std::string& from, std::string target)
    : target_(std::move(target)), path_(target_ + ".new") {
    std::error_code trouble;
    fs::copy_file(from, path_, fs::copy_options::overwrite_existing, trouble);
    if (!trouble) fs::permissions(path_, fs::perms::owner_write, fs::perm_options::add, trouble);
    if (trouble) remove_quietly(path_);
    throw_if(trouble, target_);
}

fresh_file::~fresh_file() {
    if (placed_) return;
    remove_quietly(path_ + "-journal");
    remove_quietly(path_);
}

void fresh_file::put_in_place() {
    std::error_code trouble;
    // A journal left behind by the file that goes would be rolled back into the one that comes.
    fs::remove(target_ + "-journal", trouble);
    if (!trouble) fs::rename(path_, target_, trouble);
    throw_if(trouble, target_);
    placed_ = true;
}

}  // namespace kel
