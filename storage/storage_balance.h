// How full the stores are at the end of each month: what was in them, plus what flowed in, less what was
// spread.
#pragma once

#include <optional>
#include <string_view>

#include "core/explanation.h"
#include "rules/months.h"

namespace kel {

/// Sums over all stores, cubic metres.
struct store_totals {
    float total_capacity = 0;
    float total_free = 0;  // at the start of the year
    monthly_values monthly_rain_input{};
    bool operator==(const store_totals&) const = default;
};

/// The value axis of the chart: up to `maximum` percent, or as the percentages ask for without one.
struct percent_axis {
    std::optional<int> maximum;
    int divisions = 10;
    bool operator==(const percent_axis&) const = default;
};

/// The balance table, one figure per month, with what the chart and the warning panel show.
struct storage_balance {
    monthly_values inputs{};   // cubic metres
    monthly_values outputs{};  // cubic metres
    monthly_values content{};  // cubic metres at month end, never below 0
    monthly_values percent{};  // of the capacity at month end; it may pass 100
    float largest_percent = 0;
    percent_axis axis;
    std::string_view warning;  // empty: no panel
    bool operator==(const storage_balance&) const = default;
};

/// January to December from the level at the start of the year, in single precision. Nothing without a
/// capacity. An account tells the month `asked`, January as 0, or with 12 what the warning goes by.
inline constexpr std::size_t warning_asked = 12;
std::optional<storage_balance> build_balance(const store_totals& stores, const monthly_values& inputs,
                                             const monthly_values& outputs, explanation* why = nullptr,
                                             std::size_t asked = warning_asked);

}  // namespace kel
