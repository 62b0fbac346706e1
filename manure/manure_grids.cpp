#include "manure/manure_grids.h"

#include <array>
#include <unordered_map>

#include "core/assessment_files.h"
#include "core/numbers.h"
#include "core/told_rows.h"
#include "manure/manure_messages.h"

namespace kel {

namespace {

namespace col = manure_column;

constexpr auto entered = column_kind::entered;
constexpr auto calculated = column_kind::calculated;
constexpr auto carried = column_kind::carried;

// The table of applications with its columns in [Manure_applic].
// clang-format off
constexpr std::array<grid_column, 14> manure_columns{{
    // heading                                     stored column            kind    width
    {"Field Area ID",                              "Field Area ID",         entered,    16},
    {"Soil",                                       "Soil",                  calculated, 17},
    {"Incorporation Time",                         "Incorporation",         entered,    15},
    {"Manure Type",                                "Manure Type",           entered,    28},
    {"Date Applied",                               "Date",                  entered,    12, true},
    {"Area Spread (ha)",                           "Area Spread",           entered,     8},
    {"Amount Applied (t or cubic m)",              "Amount Applied",        entered,    10},
    {"Application Rate (t or cubic m per ha)",     "Applic Rate",           calculated, 12},
    {"Total N Content (kg/t or kg/cubic m)",       "Total N Content",       entered,    12},
    {"Total N Application Rate (kg/ha)",           "Total N Applic Rate",   calculated, 12},
    {"Available N (%)",                            "Available N",           calculated, 10},
    {"Available N Rate For Current Crop (kg/ha)",  "Available N Rate",      calculated, 12},
    {"Available N Rate For Next Crop (kg/ha)",     "Available N Rate Next", calculated, 12},
    {"Month Applied",                              "Month Applied",         carried,    10},
}};

// The results; they are not stored.
constexpr std::array<grid_column, 4> result_columns{{
    // heading                                 stored  kind     width
    {"Field Area ID",                          "",     calculated, 30},
    {"N Available to Current Crop (kg/ha)",    "",     calculated, 24},
    {"N Available to Next Crop (kg/ha)",       "",     calculated, 24},
    {"Warnings",                               "",     calculated, 14},
}};
// clang-format on
static_assert(manure_columns[col::date].is_date && manure_columns[col::month].stored == "Month Applied" &&
              manure_columns[col::total_n].stored == "Total N Applic Rate" &&
              manure_columns[col::available_next].stored == "Available N Rate Next");

struct nitrogen_sums {
    float current_crop = 0;
    float next_crop = 0;
};

std::string one_decimal(float value) {
    return shortest_text(round_half_even(value, 1));
}

told_row told_application(const text_grid& table, int row, int column) {
    return {table.cell(row, col::date) + ", " + table.cell(row, col::manure) + ": " +
                table.cell(row, column) + " kg N/ha",
            table.number(row, column)};
}

constexpr std::string_view stored_table = "Manure_applic";

// A date outside the window is left empty, with the cells that depend on it.
row_rules application_rules(const known_fields& fields, const date_window& window, load_messages& told) {
    const auto check_date = [&window, &told](text_grid& table, int row, const recordset&) {
        const auto day = parse_date(table.cell(row, col::date));
        if (day && window.contains(*day)) return;
        if (!table.cell(row, col::date).empty()) told.add({"", window.refusal});
        for (const int c : {col::date, col::percentage, col::available, col::available_next, col::month})
            table.set_cell(row, c, "");
    };
    return {.fields = &fields, .nameless_rows_pass = true, .complete = check_date};
}

}  // namespace

text_grid empty_manure_grid() {
    text_grid table(manure_columns);
    table.add_row();
    return table;
}

text_grid empty_manure_results() {
    return text_grid(result_columns);
}

std::string application_name(const text_grid& table, int row) {
    const std::string& manure = table.cell(row, col::manure);
    std::string name = manure.empty() ? "an application" : manure;
    if (!table.cell(row, col::field).empty()) name += " on " + table.cell(row, col::field);
    if (const auto day = parse_date(table.cell(row, col::date))) name += ", " + long_date_text(*day);
    return name;
}

std::string application_rate_text(const text_grid& table, int row, explanation* why) {
    const auto rate = application_rate(table.number(row, col::amount), table.number(row, col::area), why);
    return rate ? shortest_text(*rate) : "";
}

std::string total_n_text(const text_grid& table, int row, explanation* why) {
    return default_text(total_n_rate(table.number(row, col::n_content), table.number(row, col::rate), why));
}

std::string total_n_of_analysis_text(const text_grid& table, int row, explanation* why) {
    return default_text(total_n_rate_of_analysis(leading_number(table.cell(row, col::n_content)),
                                                 leading_number(table.cell(row, col::rate)), why));
}

percentage_result percentage_of_row(const text_grid& table, int row, int working_code, explanation* why) {
    return available_percentage({.month = table.cell(row, col::month),
                                 .soil = table.cell(row, col::soil),
                                 .manure = table.cell(row, col::manure),
                                 .incorporation = table.cell(row, col::incorporation)},
                                working_code, why);
}

std::string available_n_text(const text_grid& table, int row, explanation* why) {
    return default_text(
        available_n_rate(table.number(row, col::total_n), table.number(row, col::percentage), why));
}

std::string available_n_next_text(const text_grid& table, int row, explanation* why) {
    return default_text(available_n_rate_next(table.number(row, col::total_n), why));
}

void write_application_rate(text_grid& table, int row) {
    table.set_cell(row, col::rate, application_rate_text(table, row));
}

void write_total_n(text_grid& table, int row) {
    table.set_cell(row, col::total_n, total_n_text(table, row));
}

void write_total_n_of_analysis(text_grid& table, int row) {
    table.set_cell(row, col::total_n, total_n_of_analysis_text(table, row));
}

percentage_outcome write_percentage(text_grid& table, int row, int& working_code) {
    const percentage_result result = percentage_of_row(table, row, working_code);
    working_code = result.working_code;
    if (result.outcome == percentage_outcome::found)
        table.set_cell(row, col::percentage, std::to_string(result.percentage));
    return result.outcome;
}

void write_rates(text_grid& table, int row) {
    table.set_cell(row, col::available, available_n_text(table, row));
    table.set_cell(row, col::available_next, available_n_next_text(table, row));
}

text_grid load_applications(const database& db, const known_fields& fields, const date_window& window,
                            load_messages& told) {
    text_grid table(manure_columns);
    append_rows(db, stored_table, table, application_rules(fields, window, told), told);
    table.add_row();
    return table;
}

void import_applications(const import_source& source, import_mode mode, const date_window& window,
                         text_grid& table, load_messages& told) {
    const known_fields known(source.farm);
    row_rules rules = application_rules(known, window, told);
    rules.unknown = manure_messages::imported_field_does_not_exist;
    import_rows(source.file, stored_table, table, {}, mode, rules, told);
}

void save_applications(const database& db, const text_grid& table) {
    save_grid(db, stored_table, table, table.data_row_count());
}

bool is_complete(const text_grid& table, int row) {
    for (int c = col::soil; c <= col::month; ++c)
        if (table.cell(row, c).empty()) return false;
    return true;
}

std::optional<text_grid> sum_by_field(const std::vector<farm_field>& fields, const text_grid& table,
                                      explanation* why, int told_column) {
    std::unordered_map<std::string_view, nitrogen_sums> sums;
    for (const farm_field& field : fields)
        sums[field.name] = {};
    std::vector<told_row> told;
    for (int row = 0; row < table.data_row_count(); ++row) {
        const auto found = sums.find(table.cell(row, col::field));
        if (found == sums.end()) continue;
        if (!is_complete(table, row)) return std::nullopt;
        found->second.current_crop += table.number(row, col::available);
        found->second.next_crop += table.number(row, col::available_next);
        if (why) told.push_back(told_application(table, row, told_column));
    }
    if (why) tell_rows(*why, told, "applications", "kg N/ha");
    text_grid results = empty_manure_results();
    for (const farm_field& field : fields) {
        const int row = results.add_row();
        results.set_cell(row, manure_result_column::field, field.name);
        results.set_cell(row, manure_result_column::current_crop, one_decimal(sums[field.name].current_crop));
        results.set_cell(row, manure_result_column::next_crop, one_decimal(sums[field.name].next_crop));
        results.set_cell(row, manure_result_column::warnings, "No");
    }
    return results;
}

namespace {

template <class Wanted>
std::vector<dated_rate> rates_where(const text_grid& table, const Wanted& wanted) {
    std::vector<dated_rate> found;
    for (int row = 0; row < table.data_row_count(); ++row) {
        if (!wanted(table.cell(row, col::field))) continue;
        if (const auto day = parse_date(table.cell(row, col::date)))
            found.push_back({table.cell(row, col::field), *day, table.number(row, col::total_n)});
    }
    return found;
}

std::vector<dated_rate> rates_of(recordset rows) {
    std::vector<dated_rate> found;
    for (; !rows.eof(); rows.move_next())
        found.push_back({rows.text("Field Area ID"), rows.date_value("Date").value_or(date{}),
                         leading_single(rows.text("Total N Applic Rate"))});
    return found;
}

}  // namespace

std::vector<dated_rate> dated_rates(const text_grid& table) {
    return rates_where(table, [](const std::string&) { return true; });
}

std::vector<dated_rate> dated_rates(const text_grid& table, std::string_view field) {
    return rates_where(table, [&](const std::string& name) { return name == field; });
}

std::vector<dated_rate> dated_rates(const database& db) {
    return rates_of(db.open(stored_table));
}

std::vector<dated_rate> dated_rates(const database& db, std::string_view field) {
    return rates_of(db.open(stored_table, "Field Area ID", field));
}

}  // namespace kel
