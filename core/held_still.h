// An assessment that is copied must not change meanwhile.
#pragma once

#include <optional>
#include <string>

#include "core/assessment_store.h"
#include "core/fresh_file.h"

namespace kel {

/// While it lives nobody saves into the file. One that is read-only, or no assessment, is left alone. Throws
/// file_error for one that another program is saving into.
class held_still {
  public:
    explicit held_still(const std::string& path);

  private:
    std::optional<database> db_;
    std::optional<save_transaction> nobody_saves_;
};

/// A copy of the assessment as it is between two saves, not yet in its place.
fresh_file fresh_assessment(const std::string& from, const std::string& target);

}  // namespace kel
