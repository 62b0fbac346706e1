// The reference tables: what they answer, and that a damaged one is refused with the cell's name.
#include "grass/grass_tables.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/file_error.h"
#include "core/whole_file.h"
#include "tests/support/farm_files.h"

namespace kel::test {

namespace {
const std::string built = stage_folder() + "/kel_calc/dbases/wren_grass.mdb";
}

TEST(GrassTables, AnswerByTheWholeKey) {
    const grass_tables tables{database(built)};
    EXPECT_EQ(tables.grass_rec_value("Low", "2", "Group 3"), 225.0F);
    EXPECT_EQ(tables.grass_rec_value("High", "5", "Group 6"), 20.0F);
    EXPECT_EQ(tables.grass_rec_value("Low", "6", "Group 3"), std::nullopt);
    EXPECT_EQ(tables.grass_adjustment("Low", "Silage", "2", "0"), -25.0F);
    EXPECT_EQ(tables.grass_adjustment("High", "Grazing", "0", "2"), 10.0F);
    EXPECT_EQ(tables.grass_adjustment("Low", "Silage", "-", "0"), std::nullopt);
    EXPECT_NE(tables.source().find("not an official table"), std::string::npos);
}

class DamagedGrassTables : public farm_test {
  protected:
    DamagedGrassTables() { copy_whole_file(built, copy); }
    std::string refusal() const {
        try {
            const grass_tables read{database(copy)};
        } catch (const file_error& failure) {
            EXPECT_EQ(failure.file(), copy);
            return failure.trouble();
        }
        return "read";
    }
    void set(const char* table, const char* column, const char* text) const {
        const database db(copy);
        recordset row = db.open(table);
        row.move_next();
        row.edit();
        row.set(column, text);
        row.update();
    }
    const std::string copy = path("tables.mdb");
};

// The second row of a table is changed: High, class 2, or High, grazing with one application.
TEST_F(DamagedGrassTables, AreRefusedWithTheNameOfTheCell) {
    const struct {
        const char* table;
        const char* column;
        const char* text;
        const char* told;
    } damages[] = {
        {"Grass_Recs", "Group 3", "55 kg", "Site Class 2, Group 3 is no number: 55 kg."},
        {"Grass_Recs", "Group 3", "inf", "Site Class 2, Group 3 is no number: inf."},
        {"Grass_Recs", "Site Class", "1", "Site Class 1, Group 1 is there twice."},
        {"Grass_adjust", "Adjustment", "", "Management Grazing, Cuts 0, Apps 1 has no figure."},
        {"Grass_adjust", "Apps", "7", "Management Grazing, Cuts 0, Apps 1 is missing."},
    };
    for (const auto& d : damages) {
        copy_whole_file(built, copy);
        set(d.table, d.column, d.text);
        EXPECT_EQ(refusal(), std::string("in the table [") + d.table + "] the cell Clover High, " + d.told);
    }
}

TEST_F(DamagedGrassTables, AnotherFileAndOneWithoutItsSource) {
    database(copy).delete_rows("Grass_source");
    EXPECT_EQ(grass_tables(database(copy)).source(), "");
    copy_whole_file(make_farm("farm.kel", {}), copy);
    EXPECT_EQ(refusal(), "it has no table [Grass_Recs] with the figures for grassland.");
}

TEST_F(DamagedGrassTables, AnAdvisersTablesGoBeforeTheProgramsOwn) {
    EXPECT_EQ(state.places.grass_tables(), built);
    std::filesystem::create_directory(path("dbases"));
    std::filesystem::rename(copy, path("dbases/wren_grass.mdb"));
    EXPECT_EQ(state.places.grass_tables(), path("dbases/wren_grass.mdb"));
}

}  // namespace kel::test
