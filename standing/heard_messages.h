// The person of a load that no screen belongs to: what would be told is kept, and nothing is ever chosen.
#pragma once

#include <string>
#include <vector>

#include "core/prompts.h"

namespace kel {

class heard_messages : public prompts {
  public:
    answer ask(const message& box) override {
        told.push_back(box.text);
        return answer::cancel;
    }
    void show_list(const titled_list& /*list*/) override {}
    std::string file_to_open(const file_request& /*request*/) override { return {}; }
    std::string file_to_save(const file_request& /*request*/) override { return {}; }

    std::vector<std::string> told;
};

}  // namespace kel
