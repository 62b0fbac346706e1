// Stands between the modules and the person. During a paste it keeps what would be told, for the list at the
// end, and asks each question once for all of the paste.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "core/prompts.h"

namespace kel {

class paste_prompts : public prompts {
  public:
    explicit paste_prompts(prompts& person) : person_(person) {}

    void begin_paste();
    void end_paste();
    /// What has been said since it was last taken, each in one line.
    std::vector<std::string> take_told() { return std::exchange(told_, {}); }

    answer ask(const message& box) override;
    void show_list(const titled_list& list) override;
    std::string file_to_open(const file_request& request) override { return person_.file_to_open(request); }
    std::string file_to_save(const file_request& request) override { return person_.file_to_save(request); }

  private:
    answer answer_for_all(const message& question);

    prompts& person_;
    bool pasting_ = false;
    std::vector<std::string> told_;
    std::vector<std::pair<message, answer>> answered_;
};

/// More would keep the person waiting for minutes.
inline constexpr std::size_t most_pasted_cells = 50'000;
message too_much_to_paste(std::size_t cells);

/// How a question is asked that stands for all of its kind.
message for_all_of_paste(message question);

}  // namespace kel
