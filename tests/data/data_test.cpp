// The built data tree: the template and the document agree, and the map leads from every square to a place
// and from every zone to its towns.
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/assessment_files.h"
#include "core/numbers.h"
#include "tests/support/farm_files.h"

namespace kel {
namespace {

const std::string stage = test::stage_folder();
const std::string blank = stage + "/kel_calc/dbases/blank.mdb";
const std::string grass = stage + "/kel_calc/dbases/wren_grass.mdb";
const std::string climate = stage + "/scdb/scdb.mdb";

std::vector<std::string> texts(const std::string& file, const std::string& sql) {
    SQLite::Database db(file);
    SQLite::Statement rows(db, sql);
    std::vector<std::string> found;
    while (rows.executeStep())
        found.push_back(rows.getColumn(0).getString());
    return found;
}

using table_columns = std::map<std::string, std::map<std::string, std::string>>;  // table, column, type

/// "### [Table]" headings with their rows "| `column`, ... | type | unit | meaning |".
table_columns documented_columns() {
    table_columns tables;
    std::ifstream doc(test::project_folder() + "/docs/file_format.md");
    std::string table;
    for (std::string line; std::getline(doc, line);) {
        if (line.starts_with("#")) table.clear();
        if (line.starts_with("### [")) table = line.substr(5, line.find(']') - 5);
        if (table.empty() || !line.starts_with("| `")) continue;
        const auto names_end = line.find("` | ") + 4;
        const std::string type = line.substr(names_end, line.find(' ', names_end) - names_end);
        std::istringstream names(line.substr(0, names_end));
        std::string part;
        for (bool is_name = false; std::getline(names, part, '`'); is_name = !is_name)
            if (is_name) tables[table][part] = type == "date" ? "text" : type;
    }
    return tables;
}

void add_columns(table_columns& tables, const std::string& file) {
    SQLite::Database db(file);
    SQLite::Statement rows(
        db,
        "SELECT t.name, c.name, lower(c.type) FROM sqlite_schema t, pragma_table_info(t.name) c "
        "WHERE t.type = 'table'");
    while (rows.executeStep())
        tables[rows.getColumn(0).getString()][rows.getColumn(1).getString()] = rows.getColumn(2).getString();
}

TEST(FileFormat, DocumentAndDatabasesHaveTheSameTablesAndColumns) {
    table_columns built;
    for (const std::string& file : {blank, grass, climate})
        add_columns(built, file);
    const table_columns documented = documented_columns();
    EXPECT_EQ(documented.size(), built.size());
    for (const auto& [table, columns] : documented)
        EXPECT_EQ(columns, built[table]) << table;
}

TEST(BlankAssessment, HoldsOnlyTheRowOfType) {
    for (const std::string& table : texts(blank, "SELECT name FROM sqlite_schema WHERE type = 'table'"))
        EXPECT_EQ(database(blank).open(table).record_count(), table == "Type" ? 1 : 0) << table;
    EXPECT_EQ(read_assessment_year(blank), std::nullopt);
    EXPECT_TRUE(texts(blank, "SELECT name FROM sqlite_schema WHERE type IN ('view', 'trigger')").empty());
}

TEST(LocationTables, EverySquareWithANumberHasOnePlaceAndEveryPlaceASquare) {
    const database db(climate);
    std::multiset<std::string> on_map;
    for (int y = 0; y <= 46; ++y)
        for (int x = 0; x <= 36; ++x) {
            const auto number = db.lookup(std::to_string(x), "Scot_Main_Grid", "Row", std::to_string(y));
            ASSERT_TRUE(number.has_value()) << "row " << y;
            if (number->empty()) continue;
            on_map.insert(*number);
            EXPECT_TRUE(db.lookup("Location", "Scotland", "Grid Number", *number)) << number.value();
        }
    const auto places = texts(climate, "SELECT [Grid Number] FROM Scotland");
    EXPECT_EQ(on_map, std::multiset<std::string>(places.begin(), places.end()));
    EXPECT_TRUE(
        texts(climate, "SELECT Location FROM Scotland GROUP BY Location HAVING count(*) > 1").empty());
}

TEST(LocationTables, ZonesOfPlacesAndTownsAreTheSameAndNoTownComesTwice) {
    const std::string zones = "SELECT DISTINCT KEL FROM ";
    EXPECT_EQ(texts(climate, zones + "Scotland ORDER BY KEL"),
              texts(climate, zones + "KEL_rain ORDER BY KEL"));
    EXPECT_TRUE(texts(climate, "SELECT Town FROM KEL_rain GROUP BY Town HAVING count(*) > 1").empty());
}

}  // namespace
}  // namespace kel
