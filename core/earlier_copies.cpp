#include "core/earlier_copies.h"

#include <SQLiteCpp/Backup.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <utility>

#include "core/copy_notes.h"
#include "core/file_error.h"
#include "core/installation.h"
#include "core/store_connection.h"
#include "core/strangers_file.h"
#include "core/whole_file.h"

namespace kel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ending = ".kelcopy";
constexpr std::string_view unfinished = ".kelcopy.unfinished";
constexpr std::string_view moment_form = "0000-00-00 00.00.00";
constexpr int busy_timeout_ms = 2000;

std::string text_of(const moment& m) {
    std::array<char, 16> time{};
    std::snprintf(time.data(), time.size(), " %02d.%02d.%02d", m.hour, m.minute, m.second);
    return iso_date_text(m.day) + time.data();
}

// As it stands at the end of a copy's name, with a number behind it if another was kept in the same second.
std::optional<moment> moment_in(std::string_view name) {
    if (!name.ends_with(ending)) return std::nullopt;
    name.remove_suffix(ending.size());
    if (name.ends_with(')')) name = name.substr(0, name.rfind(" ("));
    if (name.size() <= moment_form.size()) return std::nullopt;
    const std::string_view text = name.substr(name.size() - moment_form.size());
    const auto day = parse_date(text.substr(0, 10));
    if (!day) return std::nullopt;
    moment found;
    found.day = *day;
    int at = 11;
    for (int* part : {&found.hour, &found.minute, &found.second}) {
        const char* digits = text.data() + at;
        if (std::from_chars(digits, digits + 2, *part).ptr != digits + 2) return std::nullopt;
        at += 3;
    }
    return found;
}

std::string year_name(std::optional<date> start) {
    if (!start) return "no year";
    const std::string next = std::to_string(year_of(*start) + 1);
    return std::to_string(year_of(*start)) + "-" + next.substr(next.size() - 2);
}

// By which a file is known, whatever way was taken to it.
std::string known_path(const std::string& path) {
    std::error_code trouble;
    const fs::path whole = fs::weakly_canonical(path, trouble);
    return trouble ? path : whole.string();
}

// The file behind a copy's name, which nobody has taken yet.
fs::path free_name(const fs::path& folder, const std::string& stem) {
    std::error_code ignored;
    fs::path file = folder / (stem + std::string(ending));
    for (int number = 2; fs::exists(file, ignored); ++number)
        file = folder / (stem + " (" + std::to_string(number) + ")" + std::string(ending));
    return file;
}

std::string first_text(SQLite::Database& db, const char* sql) {
    try {
        SQLite::Statement row(db, sql);
        return row.executeStep() ? row.getColumn(0).getString() : std::string{};
    } catch (const SQLite::Exception&) {
        return {};
    }
}

copy_note note_of(SQLite::Database& db, const std::string& path) {
    return {.came_from = known_path(path),
            .farm = first_text(db, "SELECT [Name] FROM [FarmProfile]"),
            .year_start = parse_date(first_text(db, "SELECT [Year] FROM [Type]"))};
}

void copy_pages(SQLite::Database& from, const std::string& to) {
    SQLite::Database copy(to, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, busy_timeout_ms);
    copy.exec("PRAGMA journal_mode = OFF");  // what is not finished is thrown away
    SQLite::Backup pages(copy, from);
    if (const int result = pages.executeStep(-1); result != SQLITE_DONE)
        throw SQLite::Exception(copy.getHandle(), result);
}

std::vector<fs::path> files_in(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code trouble;
    for (fs::directory_iterator entry(folder, trouble), end; !trouble && entry != end;
         entry.increment(trouble))
        files.push_back(entry->path());
    return files;
}

bool is_old(const fs::path& file) {
    std::error_code unknown;
    const auto written = fs::last_write_time(file, unknown);
    return !unknown && fs::file_time_type::clock::now() - written > std::chrono::hours(1);
}

// Only what has the name of a copy and its note beside it is ours to take away, and what a killed process
// left half made; never the copy just kept, which a clock set back makes the oldest.
void take_oldest_away(const fs::path& folder, const fs::path& just_kept) {
    std::vector<std::pair<moment, fs::path>> ours;
    std::error_code ignored;
    for (const fs::path& file : files_in(folder)) {
        const auto kept = moment_in(file.filename().string());
        if (file.string().ends_with(unfinished) && is_old(file)) fs::remove(file, ignored);
        if (kept && file != just_kept && read_copy_note(file.string())) ours.emplace_back(*kept, file);
    }
    std::sort(ours.begin(), ours.end());
    for (std::size_t i = 0; i + earlier_copies::most_of_a_farm - 1 < ours.size(); ++i) {
        fs::remove(ours[i].second, ignored);
        remove_copy_note(ours[i].second.string());
    }
}

std::uint32_t hash_of(std::string_view text) {
    std::uint32_t hash = 2166136261U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash;
}

