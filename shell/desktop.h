// What the assessments screen asks of its surroundings besides the screens.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/earlier_copies.h"
#include "core/screens.h"

namespace kel {

class desktop : public screens {
  public:
    /// Starts a program in a normal window; false if it cannot be started.
    virtual bool start_updater(const std::string& path) = 0;
    /// Asks for a printer and prints these pages, by their paths, in one go.
    virtual void print_pages(const std::vector<std::string>& pages) = 0;
    /// Shows a folder in the desktop's own window; false if it cannot.
    virtual bool open_folder(const std::string& folder) = 0;
    /// The place of the copy that the person chose in the list; nothing: none.
    virtual std::optional<std::size_t> choose_copy(const std::vector<earlier_copy>& copies) = 0;
    /// Whether a screen holds changes that have not been saved.
    virtual bool has_unsaved() const = 0;
    /// Shows the page on where the open farm stands.
    virtual void show_standing() = 0;
    /// Ends the process without any further question.
    virtual void end() = 0;
};

}  // namespace kel
