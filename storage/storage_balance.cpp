#include "storage/storage_balance.h"

#include <algorithm>

#include "core/numbers.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

// Over 100 percent the axis stands still at 150, so that the excess can be compared.
constexpr percent_axis exceeded_axis{150, 6};
constexpr percent_axis automatic_axis{std::nullopt, 10};

// Rounded to single once, at the end: 600 of 1000 is 60 percent and not a little more.
float month_end(double content, double input, double output) {
    return static_cast<float>(content + input - output);
}

float percent_of(double content, double capacity) {
    return static_cast<float>(content / capacity * 100);
}

std::string_view warning_of(float largest_percent) {
    if (exceeds_limit(largest_percent, 150)) return storage_messages::over_150_percent;
    if (exceeds_limit(largest_percent, 100)) return storage_messages::over_100_percent;
    return {};
}

}  // namespace

std::optional<storage_balance> build_balance(const store_totals& stores, const monthly_values& inputs,
                                             const monthly_values& outputs) {
    if (!(stores.total_capacity > 0)) return std::nullopt;
    storage_balance balance{.inputs = inputs, .outputs = outputs, .axis = automatic_axis, .warning = {}};
    float content = stores.total_capacity - stores.total_free;
    for (std::size_t month = 0; month < inputs.size(); ++month) {
        content = std::max(month_end(content, inputs[month], outputs[month]), 0.0F);
        balance.content[month] = content;
        balance.percent[month] = percent_of(content, stores.total_capacity);
        balance.largest_percent = std::max(balance.largest_percent, balance.percent[month]);
    }
    balance.warning = warning_of(balance.largest_percent);
    if (!balance.warning.empty()) balance.axis = exceeded_axis;
    return balance;
}

}  // namespace kel
