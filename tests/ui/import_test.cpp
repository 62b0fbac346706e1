// "Add records from another file": the panel of every module, from the file dialog to the module's Save.
#include <QLabel>
#include <QTabWidget>
#include <filesystem>

#include "core/file_error.h"
#include "core/module_messages.h"
#include "core/record_import.h"
#include "profile/profile_messages.h"
#include "storage/storage_messages.h"
#include "tests/ui/screen_fixture.h"

namespace kel::test {

namespace {

using buttons = std::vector<const char*>;

// One panel: the way to it, a column that tells the rows of the two files apart, and its save.
struct panel_case {
    const char* name;  // behind cmd and fra
    const char* tag;
    screen_id opens;
    buttons way;
    const char* grid;
    int column;
    texts before;
    texts added;
    texts replaced;
    std::vector<message> told;  // by either import
    buttons saves;
    buttons disabled;
    const char* table;
    const char* stored;
};

const message sold_field = module_messages::field_does_not_exist("Sold Field");
message with_lower_case_title(message box) {
    box.title = "field does not exist";
    return box;
}

// clang-format off
const panel_case panels[] = {
    {"Profile_import", "profile", screen_id::profile, {}, "MSFlexGridFields", 1,
     {"15"}, {"15", "2"}, {"9", "2"}, {},
     {"cmdProfile_set"}, {"cmdProfile_cancel", "cmdReport", "Text1"}, "Field Data", "Size"},
    {"Import_land", "land", screen_id::land, {}, "MSFlexGridLand", 6,
     {"12"}, {"12", "6.20"}, {"6.20"}, {sold_field},
     {"cmdLand_save"}, {"cmdLand_cancel", "cmdLand_continue"}, "Land", "Available Field Area (ha)"},
    {"Import_land2", "land", screen_id::land, {}, "MSFlexGridLand_animals", 1,
     {"5"}, {"5", "20"}, {"20"}, {},
     {"cmdLand_save2"}, {"cmdLand_cancel2", "cmdLand_continue2"}, "Land_animals", "Number Of Stock Units"},
    {"Storage3_import", "storage", screen_id::storage, {"cmdStorage_continue"}, "MSFlexGridStores", 0,
     {"Tank"}, {"Tank", "Lagoon"}, {"Lagoon"}, {},
     {"cmdStores_continue", "cmdStorage_save"}, {"cmdStores_add", "cmdStores_continue"},
     "Slurry_store", "Store_name"},
    {"Storage2_import", "storage", screen_id::storage, {"cmdStorage_continue", "cmdStores_continue"},
     "MSFlexGridStorage_animals", 1,
     {"8"}, {"8", "10"}, {"10"}, {},
     {"cmdStorage_save"}, {"cmdStorage_cancel", "Command10"}, "Slurry_animals", "Number"},
    {"Storage_import", "storage", screen_id::storage, {"cmdStorage_continue", "cmdStores_continue"},
     "MSFlexGridStorage_land", 8,
     {"12", "12"}, {}, {"2", "2"}, {storage_messages::imported_field_does_not_exist("Sold Field")},
     {"cmdStorage_save"}, {"cmdStorage_cancel", "Command10"}, "Land", "May"},
    {"Reductions_import", "reduction", screen_id::manure, {}, "MSFlexGridReductions", 6,
     {"1"}, {"1", "3"}, {"3"}, {with_lower_case_title(sold_field)},
     {"cmdReductions_save"}, {"cmdReductions_cancel", "cmdReductions_calculate"},
     "Manure_applic", "Amount Applied"},
    {"Straw_DB_import", "straw", screen_id::straw, {"cmdStraw_viewDB"}, "MSFlexGridStraw", 1,
     {"30"}, {"30", "7"}, {"7"}, {sold_field},
     {"cmdStraw_DB_save"}, {"cmdStraw_DB_close", "cmdStraw_DB_add"}, "Straw", "Soil Mineral N"},
};
// clang-format on

}  // namespace

class ImportPanel : public screen_test {
  protected:
    void begin_with(const panel_case& next) {
        run.reset();
        panel = next;
        open_farm({{"Long Rig", "15"}});
        add_rows(state.assess_file, "12", "5", "Tank", "8", "1", "30");
        database(state.assess_file)
            .update_rows("FarmProfile", {{"Area", "11"}, {"KEL Area", "11"}}, "Name", "Test Farm");
        write_store(state);
        go_to_panel();
    }
    static void add_rows(const std::string& file, const char* available, const char* sheep, const char* store,
                         const char* cows, const char* amount, const char* soil_n) {
        add_row(file, "Land", {{"Field Area ID", "Long Rig"}, {"Available Field Area (ha)", available}});
        add_row(file, "Land_animals", {{"Stock Unit", "1 sheep"}, {"Number Of Stock Units", sheep}});
        add_row(file, "Slurry_store",
                {{"Store_name", store},
                 {"Store_shape", "Square or rectangular"},
                 {"Store_depth", "3"},
                 {"Store_length", "20"},
                 {"Store_width", "10"},
                 {"Store_%", "50"},
                 {"Rain_area", "200"}});
        add_row(file, "Slurry_animals", {{"Stock Unit", "1 dairy cow (650 kg)"}, {"Number", cows}});
        add_row(file, "Manure_applic",
                {{"Field Area ID", "Long Rig"}, {"Date", "2025-03-14"}, {"Amount Applied", amount}});
        add_row(file, "Straw", {{"Field Area ID", "Long Rig"}, {"Soil Mineral N", soil_n}});
    }
    // Another farm, six years on.
    std::string other_farm() {
        std::string file = make_farm("other.kel", {{"Long Rig", "9"}, {"Far", "2"}}, 2030);
        for (const char* table : {"Land", "Manure_applic", "Straw"})
            add_row(file, table, {{"Field Area ID", "Sold Field"}});
        add_rows(file, "6.20", "20", "Lagoon", "10", "3", "7");
        database(file).update_rows("Land", {{"May", "2"}}, "Field Area ID", "Long Rig");
        return file;
    }
    void go_to_panel() {
        start();
        run->open(panel.opens);
        for (const char* button : panel.way) {
            if (button == std::string("cmdStorage_continue"))
                for (const char* box : {"txtStorage3_water_cows", "txtStorage3_water_pigs"})
                    drive::type(screen(panel.tag), box, "0");
            press(panel.tag, button);
        }
        if (name() == "Import_land2")
            drive::control<QTabWidget>(screen("land"), "SSTabLand")->setCurrentIndex(1);
        if (name() == "Storage_import")
            drive::control<QTabWidget>(screen("storage"), "SSTabStorage")->setCurrentIndex(1);
        EXPECT_EQ(shown(), panel.before);
    }
    std::string name() const { return panel.name; }
    bool only_replaces() const { return panel.added.empty(); }
    QString command(const char* ending) const { return "cmd" + qt(panel.name) + ending; }
    QString over_write() const { return only_replaces() ? "cmdStorage_add_import" : command("_over"); }
    QString first() const { return only_replaces() ? over_write() : command("_add"); }
    std::string title(import_mode mode) const {
        return std::string(mode == import_mode::add ? "Add" : "Replace with") + " data from another " +
               (name() == "Profile_import" ? "profile" : "assessment");
    }
    import_mode first_mode() const { return only_replaces() ? import_mode::over_write : import_mode::add; }
    // Through the event loop, where failures are caught.
    void press_in_panel(const QString& button) {
        click(screen(panel.tag), button);
        person.verify_done();
    }
    void import(import_mode mode, const std::string& file, const std::vector<message>& told) {
        click(screen(panel.tag), command(""));
        person.expect_file(title(mode), file);
        for (const message& box : told)
            person.expect(box);
        press_in_panel(mode == import_mode::add ? first() : over_write());
    }
    bool open() const { return drive::control(screen(panel.tag), "fra" + qt(panel.name))->isVisible(); }
    texts shown() const {
        const grid_view* table = grid(panel.tag, panel.grid);
        texts found;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            if (std::string text = cell(table, row, panel.column); !text.empty())
                found.push_back(std::move(text));
        return found;
    }
    texts stored() const { return column_of(state.assess_file, panel.table, panel.stored); }
    void expect_others_enabled(bool enabled) const {
        for (const buttons& names : {panel.disabled, panel.saves})
            for (const char* button : names)
                EXPECT_EQ(drive::control(screen(panel.tag), button)->isEnabled(), enabled) << button;
        EXPECT_EQ(drive::control(screen(panel.tag), command(""))->isEnabled(), enabled);
    }

