#include "storage/storage_balance.h"

#include <algorithm>
#include <string>

#include "core/dates.h"
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

std::string month_of_year(std::size_t month) {
    return std::string(month_name(static_cast<int>(month) + 1));
}

struct month_flow {
    float start = 0;
    float input = 0;
    float output = 0;
    float end = 0;      // below 0 when more is spread than there is
    float percent = 0;  // of what is left
};

void tell_month(std::size_t month, const month_flow& flow, const store_totals& stores, explanation& why) {
    why.rule(
        "What is in the stores at the end of a month is what was in them at its beginning, plus what "
        "flows in, less what is spread.");
    if (month == 0)
        why.step("At the start of the year: " + default_text(stores.total_capacity) +
                 " cubic m that the stores "
                 "hold - " +
                 default_text(stores.total_free) + " cubic m free = " + default_text(flow.start) +
                 " cubic m");
    else
        why.step("At the end of " + month_of_year(month - 1) + ": " + default_text(flow.start) + " cubic m");
    why.step("Level: " + default_text(flow.start) + " + " + default_text(flow.input) + " - " +
             default_text(flow.output) + " = " + default_text(flow.end) + " cubic m");
    if (flow.end < 0)
        why.step(
            "More is to be spread than there is: the stores are empty then, and owe nothing to the next "
            "month.");
    why.step("Of what the stores hold: " + default_text(std::max(flow.end, 0.0F)) + " / " +
             default_text(stores.total_capacity) + " x 100 = " + default_text(flow.percent) + " %");
}

void tell_warning(const storage_balance& balance, explanation& why) {
    why.rule(
        "The warning goes by the month in which the stores are fullest, on the figure rounded to 3 "
        "decimals: it comes above 100 % and is another above 150 %.");
    bool over = false;
    for (std::size_t month = 0; month < balance.percent.size(); ++month) {
        if (!exceeds_limit(balance.percent[month], 100)) continue;
        over = true;
        why.step(month_of_year(month) + ": " + default_text(balance.content[month]) + " cubic m, " +
                 default_text(balance.percent[month]) + " %");
    }
    if (!over)
        why.step("No month is above 100 %; the highest has " + default_text(balance.largest_percent) + " %.");
}

}  // namespace

std::optional<storage_balance> build_balance(const store_totals& stores, const monthly_values& inputs,
                                             const monthly_values& outputs, explanation* why,
                                             std::size_t asked) {
    if (!(stores.total_capacity > 0)) return std::nullopt;
    storage_balance balance{.inputs = inputs, .outputs = outputs, .axis = automatic_axis, .warning = {}};
    float content = stores.total_capacity - stores.total_free;
    for (std::size_t month = 0; month < inputs.size(); ++month) {
        month_flow flow{.start = content, .input = inputs[month], .output = outputs[month]};
        flow.end = month_end(content, flow.input, flow.output);
        content = std::max(flow.end, 0.0F);
        flow.percent = percent_of(content, stores.total_capacity);
        balance.content[month] = content;
        balance.percent[month] = flow.percent;
        balance.largest_percent = std::max(balance.largest_percent, balance.percent[month]);
        if (why && month == asked) tell_month(month, flow, stores, *why);
    }
    balance.warning = warning_of(balance.largest_percent);
    if (!balance.warning.empty()) balance.axis = exceeded_axis;
    if (why && asked == warning_asked) tell_warning(balance, *why);
    return balance;
}

}  // namespace kel
