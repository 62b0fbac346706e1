// What is wrong with a field's year: more inorganic nitrogen than the crop requires, applications in closed
// periods or without any entered, and more than 250 kg N/ha of manures within twelve months.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/explanation.h"
#include "record/record_rows.h"

namespace kel {

enum class warning_kind { information, alert, closed_period };

/// What the icon of a kind says.
std::string_view icon_word(warning_kind kind);
/// The icon of a kind, relative to the program's folder and to the report.
std::string_view icon_path(warning_kind kind);
std::vector<std::string> icon_paths();

struct record_warning {
    warning_kind kind;
    std::string text;
    bool operator==(const record_warning&) const = default;
};

/// Total N of manures, kg N/ha, in the twelve months that begin with each row's first manure, one for each
/// row. The same date a year on is no longer within them.
std::vector<float> twelve_month_totals(const std::vector<record_row>& rows);

/// A field that got more inorganic nitrogen than its crop requires, kg N/ha as texts.
struct excess_nitrogen {
    std::string applied;
    std::string required;
};
/// Nothing without a requirement, too; then nothing is told.
std::optional<excess_nitrogen> nitrogen_above_requirement(const std::vector<record_row>& rows,
                                                          const std::optional<std::string>& required,
                                                          explanation* why = nullptr);

/// Who is told why there is the warning at this place.
struct warning_account {
    explanation* why = nullptr;
    std::size_t place = 0;
};

/// In the order in which they are shown.
std::vector<record_warning> analysis(const field_record& record, const field_history& field,
                                     const record_year& year, const warning_account& account = {});

}  // namespace kel
