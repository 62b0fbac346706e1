// Crops typed into the real screen, field by field, and what its results show for them.
#include <QStringList>
#include <array>

#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

const QString wet_spring = "More than 200 mm (8 inches)";
const QString dry_spring = "Less than 200 mm (8 inches)";
const std::string base_dressing = "Apply no more than 100kg/ha Nitrogen as base dressing.";
const std::string potato_note = "Apply 1/2 to 2/3 in the seedbed and the rest at tuber initiation.";

struct typed_crop {
    const char* soil;
    const char* previous;
    const char* planned;
    QStringList answers;  // behind the crop's last question: to that of its spring rainfall cell
    QString manures;
    QString previous_manures;
    texts figures;     // spring, seedbed, total, requirement, manures
    std::string note;  // how it begins
};

class CropFigures : public screen_test {
  protected:
    /// One field for each crop, named in their order, and the table after the winter question.
    void open_table(const std::vector<typed_crop>& crops, const char* winter) {
        std::vector<test_field> fields;
        fields.reserve(crops.size());
        for (const typed_crop& crop : crops)
            fields.push_back({field(fields.size()), "5", crop.soil});
        start_with(fields);
        press("front", "cmdFront_crops");
        drive::press(screen("crop"), winter);
        press("crop", "cmdCrops_winter_rain");
        table = grid("crop", "MSFlexGridCrops");
    }
    static std::string field(std::size_t row) { return "Field " + std::to_string(row + 1); }
    bool is_asked() const { return drive::control(screen("crop"), "fraCrops_question")->isVisible(); }
    void choose(int row, int column, const char* box, const QString& entry) const {
        drive::enter_choice(screen("crop"), table, row, column, box, entry);
    }
    void type(int row, const typed_crop& crop) const {
        choose(row, 0, "Crops_field", qt(field(static_cast<std::size_t>(row))));
        choose(row, 3, "Crops_pcrop", crop.previous);
        choose(row, 2, "Crops_ccrop", crop.planned);
        for (const QString& answer : crop.answers) {
            if (!is_asked()) drive::click_cell(table, row, 17);
            fill_box("crop", "Crops_question", answer);
        }
        if (is_asked()) press("crop", "cmdCrops_question_cancel");
        for (const auto& [column, figure] : {std::pair{12, crop.manures}, {13, crop.previous_manures}})
            if (!figure.isEmpty())
                drive::enter_number(screen("crop"), table, row, column, "Crops_manures", figure);
    }
    void expect_results(const std::vector<typed_crop>& crops) {
        for (int row = 0; row < static_cast<int>(crops.size()); ++row)
            type(row, crops[static_cast<std::size_t>(row)]);
        press("crop", "cmdCrops_continue");
        results = grid("crop", "MSFlexGridCrops_result");
        ASSERT_EQ(results->model()->rowCount(), static_cast<int>(crops.size()));
        int row = 0;
        for (const typed_crop& crop : crops) {
            texts shown;
            for (int column = 1; column <= 5; ++column)
                shown.push_back(cell(results, row, column));
            const std::string note = cell(results, row++, 6);
            EXPECT_EQ(shown, crop.figures) << crop.planned << " after " << crop.previous << ", " << crop.soil;
            EXPECT_TRUE(note.starts_with(crop.note) && note.empty() == crop.note.empty()) << note;
        }
    }
    grid_view* table = nullptr;
    grid_view* results = nullptr;
};

}  // namespace

