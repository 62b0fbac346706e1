#include "core/super_journals.h"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

namespace kel {

namespace fs = std::filesystem;

namespace {

// The list holds the journals' paths, each ended by a zero byte.
bool any_journal_left(const fs::path& list) {
    std::ifstream in(list, std::ios::binary);
    if (!in) return true;
    std::error_code ignored;
    for (std::string journal; std::getline(in, journal, '\0');)
        if (!journal.empty() && fs::exists(journal, ignored)) return true;
    return false;
}

std::vector<fs::path> lists_beside(const std::string& path) {
    std::vector<fs::path> lists;
    std::error_code trouble;
    const fs::path file = fs::absolute(path, trouble);
    const std::string start = file.filename().string() + "-mj";
    for (fs::directory_iterator entry(file.parent_path(), trouble), end; !trouble && entry != end;
         entry.increment(trouble))
        if (entry->path().filename().string().starts_with(start)) lists.push_back(entry->path());
    return lists;
}

}  // namespace

void remove_spent_super_journals(const std::string& path) {
    std::error_code ignored;
    for (const fs::path& list : lists_beside(path))
        if (!any_journal_left(list)) fs::remove(list, ignored);
}

bool has_super_journal(const std::string& path) {
    return !lists_beside(path).empty();
}

}  // namespace kel
