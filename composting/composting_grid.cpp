#include "composting/composting_grid.h"

#include <array>

#include "composting/composting_messages.h"
#include "core/assessment_files.h"

namespace kel {

namespace {

constexpr auto entered = column_kind::entered;
constexpr std::string_view table = "Straw";

// The recorded calculations with their columns in [Straw].
// clang-format off
constexpr std::array<grid_column, 7> columns{{
    // heading                               stored column              kind   width
    {"Field Area ID",                        "Field Area ID",            entered, 26},
    {"Soil Mineral N (kg/ha)",               "Soil Mineral N",           entered, 13},
    {"Crop Residue Type",                    "Crop Residue Type",        entered, 18},
    {"PMS or Straw",                         "PMS or Straw",             entered, 11},
    {"N Content (%)",                        "N Content",                entered, 11},
    {"Waste Requirement (t DM waste/ha)",    "Recommendation",           entered, 20},
    {"Potential Spring Release (kg N/ha)",   "Potential Spring Release", entered, 20},
}};
// clang-format on
static_assert(columns[composting_column::waste].stored == "PMS or Straw" &&
              columns[composting_column::release].stored == "Potential Spring Release");

}  // namespace

text_grid empty_composting_grid() {
    text_grid calculations(columns);
    calculations.add_row();
    return calculations;
}

text_grid load_calculations(const database& db, const std::vector<farm_field>& fields, load_messages& told) {
    const known_fields known(fields);
    text_grid calculations(columns);
    append_rows(db, table, calculations,
                {.fields = &known, .unknown = composting_messages::field_does_not_exist}, told);
    calculations.add_row();
    return calculations;
}

void import_calculations(const import_source& source, import_mode mode, text_grid& calculations,
                         load_messages& told) {
    const known_fields known(source.farm);
    import_rows(source.file, table, calculations, {}, mode, {.fields = &known}, told);
}

void save_calculations(const database& db, const text_grid& calculations) {
    save_grid(db, table, calculations, calculations.data_row_count());
}

}  // namespace kel
