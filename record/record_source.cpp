#include "record/record_source.h"

#include <optional>

#include "core/assessment_store.h"

namespace kel {

namespace {

constexpr std::string_view field_column = "Field Area ID";

using histories = std::unordered_map<std::string, field_history>;

// The rows of one table, of the field wanted or of all.
class table_reader {
  public:
    table_reader(const database& db, const std::string* field) : db_(db), field_(field) {}

    template <class take_row>
    void each(std::string_view table, histories& found, const take_row& take) const {
        recordset rows = field_ ? db_.open(table, field_column, *field_) : db_.open(table);
        for (; !rows.eof(); rows.move_next())
            take(rows, found[rows.text(field_column)]);
    }

  private:
    const database& db_;
    const std::string* field_;
};

manure_record read_manure(const recordset& row) {
    return {.day = row.text("Date"),
            .manure = row.text("Manure Type"),
            .n_content = row.text("Total N Content"),
            .rate = row.text("Applic Rate"),
            .total_n = row.text("Total N Applic Rate")};
}

inorganic_record read_inorganic(const recordset& row) {
    return {.day = row.text("Date"),
            .type = row.text("Type"),
            .amount = row.text("Amount"),
            .total_n = row.text("Total N"),
            .comments = row.text("Comments")};
}

crop_record read_crop(const recordset& row) {
    return {.next_crop = row.text("Next Crop"),
            .previous_crop = row.text("Previous or Current Crop"),
            .sowing_day = row.text("Sowing date"),
            .previous_harvest = row.text("Hdate p_crop"),
            .current_harvest = row.text("Hdate c_crop")};
}

void read_applications(const table_reader& file, field_year field_history::*year, histories& found) {
    file.each("Manure_applic", found, [year](const recordset& row, field_history& field) {
        (field.*year).manures.push_back(read_manure(row));
    });
    file.each("Inorganic N", found, [year](const recordset& row, field_history& field) {
        (field.*year).inorganics.push_back(read_inorganic(row));
    });
    file.each("Land", found, [year](const recordset& row, field_history& field) {
        if (!(field.*year).land) (field.*year).land = read_land_use(row);
    });
}

// A field's first row counts.
void read_requirements(const table_reader& file, histories& found) {
    file.each("Crops", found, [](const recordset& row, field_history& field) {
        if (!field.crop) field.crop = read_crop(row);
    });
    file.each("Site", found, [](const recordset& row, field_history& field) {
        if (!field.grass) field.grass = site_record{row.text("Site Use"), row.text("End of season date")};
    });
    file.each("Recommendations", found, [](const recordset& row, field_history& field) {
        if (!field.n_required) field.n_required = row.text("N required");
    });
}

histories read_files(const database* current, const database* last_year, const std::string* field) {
    histories found;
    if (current) {
        const table_reader file(*current, field);
        read_applications(file, &field_history::current, found);
        read_requirements(file, found);
    }
    if (last_year) read_applications(table_reader(*last_year, field), &field_history::previous, found);
    return found;
}

std::optional<database> opened(const std::string& path) {
    return path.empty() ? std::nullopt : std::optional(database(path));
}

histories read_files(const application_state& state, const std::string* field) {
    const auto current = opened(state.assess_file);
    const auto last_year = opened(state.prev1_file);
    return read_files(current ? &*current : nullptr, last_year ? &*last_year : nullptr, field);
}

}  // namespace

record_year record_year_of(const application_state& state) {
    return {state.kel_year_start, state.farm_zone};
}

field_history read_history(const application_state& state, const std::string& field) {
    return read_files(state, &field)[field];
}

histories read_histories(const application_state& state) {
    return read_files(state, nullptr);
}

histories read_histories(const database& file, const database* last_year) {
    return read_files(&file, last_year, nullptr);
}

}  // namespace kel
