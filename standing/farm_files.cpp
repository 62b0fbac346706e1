#include "standing/farm_files.h"

#include <filesystem>
#include <system_error>

#include "core/assessment_files.h"
#include "core/file_choice.h"
#include "core/file_stamp.h"
#include "rules/rainfall.h"
#include "standing/standing_messages.h"

namespace kel {

namespace text = standing_messages;

namespace {

// A pipe or a device would be waited for.
void check_is_file(const std::string& path) {
    std::error_code unknown;
    const auto status = std::filesystem::status(path, unknown);
    if (unknown || !std::filesystem::exists(status)) throw file_error(path, "it is not there.");
    if (!std::filesystem::is_regular_file(status)) throw file_error(path, "it is no file.");
}

opened_file open_to_read(const std::string& path) {
    check_is_file(path);
    database file = database::for_reading(path);
    const file_stamp opened = file.stamp();
    return {std::move(file), opened};
}

farm_identity read_identity(const database& file) {
    farm_identity identity;
    const recordset farm = file.open("FarmProfile");
    if (!farm.eof()) identity.farm = farm.text("Name");
    loaded_profile profile;
    read_year(file, profile);
    identity.year_start = profile.kel_year_start;
    return identity;
}

// What keeps last year's file from being used, or only has to be said.
void open_last_year(const farm_paths& files, farm_year& year) {
    const auto tell = [&year](std::string_view trouble) { year.link_troubles.emplace_back(trouble); };
    if (files.previous.empty()) {
        if (!files.before_previous.empty()) tell(text::half_a_chain);
        return;
    }
    if (same_file(files.previous, files.current)) return tell(text::links_to_itself);
    try {
        opened_file last_year = open_to_read(files.previous);
        const farm_identity identity = read_identity(last_year.file);
        if (!is_year_before(identity.year_start, year.profile.kel_year_start))
            return tell(text::not_the_year_before);
        if (identity.farm != year.profile.farm_name) tell(text::of_another_farm(identity.farm));
        year.last_year = std::move(last_year);
    } catch (const file_error& failure) {
        tell(text::last_year_unreadable(failure.trouble()));
    }
}

void check_year_before_last(const farm_paths& files, farm_year& year) {
    const std::string& oldest = files.before_previous;
    if (oldest.empty() || files.previous.empty()) return;
    if (same_file(oldest, files.current) || same_file(oldest, files.previous))
        year.link_troubles.emplace_back(text::links_in_a_circle);
}

}  // namespace

farm_paths linked_paths(const application_state& state) {
    return {state.assess_file, state.prev1_file, state.prev2_file};
}

farm_identity identity_of(const std::string& path) {
    return read_identity(open_to_read(path).file);
}

const std::optional<monthly_values>& town_rain::of(const std::string& town) {
    const auto found = known_.find(town);
    if (found != known_.end()) return found->second;
    auto& rain = known_[town];
    try {
        rain = monthly_rain(database::for_reading(climate_tables_), town);
    } catch (const file_error&) {
        rain.reset();
    }
    return rain;
}

farm_year open_farm_year(const farm_paths& files) {
    farm_year year{.current = open_to_read(files.current)};
    year.has_profile = read_farm(year.current.file, year.profile);
    read_year(year.current.file, year.profile);
    year.fields = read_farm_fields(year.current.file);
    open_last_year(files, year);
    check_year_before_last(files, year);
    return year;
}

void check_unchanged(const farm_year& year) {
    const auto check = [](const opened_file& opened) {
        if (opened.file.stamp() != opened.stamp)
            throw file_error(opened.file.path(), "it changed while it was being read.");
    };
    check(year.current);
    if (year.last_year) check(*year.last_year);
}

}  // namespace kel