// clang-format off
TEST_F(CropFigures, RequirementsAfterADryWinter) {
    const std::vector<typed_crop> crops{
        {"Sands",               "Winter barley",   "Winter wheat", {}, "", "", {"210", "0", "210", "210", "0"}, "A 33% / 67% split"},
        {"Sands",               "Kale",            "Winter wheat", {}, "40", "", {"100 - 70", "0", "100 - 70", "140 - 110", "40"}, "A 33% / 67% split"},
        {"Peaty soils",         "Kale",            "Winter wheat", {}, "", "", {"10 - 0", "0", "10 - 0", "10 - 0", "0"}, "A 33% / 67% split"},
        {"Peaty soils",         "Permanent grass", "Winter wheat", {}, "", "", {"0", "0", "0", "0", "0"}, "A 33% / 67% split"},
        {"Other mineral soils", "Winter barley",   "Winter oilseed rape", {}, "", "", {"180", "50", "230", "230", "0"}, "N top dressing"},
        {"Sandy loams",         "Winter barley",   "Winter oilseed rape", {}, "", "", {"180", "30", "210", "210", "0"}, "N top dressing"},
        {"Sands",               "Kale",            "Potatoes", {"Ware"}, "", "", {"0", "175 - 140", "175 - 140", "175 - 140", "0"}, potato_note},
        {"Sandy loams",         "Kale",            "Potatoes", {"Seed"}, "", "", {"0", "20 - 0", "20 - 0", "20 - 0", "0"}, ""},
        {"Sandy loams",         "Kale",            "Direct sown grass and grass/clover (spring sown)", {"Grass/clover"}, "", "", {"15", "0", "15", "15", "0"}, ""},
        {"Sands",               "Permanent grass", "Direct sown grass and grass/clover (autumn sown)", {"Grass/clover"}, "", "", {"15", "0", "15", "15", "0"}, ""},
        {"Sands",               "Permanent grass", "Beans", {}, "", "", {"0", "0", "0", "0", "0"}, ""},
        {"Sands",               "Spring barley",   "Cabbage", {}, "", "", {"357.5", "0", "357.5", "357.5", "0"}, base_dressing},
        {"Sandy loams",         "Spring barley",   "Cabbage", {}, "", "", {"325", "0", "325", "325", "0"}, base_dressing},
        {"Sands",               "Kale",            "Cabbage", {}, "", "", {"280.5 - 236.5", "0", "280.5 - 236.5", "280.5 - 236.5", "0"}, base_dressing},
        {"Peaty soils",         "Kale",            "Cabbage", {}, "", "", {"255 - 215", "0", "255 - 215", "255 - 215", "0"}, base_dressing},
        {"Shallow soils",       "Permanent grass", "Brussel Sprouts", {}, "", "", {"209 - 165", "0", "209 - 165", "209 - 165", "0"}, base_dressing},
        {"Shallow soils",       "Kale",            "Carrots", {}, "", "", {"0", "0", "0", "0", "0"}, ""},
        {"Peaty soils",         "Permanent grass", "Carrots", {}, "", "", {"0", "0", "0", "0", "0"}, ""},
        {"Sands",               "Kale",            "Parsnip", {}, "", "", {"33 - 0", "0", "33 - 0", "33 - 0", "0"}, ""},
        {"Peaty soils",         "Kale",            "Parsnip", {}, "", "", {"33 - 0", "0", "33 - 0", "33 - 0", "0"}, ""},
        {"Sands",               "Kale",            "Beetroot, Red (baby)", {}, "", "", {"126.5 - 82.5", "0", "126.5 - 82.5", "126.5 - 82.5", "0"}, ""},
        {"Sands",               "Spring barley",   "Carrots", {}, "", "", {"66", "0", "66", "66", "0"}, ""},
        {"Sands",               "Seed potatoes",   "Lettuce", {}, "", "", {"198", "0", "198", "198", "0"}, base_dressing + " Nitrogen applications in excess of 100kg/ha should be applied as one or more top dressings. (Base dressings up to 180kg/ha"},
    };
    // clang-format on
    open_table(crops, "optCrops_winter_rain_2");
    expect_results(crops);
    // A note is shown in full, on as many lines as it needs.
    const int none = results->rowHeight(21);
    const int dressing = results->rowHeight(15);
    EXPECT_GE(dressing, none + results->fontMetrics().height());
    EXPECT_GE(results->rowHeight(22), dressing + results->fontMetrics().height());
}

