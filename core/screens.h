// The screens by their identities, and the port through which the shell and the modules bring one to view.
// They say which one, never what it looks like.
#pragma once

namespace kel {

enum class screen_id {
    front,      // the assessments screen
    profile,    // the farm and its fields
    location,   // the map
    land,       // Step 1
    storage,    // Step 2
    manure,     // Step 3
    inorganic,  // Step 4
    crops,
    grass,
    straw,  // composting
    record,
    calendar,  // of the season
    sheets,    // blank ones to fill in by hand
    years,     // the years dialog
    farms,     // of a folder
    about,
    viewer,
};

class screens {
  public:
    virtual ~screens() = default;
    /// Brings a screen to view; it is made, and loads its data, at its first use. Throws file_error and
    /// leaves the screens as they were when it cannot load, std::invalid_argument for a screen this build
    /// lacks.
    virtual void open(screen_id id) = 0;
    /// The same, and hides the screen that opens it. That one keeps what was typed into it; a module closes
    /// to the screen that opened it.
    virtual void open_in_place_of(screen_id opener, screen_id id) = 0;
    /// Whether this build has the screen; the commands of one it lacks are shown disabled.
    virtual bool exists(screen_id id) const = 0;
    virtual bool in_view(screen_id id) const = 0;
};

}  // namespace kel
