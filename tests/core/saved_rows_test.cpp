// What the store knows of rows that it has just written, without reading them again; a choice of columns; and
// the columns that a Save takes from the file.
#include <array>
#include <functional>

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/assessment_files.h"
#include "core/carried_columns.h"
#include "tests/support/farm_files.h"

namespace kel::test {
namespace {

using texts = std::vector<std::string>;
using choice = std::vector<std::string_view>;
using work = std::function<void(const database&)>;

constexpr std::array<grid_column, 3> field_columns{{{"Field", "Field Name", column_kind::entered, 10},
                                                    {"Soil", "Soil", column_kind::carried, 10},
                                                    {"Day", "Size", column_kind::carried, 10, true}}};

text_grid field_grid(const std::vector<std::array<const char*, 3>>& rows) {
    text_grid grid(field_columns);
    for (const auto& cells : rows) {
        const int row = grid.add_row();
        for (int c = 0; c < grid.column_count(); ++c)
            grid.set_cell(row, c, cells.at(static_cast<std::size_t>(c)));
    }
    return grid;
}

void add_fields(recordset rows, const std::vector<std::array<const char*, 2>>& fields) {
    for (const auto& [name, soil] : fields) {
        rows.add_new();
        rows.set("Field Name", name);
        if (*soil) rows.set("Soil", soil);
        rows.update();
    }
}

class SavedRows : public farm_test {
  protected:
    void SetUp() override { file = make_farm("farm.kel", {{"Low", "4"}, {"High", "5"}}); }

    /// The digest of the table within a save that does the work, and what it is when the rows are read after.
    std::pair<std::uint64_t, std::uint64_t> digests(const work& write, const char* table,
                                                    const choice& columns) {
        const database db(file);
        save_transaction save(db);
        write(db);
        const std::uint64_t within = db.digest(table, columns, 7);
        save.commit();
        EXPECT_EQ(db.digest(table, columns, 7), database(file).digest(table, columns, 7));
        return {within, database(file).digest(table, columns, 7)};
    }
    std::uint64_t digest_of(const std::vector<std::array<const char*, 2>>& fields) {
        return digests(
                   [&](const database& db) {
                       db.delete_rows("Field Data");
                       add_fields(db.open("Field Data"), fields);
                   },
                   "Field Data", {})
            .second;
    }

