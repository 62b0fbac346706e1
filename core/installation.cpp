#include "core/installation.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "core/file_error.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

void copy_if_missing(const fs::path& from, const fs::path& to) {
    std::error_code trouble;
    if (!fs::exists(from, trouble) || fs::exists(to, trouble)) return;
    if (!fs::copy_file(from, to, trouble)) throw file_error(to.string(), trouble.message());
    // A packaged file is read only; the user's copy of it is the user's.
    fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, trouble);
}

}  // namespace

std::string folder_of(std::string_view path) {
    const auto cut = path.find_last_of("/\\");
    return cut == std::string_view::npos ? std::string{} : std::string(path.substr(0, cut));
}

std::string file_name_of(std::string_view path) {
    const auto cut = path.find_last_of("/\\");
    return cut == std::string_view::npos ? std::string{} : std::string(path.substr(cut + 1));
}

std::string join_path(std::string_view folder, std::string_view name) {
    return std::string(folder) + "/" + std::string(name);
}

std::string installation::blank_assessment() const {
    return join_path(program_folder, "dbases/blank.mdb");
}
// An adviser's own tables go before those that came with the program.
std::string installation::grass_tables() const {
    constexpr std::string_view tables = "dbases/wren_grass.mdb";
    const std::string own = join_path(written_folder, tables);
    std::error_code ignored;
    return fs::exists(own, ignored) ? own : join_path(program_folder, tables);
}
std::string installation::climate_tables() const {
    return join_path(install_root, "scdb/scdb.mdb");
}
std::string installation::settings_store() const {
    return join_path(written_folder, "kelstore.ini");
}
std::string installation::user_files() const {
    return farm_folder.empty() ? old_user_files() : farm_folder;
}
std::string installation::old_user_files() const {
    return join_path(written_folder, "User_files");
}
std::string installation::earlier_copies() const {
    return join_path(written_folder, "Earlier copies");
}
std::string installation::recent_list() const {
    return join_path(written_folder, "recent.txt");
}
std::string installation::graphics() const {
    return join_path(program_folder, "graphics");
}
std::string installation::report(std::string_view file_name) const {
    return join_path(written_folder, file_name);
}

installation locate_installation(const std::string& executable, const std::string& user_data_folder,
                                 const std::string& documents_folder) {
    const std::string beside = folder_of(executable);
    std::error_code ignored;
    installation places;
    if (fs::exists(join_path(beside, "dbases"), ignored)) {
        places.program_folder = beside;
        places.install_root = folder_of(beside);
    } else {
        places.install_root = join_path(folder_of(beside), "share/kel-calculator");
        places.program_folder = join_path(places.install_root, "kel_calc");
    }
    const bool portable = places.program_folder == beside && access(beside.c_str(), W_OK) == 0;
    places.written_folder = portable ? beside : user_data_folder;
    if (!portable && !documents_folder.empty())
        places.farm_folder = join_path(documents_folder, "KEL Calculator");
    return places;
}

void prepare_written_folder(installation& places) {
    if (places.written_folder == places.program_folder) return;
    std::error_code trouble;
    const bool first_time =
        !fs::exists(places.user_files(), trouble) && !fs::exists(places.old_user_files(), trouble);
    fs::create_directories(places.written_folder, trouble);
    if (!trouble) fs::create_directories(places.user_files(), trouble);
    if (trouble && !places.farm_folder.empty()) {
        places.farm_folder.clear();  // documents that nobody may write to: the farms lie beside the settings
        fs::create_directories(places.user_files(), trouble);
    }
    if (trouble) throw file_error(places.user_files(), trouble.message());
    copy_if_missing(join_path(places.program_folder, logo_file), places.report(logo_file));
    if (!first_time) return;
    for (const auto& sample : fs::directory_iterator(join_path(places.program_folder, "User_files"), trouble))
        copy_if_missing(sample.path(), fs::path(places.user_files()) / sample.path().filename());
}

}  // namespace kel
