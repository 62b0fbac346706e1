#include "core/assessment_files.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <array>
#include <filesystem>

#include "core/file_stamp.h"
#include "core/strangers_file.h"
#include "core/text_grid.h"
#include "core/whole_file.h"
#include "tests/support/farm_files.h"

namespace kel::test {
namespace {

constexpr std::array<grid_column, 3> pair_columns{{{"Item", "Item", column_kind::entered, 10},
                                                   {"Value", "Value", column_kind::entered, 10},
                                                   {"Shown only", "", column_kind::calculated, 10}}};

class Store : public farm_test {
  protected:
    void run_sql(const std::string& file, const std::string& sql) {
        SQLite::Database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(sql);
    }
    static std::string trouble_with(const std::function<void()>& work) {
        try {
            work();
        } catch (const file_error& e) {
            return e.trouble();
        }
        return {};
    }
    static text_grid items(int count, const std::string& value) {
        text_grid grid(pair_columns);
        for (int i = 0; i < count; ++i) {
            grid.set_cell(grid.add_row(), 0, "item " + std::to_string(i));
            grid.set_cell(i, 1, value);
        }
        grid.add_row();
        return grid;
    }
    static void save_items(const std::string& file, const text_grid& grid) {
        const database db(file);
        save_transaction save(db);
        save_grid(db, "Misc", grid, grid.data_row_count());
        save.commit();
    }
};

TEST_F(Store, SavedRowsComeBackInOrderAndEmptyCellsStayUnset) {
    open_farm({});
    const std::string odd = std::string(10000, 'x') + "' \"<b>\" \U0001F404";
    text_grid grid = items(2, odd);
    grid.set_cell(1, 1, "");
    save_items(state.assess_file, grid);
    save_items(state.assess_file, grid);
    EXPECT_EQ(column_of(state.assess_file, "Misc", "value"), (std::vector<std::string>{odd, ""}));
    text_grid loaded(pair_columns);
    {
        const recordset rows = database(state.assess_file).open("Misc", "Item", "item 0");
        EXPECT_EQ(rows.record_count(), 1);
        load_grid_row(rows, loaded, loaded.add_row());
    }
    EXPECT_EQ(loaded.cell(0, 1), odd);
    save_items(state.assess_file, text_grid(pair_columns));
    EXPECT_TRUE(column_of(state.assess_file, "Misc", "Item").empty());
}

TEST_F(Store, EditChangesOnlyWhatWasSetAndRemoveTakesOneRow) {
    open_farm({{"North", "4"}, {"Bob's", "5"}, {"South", "6"}});
    const database db(state.assess_file);
    for (recordset rows = db.open("Field Data"); !rows.eof(); rows.move_next()) {
        if (rows.text("Field Name") == "Bob's") {
            rows.edit();
            rows.set("Soil", "Sands");
            rows.update();
        }
        if (rows.text("Field Name") == "South") rows.remove();
    }
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name"),
              (std::vector<std::string>{"North", "Bob's"}));
    EXPECT_EQ(db.lookup("Soil", "Field Data", "Field Name", "Bob's"), "Sands");
    EXPECT_EQ(db.lookup("Size", "Field Data", "Field Name", "Bob's"), "5");
    EXPECT_FALSE(db.lookup("Soil", "Field Data", "Field Name", "South"));
}

TEST_F(Store, EachEditOfAWalkWritesItsOwnColumns) {
    open_farm({{"North", "4"}, {"South", "5"}, {"East", "6"}});
    const std::vector<row_values> edits{
        {{"Size", "7"}, {"Soil", "Sands"}}, {{"Soil", "Peat"}, {"KEL Size", "1"}}, {{"Size", "8"}}};
    const database db(state.assess_file);
    recordset rows = db.open("Field Data");
    for (const row_values& edit : edits) {
        rows.edit();
        for (const auto& [column, text] : edit)
            rows.set_kept(rows.column(column), text);
        rows.update();
        rows.move_next();
    }
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Size"), (std::vector<std::string>{"7", "5", "8"}));
    EXPECT_EQ(db.lookup("Soil", "Field Data", "Field Name", "South"), "Peat");
    EXPECT_EQ(db.lookup("KEL Size", "Field Data", "Field Name", "South"), "1");
}

TEST_F(Store, AnUncommittedSaveLeavesEveryAttachedFileAsItWas) {
    open_farm({{"North", "4"}});
    const std::string linked = make_farm("linked.kel", {{"North", "4"}}, 2023);
    {
        const database db(state.assess_file);
        const database other = db.attach(linked);
        save_transaction save(db);
        db.delete_rows("Field Data");
        other.update_rows("Field Data", {{"Field Name", "New"}}, "Field Name", "North");
    }
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name").size(), 1U);
    EXPECT_EQ(column_of(linked, "Field Data", "Field Name").front(), "North");
}

TEST_F(Store, BrokenFilesAreNamedWithTheirTrouble) {
    open_farm({{"North", "4"}});
    const std::string good = file_text(state.assess_file);
    write_file(path("not_a_database.kel"), "Dear farmer, this is a letter." + std::string(4000, '.'));
    write_file(path("truncated.kel"), good.substr(0, good.size() / 2 / 4096 * 4096));
    write_file(path("empty.kel"), "");
    run_sql(path("no_column.kel"), "CREATE TABLE [Type] (Link TEXT); INSERT INTO [Type] VALUES ('x')");
    run_sql(path("views.kel"), "CREATE TABLE t (Year TEXT); CREATE VIEW [Type] AS SELECT * FROM t");
    const auto read_year = [&](const std::string& name) {
        return trouble_with([&] { read_assessment_year(path(name)); });
    };
    EXPECT_EQ(read_year("not_a_database.kel"), "it is not an assessment file, or it is damaged.");
    EXPECT_NE(trouble_with([&] { column_of(path("truncated.kel"), "Field Data", "Soil"); }), "");
    EXPECT_EQ(read_year("empty.kel"), "it is no assessment: it has no table [Type].");
    EXPECT_EQ(read_year("no_column.kel"), "its table [Type] has no column [Year].");
    EXPECT_NE(read_year("views.kel"), "");
    EXPECT_NE(read_year("gone.kel"), "");
    EXPECT_FALSE(std::filesystem::exists(path("gone.kel"))) << "asking about a file must not make it";
    for (const char* name : {"not_a_database.kel", "empty.kel", "views.kel", "gone.kel"})
        EXPECT_EQ(check_assessment_file(path(name)), 0) << name;
    EXPECT_EQ(check_assessment_file(state.assess_file), 1);
}

TEST_F(Store, TriggersAndHugeTextsOfAStrangersFileDoNothing) {
    open_farm({{"North", "4"}});
    run_sql(state.assess_file,
            "CREATE TRIGGER trap AFTER INSERT ON [Misc] BEGIN DELETE FROM [Field Data]; END");
    save_items(state.assess_file, items(1, "v"));
    EXPECT_EQ(column_of(state.assess_file, "Field Data", "Field Name").size(), 1U);
    run_sql(state.assess_file, "INSERT INTO [Misc] VALUES ('big', zeroblob(200000))");
    EXPECT_EQ(trouble_with([&] { column_of(state.assess_file, "Misc", "Value"); }),
              "it holds a text that is too long.");
}

TEST_F(Store, AFunctionThatADefinitionNamesIsNotRun) {
    SQLite::Database db(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    const auto run = [](sqlite3_context* call, int, sqlite3_value**) { sqlite3_result_int(call, 1); };
    sqlite3_create_function(db.getHandle(), "run", 1, SQLITE_UTF8, nullptr, run, nullptr, nullptr);
    const auto insert = [&db] { return db.tryExec("INSERT INTO t (a) VALUES ('x')"); };
    ASSERT_EQ(db.tryExec("CREATE TABLE t (a TEXT, b TEXT DEFAULT (run(1)))"), SQLITE_OK);
    EXPECT_EQ(insert(), SQLITE_OK);
    harden(db.getHandle());
    EXPECT_NE(insert(), SQLITE_OK);
}

// What such a definition brings costs its size and its time once per row.
TEST_F(Store, LayoutsOfMoreThanNamesAndTypesAreRefusedAlsoInALinkedFile) {
    open_farm({{"North", "4"}});
    const std::vector<std::string> definitions{
        "ALTER TABLE [Land] ADD COLUMN more TEXT DEFAULT 'x'",
        "ALTER TABLE [Land] ADD COLUMN more TEXT AS (hex(zeroblob(400000)))",
        "ALTER TABLE [Land] ADD COLUMN more TEXT DEFAULT 5",
        "CREATE UNIQUE INDEX one ON [Slurry_store] ([Store_width])",
        "CREATE INDEX slow ON [Land] (hex([Crop]))",
        "CREATE INDEX some ON [Land] ([Crop]) WHERE [Crop] > 'a'",
        "CREATE TABLE checked (a TEXT CHECK (length(hex(zeroblob(400000))) > 1))",
        "CREATE TABLE keyed (a TEXT PRIMARY KEY) WITHOUT ROWID",
        "CREATE VIRTUAL TABLE words USING fts5(a)",
        "CREATE TABLE named AS SELECT 1 AS [a b], 2 AS c"};
    const auto trouble_after = [&](const std::string& sql) {
        std::filesystem::copy_file(state.assess_file, path("strange.kel"),
                                   std::filesystem::copy_options::overwrite_existing);
        run_sql(path("strange.kel"), sql);
        std::string alone = trouble_with([&] { database(path("strange.kel")); });
        EXPECT_EQ(trouble_with([&] { database(state.assess_file).attach(path("strange.kel")); }), alone);
        return alone;
    };
    for (const std::string& sql : definitions)
        EXPECT_EQ(trouble_after(sql), sql.find("named") == std::string::npos
                                          ? "its tables are not laid out as those of an assessment."
                                          : "")
            << sql;
    EXPECT_EQ(
        trouble_after("ALTER TABLE [Land] ADD COLUMN more TEXT DEFAULT '" + std::string(900000, 'x') + "'"),
        "it holds a text that is too long.");
}

TEST_F(Store, FilesAndTablesFarBeyondAnyFarmAreRefused) {
    open_farm({});
    run_sql(state.assess_file,
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i <= 40000) "
            "INSERT INTO [Misc] ([Item]) SELECT 'x' FROM n");
    EXPECT_EQ(trouble_with([&] { column_of(state.assess_file, "Misc", "Item"); }),
              "its table [Misc] has too many rows for an assessment.");
    run_sql(state.assess_file, "INSERT INTO [Land] ([Crop]) VALUES (zeroblob(17000000))");
    EXPECT_EQ(trouble_with([&] { database(state.assess_file); }), "it is too large for an assessment.");
}

TEST_F(Store, ASavedFileIsOnePlainFileWhateverItsJournalWas) {
    open_farm({});
    run_sql(state.assess_file, "PRAGMA journal_mode = WAL");
    save_items(state.assess_file, items(1, "v"));
    const std::string header = file_text(state.assess_file).substr(18, 2);
    EXPECT_EQ(header, "\x01\x01") << "read and written with a rollback journal";
    EXPECT_FALSE(std::filesystem::exists(state.assess_file + "-wal"));
}

TEST_F(Store, ACopyTakesAwayTheJournalThatItsTargetLeft) {
    open_farm({{"North", "4"}});
    write_file(path("copy.kel-journal"), "of the file that was here");
    copy_whole_file(state.assess_file, path("copy.kel"));
    EXPECT_FALSE(std::filesystem::exists(path("copy.kel-journal")));
    EXPECT_EQ(column_of(path("copy.kel"), "Field Data", "Field Name").size(), 1U);
}

TEST_F(Store, ACopyOfAReadOnlyTemplateCanBeWritten) {
    const std::string protected_file = make_farm("template.kel", {});
    std::filesystem::permissions(protected_file, std::filesystem::perms::owner_read);
    copy_whole_file(protected_file, path("copy.kel"));
    EXPECT_NO_THROW(save_items(path("copy.kel"), items(1, "v")));
    EXPECT_NE(trouble_with([&] { copy_whole_file(protected_file, path("no folder/copy.kel")); }), "");
}

// Runs the work in a process of its own, which ends without warning once `work` calls die() or runs into a
// limit.
void in_a_process(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            work();
        } catch (...) {
        }
        _exit(0);
    }
    waitpid(child, nullptr, 0);
}

