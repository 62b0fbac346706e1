#include <QFileInfo>
#include <QStandardPaths>
#include <exception>

#include "ui/kel_application.h"
#include "ui/program.h"
#include "ui/qt_prompts.h"
#include "ui/today.h"
#include "ui/widgets/qt_text.h"

int main(int argc, char** argv) {
    kel::kel_application application(argc, argv);
    kel::qt_prompts prompts;
    application.set_prompts(&prompts);
    try {
        auto places = kel::locate_installation(
            kel::from_qt(QCoreApplication::applicationFilePath()),
            kel::from_qt(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         "/kel-calculator"),
            kel::from_qt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
        kel::prepare_written_folder(places);
        prompts.offer_folders({kel::qt(places.user_files()), kel::qt(places.old_user_files())});
        kel::program program(places, prompts, kel::today);
        QObject::connect(&program, &kel::program::ended, &application, &QCoreApplication::quit,
                         Qt::QueuedConnection);
        // The desktop hands over the assessment that was opened from a folder.
        const QStringList arguments = QCoreApplication::arguments();
        const std::string assessment =
            arguments.size() > 1 ? kel::from_qt(QFileInfo(arguments[1]).absoluteFilePath()) : std::string{};
        program.start(assessment);
        return QCoreApplication::exec();
    } catch (const std::exception& failure) {
        prompts.tell(kel::stop_box(failure));
        return 1;
    }
}
