// A farm of the KEL year 2024-25 opened in the manure module, with the person scripted.
#pragma once

#include <string>
#include <vector>

#include "manure/manure_messages.h"
#include "manure/manure_module.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {

namespace says = manure_messages;
namespace manure_col = manure_column;
using texts = std::vector<std::string>;

inline const std::string dairy = "Dairy slurry - high dry matter (10%)";  // 4.0 kg N per cubic m
inline const std::string covered_fym = "Cattle FYM stored under cover";   // 6 kg N per tonne
inline const std::string strainer = "Separated cattle slurry - strainer box";
inline const std::string layer = "Layer manure stored under cover";

class manure_test : public farm_test {
  protected:
    manure_test() { state.manure_caller = manure_opener::front; }

    void open(const std::vector<test_field>& fields) {
        open_farm(fields);
        module.manure_load_stuff();
    }
    /// A field with land: 10 ha available, all of it open from January to November, October closed, no land
    /// left in December.
    void add_land(const std::string& field) {
        row_values values = {
            {"Field Area ID", field}, {"Available Field Area (ha)", "10.00"}, {"October", "Closed"}};
        for (int month = 1; month <= 11; ++month)
            if (month != 10) values.emplace_back(std::string(month_name(month)), "10.00");
        add_row(state.assess_file, "Land", values);
    }
    /// A stored application with all its cells filled.
    static void add_application(const std::string& file, const std::string& field, const std::string& day,
                                const std::string& total_n, const std::string& manure = dairy) {
        add_row(file, "Manure_applic",
                {{"Field Area ID", field},
                 {"Soil", "Sandy loams"},
                 {"Incorporation", "Over 6 hours"},
                 {"Manure Type", manure},
                 {"Date", day},
                 {"Area Spread", "10"},
                 {"Amount Applied", "250"},
                 {"Applic Rate", "25"},
                 {"Total N Content", "4.0"},
                 {"Total N Applic Rate", total_n},
                 {"Available N", "20"},
                 {"Available N Rate", "20.25"},
                 {"Available N Rate Next", "10"},
                 {"Month Applied", "March"}});
    }
    std::string cell(int row, int column) const { return module.applications().cell(row, column); }
    texts row_cells(int row) const {
        texts found;
        for (int c = manure_col::field; c <= manure_col::month; ++c)
            found.push_back(cell(row, c));
        return found;
    }
    texts result_column(int column) const {
        texts found;
        for (int row = 0; row < module.results().row_count(); ++row)
            found.push_back(module.results().cell(row, column));
        return found;
    }
    texts stored(const std::string& column) const {
        return column_of(state.assess_file, "Manure_applic", column);
    }

    scripted_prompts person;
    manure_module module{state, person};
};

}  // namespace kel::test
