#include "standing/season_calendar.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/numbers.h"
#include "inorganic/inorganic_grid.h"
#include "manure/field_limit_check.h"
#include "manure/manure_grids.h"
#include "rules/manure_catalogue.h"
#include "rules/nitrogen_limits.h"
#include "standing/season_bands.h"
#include "standing/season_messages.h"

namespace kel {

namespace {

namespace text = season_messages;

/// Puts the applications into the fields of one farm's year.
class season_reader {
  public:
    explicit season_reader(const farm_year& year);
    season_calendar read();

  private:
    void read_manures();
    void read_fertilisers();
    void add_peaks(const std::vector<std::optional<float>>& sums);
    std::optional<std::vector<dated_rate>> read_last_year();
    std::vector<std::optional<float>> rolling_sums_of_rows();
    bool within_year(date day) const { return season_.first <= day && day <= season_.last; }
    field_season* find(const std::string& name);

    const farm_year& year_;
    season_calendar season_;
    std::optional<season_bands> bands_{};
    std::unordered_map<std::string, std::size_t> places_;
    std::string not_counted_;  // why last year's applications cannot be; empty: they are
    text_grid manures_ = empty_manure_grid();
};

season_reader::season_reader(const farm_year& year) : year_(year) {
    season_.farm = year.profile.farm_name;
    if (year.fields.empty()) season_.missing = text::no_fields;
    const auto& start = year.profile.kel_year_start;
    if (!start) {
        season_.missing = text::no_year;
        return;
    }
    const year_limits limits = year_limits_of(*start);
    season_.first = limits.year_start;
    season_.last = limits.year_end;
}

season_calendar season_reader::read() {
    if (!season_.missing.empty()) return std::move(season_);
    if (year_.profile.farm_zone.empty()) season_.notes.emplace_back(text::no_zone);
    for (const std::string& trouble : year_.link_troubles)
        season_.notes.push_back(trouble);
    bands_.emplace(year_);
    season_.fields.reserve(year_.fields.size());
    for (const farm_field& profile : year_.fields) {
        places_.try_emplace(profile.name, season_.fields.size());
        season_.fields.push_back({.name = profile.name, .size_ha = profile.size, .soil = profile.soil});
        bands_->add_to(season_.fields.back());
    }
    read_manures();
    read_fertilisers();
    for (field_season& field : season_.fields)
        std::ranges::stable_sort(field.marks, {}, &season_mark::day);
    return std::move(season_);
}

field_season* season_reader::find(const std::string& name) {
    const auto found = places_.find(name);
    return found == places_.end() ? nullptr : &season_.fields[found->second];
}

std::string manure_amount(const text_grid& table, int row) {
    namespace col = manure_column;
    const auto type = find_manure(table.cell(row, col::manure));
    std::string amount;
    const auto add = [&](int column, std::string_view before, const std::string& behind) {
        const std::string& cell = table.cell(row, column);
        if (!cell.empty()) amount.append(before).append(cell).append(behind);
    };
    add(col::rate, "", " " + (type ? std::string(type->unit_applied) : "t or cubic m") + "/ha");
    add(col::area, " on ", " ha");
    add(col::total_n, ", ", " kg N/ha");
    return amount;
}

void season_reader::read_manures() {
    namespace col = manure_column;
    const known_fields known(year_.fields);
    load_messages not_told;
    manures_ = load_applications(year_.current.file, known, {season_.first, season_.last, {}}, not_told);
    const int stored = year_.current.file.open("Manure_applic").record_count();
    if (const int unknown = stored - manures_.data_row_count(); unknown > 0)
        season_.notes.push_back(text::of_unknown_fields(unknown));
    const auto sums = rolling_sums_of_rows();
    add_peaks(sums);
    for (int row = 0; row < manures_.data_row_count(); ++row) {
        const auto day = parse_date(manures_.cell(row, col::date));
        field_season* field = find(manures_.cell(row, col::field));
        if (!field || !day) continue;
        const std::string& type = manures_.cell(row, col::manure);
        const bool exempt = is_exempt_fym(type);
        const bool closed = !exempt && bands_->closed_to_manure(field->name, *day);
        field->marks.push_back({*day, exempt ? applied_as::exempt_manure : applied_as::manure, type,
                                manure_amount(manures_, row), closed, sums[static_cast<std::size_t>(row)]});
    }
}

// Nothing where no file is linked; one that cannot be counted says why.
std::optional<std::vector<dated_rate>> season_reader::read_last_year() {
    const auto not_counted = [this](const std::string& trouble) {
        not_counted_ = text::last_year_not_counted(trouble);
    };
    try {
        if (year_.last_year) return dated_rates(year_.last_year->file);
        if (!year_.link_troubles.empty())
            not_counted(year_.link_troubles.front());
        else
            season_.notes.emplace_back(text::no_last_year);
    } catch (const file_error& failure) {
        not_counted(failure.what());
        season_.notes.push_back(not_counted_);
    }
    return std::nullopt;
}

// In row order; nothing for a row without a day, and for all where the check cannot be made.
std::vector<std::optional<float>> season_reader::rolling_sums_of_rows() {
    std::vector<std::optional<float>> of_rows(static_cast<std::size_t>(manures_.data_row_count()));
    const auto last_year = read_last_year();
    if (!not_counted_.empty()) return of_rows;
    const auto sums = rolling_sums(dated_rates(manures_), last_year);
    if (!sums) season_.notes.push_back(not_counted_ = text::last_year_has_none);
    std::size_t next = 0;
    for (std::size_t row = 0; sums && row < of_rows.size(); ++row)
        if (parse_date(manures_.cell(static_cast<int>(row), manure_column::date)))
            of_rows[row] = (*sums)[next++];
    return of_rows;
}

// A field whose applications lack something has no peak, and says so.
void season_reader::add_peaks(const std::vector<std::optional<float>>& sums) {
    namespace col = manure_column;
    for (int row = 0; row < manures_.data_row_count(); ++row) {
        field_season* field = find(manures_.cell(row, col::field));
        if (!field) continue;
        const auto day = parse_date(manures_.cell(row, col::date));
        const auto& sum = sums[static_cast<std::size_t>(row)];
        if (!day)
            field->peak_missing = text::application_without_day;
        else if (manures_.cell(row, col::total_n).empty())
            field->peak_missing = text::application_without_n;
        else if (!sum && field->peak_missing.empty())
            field->peak_missing = not_counted_;
        else if (sum && (!field->peak || *sum > field->peak->n_kg_per_ha))
            field->peak = rolling_peak{*day, *sum, exceeds_limit(*sum, rolling_field_limit_kg_per_ha)};
    }
    for (field_season& field : season_.fields)
        if (!field.peak_missing.empty()) field.peak.reset();
}

std::string fertiliser_amount(const text_grid& table, int row) {
    namespace col = inorganic_column;
    return table.cell(row, col::amount) + " kg/ha with " + table.cell(row, col::content) + " % N, " +
           table.cell(row, col::total_n) + " kg N/ha";
}

void season_reader::read_fertilisers() {
    namespace col = inorganic_column;
    const text_grid table = inorganic_table::get_data(year_.current.file);
    int unknown = 0;
    int outside = 0;
    for (int row = 0; row < table.data_row_count(); ++row) {
        const auto day = parse_date(table.cell(row, col::day));
        field_season* field = find(table.cell(row, col::field));
        if (!field) {
            ++unknown;
        } else if (!day || !within_year(*day)) {
            ++outside;
        } else {
            field->marks.push_back({*day, applied_as::fertiliser, table.cell(row, col::type),
                                    fertiliser_amount(table, row),
                                    bands_->closed_to_fertiliser(field->name, *day)});
        }
    }
    if (unknown > 0) season_.notes.push_back(text::of_unknown_fields(unknown));
    if (outside > 0) season_.notes.push_back(text::outside_year(outside));
}

}  // namespace

season_calendar season_of(const farm_year& year) {
    return season_reader(year).read();
}

season_calendar season_of(const application_state& state) {
    if (state.assess_file.empty()) return {.missing = std::string(text::no_assessment)};
    const farm_year year = open_farm_year(linked_paths(state));
    season_calendar season = season_of(year);
    check_unchanged(year);
    return season;
}

}  // namespace kel