    std::string file;
};

TEST_F(SavedRows, AreToldWithinTheSaveAsTheyAreReadAfterIt) {
    SQLite::Database(file, SQLite::OPEN_READWRITE)
        .exec("CREATE TABLE Numbers (n REAL, Soil TEXT); INSERT INTO Numbers VALUES (1, 'x')");
    const auto anew = [](const database& db) {
        db.delete_rows("Field Data");
        add_fields(db.open("Field Data"),
                   {{"Rig", "Sands"}, {"Haugh", ""}, {"A name of some length", "Peat"}});
    };
    const std::vector<std::pair<const char*, work>> saves{
        {"anew", anew},
        {"emptied", [](const database& db) { db.delete_rows("Field Data"); }},
        {"added to",
         [](const database& db) {
             add_fields(db.open("Field Data"), {{"Rig", "Sands"}});
         }},
        {"then edited",
         [&](const database& db) {
             anew(db);
             recordset rows = db.open("Field Data");
             rows.edit();
             rows.set("Soil", "Clays");
             rows.update();
         }},
        {"then one removed",
         [&](const database& db) {
             anew(db);
             db.open("Field Data").remove();
         }},
        {"then some removed",
         [&](const database& db) {
             anew(db);
             db.delete_rows("Field Data", "Soil", "Peat");
         }},
        {"then updated",
         [&](const database& db) {
             anew(db);
             db.update_rows("Field Data", {{"Soil", "Clays"}}, "Field Name", "Rig");
         }},
        {"with a number",
         [](const database& db) {
             db.delete_rows("Field Data");
             recordset rows = db.open("Field Data");
             rows.add_new();
             rows.set("Size", 4.5);
             rows.update();
         }},
        {"by some of the columns", [](const database& db) {
             db.delete_rows("Field Data");
             add_fields(db.open("Field Data", {"Soil", "Field Name"}), {{"Rig", "Sands"}});
         }}};
    for (const auto& [name, save] : saves)
        for (const choice& columns : {choice{}, choice{"soil", "Field Name"}}) {
            const auto [within, after] = digests(save, "Field Data", columns);
            EXPECT_EQ(within, after) << name << " " << columns.size();
        }
    const auto [within, after] = digests(
        [](const database& db) {
            db.delete_rows("Numbers");
            recordset rows = db.open("Numbers");
            rows.add_new();
            rows.set("n", "0012");
            rows.update();
        },
        "Numbers", {});
    EXPECT_EQ(within, after) << "the file keeps it as 12.0";
}

TEST_F(SavedRows, AreToldFromOthersThatAreAlike) {
    const std::uint64_t digest = digest_of({{"ab", "c"}, {"d", ""}});
    EXPECT_EQ(digest_of({{"ab", "c"}, {"d", ""}}), digest);
    EXPECT_NE(digest_of({{"a", "bc"}, {"d", ""}}), digest);
    EXPECT_NE(digest_of({{"d", ""}, {"ab", "c"}}), digest);
    EXPECT_NE(digest_of({{"ab", ""}, {"d", "c"}}), digest);
    EXPECT_NE(digest_of({{"ab", "c"}, {"d", ""}, {"", ""}}), digest);
    EXPECT_NE(digest_of({{"", ""}}), digest_of({{"", ""}, {"", ""}}));
    EXPECT_NE(digest_of({}), digest_of({{"", ""}}));
}

TEST_F(SavedRows, AreReadAndEditedByTheColumnsAskedFor) {
    const database db(file);
    recordset rows = db.open("Field Data", {"Size", "Field Name"});
    EXPECT_EQ(rows.column_count(), 2);
    EXPECT_EQ(rows.view(1), "Low");
    rows.move_next();
    rows.edit();
    rows.set(0, "6");
    rows.update();
    rows.move_next();
    EXPECT_TRUE(rows.eof());
    rows.move_next();
    EXPECT_TRUE(rows.eof()) << "the walk does not begin anew";
    EXPECT_THROW(rows.text(0), file_error);
    EXPECT_EQ(column_of(file, "Field Data", "Size"), (texts{"4", "6"}));
    EXPECT_EQ(column_of(file, "Field Data", "Soil"), (texts(2, "Other mineral soils")));
    try {
        db.open("Field Data", {"Field Name", "Colour"});
        ADD_FAILURE() << "it has no such column";
    } catch (const file_error& failure) {
        EXPECT_EQ(failure.trouble(), "its table [Field Data] has no column [Colour].");
    }
}

// Rows of one text are taken in order, behind the first that stands elsewhere as before it.
TEST_F(SavedRows, TakeTheCarriedColumnsOfTheirOwnFields) {
    const database db(file);
    db.delete_rows("Field Data");
    save_grid(db, "Field Data",
              field_grid({{"Rig", "s1", ""},
                          {"Rig", "s2", "1/2/2024"},
                          {"Gone", "s3", ""},
                          {"Haugh", "s4", ""},
                          {"Rig", "s5", ""}}),
              5);
    text_grid grid = field_grid({{"Rig", "x", "3/3/2023"},
                                 {"New", "kept", ""},
                                 {"Haugh", "x", ""},
                                 {"Rig", "x", ""},
                                 {"Rig", "x", ""},
                                 {"Rig", "below", ""}});
    take_carried(db, "Field Data", grid, 5);
    EXPECT_EQ(grid, field_grid({{"Rig", "s1", ""},
                                {"New", "kept", ""},
                                {"Haugh", "s4", ""},
                                {"Rig", "s2", "01/02/2024"},
                                {"Rig", "s5", ""},
                                {"Rig", "below", ""}}));
}

}  // namespace
}  // namespace kel::test