// Size and time alone would miss a quick save of as many rows.
TEST_F(Store, AStampTellsReadingFromWritingAndNeverThrows) {
    open_farm({});
    save_items(state.assess_file, items(3, "old"));
    const file_stamp before = stamp_of(state.assess_file);
    column_of(state.assess_file, "Misc", "Value");
    EXPECT_EQ(stamp_of(state.assess_file), before);
    save_items(state.assess_file, items(3, "new"));
    std::filesystem::last_write_time(state.assess_file, before.written);
    EXPECT_NE(stamp_of(state.assess_file), before);
    EXPECT_NE(stamp_of(path("gone.kel")), stamp_of(path("never.kel")));
    EXPECT_EQ(stamp_of(""), file_stamp{});
}

TEST_F(Store, AGridRefusesToEraseARowThatItDoesNotHave) {
    text_grid grid = items(2, "kept");
    for (const int row : {-1, 3, 100})
        EXPECT_THROW(grid.erase_row(row), std::out_of_range);
    EXPECT_EQ(grid.row_count(), 3);
}

TEST_F(Store, AKillInTheMiddleOfASaveLeavesTheOldRowsWhole) {
    open_farm({});
    save_items(state.assess_file, items(3, "old"));
    in_a_process([&] {
        const database db(state.assess_file);
        save_transaction save(db);
        // Enough rows to spill out of the page cache into the file before the commit.
        save_grid(db, "Misc", items(20000, std::string(300, 'n')), 20000);
        kill(getpid(), SIGKILL);
    });
    copy_assessment(state.assess_file, path("copy.kel"));
    EXPECT_EQ(column_of(path("copy.kel"), "Misc", "Value"), (std::vector<std::string>{"old", "old", "old"}));
    EXPECT_EQ(column_of(state.assess_file, "Misc", "Value"), (std::vector<std::string>{"old", "old", "old"}));
}