// clang-format off
TEST_F(CropFigures, AdjustmentsAfterAWetWinter) {
    const std::vector<typed_crop> crops{
        {"Sandy loams", "Winter barley",       "Winter wheat", {"Bread making", "Yes", wet_spring}, "40", "10", {"210", "0", "210", "200", "50"}, "A 20% / 80% split"},
        {"Sands",       "Leek (average yield - 17.5 t/ha)", "Cabbage", {}, "50", "", {"305.5", "0", "305.5", "335.5", "50"}, base_dressing},
        {"Sands",       "Spring oilseed rape", "Potatoes", {"Ware", "Determinate variety (producing small and short lived canopies - e.g. Estima, Maris Peer, Saxon)", wet_spring}, "40", "", {"0", "235", "225.9", "235", "40"}, potato_note},
        {"Sands",       "Spring oilseed rape", "Potatoes", {"Ware", "Cara (a very indeterminate variety)", wet_spring}, "", "", {"39", "235", "276.7", "235", "0"}, potato_note},
        {"Sandy loams", "Spring barley",       "Winter barley", {"Malt for brewing", dry_spring}, "", "", {"150", "0", "150", "180", "0"}, "A 50% / 50% split"},
        {"Peaty soils", "Spring oilseed rape", "Winter barley", {"None of these", dry_spring}, "", "", {"80", "0", "80", "70", "0"}, "A 33% / 67% split"},
        {"Peaty soils", "Spring oilseed rape", "Linseed", {}, "", "", {"0", "0", "0", "0", "0"}, ""},
        {"Peaty soils", "Spring oilseed rape", "Peas", {}, "", "", {"10", "0", "10", "0", "0"}, ""},
        {"Sands",       "Spring barley",       "Forage maize", {wet_spring}, "", "", {"160", "0", "160", "140", "0"}, ""},
        {"Sands",       "Spring barley",       "Linseed", {wet_spring}, "", "", {"80", "0", "80", "80", "0"}, ""},
        {"Sands",       "Spring barley",       "Winter oilseed rape", {wet_spring}, "", "", {"195", "30", "225", "210", "0"}, "N top dressing"},
        {"Sands",       "Spring barley",       "Spring barley (low N malting)", {"Yes", "8", dry_spring}, "", "", {"87", "0", "87", "130", "0"}, ""},
        {"Sandy loams", "Kale",                "Daffodil bulbs", {}, "60", "", {"0", "0", "0", "10", "60"}, ""},
    };
    // clang-format on
    open_table(crops, "optCrops_winter_rain_1");
    expect_results(crops);
}

// Low nitrogen malting barley that was stored after beans, whatever the reason: no message as it loads, and
// the figures of the row before.
TEST_F(CropFigures, AStoredCropThatTheTablesLackShowsTheFiguresOfTheRowBefore) {
    open_farm({{"North", "5", "Sands"}, {"South", "5", "Sands"}});
    for (const auto& [name, crop, group] : {std::array{"North", "WW", "1"}, {"South", "SB (low N)", "4"}})
        add_row(state.assess_file, "Crops",
                {{"Field Area ID", name},
                 {"Soil Type", "Sands"},
                 {"Next Crop", crop},
                 {"Previous or Current Crop", "FB"},
                 {"N Residue Group", group}});
    write_store(state);
    start();
    press("front", "cmdFront_crops");
    press("crop", "cmdCrops_winter_rain");
    press("crop", "cmdCrops_continue");
    results = grid("crop", "MSFlexGridCrops_result");
    for (int column = 1; column <= 6; ++column)
        EXPECT_EQ(cell(results, 1, column), cell(results, 0, column)) << column;
    EXPECT_EQ(cell(results, 1, 3), "210");
}

}  // namespace kel::test
