#include "core/installation.h"

#include <filesystem>

#include "core/file_choice.h"
#include "tests/support/farm_files.h"
#include "tests/support/scripted_prompts.h"

namespace kel::test {
namespace {

namespace fs = std::filesystem;

class Installation : public farm_test {};

TEST_F(Installation, APortableTreeHoldsAllBesideTheProgram) {
    fs::create_directories(path("tree/kel_calc/dbases"));
    const installation places = locate_installation(path("tree/kel_calc/kel-calculator"), path("user"));
    EXPECT_EQ(places.written_folder, path("tree/kel_calc"));
    EXPECT_EQ(places.blank_assessment(), path("tree/kel_calc/dbases/blank.mdb"));
    EXPECT_EQ(places.climate_tables(), path("tree/scdb/scdb.mdb"));
    EXPECT_EQ(places.settings_store(), path("tree/kel_calc/kelstore.ini"));
    EXPECT_EQ(places.user_files(), path("tree/kel_calc/User_files"));
}

TEST_F(Installation, AnInstalledTreeIsReadAndTheUsersFolderWritten) {
    fs::create_directories(path("usr/bin"));
    installation places = locate_installation(path("usr/bin/kel-calculator"), path("user"));
    const std::string shared = path("usr/share/kel-calculator");
    EXPECT_EQ(places.grass_tables(), shared + "/kel_calc/dbases/wren_grass.mdb");
    EXPECT_EQ(places.graphics(), shared + "/kel_calc/graphics");
    EXPECT_EQ(places.climate_tables(), shared + "/scdb/scdb.mdb");
    EXPECT_EQ(places.settings_store(), path("user/kelstore.ini"));
    EXPECT_EQ(places.report("KEL_report_record.htm"), path("user/KEL_report_record.htm"));

    fs::create_directories(places.program_folder + "/User_files");
    write_file(places.program_folder + "/tolmlogoscot.jpg", "logo");
    write_file(places.program_folder + "/User_files/Sample.kel", "sample");
    prepare_written_folder(places);
    EXPECT_EQ(file_text(path("user/tolmlogoscot.jpg")), "logo");
    EXPECT_EQ(file_text(path("user/User_files/Sample.kel")), "sample");
    fs::remove(path("user/User_files/Sample.kel"));
    prepare_written_folder(places);
    EXPECT_FALSE(fs::exists(path("user/User_files/Sample.kel"))) << "a sample once deleted stays away";
}

TEST_F(Installation, NewFarmsOfAnInstalledTreeLieUnderDocumentsAndOldOnesWhereTheyWere) {
    fs::create_directories(path("usr/share/kel-calculator/kel_calc/User_files"));
    write_file(path("usr/share/kel-calculator/kel_calc/User_files/Sample.kel"), "sample");
    installation places = locate_installation(path("usr/bin/kel-calculator"), path("user"), path("docs"));
    EXPECT_EQ(places.user_files(), path("docs/KEL Calculator"));
    prepare_written_folder(places);
    EXPECT_EQ(file_text(path("docs/KEL Calculator/Sample.kel")), "sample");
    EXPECT_FALSE(fs::exists(places.old_user_files()));

    // With farms in the old place, the dialogs begin there until there are some in the new one.
    fs::remove_all(path("docs"));
    fs::create_directories(places.old_user_files());
    write_file(places.old_user_files() + "/farm.kel", "");
    prepare_written_folder(places);
    EXPECT_TRUE(fs::is_empty(places.user_files()));
    scripted_prompts person;
    state.places = places;
    person.expect_file("Open", "");
    choose_file_to_open(state, person, "Open");
    EXPECT_EQ(person.last_folder(), places.old_user_files());
    person.expect_file("Save", "");
    choose_file_to_save(state, person, "Save");
    EXPECT_EQ(person.last_folder(), places.user_files());
    write_file(places.user_files() + "/farm.kel", "");
    person.expect_file("Open", "");
    choose_file_to_open(state, person, "Open");
    EXPECT_EQ(person.last_folder(), places.user_files());

    fs::create_directories(path("tree/kel_calc/dbases"));
    EXPECT_EQ(
        locate_installation(path("tree/kel_calc/kel-calculator"), path("user"), path("docs")).user_files(),
        path("tree/kel_calc/User_files"));
}

TEST_F(Installation, FarmsLieBesideTheSettingsWhereThereCanBeNoDocuments) {
    fs::create_directories(path("usr/share/kel-calculator/kel_calc/User_files"));
    write_file(path("docs"), "a file where the folder should be");
    installation places = locate_installation(path("usr/bin/kel-calculator"), path("user"), path("docs"));
    prepare_written_folder(places);
    EXPECT_EQ(places.user_files(), path("user/User_files"));
    EXPECT_TRUE(fs::is_directory(places.user_files()));
}

}  // namespace
}  // namespace kel::test