    panel_case panel{};
};

TEST_F(ImportPanel, StaysOpenUntilItHasAFileAndKeepsTheOtherCommandsAway) {
    for (const panel_case& next : panels) {
        SCOPED_TRACE(next.name);
        begin_with(next);
        const std::string other = path("other.kel");
        click(screen(panel.tag), command(""));
        ASSERT_TRUE(open());
        EXPECT_EQ(focus_name(), from_qt(first()));
        const QStringList others = only_replaces() ? QStringList{"_cancel"} : QStringList{"_over", "_cancel"};
        for (const QString& other_button : others) {
            press_key(Qt::Key_Tab);
            EXPECT_EQ(focus_name(), from_qt("cmd" + qt(panel.name) + other_button));
        }
        expect_others_enabled(false);
        QStringList words;
        for (const auto* label :
             drive::control(screen(panel.tag), "fra" + qt(panel.name))->findChildren<QLabel*>())
            words << label->text();
        EXPECT_TRUE(words.contains("Add records from another file"));
        EXPECT_TRUE(words.contains("Do you want to add the imported data to the table or over-write it?"));
        // Cancelled, gone, no assessment; the file may become another one while the panel is open.
        person.expect_file(title(first_mode()), "");
        press_in_panel(first());
        person.expect_file(title(first_mode()), other)
            .expect(stop_box(
                file_error(other, "it cannot be opened. It may have been deleted, moved or protected.")));
        press_in_panel(first());
        write_file(other, "no assessment, but long enough to be taken for a database");
        person.expect_file(title(import_mode::over_write), other)
            .expect(stop_box(file_error(other, "it is not an assessment file, or it is damaged.")));
        press_in_panel(over_write());
        EXPECT_TRUE(open());
        EXPECT_EQ(shown(), panel.before);
        click(screen(panel.tag), command("_cancel"));
        EXPECT_FALSE(open());
        expect_others_enabled(true);
        std::filesystem::remove(other);
    }
}

TEST_F(ImportPanel, AddsAndReplacesAndWritesAtTheSaveAlone) {
    for (const panel_case& next : panels) {
        SCOPED_TRACE(next.name);
        begin_with(next);
        const std::string other = other_farm();
        const std::string source = file_text(other);
        const texts held = stored();
        const std::string empty = make_farm("empty.kel", {});
        import(import_mode::over_write, empty, {});
        EXPECT_EQ(shown(), panel.before) << "an empty table";
        if (!only_replaces()) {
            std::vector<message> told = panel.told;
            if (name() == "Profile_import") told.push_back(profile_messages::name_in_new_file);
            import(import_mode::add, other, told);
            EXPECT_FALSE(open());
            EXPECT_EQ(shown(), panel.added);
            import(import_mode::over_write, state.assess_file, {});
            EXPECT_EQ(shown(), panel.before) << "the open file itself";
        }
        import(import_mode::over_write, other, panel.told);
        EXPECT_EQ(shown(), panel.replaced);
        expect_others_enabled(true);
        EXPECT_EQ(stored(), held);
        for (const char* button : panel.saves)
            press(panel.tag, button);
        person.verify_done();
        texts saved = panel.replaced;
        if (only_replaces()) saved.pop_back();  // the monthly total
        EXPECT_EQ(stored(), saved);
        EXPECT_EQ(file_text(other), source) << "the other file is only read";
    }
}

}  // namespace kel::test
