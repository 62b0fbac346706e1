// The three linked years of the sample farm as copies to work on, and a person who agrees to everything.
#pragma once

#include <string>
#include <vector>

#include "core/prompts.h"
#include "tests/support/farm_files.h"

namespace kel::test {

struct sample_year {
    std::string path;
    date start;
};
/// As the build has them, oldest first.
std::vector<sample_year> sample_years();

class sample_chain_test : public farm_test {
  protected:
    sample_chain_test();
    /// The year's copy stands open with those of the years before it linked, as in the program.
    void open_year(std::size_t year);
    std::vector<std::string> files;  // oldest first
};

/// Says yes to everything and keeps what it was told.
struct agreeing_person : prompts {
    answer ask(const message& box) override { return told.push_back(box), answer::yes; }
    void show_list(const titled_list&) override {}
    std::string file_to_open(const file_request&) override { return {}; }
    std::string file_to_save(const file_request&) override { return {}; }
    std::vector<message> told;
};

}  // namespace kel::test
