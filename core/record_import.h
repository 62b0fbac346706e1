// Records taken over from another assessment: which file, and what the box of the choice says. The rows
// themselves go through import_rows; nothing is written before the module's save.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/application_state.h"
#include "core/assessment_store.h"
#include "core/farm_fields.h"
#include "core/grid_rows.h"
#include "core/prompts.h"

namespace kel {

namespace import_messages {

inline constexpr std::string_view command = "Add records from another file";
inline constexpr std::string_view question =
    "Do you want to add the imported data to the table or over-write it?";
inline constexpr std::string_view add = "Add To Table";
inline constexpr std::string_view over_write = "Over-write Table";
inline constexpr std::string_view table = "Import Table";

}  // namespace import_messages

/// Titles of the file dialog.
struct import_titles {
    std::string_view add = "Add data from another assessment";
    std::string_view over_write = "Replace with data from another assessment";
};

struct import_source {
    database file;                 // only read
    std::vector<farm_field> farm;  // the fields of the profile that is open
};

/// Asks for the file and opens it; nothing when cancelled. `last_dir` becomes its folder. Throws file_error
/// naming a file that is no assessment.
std::optional<import_source> open_import(application_state& state, prompts& person, import_mode mode,
                                         const import_titles& titles = {});

}  // namespace kel
