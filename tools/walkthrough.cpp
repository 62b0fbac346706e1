// Works the sample farm through the real screens, as a person would, and leaves a picture of every screen and
// every report in a folder: a demonstration without a display, the source of the guides' pictures, and a look
// at what was built.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <fstream>

#include "core/assessment_files.h"
#include "tools/screen_driver.h"
#include "tools/unseen_screen.h"
#include "ui/kel_application.h"
#include "ui/program.h"
#include "ui/screens/map_view.h"
#include "ui/screens/season_view.h"
#include "ui/today.h"
#include "ui/widgets/grid_view.h"
#include "ui/widgets/qt_text.h"

namespace {

namespace fs = std::filesystem;
using namespace kel;

// Answers every box and writes down what was said. File dialogs take the next path laid ready.
class walking_person : public prompts {
  public:
    explicit walking_person(const std::string& log) : log_(log) {}

    answer ask(const message& box) override {
        log_ << "[" << box.title << "] " << box.text << "\n\n";
        return box.buttons == message_buttons::ok ? answer::ok : answer::yes;
    }
    void show_list(const titled_list& list) override {
        log_ << list.heading << "\n" << list.note << "\n";
        for (const std::string& row : list.rows)
            log_ << "  " << row << "\n";
        log_ << "\n";
    }
    std::string file_to_open(const file_request&) override { return next(); }
    std::string file_to_save(const file_request&) override { return next(); }
    void lay_ready(std::string path) { paths_.push_back(std::move(path)); }

  private:
    std::string next() {
        if (paths_.empty()) return {};
        std::string path = paths_.front();
        paths_.pop_front();
        return path;
    }
    std::ofstream log_;
    std::deque<std::string> paths_;
};

class walk {
  public:
    walk(const std::string& folder, walking_person& person, const installation& places)
        : folder_(folder), person_(person), program_(places, person, today) {}

    void all();

  private:
    QWidget* screen(const char* tag) { return program_.screen(tag); }
    void picture(const char* tag, const std::string& name);
    void new_farm();
    void choose_place();
    void open_sample();
    void step1();
    void step2();
    void step3();
    void step4();
    void crops();
    void refused_malting_barley(grid_view* table);
    void grassland();
    void composting();
    void field_record();
    void overview();
    void reports();
    void help();

