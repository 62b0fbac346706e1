// The application with the one place where an unexpected failure is caught: round the event loop. It is shown
// as a stop box that names the file and the trouble; the screen and what was typed stay.
#pragma once

#include <QApplication>

#include "core/prompts.h"

namespace kel {

/// The box for a failure that reached the event loop.
message stop_box(const std::exception& failure);

class kel_application : public QApplication {
    Q_OBJECT

  public:
    kel_application(int& argc, char** argv);
    void set_prompts(prompts* person) { person_ = person; }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    prompts* person_ = nullptr;
};

}  // namespace kel
