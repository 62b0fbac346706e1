#include "storage/slurry_transfer.h"

#include "core/numbers.h"
#include "rules/manure_catalogue.h"

namespace kel {

namespace {

int spreading_column_of(std::size_t month) {
    return spreading_column::january + static_cast<int>(month);
}

void add_application(monthly_sums& rates, const recordset& row) {
    if (!slurry_test(row.text("Manure Type"))) return;
    const auto day = row.date_value("Date");
    if (!day) return;
    rates[static_cast<std::size_t>(month_of(*day) - 1)] += leading_number(row.text("Applic Rate"));
}

void put_rates(text_grid& spreading, int row, const monthly_sums& rates, transfer_result& result) {
    for (std::size_t month = 0; month < rates.size(); ++month) {
        const int column = spreading_column_of(month);
        if (spreading.cell(row, column) != closed_month)
            spreading.set_cell(row, column, shortest_text(static_cast<float>(rates[month])));
        else if (rates[month] != 0)
            result.into_closed_month = true;
    }
}

void drop_rates_without_land(land_plan& plan, int row, transfer_result& result) {
    for (int month = 0; month < months_in_year; ++month) {
        const int column = spreading_column::january + month;
        if (plan.spreading.number(row, column) <= 0) continue;
        if (plan.land.number(row, plan_column::january + month) != 0) continue;
        plan.spreading.set_cell(row, column, "0");
        result.without_land = true;
    }
}

}  // namespace

slurry_rates read_slurry_rates(const database& db) {
    slurry_rates rates;
    for (recordset rows = db.open("Manure_applic"); !rows.eof(); rows.move_next())
        add_application(rates[rows.text("Field Area ID")], rows);
    return rates;
}

transfer_result transfer_slurry(land_plan& plan, const slurry_rates& rates) {
    transfer_result result;
    for (int row = 0; row < plan.fields(); ++row) {
        const auto found = rates.find(plan.spreading.cell(row, spreading_column::field));
        if (found != rates.end()) put_rates(plan.spreading, row, found->second, result);
    }
    for (int row = 0; row < plan.fields(); ++row)
        drop_rates_without_land(plan, row, result);
    return result;
}

}  // namespace kel
