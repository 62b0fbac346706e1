#include "ui/kel_application.h"

#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <stdexcept>

#include "core/file_error.h"

// The pictures lie in a library, whose resources nobody registers unasked; the macro wants to stand outside
// namespaces.
static void register_pictures() {
    Q_INIT_RESOURCE(resources);
}

namespace kel {

namespace {

// Enter presses the button that has the focus, in windows as in dialogs. Alt and its letter press a button at
// once: the toolkit takes a tenth of a second, in which what is typed next still goes to the old screen.
bool presses_button(const QEvent& event) {
    if (event.type() == QEvent::Shortcut) return !static_cast<const QShortcutEvent&>(event).isAmbiguous();
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// What a farm is called must never be read as markup. Tool tips are escaped by plain_tip, so that they wrap.
void show_plainly(QObject* receiver) {
    auto* label = qobject_cast<QLabel*>(receiver);
    if (label && label->textFormat() == Qt::AutoText && !label->inherits("QTipLabel"))
        label->setTextFormat(Qt::PlainText);
}

}  // namespace

message stop_box(const std::exception& failure) {
    message box{"", "Something unexpected went wrong:\r\n\r\n" + std::string(failure.what()),
                message_kind::stop, message_buttons::ok};
    if (const auto* file = dynamic_cast<const file_error*>(&failure))
        box.text = "There is a problem with the file\r\n" + file->file() + "\r\n\r\n" + file->trouble();
    return box;
}

kel_application::kel_application(int& argc, char** argv) : QApplication(argc, argv) {
    register_pictures();
    setApplicationName("kel-calculator");
    setDesktopFileName("org.kel_calculator.KelCalculator");
    setWindowIcon(QIcon(":/kel-calculator.png"));
    setQuitOnLastWindowClosed(false);
    // Calendars and date boxes read day first on a machine of any locale.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
}

bool kel_application::notify(QObject* receiver, QEvent* event) {
    try {
        if (event->type() == QEvent::Polish) show_plainly(receiver);
        auto* button = presses_button(*event) ? qobject_cast<QPushButton*>(receiver) : nullptr;
        if (!button) return QApplication::notify(receiver, event);
        button->click();
        return true;
    } catch (const std::exception& failure) {
        if (person_) person_->tell(stop_box(failure));
        return true;
    }
}

}  // namespace kel
