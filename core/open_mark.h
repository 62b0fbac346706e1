// Says to other copies of the program which assessment this one has open: by a small locked file beside it
// (farm.kel.lock), which names the process and the computer. The lock ends with the process, also by a kill.
#pragma once

#include <optional>
#include <string>

#include "core/prompts.h"

namespace kel {

class open_mark {
  public:
    open_mark() = default;
    ~open_mark() { let_go(); }
    open_mark(const open_mark&) = delete;
    open_mark& operator=(const open_mark&) = delete;

    /// Marks the file (none for an empty path) and lets go of the one before. If another copy has marked it,
    /// the computer on which that runs, once as long as the path stays the same. A folder that takes no mark
    /// is no trouble. Never throws.
    std::optional<std::string> move_to(const std::string& path);

    /// The computer of another copy of the program that has this file open. Never throws.
    std::optional<std::string> held_elsewhere(const std::string& path) const;

  private:
    bool take();
    static std::string holder_of(const std::string& path);
    void let_go();

    std::string path_;
    int file_ = -1;
};

/// Told when a file is opened that another copy of the program has open.
message open_elsewhere(const std::string& path, const std::string& computer);

}  // namespace kel
