// Where the open farm stands, for the assessments screen: kept as it was worked out until one of its files
// has changed, and shown as a page.
#pragma once

#include <array>
#include <optional>

#include "core/application_state.h"
#include "core/file_stamp.h"
#include "reports/report_viewer.h"
#include "standing/farm_standing.h"

namespace kel {

class standing_module {
  public:
    standing_module(application_state& state, report_desk& desk) : state_(state), desk_(desk) {}

    /// As last worked out; nothing while no assessment is open.
    const std::optional<farm_standing>& standing() const { return standing_; }
    /// Whether it is that of the files as they now are. Opens them no further than to their headers.
    bool is_current() const { return stamps() == stamps_; }
    /// Works it out anew, unless it is current.
    void bring_up_to_date();

    /// Shows the page. Does nothing while no assessment is open; throws file_error when it cannot be written.
    void report();

  private:
    std::array<file_stamp, 3> stamps() const;

    application_state& state_;
    report_desk& desk_;
    std::optional<town_rain> rain_;
    std::optional<std::array<file_stamp, 3>> stamps_;
    std::optional<farm_standing> standing_;
};

}  // namespace kel
