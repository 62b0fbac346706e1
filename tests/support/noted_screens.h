// The screens of a test without any: remembers which one was opened in place of which.
#pragma once

#include <utility>
#include <vector>

#include "core/screens.h"

namespace kel::test {

class noted_screens : public screens {
  public:
    void open(screen_id) override {}
    void open_in_place_of(screen_id opener, screen_id id) override { opened.emplace_back(opener, id); }
    bool exists(screen_id) const override { return true; }
    bool in_view(screen_id) const override { return false; }

    std::vector<std::pair<screen_id, screen_id>> opened;
};

}  // namespace kel::test
