#include "core/file_choice.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace kel {

namespace {

namespace fs = std::filesystem;

file_request assessment_request(std::string_view title, const std::string& folder) {
    return {std::string(title), std::string(assessment_filter), folder};
}

bool holds_assessments(const std::string& folder) {
    std::error_code trouble;
    for (fs::directory_iterator entry(folder, trouble), end; !trouble && entry != end;
         entry.increment(trouble))
        if (entry->path().extension() == ".kel") return true;
    return false;
}

// Farms may lie where new ones once went.
std::string folder_to_open_from(const application_state& state) {
    const std::string folder = dialog_folder(state);
    const std::string old = state.places.old_user_files();
    const bool only_old = state.last_dir.empty() && !holds_assessments(folder) && holds_assessments(old);
    return only_old ? old : folder;
}

bool ends_with(std::string_view path, std::string_view extension) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return path.size() >= extension.size() &&
           std::equal(extension.begin(), extension.end(), path.substr(path.size() - extension.size()).begin(),
                      [&](char a, char b) { return lower(a) == lower(b); });
}

bool may_replace(prompts& person, std::string_view title, const std::string& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored)) return true;
    return person.ask(replace_file(title, file_name_of(path))) == answer::yes;
}

}  // namespace

message replace_file(std::string_view title, std::string_view file_name) {
    return {std::string(title),
            "The file " + std::string(file_name) + " already exists. Do you want to replace it?",
            message_kind::warning, message_buttons::yes_no};
}

std::string with_extension(prompts& person, std::string_view title, std::string path,
                           std::string_view extension) {
    if (path.empty() || ends_with(path, extension)) return path;
    path += extension;
    return may_replace(person, title, path) ? path : std::string{};
}

std::string choose_file_to_open(application_state& state, prompts& person, std::string_view title) {
    std::string path = person.file_to_open(assessment_request(title, folder_to_open_from(state)));
    if (!path.empty()) state.last_dir = folder_of(path);
    return path;
}

std::string choose_file_to_save(application_state& state, prompts& person, std::string_view title) {
    std::string path = with_extension(
        person, title, person.file_to_save(assessment_request(title, dialog_folder(state))), ".kel");
    if (!path.empty()) state.last_dir = folder_of(path);
    return path;
}

bool same_file(const std::string& a, const std::string& b) {
    std::error_code trouble;
    return a == b || (fs::equivalent(a, b, trouble) && !trouble);
}

}  // namespace kel
