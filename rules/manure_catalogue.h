// The 23 manures and slurries that can be applied: names, units, nitrogen content, incorporation and the
// manure code, which names one combination of manure and incorporation time. The names are keys: they are
// stored and compared exactly.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kel {

enum class manure_kind { solid, slurry };

/// The two times of incorporation offered for a manure; both empty where none is asked for.
struct incorporation_choices {
    std::string_view early;
    std::string_view late;
    bool operator==(const incorporation_choices&) const = default;
};

inline constexpr incorporation_choices hours_24{"Within 24 hours", "Over 24 hours"};
inline constexpr incorporation_choices hours_6{"Within 6 hours", "Over 6 hours"};
inline constexpr incorporation_choices no_choice{"", ""};
/// Incorporation of the manures that offer no choice.
inline constexpr std::string_view surface_or_rapid_incorporation = "Surface or rapid incorporation";

struct manure_type {
    int position;
    std::string_view name;
    manure_kind kind;
    std::string_view unit_applied;
    std::string_view default_n_content;  // kg N per unit applied, as the text shown
    incorporation_choices incorporation;
    int code_early;
    int code_late;
};

/// The working manure code before any manure has been resolved.
inline constexpr int no_manure_code = 0;

/// The 23 types in the order offered.
std::span<const manure_type> manure_catalogue();
/// Nothing for a text that is no manure type.
std::optional<manure_type> find_manure(std::string_view name);

/// Code, 1 to 43, of a manure with an incorporation time. An unknown manure, or a time that the manure does
/// not offer, keeps `working_code`, the code of the row handled before.
int resolve_code(std::string_view manure, std::string_view incorporation, int working_code);

/// "Pig slurry - low dry matter (2%), within 6 hours"; empty for no code.
std::string name_of_code(int manure_code);

/// Default nitrogen content of the manure of a code (kg N per tonne or cubic metre), as text; nothing for no
/// code.
std::optional<std::string_view> default_n_content(int manure_code);

/// Whether a manure type is a slurry.
bool slurry_test(std::string_view manure);

/// The four farmyard manures that no closed period and no land availability test concerns.
std::span<const std::string_view> exempt_fym_types();
bool is_exempt_fym(std::string_view manure);

}  // namespace kel
