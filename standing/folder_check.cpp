#include "standing/folder_check.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "core/assessment_files.h"
#include "core/numbers.h"

namespace kel {

namespace fs = std::filesystem;

namespace {

bool is_assessment_name(const fs::path& path) {
    std::string ending = path.extension().string();
    std::ranges::transform(ending, ending.begin(), [](unsigned char c) { return std::tolower(c); });
    return ending == ".kel";
}

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : "; ") + text;
    return all;
}

template <class Items, class Text>
std::string joined(const Items& items, const Text& text_of) {
    std::vector<std::string> texts;
    texts.reserve(items.size());
    for (const auto& item : items)
        texts.push_back(text_of(item));
    return joined(texts);
}

std::string level_text(const farm_standing& standing) {
    if (!standing.highest_level) return {};
    return default_text(round_half_even(standing.highest_level->percent, 1)) + " % (" +
           std::string(month_name(standing.highest_level->month)) + ')';
}

checked_file told_of(const farm_standing& standing) {
    checked_file file{.path = standing.files.current,
                      .trouble = standing.trouble,
                      .farm = standing.farm,
                      .year_start = standing.year_start};
    if (!file.trouble.empty()) return file;
    file.worst = standing.worst();
    file.store_level = level_text(standing);
    file.over_limit = joined(standing.over_limit, [](const field_nitrogen& field) {
        return field.field + " (" + default_text(round_to_3(field.n_kg_per_ha)) + " kg N/ha)";
    });
    file.breaches = joined(standing.breaches, [](const closed_breach& breach) {
        return breach.field + " (" + breach.applied + ", " + short_date_text(breach.day) + ')';
    });
    file.over_required = joined(standing.requirement_exceeded, [](const requirement_excess& excess) {
        return excess.field + " (" + excess.applied + " of " + excess.required + " kg N/ha)";
    });
    file.missing = joined(standing.missing, [](const missing_data& missing) { return missing.text; });
    for (const step_standing& step : standing.steps)
        file.steps.push_back(std::string(word_of(step.worst)) + ": " + step.verdict);
    return file;
}

// How many folders two files have in common, from the root on.
auto folders_shared(const fs::path& a, const fs::path& b) {
    return std::distance(a.begin(), std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first);
}

auto order_of(const checked_file& file) {
    const bool readable = file.trouble.empty();
    return std::tuple(readable, -static_cast<int>(file.worst), std::string_view(file.farm), file.year_start,
                      std::string_view(file.path));
}

}  // namespace

std::string_view state_of(const checked_file& file) {
    return file.trouble.empty() ? word_of(file.worst) : "Cannot be read";
}

folder_check::folder_check(const std::string& folder, std::string climate_tables)
    : folders_{folder}, rain_(std::move(climate_tables)) {}

bool folder_check::step() {
    if (!folders_.empty()) {
        const std::string folder = std::move(folders_.back());
        folders_.pop_back();
        look_into(folder);
    } else if (identified_ < found_.size()) {
        identify(found_[identified_++]);
    } else if (judged_ < found_.size()) {
        judge(found_[judged_++]);
    } else {
        return false;
    }
    if (!folders_.empty() || judged_ < found_.size()) return true;
    end();
    return false;
}

void folder_check::end() {
    folders_.clear();
    found_.resize(judged_);
    identified_ = judged_;
    std::ranges::sort(files_, {}, order_of);
}

// A folder that is reached by a link is looked into where it lies, if it lies below; so links cannot go
// round.
void folder_check::look_into(const std::string& folder) {
    std::error_code trouble;
    auto entry = fs::directory_iterator(folder, trouble);
    for (; !trouble && entry != fs::directory_iterator(); entry.increment(trouble)) {
        std::error_code unknown;
        const bool linked = entry->is_symlink(unknown);
        if (entry->is_directory(unknown)) {
            if (!linked) folders_.push_back(entry->path().string());
        } else if (is_assessment_name(entry->path())) {
            found_.push_back({.path = entry->path().string()});
        }
    }
    if (trouble) add_unreadable(folder, trouble.message());
}

void folder_check::identify(found_file& file) {
    try {
        farm_identity identity = identity_of(file.path);
        file.farm = std::move(identity.farm);
        file.year_start = identity.year_start;
    } catch (const file_error& failure) {
        file.unreadable = true;  // a locked one is waited for only once
        return add_unreadable(file.path, failure.trouble());
    }
    if (!file.farm.empty() && file.year_start)
        by_farm_.emplace(std::pair(file.farm, std::chrono::sys_days(*file.year_start)),
                         static_cast<std::size_t>(&file - found_.data()));
}

void folder_check::judge(const found_file& file) {
    if (file.unreadable) return;
    std::string doubt;
    farm_paths paths{.current = file.path, .previous = year_before(file, doubt), .before_previous = {}};
    const auto previous = std::ranges::find(found_, paths.previous, &found_file::path);
    if (previous != found_.end()) paths.before_previous = year_before(*previous, doubt);
    checked_file told = told_of(standing_of(paths, rain_));
    if (!doubt.empty()) told.missing += (told.missing.empty() ? "" : "; ") + doubt;
    files_.push_back(std::move(told));
}

std::string folder_check::year_before(const found_file& file, std::string& doubt) const {
    if (!file.year_start) return {};
    const found_file* nearest = nullptr;
    std::ptrdiff_t most_shared = -1;
    bool two_as_near = false;
    const std::chrono::sys_days start(*file.year_start);
    const auto last = by_farm_.upper_bound({file.farm, start - std::chrono::days(365)});
    for (auto it = by_farm_.lower_bound({file.farm, start - std::chrono::days(366)}); it != last; ++it) {
        const found_file& other = found_[it->second];
        if (!is_year_before(other.year_start, file.year_start)) continue;
        const auto shared = folders_shared(file.path, other.path);
        if (shared < most_shared) continue;
        two_as_near = shared == most_shared;
        if (two_as_near && nearest->path < other.path) continue;
        nearest = &other;
        most_shared = shared;
    }
    if (!nearest) return {};
    if (two_as_near)
        doubt = "Two files may be the year before; " + fs::path(nearest->path).filename().string() +
                " was taken.";
    return nearest->path;
}

void folder_check::add_unreadable(const std::string& path, std::string trouble) {
    files_.push_back({.path = path, .trouble = std::move(trouble)});
}

int exit_status(const std::vector<checked_file>& files) {
    if (std::ranges::any_of(files, [](const auto& file) { return !file.trouble.empty(); })) return 2;
    return std::ranges::any_of(files, [](const auto& file) { return file.worst == severity::wrong; }) ? 1 : 0;
}

}  // namespace kel