    std::string folder_;
    walking_person& person_;
    program program_;
};

void walk::picture(const char* tag, const std::string& name) {
    drive::settle();
    QWidget* shown = screen(tag);
    if (!shown || !shown->isVisible()) throw std::runtime_error(std::string(tag) + " is not in view");
    const std::string file = name + ".png";
    if (!shown->grab().save(qt(folder_ + "/" + file))) throw std::runtime_error("cannot write " + file);
    std::printf("%s\n", file.c_str());
}

void walk::choose_place() {
    drive::key(drive::control(screen("profile"), "txtLocation"), Qt::Key_A);
    auto* map = drive::control(screen("location"), "Picture1");
    map->setFocus();
    const auto steps = [&](Qt::Key key, int count) {
        for (int i = 0; i < count; ++i)
            drive::key(map, key);
    };
    steps(Qt::Key_Right, 6);
    steps(Qt::Key_Down, 5);
    drive::key(map, Qt::Key_Return);
    drive::choose_in_list(screen("location"), "lstScotland_town", "Kirriemuir");
    picture("location", "first_farm_3");
    drive::press(screen("location"), "cmdScotland_enter");
}

void walk::new_farm() {
    drive::press(screen("front"), "cmdFront_new");
    picture("profile", "first_farm_2");
    QWidget* profile = screen("profile");
    drive::type(profile, "txtName", "Nether Tullifern");
    drive::type(profile, "txtArea", "40");
    drive::control<QComboBox>(profile, "cboAssess_year")->setCurrentText("19/12/2024");
    drive::type(profile, "Text1", "12");
    drive::press(profile, "Command1");
    choose_place();
    auto* fields = drive::control<grid_view>(profile, "MSFlexGridFields");
    for (int row = 0; row < 12; ++row)
        drive::enter_number(profile, fields, row, 1, "Profile_farea",
                            QString::number(2.5 + 0.25 * (row % 4)));
    const auto soils = [&](int first, int last, const char* soil) {
        drive::draw_range(fields, first, last, 3);
        if (first == 4) picture("profile", "profile_soil_box");
        drive::choose_in_list(profile, "lstProfile_soil", soil);
        drive::press(profile, "cmdProfile_soil_enter");
    };
    soils(0, 3, "Sandy loams");
    soils(4, 8, "Other mineral soils");
    soils(9, 11, "Humose soils");
    picture("profile", "first_farm_4");
    drive::press(profile, "cmdReport");
    picture("viewer", "report_farm_profile");
    drive::press(screen("viewer"), "Command1");
    person_.lay_ready(folder_ + "/User_files/Nether Tullifern.kel");
    drive::press(profile, "cmdProfile_set");
}

void walk::open_sample() {
    drive::press(screen("front"), "cmdFront_open");
    int row = 0;
    for (const char* year : {"2024-25", "2023-24", "2022-23"}) {
        person_.lay_ready(folder_ + "/User_files/Mains of Tullifern " + year + ".kel");
        drive::press(screen("years"), "cmdYear_browse" + QString::number(++row));
    }
    picture("years", "years_dialog");
    drive::press(screen("years"), "cmdYear_new");
    picture("years", "years_create");
    drive::press(screen("years"), "cmdYear_create_cancel");
    drive::press(screen("years"), "cmdYear_ok");
    picture("front", "first_farm_1");
}

void walk::step1() {
    drive::press(screen("front"), "cmdFront_land");
    picture("land", "first_farm_5");
    QWidget* land = screen("land");
    auto* grid = drive::control<grid_view>(land, "MSFlexGridLand");
    drive::click_cell(grid, 2, 3);
    picture("land", "land_deduction_box");
    drive::key(drive::control(land, "txtLand_deduct"), Qt::Key_Escape);
    drive::control<QTabWidget>(land, "SSTabLand")->setCurrentIndex(1);
    picture("land", "first_farm_6");
    auto* animals = drive::control<grid_view>(land, "MSFlexGridLand_animals");
    drive::click_cell(animals, animals->model()->rowCount() - 1, 0);
    picture("land", "land_stock_box");
    drive::key(drive::control(land, "lstLand_animal"), Qt::Key_Escape);
    drive::press(land, "cmdImport_land2");
    picture("land", "land_import");
    drive::press(land, "cmdImport_land2_cancel");
    drive::press(land, "cmdLand_continue2");
    picture("land", "first_farm_7");
    drive::press(land, "cmdReport");
    picture("viewer", "first_farm_8");
    drive::press(screen("viewer"), "Command1");
    drive::press(land, "cmdLand_back");
    drive::press(land, "cmdLand_save2");
    drive::press(land, "cmdLand_cancel2");
}

void walk::step2() {
    drive::press(screen("front"), "cmdFront_storage");
    QWidget* storage = screen("storage");
    picture("storage", "storage_dirty_water");
    drive::press(storage, "cmdStorage_continue");
    picture("storage", "storage_stores");
    drive::press(storage, "cmdStores_continue");
    picture("storage", "storage_production");
    auto* tabs = drive::control<QTabWidget>(storage, "SSTabStorage");
    tabs->setCurrentIndex(1);
    picture("storage", "storage_land");
    auto* land = drive::control<grid_view>(storage, "MSFlexGridStorage_land");
    drive::click_cell(land, 3, 2);
    picture("storage", "storage_field_use_box");
    drive::key(drive::focused(), Qt::Key_Escape);
    tabs->setCurrentIndex(2);
    picture("storage", "storage_spreading");
    drive::press(storage, "cmdStorage_save");
    drive::press(storage, "cmdReport");
    picture("viewer", "report_storage");
    drive::press(screen("viewer"), "Command1");
    drive::press(storage, "cmdStorage_cancel");
}

void walk::step3() {
    drive::press(screen("front"), "cmdFront_manure");
    QWidget* manure = screen("reduction");
    picture("reduction", "manure_table");
    auto* table = drive::control<grid_view>(manure, "MSFlexGridReductions");
    drive::click_cell(table, 2, 3);
    picture("reduction", "manure_type_box");
    drive::key(drive::focused(), Qt::Key_Escape);
    drive::click_cell(table, 2, 4);
    picture("reduction", "manure_date_box");
    drive::key(drive::focused(), Qt::Key_Escape);
    drive::press(manure, "cmdReductions_calculate");
    picture("reduction", "manure_result");
    drive::press(manure, "cmdReductions_report");
    picture("viewer", "report_manure");
    drive::press(screen("viewer"), "Command1");
    drive::press(manure, "cmdReductions_back");
    drive::press(manure, "cmdReductions_save");
    drive::press(manure, "cmdReductions_cancel");
}

void walk::step4() {
    drive::press(screen("front"), "cmdFront_inorganic");
    QWidget* inorganic = screen("inorg");
    picture("inorg", "inorganic_table");
    auto* table = drive::control<grid_view>(inorganic, "MSFlexGridInorganic");
    drive::click_cell(table, 1, 2);
    picture("inorg", "inorganic_box");
    drive::key(drive::focused(), Qt::Key_Escape);
    drive::press(inorganic, "cmdInorganic_save");
    drive::press(inorganic, "cmdInorganic_report");
    picture("viewer", "report_inorganic");
    drive::press(screen("viewer"), "Command1");
    drive::press(inorganic, "cmdInorganic_cancel");
}

void walk::crops() {
    drive::press(screen("front"), "cmdFront_crops");
    QWidget* crops = screen("crop");
    picture("crop", "crops_winter");
    drive::press(crops, "cmdCrops_winter_rain");
    picture("crop", "crops_table");
    auto* table = drive::control<grid_view>(crops, "MSFlexGridCrops");
    const int wheat = 2;
    drive::click_cell(table, wheat, 2);
    picture("crop", "crops_planned");
    drive::press(crops, "cmdCrops_ccrop_enter");
    picture("crop", "crops_question");
    for (const char* answer : {"optCrops_question_2", "optCrops_question_1", "optCrops_question_2"}) {
        drive::press(crops, answer);
        drive::press(crops, "cmdCrops_question_enter");
    }
    drive::click_cell(table, wheat, 12);
    drive::press(crops, "cmdCrops_manures_transfer");
    picture("crop", "crops_manures");
    drive::press(crops, "cmdCrops_manures_enter");
    drive::click_cell(table, wheat, 3);
    picture("crop", "crops_previous");
    drive::key(drive::focused(), Qt::Key_Escape);
    refused_malting_barley(table);
    drive::press(crops, "cmdCrops_continue");
    picture("crop", "crops_result");
    drive::press(crops, "cmdCrops_print");
    picture("viewer", "crops_report");
    drive::press(screen("viewer"), "Command1");
    drive::press(crops, "cmdCrops_back");
    drive::press(crops, "cmdCrops_save");
    drive::press(crops, "cmdCrops_cancel");
}

// A row for the wet ground, where this barley is not to be grown: a message tells so and the crop is gone.
void walk::refused_malting_barley(grid_view* table) {
    QWidget* crops = screen("crop");
    const int row = table->model()->rowCount() - 1;
    drive::enter_choice(crops, table, row, 0, "Crops_field", "Low Moss");
    drive::enter_choice(crops, table, row, 2, "Crops_ccrop", "Spring barley (low N malting)");
    picture("crop", "crops_refused");
    drive::click_cell(table, row, 0);
    drive::press(crops, "cmdCrops_field_erase");
}

// Both routes: the site table to its results, and from the livestock to the silage fields.
void walk::grassland() {
    drive::press(screen("front"), "cmdFront_grassland");
    QWidget* grass = screen("grass");
    const std::string file = program_.state().assess_file;
    picture("grass", "grass_rainfall");
    drive::press(grass, "cmdGrass_rain_enter");
    drive::press(grass, "cmdGrass_altitude_enter");
    picture("grass", "grass_site");
    auto* site = drive::control<grid_view>(grass, "MSFlexGridSite");
    drive::click_cell(site, 1, 3);
    picture("grass", "grass_previous_sward");
    drive::key(drive::focused(), Qt::Key_Escape);
    drive::click_cell(site, 1, 10);
    drive::press(grass, "cmdSite_manure_transfer");
    picture("grass", "grass_manures");
    drive::press(grass, "cmdSite_manure_enter");
    drive::press(grass, "cmdSite_save");
    drive::press(grass, "cmdSite_stocking");
    picture("grass", "grass_livestock");
    person_.lay_ready(file);
    drive::press(grass, "cmdLU_continue");
    drive::click_cell(drive::control<grid_view>(grass, "MSFlexGridSU"), 4, 8);
    picture("grass", "grass_stocking");
    drive::key(drive::focused(), Qt::Key_Escape);
    person_.lay_ready(file);
    drive::press(grass, "cmdSU_continue");
    drive::press(grass, "cmdGrass_vary");
    drive::choose_in_list(grass, "lstGrass_decrease", "Long Rig");
    drive::choose_in_list(grass, "lstGrass_increase", "Lade Haugh");
    drive::press(grass, "cmdGrass_alter");
    picture("grass", "grass_silage");
    drive::press(grass, "cmdGrass_finish");
    picture("grass", "grass_silage_commands");
    drive::press(grass, "cmdGrass_rec_back");
    drive::press(grass, "cmdSU_back");
    drive::press(grass, "cmdSite_continue");
    picture("grass", "grass_results");
    drive::press(grass, "cmdGrass_report");
    picture("viewer", "report_grassland");
    drive::press(screen("viewer"), "Command1");
    drive::press(grass, "cmdGrass_back");
    drive::press(grass, "cmdSite_cancel");
}

void walk::composting() {
    drive::press(screen("front"), "cmdFront_composting");
    QWidget* straw = screen("straw");
    drive::control<QComboBox>(straw, "cboStraw_residue_type")->setCurrentText("Onion");
    drive::type(straw, "txtStraw_soilN", "40");
    drive::control<QAbstractButton>(straw, "optStraw_type2")->click();
    drive::type(straw, "txtStraw_waste_N", "0.5");
    drive::press(straw, "cmdStraw_calculate");
    picture("straw", "composting_result");
    drive::press(straw, "cmdStraw_print");
    picture("viewer", "report_composting_result");
    drive::press(screen("viewer"), "Command1");
    drive::press(straw, "cmdStraw_viewDB");
    drive::press(straw, "cmdStraw_DB_add");
    picture("straw", "composting_field_box");
    drive::key(drive::focused(), Qt::Key_Escape);
    picture("straw", "composting_recorded");
    drive::press(straw, "cmdReport");
    picture("viewer", "report_composting");
    drive::press(screen("viewer"), "Command1");
    drive::press(straw, "cmdStraw_DB_close");
    drive::press(straw, "cmdStraw_exit");
}

void walk::field_record() {
    drive::press(screen("front"), "cmdFront_record");
    QWidget* record = screen("record");
    drive::control<QComboBox>(record, "Combo1")->setCurrentText("West Muir");
    picture("record", "record_quiet");
    drive::control<QComboBox>(record, "Combo1")->setCurrentText("East Muir");
    picture("record", "record_warnings");
    drive::control<QComboBox>(record, "Combo1")->setCurrentText("Steading Park");
    person_.lay_ready(folder_ + "/Steading Park.csv");
    drive::press(record, "cmdRecord_csv");
    drive::press(record, "cmdReport");
    picture("viewer", "report_record");
    drive::press(screen("viewer"), "Command1");
    drive::press(record, "cmdRecord_close");
}

void walk::overview() {
    screen("front")->findChild<QAction*>("mnuFront_calendar")->trigger();
    QWidget* calendar = screen("calendar");
    auto* view = drive::control<season_view>(calendar, "calSeason");
    view->go_to({9, make_date(15, 10, 2025)});
    picture("calendar", "season_calendar");
    drive::press(calendar, "cmdCalendar_table");
    picture("calendar", "season_table");
    drive::press(calendar, "cmdCalendar_report");
    picture("viewer", "report_calendar");
    drive::press(screen("viewer"), "Command1");
    drive::press(calendar, "cmdCalendar_close");
    screen("front")->findChild<QAction*>("mnuFront_sheets")->trigger();
    picture("sheets", "blank_sheets");
    drive::press(screen("sheets"), "cmdSheets_manure");
    picture("viewer", "sheet_manure");
    drive::press(screen("viewer"), "Command1");
    drive::press(screen("sheets"), "cmdSheets_close");
}

void walk::reports() {
    drive::press(screen("front"), "cmdFront_edit");
    drive::press(screen("profile"), "cmdReport");
    picture("viewer", "report_farm_profile_sample");
    drive::press(screen("viewer"), "Command1");
    drive::press(screen("profile"), "cmdProfile_cancel");
    screen("front")->findChild<QAction*>("mnuFront_standing")->trigger();
    picture("viewer", "report_standing");
    drive::press(screen("viewer"), "Command1");
    drive::press(screen("front"), "cmdFront_reports");
    picture("viewer", "first_farm_9");
    drive::press(screen("viewer"), "Command1");
}

void walk::help() {
    drive::press(screen("front"), "cmdFront_whats_this");
    picture("viewer", "help_intro");
    drive::press(screen("viewer"), "Command1");
    drive::press(screen("front"), "cmdFront_show_me");
    picture("viewer", "guides");
    drive::press(screen("viewer"), "Command1");
    program_.open(screen_id::about);
    picture("splash", "about_box");
    screen("splash")->close();
}

void walk::all() {
    program_.start();
    drive::settle();
    picture("front", "front_nothing_open");
    new_farm();
    open_sample();
    step1();
    step2();
    step3();
    step4();
    crops();
    grassland();
    composting();
    field_record();
    overview();
    reports();
    help();
}

}  // namespace

int main(int argc, char** argv) {
    QTemporaryFile screen;
    drive::use_unseen_screen(screen, {1920, 1080});
    kel_application application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: kel_walkthrough FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::string folder = fs::absolute(argv[1]).string();
        fs::create_directories(folder);
        const std::string stage = KEL_STAGE_DIR;
        installation places{stage + "/kel_calc", stage, folder};
        prepare_written_folder(places);
        walking_person person(folder + "/messages.txt");
        application.set_prompts(&person);
        walk(folder, person, places).all();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "the walkthrough stopped: %s\n", failure.what());
        return 1;
    }
    return 0;
}
