// Every figure of the composting calculator against its account, and two accounts word for word.
#include "composting/composting_grid.h"
#include "composting/composting_messages.h"
#include "composting/composting_module.h"
#include "tests/support/compared_cells.h"
#include "tests/support/dice.h"
#include "tests/support/sample_chain.h"

namespace kel::test {

using texts = std::vector<std::string>;
namespace col = composting_column;

class CompostingWhy : public sample_chain_test {
  protected:
    /// Holds the accounts of quantity and release against the recorded cells and counts those.
    int compared_recorded() const {
        int compared = 0;
        const text_grid& table = module.calculations();
        for (int row = 0; row < table.data_row_count(); ++row)
            for (const int column : {col::rate, col::release}) {
                const auto why =
                    module.why(table, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
                if (why && why->result() == table.cell(row, column)) ++compared;
            }
        return compared;
    }
    agreeing_person person;
    composting_module module{state, person};
};

TEST_F(CompostingWhy, AccountsAgreeWithTheSampleAndWithRandomCalculations) {
    open_year(2);
    module.view_database();
    EXPECT_EQ(compared_recorded(), 4);
    dice dice(5);
    for (int i = 0; i < 200; ++i) {
        const bool straw = dice.one_in(2);
        const composting_inputs inputs{std::string(dice.one_of(crop_residues()).name), dice.number(90),
                                       std::string(straw ? straw_waste : pms_waste), dice.number(3)};
        if (!module.calculate(inputs)) continue;
        const composting_shown shown = module.shown();
        const std::pair<std::string_view, std::string> labels[] = {{composting_label::rate, shown.rate},
                                                                   {composting_label::release, shown.release},
                                                                   {composting_label::note, shown.note}};
        for (const auto& [label, text] : labels) {
            const auto why = module.why(label);
            ASSERT_TRUE(why);
            EXPECT_EQ(why->result(), text) << inputs.residue << ' ' << inputs.waste_n;
        }
        module.enter_field("Low Moss");
    }
    const int rows = module.calculations().data_row_count();
    EXPECT_GT(rows, 150);
    EXPECT_EQ(compared_recorded(), 2 * rows);
}

TEST_F(CompostingWhy, TellsFactorsAndBothRoundings) {
    EXPECT_EQ(module.why(composting_label::rate), std::nullopt);
    ASSERT_TRUE(module.calculate({"Broccoli", "50", "PMS", "0.81"}));
    EXPECT_EQ(told(module.why(composting_label::release)),
              (texts{"Extra release of nitrogen next spring", "Crop residue: Broccoli (In Field Composting)",
                     "Nitrogen of crop residues, row \"Broccoli\": 78 kg N/ha",
                     "Soil mineral nitrogen at harvest: 50 kg N/ha (In Field Composting)",
                     "Waste product: Paper mill sludge (In Field Composting)",
                     "Nitrogen content of the waste: 0.81 % (In Field Composting)",
                     "Composting table of the KEL guidelines, row \"paper mill sludge, above 0.8% N\"",
                     "Locked up: 8.4 - 8 x 0.81 = 1.92 kg N per tonne of dry matter",
                     "Released in spring: 1.5 x 0.81 - 0.7 = 0.515 kg N per tonne of dry matter",
                     "As much waste is spread as locks up the nitrogen of the residue and of the soil.",
                     "(78 + 50) / 1.92 = 66.66667 tonnes of dry matter a hectare",
                     "Rounded to 1 decimal, halves away from 0: 66.7",
                     "What comes back in the next spring follows from the quantity as it was rounded.",
                     "0.515 x 66.7 = 34.3505 kg N/ha", "Rounded to 1 decimal, halves away from 0: 34.4",
                     "34.4 kg N/ha"}));
    ASSERT_TRUE(module.calculate({"Broccoli", "50", "PMS", "0.8"}));
    EXPECT_EQ(told(module.why(composting_label::rate)).at(6),
              "Composting table of the KEL guidelines, row \"paper mill sludge, up to 0.8% N\"");
}

TEST_F(CompostingWhy, SaysWhatIsMissingInARecordedRow) {
    open_year(2);
    add_row(state.assess_file, "Straw", {{"Field Area ID", "Low Moss"}, {"Crop Residue Type", "Turnip"}});
    add_row(state.assess_file, "Straw", {{"Field Area ID", "Low Moss"}, {"Crop Residue Type", "Peas"}});
    module.view_database();
    EXPECT_EQ(told(module.why(module.calculations(), 2, col::rate)).back(),
              "No crop residue of the list is chosen.");
    EXPECT_EQ(told(module.why(module.calculations(), 3, col::release)).back(),
              "The soil mineral nitrogen at harvest is not entered.");
    EXPECT_EQ(module.why(module.calculations(), 2, col::soil_n), std::nullopt);
}

}  // namespace kel::test
