// The screens as the shell sees them: it says which one comes to view, by the tags of viewer_back, and never
// what they look like.
#pragma once

#include <string>
#include <string_view>

namespace kel {

/// Tags: "land", "storage", "reduction" (manure applications), "inorg", "crop", "grass", "straw", "record",
/// "profile", "splash" (About box), "years" (years dialog).
class screens {
  public:
    virtual ~screens() = default;
    /// Brings a screen to view; it is made, and loads its data, at its first use. Nothing happens for a tag
    /// that does not exist.
    virtual void open(std::string_view tag) = 0;
    /// Whether this build has the screen; the commands of one it lacks are shown disabled.
    virtual bool exists(std::string_view tag) const = 0;
    /// Starts a program in a normal window; false if it cannot be started.
    virtual bool start_updater(const std::string& path) = 0;
    /// Ends the process without any further question.
    virtual void end() = 0;
};

}  // namespace kel
