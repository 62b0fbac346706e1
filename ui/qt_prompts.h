// The port to the person, shown with real boxes and file dialogs. This is the only place with a message box.
#pragma once

#include <QString>

#include "core/prompts.h"

class QWidget;

namespace kel {

inline constexpr std::string_view program_title = "KEL Calculator";

class qt_prompts : public prompts {
  public:
    answer ask(const message& box) override;
    void show_list(const titled_list& list) override;
    std::string file_to_open(const file_request& request) override;
    std::string file_to_save(const file_request& request) override;

  private:
    std::string chosen_file(const file_request& request, bool save);
};

}  // namespace kel
