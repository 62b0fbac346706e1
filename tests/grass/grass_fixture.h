// A farm with the module on it: two opening questions answered, the site table in view.
#pragma once

#include <string>
#include <vector>

#include "grass/grass_messages.h"
#include "grass/grass_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/noted_screens.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

class grass_test : public farm_test {
  protected:
    grass_test() : module(state, person, shown) {}

    /// 425 - 500 mm of rain, low: class 3 for sands, 2 for the other soils.
    void open(const std::vector<test_field>& fields) {
        open_farm(fields);
        load();
    }
    void load() {
        module.grass_load_stuff();
        module.confirm_rain(1);
        module.confirm_altitude(0);
    }

    /// A stored row of [Site] for the field: low clover, silage, one cut and one application.
    void add_site(const std::string& field, row_values more = {}) {
        row_values values{{"Field Area ID", field}, {"Soil Type", "Other mineral soils"},
                          {"Clover", "Low"},        {"N residue group", "6"},
                          {"Site Use", "Silage"},   {"Cuts", "1"},
                          {"Applications", "1"},    {"Adjustment", "-75"},
                          {"Previous crop", "PG"}};
        values.insert(values.end(), more.begin(), more.end());
        add_row(state.assess_file, "Site", values);
    }
    void add_lu(const std::string& type, const std::string& units) {
        add_row(state.assess_file, "LU", {{"Stock Type", type}, {"Livestock Units", units}});
    }

    site_page& site() { return module.site(); }
    std::string cell(int row, int column) { return site().table().cell(row, column); }
    std::vector<std::string> site_column_texts(const std::string& column) {
        return column_of(state.assess_file, "Site", column);
    }
    static box_entry sward(const std::string& name, date season_end) {
        return {{{.text = name}, {.text = short_date_text(season_end), .day = season_end}}};
    }

    scripted_prompts person;
    noted_screens shown;
    grass_module module;
};

using texts = std::vector<std::string>;

}  // namespace kel::test
