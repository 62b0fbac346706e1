#include "profile/farm_profile.h"

#include <charconv>
#include <numeric>
#include <optional>

#include "core/dates.h"
#include "core/numbers.h"
#include "profile/profile_messages.h"

namespace kel {

namespace {

constexpr int first_year = 2000;
constexpr int last_year = 2040;
constexpr std::string_view given_name = "Field ";

std::string numbered_name(int number) {
    return std::string(given_name) + std::to_string(number);
}

/// The n of a name that reads exactly "Field n".
std::optional<int> number_of(const std::string& name) {
    if (!name.starts_with(given_name)) return std::nullopt;
    int number = 0;
    std::from_chars(name.data() + given_name.size(), name.data() + name.size(), number);
    if (numbered_name(number) != name) return std::nullopt;
    return number;
}

/// Which of the names "Field 1", "Field 2", ... are free. Each taken number points on towards the next free
/// one, so that a long list is named in time that grows with its length only.
class free_numbers {
  public:
    // A row starts at its own number and passes at most one name per row.
    explicit free_numbers(const text_grid& fields)
        : next_(static_cast<std::size_t>(fields.row_count()) * 2 + 2) {
        std::iota(next_.begin(), next_.end(), 0);
        for (int row = 0; row < fields.row_count(); ++row) {
            const auto number = number_of(fields.cell(row, field_column::name));
            if (number && *number > 0 && *number + 1 < static_cast<int>(next_.size())) use(*number);
        }
    }

    int take(int from) {
        int number = from;
        while (at(number) != number) {
            at(number) = at(at(number));
            number = at(number);
        }
        use(number);
        return number;
    }

  private:
    void use(int number) { at(number) = number + 1; }
    int& at(int number) { return next_.at(static_cast<std::size_t>(number)); }

    std::vector<int> next_;
};

bool any_field_incomplete(const text_grid& fields) {
    for (int row = 0; row < fields.row_count(); ++row)
        for (int column = field_column::name; column <= field_column::soil; ++column)
            if (fields.cell(row, column).empty()) return true;
    return false;
}

}  // namespace

const message* missing_from_profile(const farm_details& farm, const text_grid& fields) {
    if (farm.name.empty()) return &profile_messages::no_name;
    if (farm.location.empty()) return &profile_messages::no_location;
    if (farm.total_area.empty()) return &profile_messages::no_area;
    if (leading_number(farm.field_count) == 0 || fields.row_count() == 0) return &profile_messages::no_fields;
    if (!parse_date(farm.year)) return &profile_messages::no_year;
    if (any_field_incomplete(fields)) return &profile_messages::missing_data;
    return nullptr;
}

std::vector<std::string> year_choices() {
    std::vector<std::string> choices;
    for (int year = first_year; year <= last_year; ++year)
        choices.push_back("19/12/" + std::to_string(year));
    return choices;
}

void name_nameless_fields(text_grid& fields) {
    free_numbers free(fields);
    for (int row = 0; row < fields.row_count(); ++row)
        if (fields.cell(row, field_column::name).empty())
            fields.set_cell(row, field_column::name, numbered_name(free.take(row + 1)));
}

}  // namespace kel