TEST_F(Store, AFullDiscStopsTheSaveAndKeepsTheOldRows) {
    open_farm({});
    save_items(state.assess_file, items(3, "old"));
    in_a_process([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit small{200'000, 200'000};
        setrlimit(RLIMIT_FSIZE, &small);
        save_items(state.assess_file, items(20000, std::string(300, 'n')));
        save_items(state.assess_file, items(1, "never reached"));
    });
    EXPECT_EQ(column_of(state.assess_file, "Misc", "Value").size(), 3U);
}

// The disc fills up after the list of the journals was written, and before the first journal names it.
TEST_F(Store, AFailedSaveOverLinkedFilesLeavesNothingBeside) {
    open_farm({{"North", "4"}});
    const std::string linked = make_farm("linked.kel", {{"North", "4"}}, 2023);
    const auto files = [this] {
        using entries = std::filesystem::directory_iterator;
        return std::distance(entries(folder_of(state.assess_file)), entries());
    };
    const auto before = files();
    in_a_process([&] {
        signal(SIGXFSZ, SIG_IGN);
        const database db(state.assess_file);
        const database other = db.attach(linked);
        save_transaction save(db);
        db.delete_rows("Field Data");
        other.delete_rows("Field Data");
        const rlim_t journal = std::filesystem::file_size(state.assess_file + "-journal");
        const rlimit no_growth{journal, journal};
        setrlimit(RLIMIT_FSIZE, &no_growth);
        save.commit();
    });
    for (const std::string& file : {state.assess_file, linked})
        EXPECT_EQ(column_of(file, "Field Data", "Field Name").size(), 1U);
    EXPECT_EQ(files(), before);
}

}  // namespace
}  // namespace kel::test
