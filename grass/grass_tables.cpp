#include "grass/grass_tables.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "core/file_error.h"
#include "grass/sward_choices.h"

namespace kel {

namespace {

constexpr std::string_view recs_table = "Grass_Recs";
constexpr std::string_view adjust_table = "Grass_adjust";
constexpr std::array<std::string_view, 5> site_class_texts{"1", "2", "3", "4", "5"};
constexpr std::array<std::string_view, 6> group_labels{"Group 1", "Group 2", "Group 3",
                                                       "Group 4", "Group 5", "Group 6"};

// The key of a cell is its name for the person.
std::string rec_key(std::string_view clover, std::string_view site_class, std::string_view group_label) {
    std::string key = "Clover ";
    return key.append(clover).append(", Site Class ").append(site_class).append(", ").append(group_label);
}

std::string adjust_key(std::string_view clover, std::string_view management, std::string_view cuts,
                       std::string_view apps) {
    std::string key = "Clover ";
    key.append(clover).append(", Management ").append(management);
    return key.append(", Cuts ").append(cuts).append(", Apps ").append(apps);
}

std::vector<std::string> needed_recs() {
    std::vector<std::string> keys;
    for (const std::string_view content : {clover::high, clover::low})
        for (const std::string_view site_class : site_class_texts)
            for (const std::string_view label : group_labels)
                keys.push_back(rec_key(content, site_class, label));
    return keys;
}

void add_applications(std::vector<std::string>& keys, std::string_view clover, std::string_view use,
                      std::string_view cuts) {
    for (const std::string_view apps : application_choices(clover).texts)
        if (cuts != cuts_without_aftermath || apps == no_applications)
            keys.push_back(adjust_key(clover, use, cuts, apps));
}

/// Every combination that a person can answer and that is looked up.
std::vector<std::string> needed_adjustments() {
    std::vector<std::string> keys;
    for (const std::string_view content : {clover::high, clover::low})
        for (const std::string_view use : {grass_use::silage, grass_use::hay, grass_use::grazing}) {
            const sward_management& management = *management_of(content, use);
            if (!management.adjustment_kg_per_ha.empty()) continue;
            if (management.cuts == not_cut)
                add_applications(keys, content, use, lookup_cuts(not_cut));
            else
                for (const std::string_view cuts : cut_choices().texts)
                    add_applications(keys, content, use, cuts);
        }
    return keys;
}

std::optional<float> whole_number_text(std::string_view text) {
    float value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (text.empty() || read.ec != std::errc{} || read.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// Reads one table; every refusal names table and cell.
class cells_reader {
  public:
    cells_reader(const database& reference, std::string_view table)
        : path_(reference.path()), table_(table) {}

    void add(std::string key, const std::string& text) {
        const auto value = whole_number_text(text);
        if (!value) refuse(key, text.empty() ? "has no figure" : "is no number: " + text);
        if (!values_.emplace(key, *value).second) refuse(key, "is there twice");
    }

    std::map<std::string, float, std::less<>> take(const std::vector<std::string>& needed) {
        for (const std::string& key : needed)
            if (!values_.contains(key)) refuse(key, "is missing");
        return std::move(values_);
    }

  private:
    [[noreturn]] void refuse(const std::string& key, const std::string& trouble) const {
        throw file_error(path_,
                         "in the table [" + std::string(table_) + "] the cell " + key + " " + trouble + ".");
    }

    std::string path_;
    std::string_view table_;
    std::map<std::string, float, std::less<>> values_;
};

bool has_table(const database& reference, std::string_view table) {
    return !reference.open("sqlite_master", "name", table).eof();
}

recordset open_figures(const database& reference, std::string_view table) {
    if (!has_table(reference, table))
        throw file_error(reference.path(),
                         "it has no table [" + std::string(table) + "] with the figures for grassland.");
    return reference.open(table);
}

// Tables from elsewhere may have none to tell.
std::string source_of(const database& reference) {
    constexpr std::string_view table = "Grass_source";
    if (!has_table(reference, table)) return {};
    const recordset source = reference.open(table);
    return source.eof() ? std::string{} : source.text("Source");
}

}  // namespace

grass_tables::grass_tables(const database& reference) {
    cells_reader recs(reference, recs_table);
    for (recordset row = open_figures(reference, recs_table); !row.eof(); row.move_next())
        for (const std::string_view label : group_labels)
            recs.add(rec_key(row.text("Clover"), row.text("Site Class"), label), row.text(label));
    requirements_ = recs.take(needed_recs());
    cells_reader adjust(reference, adjust_table);
    for (recordset row = open_figures(reference, adjust_table); !row.eof(); row.move_next())
        adjust.add(adjust_key(row.text("Clover"), row.text("Management"), row.text("Cuts"), row.text("Apps")),
                   row.text("Adjustment"));
    adjustments_ = adjust.take(needed_adjustments());
    source_ = source_of(reference);
}

std::optional<float> grass_tables::grass_rec_value(std::string_view clover, std::string_view site_class,
                                                   std::string_view group_label) const {
    const auto found = requirements_.find(rec_key(clover, site_class, group_label));
    return found == requirements_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<float> grass_tables::grass_adjustment(std::string_view clover, std::string_view management,
                                                    std::string_view cuts, std::string_view apps) const {
    const auto found = adjustments_.find(adjust_key(clover, management, cuts, apps));
    return found == adjustments_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace kel
