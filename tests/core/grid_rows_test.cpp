#include "core/grid_rows.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <array>

#include "core/file_error.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

using texts = std::vector<std::string>;

constexpr std::array<grid_column, 2> columns{
    {{"Field", "Field Area ID", column_kind::entered, 10}, {"Soil", "Soil", column_kind::entered, 10}}};

class GridRows : public farm_test {
  protected:
    GridRows() { open_farm({{"Long Rig", "4"}, {"Low Moss", "5"}}); }

    std::string other_farm(const texts& names) {
        std::string file = make_farm("other.kel", {});
        for (const std::string& field : names)
            add_row(file, "Land", {{"Field Area ID", field}, {"Soil", "of " + field}});
        return file;
    }
    /// A grid of one row between a row of inputs and two rows of totals.
    static text_grid framed_grid() {
        text_grid grid(columns);
        grid.set_row_count(4);
        grid.set_cell(0, 0, "inputs");
        grid.set_cell(1, 0, "typed");
        grid.set_cell(3, 0, "total");
        return grid;
    }
    static texts fields_of(const text_grid& grid) {
        texts found;
        for (int row = 0; row < grid.row_count(); ++row)
            found.push_back(grid.cell(row, 0));
        return found;
    }
    bool import(const std::string& file, text_grid& grid, import_mode mode) {
        load_messages told;
        const bool any = import_rows(database(file), "Land", grid, {.above = 1, .below = 2}, mode,
                                     {.fields = &known, .complete = complete}, told);
        told.tell(person);
        return any;
    }

    const std::vector<farm_field> fields{{"Long Rig", "4", ""}, {"Low Moss", "5", ""}};
    const known_fields known{fields};
    const row_completion complete = [](text_grid& grid, int row, const recordset& source) {
        grid.set_cell(row, 1, grid.cell(row, 1) + "!" + source.text("Field Area ID"));
    };
    scripted_prompts person;
};

TEST_F(GridRows, UnknownFieldsAreLeftOutAndToldAndTheOthersCompleted) {
    const std::string file = other_farm({"Low Moss", "Sold", "", "Long Rig", "Low Moss"});
    text_grid grid(columns);
    load_messages told;
    append_rows(database(file), "Land", grid, {.fields = &known, .complete = complete}, told);
    EXPECT_EQ(fields_of(grid), (texts{"Low Moss", "Long Rig", "Low Moss"}));
    EXPECT_EQ(grid.cell(1, 1), "of Long Rig!Long Rig");
    person.expect(module_messages::field_does_not_exist("Sold"));
    person.expect(module_messages::field_does_not_exist(""));
    told.tell(person);

    load_messages of_nameless;
    append_rows(database(file), "Land", grid, {.fields = &known, .nameless_rows_pass = true}, of_nameless);
    EXPECT_EQ(grid.row_count(), 7);
    person.expect(module_messages::field_does_not_exist("Sold"));
    of_nameless.tell(person);
    append_rows(database(file), "Land", grid);
    EXPECT_EQ(grid.row_count(), 12);
}

TEST_F(GridRows, TwentyBoxesThenOneThatCountsTheRest) {
    for (const int unknown : {20, 21, 23}) {
        load_messages told;
        for (int i = 0; i < unknown; ++i)
            told.add(module_messages::field_does_not_exist(std::to_string(i)));
        for (int i = 0; i < 20; ++i)
            person.expect(module_messages::field_does_not_exist(std::to_string(i)));
        if (unknown == 21)
            person.expect({"Further messages", "There was 1 more message about the rows of this file."});
        if (unknown == 23)
            person.expect({"Further messages", "There were 3 more messages about the rows of this file."});
        told.tell(person);
        person.verify_done();
    }
}

TEST_F(GridRows, CopiesOfAGridGoTheirOwnWays) {
    text_grid grid = framed_grid();
    text_grid copy = grid;
    EXPECT_EQ(copy, grid);
    copy.set_cell(1, 0, "of the copy");
    grid.set_cell(3, 0, "of the grid");
    EXPECT_EQ(fields_of(grid), (texts{"inputs", "typed", "", "of the grid"}));
    EXPECT_EQ(fields_of(copy), (texts{"inputs", "of the copy", "", "total"}));
    EXPECT_FALSE(copy == grid);
    copy.set_cell(1, 0, "typed");
    grid.set_cell(3, 0, "total");
    EXPECT_EQ(copy, grid);
}

TEST_F(GridRows, ImportAddsBelowTheRowsOrReplacesThemAndKeepsTheFrame) {
    const std::string file = other_farm({"Low Moss", "Long Rig"});
    text_grid grid = framed_grid();
    EXPECT_TRUE(import(file, grid, import_mode::add));
    EXPECT_EQ(fields_of(grid), (texts{"inputs", "typed", "Low Moss", "Long Rig", "", ""}));
    grid = framed_grid();
    EXPECT_TRUE(import(file, grid, import_mode::over_write));
    EXPECT_EQ(fields_of(grid), (texts{"inputs", "Low Moss", "Long Rig", "", ""}));
    EXPECT_EQ(grid.cell(2, 1), "of Long Rig!Long Rig");
}

TEST_F(GridRows, ImportOfAnEmptyTableChangesNothingAndOfUnknownFieldsLeavesNone) {
    text_grid grid = framed_grid();
    EXPECT_FALSE(import(make_farm("empty.kel", {}), grid, import_mode::over_write));
    EXPECT_EQ(grid, framed_grid());
    person.expect(module_messages::field_does_not_exist("Sold"));
    EXPECT_TRUE(import(other_farm({"Sold"}), grid, import_mode::over_write));
    EXPECT_EQ(fields_of(grid), (texts{"inputs", "", ""}));
}

TEST_F(GridRows, ImportFromAFileThatIsNoWholeAssessmentNamesItAndChangesNothing) {
    const std::string letter = path("letter.kel");
    write_file(letter, "Dear Sir, this is no database but a letter of some length.");
    const std::string poor = other_farm({"Long Rig"});
    SQLite::Database(poor, SQLite::OPEN_READWRITE).exec("ALTER TABLE [Land] DROP COLUMN [Soil]");
    const std::pair<std::string, const char*> files[] = {
        {letter, "it is not an assessment file, or it is damaged."},
        {poor, "its table [Land] has no column [Soil]."}};
    for (const auto& [file, trouble] : files) {
        text_grid grid = framed_grid();
        try {
            import(file, grid, import_mode::over_write);
            ADD_FAILURE() << file << " was taken";
        } catch (const file_error& failure) {
            EXPECT_EQ(failure.file() + failure.trouble(), file + trouble);
        }
        EXPECT_EQ(grid, framed_grid());
    }
}

}  // namespace
}  // namespace kel::test
