#include "storage/field_use_checks.h"

#include "core/assessment_store.h"
#include "rules/closed_periods.h"
#include "rules/crop_catalogue.h"
#include "storage/storage_messages.h"

namespace kel {

namespace {

void read_last_year(const database& last_year, std::string_view field, other_uses& others) {
    const auto pair = last_year.lookup("Crop", "Land", "Field Area ID", field);
    others.in_last_year = pair.has_value();
    if (const auto use = split_crop_pair(pair.value_or(""))) others.last_second_crop = use->second;
}

std::optional<std::string> calculated_crop(const database& db, std::string_view field) {
    if (const auto code = db.lookup("Next Crop", "Crops", "Field Area ID", field))
        return std::string(crop_long_name(*code));
    if (!db.open("Site", "Field Area ID", field).eof()) return std::string(crop_types::grass);
    return std::nullopt;
}

}  // namespace

other_uses read_other_uses(const application_state& state, std::string_view field) {
    other_uses others;
    if (!state.prev1_file.empty()) read_last_year(database(state.prev1_file), field, others);
    if (!state.assess_file.empty())
        others.crop_calculated = calculated_crop(database(state.assess_file), field);
    return others;
}

bool goes_with_last_year(const other_uses& others, std::string_view first_crop, prompts& person) {
    using namespace storage_messages;
    if (!others.in_last_year || others.last_second_crop == first_crop) return true;
    if (others.last_second_crop.empty()) {
        person.tell(no_crop_last_year);
        return true;
    }
    if (person.ask(crop_type_mismatch(first_crop, others.last_second_crop)) != answer::yes) return false;
    person.tell(review_last_year);
    return true;
}

bool goes_with_calculated_crop(const other_uses& others, std::string_view first_crop, prompts& person) {
    using namespace storage_messages;
    if (!others.crop_calculated) return true;
    const std::string& crop = *others.crop_calculated;
    if (first_crop == crop_types::grass && crop == crop_types::grass) return true;
    if (crop_in_type(first_crop, crop, name_column::planned)) return true;
    if (person.ask(crop_mismatch(first_crop, crop)) != answer::yes) return false;
    person.tell(review_recommendation);
    return true;
}

}  // namespace kel
