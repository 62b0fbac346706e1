// What the assessments screen asks of its surroundings besides the screens.
#pragma once

#include <string>
#include <vector>

#include "core/screens.h"

namespace kel {

class desktop : public screens {
  public:
    /// Starts a program in a normal window; false if it cannot be started.
    virtual bool start_updater(const std::string& path) = 0;
    /// Asks for a printer and prints these pages, by their paths, in one go.
    virtual void print_pages(const std::vector<std::string>& pages) = 0;
    /// Ends the process without any further question.
    virtual void end() = 0;
};

}  // namespace kel
