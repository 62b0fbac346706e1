#include "storage/store_totals.h"

#include <vector>

#include "core/dates.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "rules/rainfall.h"

namespace kel {

namespace {

constexpr std::string_view in_stores = "Step 2, slurry stores";

// The sizes that the shape asks for.
store_size size_of_row(const text_grid& stores, int row, store_shape shape, explanation* why) {
    const auto number = [&](int column) {
        return leading_number(told_cell(stores, row, column, in_stores, why));
    };
    store_size size{.depth_m = number(store_column::depth)};
    if (shape == store_shape::circular) {
        size.diameter_m = number(store_column::diameter);
    } else {
        size.length_m = number(store_column::length);
        size.width_m = number(store_column::width);
    }
    if (shape == store_shape::lagoon) size.bank_angle_degrees = number(store_column::angle);
    return size;
}

std::optional<store_shape> shape_of_row(const text_grid& stores, int row, explanation* why) {
    return find_store_shape(told_cell(stores, row, store_column::shape, in_stores, why));
}

float rain_into_store(const text_grid& stores, int row, const monthly_values& rain_mm, std::size_t month) {
    if (!shape_of_row(stores, row, nullptr)) return 0;
    return rain_volume(rain_mm[month], stores.number(row, store_column::area));
}

std::string told_store(const text_grid& stores, int row, float capacity, float free) {
    return stores.cell(row, store_column::name) + ": holds " + default_text(capacity) + " cubic m, " +
           stores.cell(row, store_column::percent) + " % full at the start of the year, " +
           default_text(free) + " cubic m free";
}

void tell_totals(const std::vector<told_row>& rows, const store_totals& totals, explanation& why) {
    why.rule("The capacities of all stores together, and what is free of them at the start of the year.");
    tell_rows(why, rows, "stores", "cubic m");
    why.step("Together: " + default_text(totals.total_capacity) + " cubic m, of which " +
             default_text(totals.total_free) + " cubic m are free");
}

}  // namespace

std::optional<float> capacity_of_row(const text_grid& stores, int row, explanation* why) {
    const auto shape = shape_of_row(stores, row, why);
    if (!shape) return std::nullopt;
    return store_capacity(*shape, size_of_row(stores, row, *shape, why), why);
}

std::optional<std::string> area_of_row(const text_grid& stores, int row, explanation* why) {
    const auto shape = shape_of_row(stores, row, nullptr);
    if (!shape) return std::nullopt;
    return auto_area(*shape, size_of_row(stores, row, *shape, nullptr), why);
}

monthly_values store_rain(const text_grid& stores, int row, const monthly_values& rain_mm) {
    monthly_values rain{};
    for (std::size_t month = 0; month < rain.size(); ++month)
        rain[month] = rain_into_store(stores, row, rain_mm, month);
    return rain;
}

float rain_into_stores(const text_grid& stores, const monthly_values& rain_mm, std::size_t month,
                       explanation* why) {
    float rain = 0;
    std::vector<told_row> rows;
    for (int row = 0; row < stores.data_row_count(); ++row) {
        const float into = rain_into_store(stores, row, rain_mm, month);
        rain += into;
        if (why)
            rows.push_back({stores.cell(row, store_column::name) + ": " + default_text(rain_mm[month]) +
                                " mm / 1000 x " + stores.cell(row, store_column::area) +
                                " square m = " + default_text(into) + " cubic m",
                            into});
    }
    if (!why) return rain;
    why->source("Mean rainfall of the farm's town in " +
                std::string(month_name(static_cast<int>(month) + 1)) +
                ", from the climate tables: " + default_text(rain_mm[month]) + " mm");
    tell_rows(*why, rows, "stores", "cubic m");
    why->step("Rain: " + default_text(rain) + " cubic m");
    return rain;
}

store_totals compute_store_totals(const text_grid& stores, const monthly_values& rain_mm, explanation* why) {
    store_totals totals;
    std::vector<told_row> rows;
    for (int row = 0; row < stores.data_row_count(); ++row) {
        const auto capacity = capacity_of_row(stores, row);
        if (!capacity) continue;
        const float free = *capacity - *capacity * (stores.number(row, store_column::percent) / 100);
        totals.total_capacity += *capacity;
        totals.total_free += free;
        if (why) rows.push_back({told_store(stores, row, *capacity, free), *capacity});
    }
    for (std::size_t month = 0; month < totals.monthly_rain_input.size(); ++month)
        totals.monthly_rain_input[month] = rain_into_stores(stores, rain_mm, month);
    if (why) tell_totals(rows, totals, *why);
    return totals;
}

}  // namespace kel
