// The port to the person, shown with real boxes and file dialogs. This is the only place with a message box.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "core/prompts.h"

class QDialog;

namespace kel {

inline constexpr std::string_view program_title = "KEL Calculator";

/// A window may go while a box over it waits for its answer, and would take the box along. So the box stands
/// over the window and belongs to none.
int shown_over_active_window(QDialog& box);

class qt_prompts : public prompts {
  public:
    answer ask(const message& box) override;
    void show_list(const titled_list& list) override;
    std::string file_to_open(const file_request& request) override;
    std::string file_to_save(const file_request& request) override;
    /// Folders that the file dialogs offer at their side.
    void offer_folders(const QStringList& folders);

  private:
    std::string chosen_file(const file_request& request, bool save);

    QList<QUrl> offered_;
};

}  // namespace kel
