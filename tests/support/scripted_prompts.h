// The person of a test: a script of the exact messages expected and the answers given. A wrong, a missing or
// a left-over message fails the test.
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "core/prompts.h"

namespace kel::test {

class scripted_prompts : public prompts {
  public:
    ~scripted_prompts() override;

    /// Expects this box next and presses OK.
    scripted_prompts& expect(const message& box);
    /// Expects this box next and gives this answer.
    scripted_prompts& expect(const message& box, answer reply);
    /// Expects this list next.
    scripted_prompts& expect_list(const titled_list& list);
    /// Expects an open or save dialog of this title next and chooses the path; an empty one cancels.
    scripted_prompts& expect_file(const std::string& title, const std::string& path);

    /// Fails the test if something expected has not come.
    void verify_done();
    const std::string& last_folder() const { return last_folder_; }

    answer ask(const message& box) override;
    void show_list(const titled_list& list) override;
    std::string file_to_open(const file_request& request) override;
    std::string file_to_save(const file_request& request) override;

  private:
    struct step {
        message box{};
        answer reply = answer::ok;
        bool file = false;
        std::string path{};
        std::optional<titled_list> list{};
    };
    std::string file_chosen(const file_request& request);
    std::deque<step> script_;
    std::string last_folder_;
};

}  // namespace kel::test
