#include "reports/page_origin.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/assessment_files.h"
#include "core/file_error.h"

namespace kel {

namespace {

// "<!-- Made 2026-11-15; year 2025-12-19; file 9c0ffee123456789; farm Mains &amp; Sons -->"
constexpr std::string_view opening = "<!-- Made ";
constexpr std::string_view before_year = "; year ";
constexpr std::string_view before_file = "; file ";
constexpr std::string_view before_farm = "; farm ";
constexpr std::string_view closing = " -->";

// What would end the line, or the comment, before its time.
constexpr std::array<std::pair<char, std::string_view>, 5> written_as{
    {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'\n', "&#10;"}, {'\r', "&#13;"}}};

std::string unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const auto* const found = std::find_if(written_as.begin(), written_as.end(), [&](const auto& pair) {
            return text.starts_with(pair.second);
        });
        const bool written = found != written_as.end();
        plain += written ? found->first : text.front();
        text.remove_prefix(written ? found->second.size() : 1);
    }
    return plain;
}

// What stands up to the mark, which is taken off with it; nothing if there is no such mark.
std::optional<std::string_view> taken_up_to(std::string_view& text, std::string_view mark) {
    const auto end = text.find(mark);
    if (end == std::string_view::npos) return std::nullopt;
    std::string_view taken = text.substr(0, end);
    text.remove_prefix(end + mark.size());
    return taken;
}

std::string day_text(std::optional<date> day) {
    return day ? iso_date_text(*day) : "";
}

// Not the path itself: a page goes to others.
std::string mark_of(const std::string& path) {
    if (path.empty()) return {};
    std::error_code unknown;
    const auto canonical = std::filesystem::weakly_canonical(path, unknown);
    constexpr std::uint64_t seed = 0xcbf29ce484222325U;  // FNV-1a, which stays the same from run to run
    std::uint64_t mark = seed;
    for (const char c : unknown ? path : canonical.string())
        mark = (mark ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    std::array<char, 16> digits{};
    const auto [end, ignored] = std::to_chars(digits.begin(), digits.end(), mark, 16);
    return {digits.begin(), end};
}

// The state's name follows a renamed farm only at the next load.
std::string stored_name(const application_state& state) {
    if (state.assess_file.empty()) return {};
    try {
        return read_farm_name(state.assess_file);
    } catch (const file_error&) {
        return state.farm_name;
    }
}

}  // namespace

std::string escaped(std::string_view text) {
    std::string shown;
    for (const char c : text) {
        const auto* const found = std::find_if(written_as.begin(), written_as.end(),
                                               [&](const auto& pair) { return pair.first == c; });
        if (found == written_as.end())
            shown += c;
        else
            shown += found->second;
    }
    return shown;
}

page_origin origin_of(const application_state& state, date today, std::string_view farm) {
    return {.farm = farm.empty() ? stored_name(state) : std::string(farm),
            .year_start = state.assess_file.empty() ? std::nullopt : state.kel_year_start,
            .made = today,
            .file = mark_of(state.assess_file)};
}

std::string origin_line(const page_origin& origin) {
    return std::string(opening)
        .append(day_text(origin.made))
        .append(before_year)
        .append(day_text(origin.year_start))
        .append(origin.file.empty() ? "" : before_file)
        .append(origin.file)
        .append(before_farm)
        .append(escaped(origin.farm))
        .append(closing);
}

std::optional<page_origin> read_origin(std::string_view page) {
    // Behind the head stands what people have typed.
    page = page.substr(0, page.find("<body>"));
    if (!taken_up_to(page, opening)) return std::nullopt;
    const auto made = taken_up_to(page, before_year);
    auto year = taken_up_to(page, before_farm);
    // A page of an earlier program does not name its file.
    std::string_view file = year ? std::exchange(*year, year->substr(0, year->find(before_file))) : "";
    if (!taken_up_to(file, before_file)) file = {};
    const auto farm = taken_up_to(page, closing);
    if (!made || !year || !farm) return std::nullopt;
    return page_origin{.farm = unescaped(*farm),
                       .year_start = parse_date(*year),
                       .made = parse_date(*made),
                       .file = std::string(file)};
}

std::string year_text(const page_origin& origin) {
    if (!origin.year_start) return {};
    const year_limits limits = year_limits_of(*origin.year_start);
    return "KEL year " + limits.year_start_text + " to " + limits.year_end_text;
}

bool same_farm_and_year(const page_origin& a, const page_origin& b) {
    const bool one_file = a.file == b.file || a.file.empty() || b.file.empty();
    return a.farm == b.farm && a.year_start == b.year_start && one_file;
}

}  // namespace kel
