// The saves that are cut off: each works on a farm of three linked years, and the files it writes must
// afterwards be those of before or those of a save that nothing disturbed.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "tools/bench/bench_farm.h"

namespace kel::torture {

struct tortured_save {
    std::string_view name;
    void (*run)(const application_state& state);  // throws when the file cannot be written
    bool all_files_together;                      // one transaction: never some files old and others new
};

/// Set Profile over three years, a step's Save, the next year's file with its settings.
std::vector<tortured_save> tortured_saves();

/// Path and content of every file in the folder.
using folder_content = std::map<std::string, std::string>;

/// A farm with its folder as it is before each save.
class tortured_farm {
  public:
    tortured_farm();

    const application_state& state() const { return farm_.state; }
    const std::string& folder() const { return farm_.folder(); }
    void restore() const;
    /// The folder as the next start of the program finds it: each assessment is opened once, which undoes
    /// what a save cut off has left half done.
    folder_content recovered() const;
    folder_content content() const;
    /// A small save into each of the files.
    void save_each_file() const;

  private:
    std::vector<std::string> assessments() const;

    bench::bench_farm farm_;
    folder_content before_;
};

}  // namespace kel::torture
