// A farm opened in the storage module, with the person scripted. Rain: a town of the climate tables.
#pragma once

#include <string>
#include <vector>

#include "storage/storage_messages.h"
#include "storage/storage_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace says = storage_messages;
using texts = std::vector<std::string>;

class storage_test : public farm_test {
  protected:
    /// A farm with its fields in [Land], each with its whole size available.
    void open(const std::vector<test_field>& fields) {
        open_farm(fields);
        for (const test_field& field : fields)
            add_land(field, {});
        module.storage_load_stuff();
    }
    void add_land(const test_field& field, const row_values& more) {
        row_values row{
            {"Field Area ID", field.name}, {"Soil", field.soil}, {"Available Field Area (ha)", field.size}};
        row.insert(row.end(), more.begin(), more.end());
        add_row(state.assess_file, "Land", row);
    }
    void add_store(const std::string& name, const std::string& percent) {
        add_row(state.assess_file, "Slurry_store",
                {{"Store_name", name},
                 {"Store_shape", "Square or rectangular"},
                 {"Store_depth", "2.3"},
                 {"Store_length", "10"},
                 {"Store_width", "5"},
                 {"Store_%", percent},
                 {"Rain_area", "50"}});
    }
    /// To the stores, with no dirty water.
    void walk_to_stores() {
        module.water().set_cows("0");
        module.water().set_pig_pens("0");
        ASSERT_TRUE(module.storage_cont1());
    }
    /// To the tables, with a store of 100 cubic metres that is half full.
    void walk_to_plan() {
        add_store("Tank", "50");
        walk_to_stores();
        ASSERT_TRUE(module.storage_cont2());
    }
    /// To the tables, without a store.
    void walk_without_stores() {
        walk_to_stores();
        person.expect(says::no_stores, answer::yes).expect(says::capacity_not_assessed);
        ASSERT_TRUE(module.storage_cont2());
    }
    /// A farm of one field of 10 hectares, on the third page.
    void open_plan(const std::string& soil = "Other mineral soils") {
        open({{"Home", "10", soil}});
        walk_to_plan();
    }
    void expect_in_order(const std::vector<message>& boxes) {
        for (const message& box : boxes)
            person.expect(box);
    }
    std::string link_last_year(const std::vector<test_field>& fields = {}) {
        return state.prev1_file = make_farm("last.kel", fields, 2023);
    }
    texts stored(const std::string& table, const std::string& column) const {
        return column_of(state.assess_file, table, column);
    }
    static texts cells(const text_grid& grid, int row, int first, int last) {
        texts found;
        for (int c = first; c <= last; ++c)
            found.push_back(grid.cell(row, c));
        return found;
    }
    texts land_months(int row) const {
        return cells(plan.land(), row, plan_column::january, plan_column::december);
    }
    texts spreading_months(int row) const {
        return cells(plan.spreading(), row, spreading_column::january, spreading_column::december);
    }
    texts production_months(int row) const {
        return cells(plan.production(), row, production_column::january, production_column::january + 11);
    }

    scripted_prompts person;
    storage_module module{state, person};
    plan_page& plan = module.plan();
};

}  // namespace kel::test
