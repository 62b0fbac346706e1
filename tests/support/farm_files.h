// A farm for a test in a few readable lines: its own folder with the program's data, and assessment files
// made from the real template.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/application_state.h"
#include "core/assessment_store.h"

namespace kel::test {

/// The data tree as the build has it, and the folder of the sources.
std::string stage_folder();
std::string project_folder();

struct test_field {
    std::string name;
    std::string size;
    std::string soil = "Other mineral soils";
};

using row_values = std::vector<std::pair<std::string, std::string>>;  // column, text

/// A fresh folder per test, removed afterwards, with an application state whose written files go there.
class farm_test : public testing::Test {
  public:
    ~farm_test() override;

  protected:
    farm_test();

    std::string path(const std::string& name) const { return folder_ + "/" + name; }

    /// A file from the template with this farm and these fields (zone area equal to field area), [Type].Year
    /// 19/12/`year`.
    std::string make_farm(const std::string& name, const std::vector<test_field>& fields, int year = 2024);
    /// The same, opened: assess_file, slot 1 and the state's farm values are set.
    void open_farm(const std::vector<test_field>& fields, int year = 2024);

    static void add_row(const std::string& file, const std::string& table, const row_values& values);
    /// Column texts of all rows, in stored order.
    static std::vector<std::string> column_of(const std::string& file, const std::string& table,
                                              const std::string& column);

    application_state state;

  private:
    std::string folder_;
};

/// What a person would write into or read from a small file.
std::string file_text(const std::string& path);
void write_file(const std::string& path, const std::string& text);

}  // namespace kel::test
