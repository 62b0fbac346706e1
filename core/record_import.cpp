#include "core/record_import.h"

#include "core/file_choice.h"

namespace kel {

std::optional<import_source> open_import(application_state& state, prompts& person, import_mode mode,
                                         const import_titles& titles) {
    const std::string path =
        choose_file_to_open(state, person, mode == import_mode::add ? titles.add : titles.over_write);
    if (path.empty()) return std::nullopt;
    std::vector<farm_field> farm;
    if (!state.assess_file.empty()) farm = read_farm_fields(database(state.assess_file));
    return import_source{database(path), std::move(farm)};
}

}  // namespace kel
