// Two copies of the program, or two of its screens, may work on one file. A module remembers what the tables
// it saves held when it loaded them, and its Save asks before it writes over rows that are others by then.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/assessment_store.h"
#include "core/file_stamp.h"
#include "core/prompts.h"
#include "core/text_grid.h"

namespace kel {

/// A table that a module saves, with the columns that are its own; none named: all of them.
struct saved_table {
    std::string_view table;
    std::vector<std::string_view> columns{};
};

/// The stored columns of a grid without those that it only carries for another module.
std::vector<std::string_view> own_columns(std::span<const grid_column> columns);

class loaded_rows {
  public:
    explicit loaded_rows(std::vector<saved_table> tables) : tables_(std::move(tables)) {}

    /// Call it at every load, with the file that the rows came from. Throws file_error.
    void remember(const database& db);
    /// Whether this file's rows are others than those remembered; false for a file never loaded from. Throws
    /// file_error.
    bool changed(const database& db) const;
    /// The same with the question to the person, for a save that is no module_save.
    bool may_be_replaced(const std::string& path, prompts& person) const;

  private:
    friend class module_save;
    std::uint64_t digest(const database& db) const;
    bool changed(const database& db, const file_stamp& now) const;
    void remember_saved(const database& db, std::uint64_t digest, const file_stamp& before,
                        std::uint32_t own_writes);

    std::vector<saved_table> tables_;
    std::string path_;
    file_stamp stamp_;  // nobody has written since: the rows need not be read
    std::uint64_t digest_ = 0;
};

/// Asked before a save over such rows.
message rows_changed_meanwhile(const std::string& path);

}  // namespace kel