bool is_safe(char c) {
    const bool alnum = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    return alnum || static_cast<unsigned char>(c) >= 0x80 ||
           std::string_view(" -_.,()&'").find(c) != std::string_view::npos;
}

}  // namespace

bool operator<(const moment& a, const moment& b) {
    return std::tie(a.day, a.hour, a.minute, a.second) < std::tie(b.day, b.hour, b.minute, b.second);
}

moment local_moment() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {make_date(local.tm_mday, local.tm_mon + 1, local.tm_year + 1900), local.tm_hour, local.tm_min,
            local.tm_sec};
}

std::string name_for_files(std::string_view farm) {
    constexpr std::size_t longest = 60;
    std::string name(farm.substr(0, longest));
    // A letter of several bytes is not cut in two.
    while (name.size() < farm.size() && !name.empty() && (farm[name.size()] & 0xC0) == 0x80)
        name.pop_back();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !is_safe(c); }, '_');
    const auto begin = name.find_first_not_of(" .");
    name = begin == std::string::npos ? "farm" : name.substr(begin, name.find_last_not_of(" .") - begin + 1);
    if (name == farm) return name;
    std::array<char, 16> hash{};
    std::snprintf(hash.data(), hash.size(), " ~%08x", hash_of(farm));
    return name + hash.data();
}

void earlier_copies::keep_in(std::string folder, std::function<moment()> now) {
    folder_ = std::move(folder);
    now_ = std::move(now);
}

void earlier_copies::keep_first_of_day(const std::string& path) {
    if (!folder_.empty() && !was_kept_today(path)) keep(path);
}

bool earlier_copies::was_kept_today(const std::string& path) const {
    const date today = now_().day;
    const std::string known = known_path(path);
    for (const fs::path& farm : files_in(folder_))
        for (const fs::path& file : files_in(farm)) {
            const auto kept = moment_in(file.filename().string());
            if (!kept || kept->day != today) continue;
            const auto note = read_copy_note(file.string());
            if (note && note->came_from == known) return true;
        }
    return false;
}

bool earlier_copies::keep(const std::string& path) {
    std::error_code unknown;
    if (folder_.empty() || !fs::exists(path, unknown)) return true;
    const auto failed = [&](const std::string& trouble) {
        trouble_ = "No copy of the file as it was before could be kept in " + folder_ + ": " + trouble;
        return false;
    };
    try {
        make(path);
        return true;
    } catch (const file_error& failure) {
        return failed(failure.trouble());
    } catch (const SQLite::Exception& failure) {
        return failed(store::failure_of(path, failure).trouble());
    } catch (const std::exception& failure) {
        return failed(failure.what());
    }
}

// The note first: a copy without one would never be taken away again.
void earlier_copies::make(const std::string& path) {
    check_file_size(path);
    SQLite::Database db(path, SQLite::OPEN_READWRITE, busy_timeout_ms);
    harden(db.getHandle());
    const copy_note note = note_of(db, path);
    const std::string farm = name_for_files(note.farm);
    const fs::path folder = fs::path(folder_) / farm;
    std::error_code trouble;
    fs::create_directories(folder, trouble);
    if (trouble) throw file_error(folder.string(), trouble.message() + ".");
    const fs::path kept = free_name(folder, farm + " " + year_name(note.year_start) + " " + text_of(now_()));
    const std::string aside = kept.string() + ".unfinished";
    try {
        write_copy_note(kept.string(), note);
        copy_pages(db, aside);
        fs::rename(aside, kept);
    } catch (...) {
        fs::remove(aside, trouble);
        remove_copy_note(kept.string());
        throw;
    }
    take_oldest_away(folder, kept);
}

std::string earlier_copies::take_trouble() {
    return std::exchange(trouble_, {});
}

std::vector<earlier_copy> earlier_copies::list() const {
    std::vector<earlier_copy> copies;
    for (const fs::path& farm : files_in(folder_))
        for (const fs::path& file : files_in(farm)) {
            const auto kept = moment_in(file.filename().string());
            if (!kept) continue;
            std::error_code unknown;
            earlier_copy copy;
            copy.file = file.string();
            copy.kept = *kept;
            copy.size = fs::file_size(file, unknown);
            const auto note = read_copy_note(copy.file);
            copy.farm = note ? note->farm : farm.filename().string();
            if (note) copy.year_start = note->year_start;
            if (note) copy.came_from = note->came_from;
            copies.push_back(std::move(copy));
        }
    std::stable_sort(copies.begin(), copies.end(),
                     [](const earlier_copy& a, const earlier_copy& b) { return b.kept < a.kept; });
    return copies;
}

void check_copy(const std::string& file) {
    const database whole(file);
    const recordset type = whole.open("Type");
    store::guarded(file, [&] {
        SQLite::Database db(file, SQLite::OPEN_READONLY, busy_timeout_ms);
        harden(db.getHandle());
        if (first_text(db, "PRAGMA quick_check(1)") != "ok") throw file_error(file, "the file is damaged.");
    });
}

}  // namespace kel
