#include "profile/location_module.h"

#include <algorithm>

#include "profile/profile_messages.h"

namespace kel {

namespace messages = profile_messages;

location_module::location_module(application_state& state, prompts& person, profile_module& profile)
    : state_(state), person_(person), profile_(profile), lookup_(database(state.places.climate_tables())) {
    arrow_move(0, 0);
}

void location_module::pointer_move(float x_twips, float y_twips) {
    x_ = x_twips;
    y_ = y_twips;
    square_ = square_of(x_, y_);
    pointer_place_ = lookup_.at(square_);
}

void location_module::arrow_move(int columns, int rows) {
    const int x = std::clamp(square_.x + columns, 0, grid_columns - 1);
    const int y = std::clamp(square_.y + rows, 0, grid_rows - 1);
    constexpr float half = square_twips / 2.0F;
    pointer_move(static_cast<float>(left_of_column(x)) + half, static_cast<float>(top_of_row(y)) + half);
}

void location_module::click() {
    marker_ = square_;
    marker_visible_ = pointer_place_.location != no_location;
    place_ = pointer_place_;
    if (place_.grid_number)
        show_zone();
    else
        clear_zone();
}

void location_module::clear_zone() {
    zone_.clear();
    towns_.clear();
    town_.clear();
}

void location_module::show_zone() {
    clear_zone();
    zone_ = lookup_.zone_of(place_.location);
    towns_ = lookup_.towns_in(zone_);
    towns_visible_ = true;
}

bool location_module::enter() {
    if (zone_.empty()) {
        person_.tell(messages::no_kel);
        return false;
    }
    if (town_.empty()) {
        person_.tell(messages::no_town);
        return false;
    }
    state_.farm_zone = zone_;
    state_.farm_town = town_;
    profile_.show_location();
    return true;
}

}  // namespace kel
