#include "profile/location.h"

#include <array>

#include "core/numbers.h"

namespace kel {

namespace {

constexpr int last_table_column = 36;  // of [Scot_Main_Grid]; the drawn grid is wider

int whole_part(float quotient) {
    return static_cast<int>(leading_number(shortest_text(quotient).substr(0, 2)));
}

int integer(const std::string& text) {
    return static_cast<int>(leading_number(text));
}

}  // namespace

map_square square_of(float x_twips, float y_twips) {
    return {whole_part((x_twips + left_margin_twips) / square_twips), whole_part(y_twips / square_twips)};
}

location_lookup::location_lookup(const database& climate) {
    read_grid(climate);
    read_locations(climate);
    read_towns(climate);
}

void location_lookup::read_grid(const database& climate) {
    recordset rows = climate.open("Scot_Main_Grid");
    const int row = rows.column("Row");
    std::array<int, last_table_column + 1> columns{};
    for (int x = 0; x <= last_table_column; ++x)
        columns[static_cast<std::size_t>(x)] = rows.column(std::to_string(x));
    for (; !rows.eof(); rows.move_next()) {
        const int y = integer(rows.text(row));
        for (int x = 0; x <= last_table_column; ++x) {
            const std::string number = rows.text(columns[static_cast<std::size_t>(x)]);
            if (!number.empty()) numbers_.emplace(std::pair{x, y}, integer(number));
        }
    }
}

void location_lookup::read_locations(const database& climate) {
    for (recordset rows = climate.open("Scotland"); !rows.eof(); rows.move_next()) {
        std::string location = rows.text("Location");
        zones_.emplace(location, rows.text("KEL"));
        locations_.emplace(integer(rows.text("Grid Number")), std::move(location));
    }
}

void location_lookup::read_towns(const database& climate) {
    for (recordset rows = climate.open("KEL_rain"); !rows.eof(); rows.move_next())
        towns_.push_back({rows.text("Town"), rows.text("KEL")});
}

map_place location_lookup::at(map_square square) const {
    const auto number = numbers_.find({square.x, square.y});
    if (number == numbers_.end()) return {};
    const auto location = locations_.find(number->second);
    if (location == locations_.end()) return {};
    return {location->second, number->second};
}

std::string location_lookup::zone_of(std::string_view location) const {
    const auto zone = zones_.find(location);
    return zone == zones_.end() ? std::string{} : zone->second;
}

std::vector<std::string> location_lookup::towns_in(std::string_view zone) const {
    std::vector<std::string> names;
    for (const town& candidate : towns_)
        if (candidate.zone == zone) names.push_back(candidate.name);
    return names;
}

std::vector<zone_square> location_lookup::zone_squares() const {
    std::vector<zone_square> squares;
    for (const auto& numbered : numbers_) {
        const map_square square{numbered.first.first, numbered.first.second};
        std::string zone = zone_of(at(square).location);
        if (!zone.empty()) squares.push_back({square, std::move(zone)});
    }
    return squares;
}

}  // namespace kel
