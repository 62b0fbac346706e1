// Where a farm lies: the grid over the map of Scotland and the tables that turn a square into a location, the
// location into its zone and the zone into its towns.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/assessment_store.h"

namespace kel {

// Geometry of the map in its own unit, the twip. The vertical lines stand left of the picture's edge by the
// margin.
inline constexpr int square_twips = 131;
inline constexpr int left_margin_twips = 15;
inline constexpr int grid_columns = 39;
inline constexpr int grid_rows = 47;

struct map_square {
    int x;
    int y;
    bool operator==(const map_square&) const = default;
};

inline constexpr map_square starting_square{20, 20};

constexpr int left_of_column(int x) {
    return square_twips * x - left_margin_twips;
}
constexpr int top_of_row(int y) {
    return square_twips * y;
}

/// The square that a point lies in. The whole part of a quotient is what its first two characters read, which
/// serves for every square of the map.
map_square square_of(float x_twips, float y_twips);

inline constexpr std::string_view no_location = "No Location";

struct map_place {
    std::string location{no_location};
    std::optional<int> grid_number;  // empty: no land there
    bool operator==(const map_place&) const = default;
};

/// A square of land that lies in a zone, for the tints of the map.
struct zone_square {
    map_square square;
    std::string zone;
};

/// The climate tables, read once: the map asks them at every move of the pointer.
class location_lookup {
  public:
    /// [Scot_Main_Grid], [Scotland] and [KEL_rain] of an open climate database. Throws file_error.
    explicit location_lookup(const database& climate);

    /// "No Location" beside the table's columns, and also for a square of sea, which has no number, and for a
    /// number without a location: all three are places where no farm can lie.
    map_place at(map_square square) const;
    /// Zone of the first row of that location; empty outside all zones.
    std::string zone_of(std::string_view location) const;
    /// Towns of a zone in table order; of no zone those that lie in none.
    std::vector<std::string> towns_in(std::string_view zone) const;
    /// All squares that lie in a zone, column by column.
    std::vector<zone_square> zone_squares() const;

  private:
    void read_grid(const database& climate);
    void read_locations(const database& climate);
    void read_towns(const database& climate);

    struct town {
        std::string name;
        std::string zone;
    };
    std::map<std::pair<int, int>, int> numbers_;  // by x and y square
    std::map<int, std::string> locations_;
    std::map<std::string, std::string, std::less<>> zones_;
    std::vector<town> towns_;
};

}  // namespace kel
