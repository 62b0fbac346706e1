#include "core/installation.h"

#include <filesystem>

#include "tests/support/farm_files.h"

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
    const installation places = locate_installation(path("usr/bin/kel-calculator"), path("user"));
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

}  // namespace
}  // namespace kel::test
