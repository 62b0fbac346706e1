// A generated farm in a folder of its own, made through the store from the template and removed afterwards.
#pragma once

#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/prompts.h"

namespace kel::bench {

class bench_farm {
  public:
    /// One file, or up to three linked years of the same fields. Each field has one row in every table that
    /// knows fields; its row of [Land] has all columns filled, as Step 2 leaves it.
    explicit bench_farm(int fields, int years = 1);
    ~bench_farm();
    bench_farm(const bench_farm&) = delete;
    bench_farm& operator=(const bench_farm&) = delete;

    const std::string& folder() const { return folder_; }
    /// Copies this year's file as it now is; returns the copy's path.
    std::string copy_of_file(const std::string& name) const;

    application_state state;

  private:
    std::string folder_;
};

using table_rows = std::vector<std::vector<std::string>>;

/// All cells of a table in stored order, in the order of its columns.
table_rows rows_of(const std::string& file, const std::string& table);

/// A person to whom nothing may be said: with a box or a file dialog in the way, something else than what
/// the table states would be measured, so it ends the program.
class silent_person : public prompts {
  public:
    answer ask(const message& box) override;
    void show_list(const titled_list& list) override;
    std::string file_to_open(const file_request& request) override;
    std::string file_to_save(const file_request& request) override;
};

}  // namespace kel::bench
