#include "tests/support/farm_files.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/whole_file.h"

namespace kel::test {

namespace fs = std::filesystem;

std::string stage_folder() {
    return KEL_STAGE_DIR;
}

std::string project_folder() {
    return KEL_PROJECT_DIR;
}

farm_test::farm_test() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("kel-") + std::to_string(getpid()) + "-" + info->name();
    folder_ = (fs::temp_directory_path() / name).string();
    fs::create_directories(folder_ + "/User_files");
    state.places.program_folder = stage_folder() + "/kel_calc";
    state.places.install_root = stage_folder();
    state.places.written_folder = folder_;
    set_short_date(state);
    set_long_date(state);
}

farm_test::~farm_test() {
    std::error_code ignored;
    fs::permissions(folder_, fs::perms::owner_all, ignored);
    fs::remove_all(folder_, ignored);
}

std::string farm_test::make_farm(const std::string& name, const std::vector<test_field>& fields, int year) {
    std::string file = path(name);
    copy_whole_file(state.places.blank_assessment(), file);
    const database db(file);
    save_transaction save(db);
    recordset profile = db.open("FarmProfile");
    profile.add_new();
    profile.set("Name", "Test Farm");
    profile.set("KEL", "Strathmore and Fife KEL");
    profile.set("Town", "Cupar");
    profile.set("Area", "1000");
    profile.set("FieldNo", std::to_string(fields.size()));
    profile.set("KEL Area", "1000");
    profile.update();
    recordset rows = db.open("Field Data");
    for (const test_field& field : fields) {
        rows.add_new();
        rows.set("Field Name", field.name);
        rows.set("Size", field.size);
        rows.set("KEL Size", field.size);
        rows.set("Soil", field.soil);
        rows.update();
    }
    recordset type = db.open("Type");
    type.edit();
    type.set("Year", make_date(19, 12, year));
    type.update();
    save.commit();
    return file;
}

void farm_test::open_farm(const std::vector<test_field>& fields, int year) {
    state.assess_file = make_farm("farm.kel", fields, year);
    state.slot_current = state.assess_file;
    state.slot_selected = 1;
    state.farm_name = "Test Farm";
    state.farm_zone = "Strathmore and Fife KEL";
    state.farm_town = "Cupar";
    state.kel_year_start = make_date(19, 12, year);
}

void farm_test::add_row(const std::string& file, const std::string& table, const row_values& values) {
    const database db(file);
    recordset rows = db.open(table);
    rows.add_new();
    for (const auto& [column, text] : values)
        rows.set(column, text);
    rows.update();
}

std::vector<std::string> farm_test::column_of(const std::string& file, const std::string& table,
                                              const std::string& column) {
    std::vector<std::string> texts;
    for (recordset rows = database(file).open(table); !rows.eof(); rows.move_next())
        texts.push_back(rows.text(column));
    return texts;
}

std::string file_text(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void write_file(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

}  // namespace kel::test
