// The location screen: a map square, pointed at or reached with the arrow keys, leads to a location and its
// zone, and the zone to the towns of which the farmer picks the nearest. Leaving the screen without Enter
// changes nothing.
#pragma once

#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/prompts.h"
#include "profile/location.h"
#include "profile/profile_module.h"

namespace kel {

class location_module {
  public:
    /// Reads the climate tables and stands on the starting square. Throws file_error.
    location_module(application_state& state, prompts& person, profile_module& profile);

    // Under the pointer: its place on the map in twips, the square, and what lies there.
    float pointer_x() const { return x_; }
    float pointer_y() const { return y_; }
    map_square square() const { return square_; }
    const map_place& pointer_place() const { return pointer_place_; }
    /// The custom pointer shows over land, the normal one elsewhere.
    bool custom_pointer() const { return pointer_place_.location != no_location; }

    std::vector<zone_square> zone_squares() const { return lookup_.zone_squares(); }

    // Clicked.
    const map_place& place() const { return place_; }
    const std::string& zone() const { return zone_; }
    const std::vector<std::string>& towns() const { return towns_; }
    const std::string& town() const { return town_; }
    /// The prompt with its arrow and the town list come with the first location.
    bool towns_visible() const { return towns_visible_; }
    bool marker_visible() const { return marker_visible_; }
    map_square marker() const { return marker_; }

    void pointer_move(float x_twips, float y_twips);
    /// Moves the pointer's place to the middle of a neighbouring square, within the grid.
    void arrow_move(int columns, int rows);
    void click();
    void select_town(const std::string& town) { town_ = town; }
    /// Takes zone and town into the state and onto the profile; returns whether the screen closes.
    bool enter();

  private:
    void clear_zone();
    void show_zone();

    application_state& state_;
    prompts& person_;
    profile_module& profile_;
    location_lookup lookup_;

    float x_ = 0;
    float y_ = 0;
    map_square square_ = starting_square;
    map_place pointer_place_;
    map_place place_{{}, {}};
    std::string zone_;
    std::vector<std::string> towns_;
    std::string town_;
    bool towns_visible_ = false;
    bool marker_visible_ = false;
    map_square marker_ = starting_square;
};

}  // namespace kel
