#include "tools/torture/saves.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "core/assessment_files.h"
#include "core/left_behind.h"
#include "core/settings_store.h"
#include "profile/field_changes.h"
#include "profile/profile_module.h"
#include "shell/years_module.h"

namespace kel::torture {

namespace fs = std::filesystem;

namespace {

constexpr int fields = 400;
constexpr int stored_values = 3000;

constexpr std::array<grid_column, 2> value_columns{
    {{"Item", "Item", column_kind::entered, 10}, {"Value", "Value", column_kind::entered, 10}}};

/// Chooses the next year's file and takes every box as a failure.
class choosing_person : public bench::silent_person {
  public:
    explicit choosing_person(std::string path) : path_(std::move(path)) {}
    answer ask(const message& box) override { throw std::runtime_error(box.text); }
    std::string file_to_save(const file_request&) override { return path_; }

  private:
    std::string path_;
};

// Every field gets a longer name and another soil: all rows of all tables of the three years change.
void set_profile(const application_state& opened) {
    application_state state = opened;
    bench::silent_person person;
    profile_module profile(state, person);
    profile.load_profile();
    for (int row = 0; row < profile.fields().row_count(); ++row)
        profile.enter_name(row, "renamed " + std::string(40, 'x') + std::to_string(row));
    profile.enter_soil(0, profile.fields().row_count() - 1, "Peaty soils");
    save_prof(database(state.assess_file), profile.farm(), profile.fields(), state);
}

void save_step(const application_state& state) {
    text_grid values(value_columns);
    for (int i = 0; i < stored_values; ++i) {
        values.set_cell(values.add_row(), 0, "item " + std::to_string(i));
        values.set_cell(i, 1, std::string(60, 'v'));
    }
    const database db(state.assess_file);
    save_transaction save(db);
    save_grid(db, "Misc", values, stored_values);
    save.commit();
}

void create_year(const application_state& opened) {
    application_state state = opened;
    choosing_person person(folder_of(state.assess_file) + "/next.kel");
    profile_module profile(state, person);
    years_module years(state, person, profile, [](picker_module) {});
    years.open();
    years.open_create();
    years.browse_new_file();
    years.create();
}

std::string content_of(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

std::vector<tortured_save> tortured_saves() {
    return {{"Set Profile over three linked years", set_profile, true},
            {"Save of a step", save_step, true},
            {"Create a new assessment year", create_year, false}};
}

tortured_farm::tortured_farm() : farm_(fields, 3) {
    write_store(farm_.state);
    before_ = recovered();
}

void tortured_farm::restore() const {
    for (const auto& entry : fs::directory_iterator(folder()))
        fs::remove(entry.path());
    for (const auto& [path, content] : before_) {
        std::ofstream out(path, std::ios::binary);
        out << content;
        if (!out.flush()) throw std::runtime_error(path + " could not be restored");
    }
}

std::vector<std::string> tortured_farm::assessments() const {
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(folder()))
        if (entry.path().extension() == ".kel") files.push_back(entry.path().string());
    return files;
}

folder_content tortured_farm::content() const {
    folder_content content;
    for (const auto& entry : fs::directory_iterator(folder()))
        content[entry.path().string()] = content_of(entry.path());
    return content;
}

folder_content tortured_farm::recovered() const {
    for (const std::string& file : assessments()) {
        clear_left_behind(file);
        database(file).open("Type");
    }
    return content();
}

void tortured_farm::save_each_file() const {
    for (const std::string& file : assessments()) {
        const database db(file);
        save_transaction save(db);
        recordset row = db.open("Misc");  // the engine leaves out a change to what is there already
        row.add_new();
        row.set("Item", "another save");
        row.update();
        save.commit();
    }
}

}  // namespace kel::torture
