// The size of the screen that is not there, where the program runs without a display. Windows give way to it
// as they do to a real one.
#pragma once

#include <QSize>
#include <QTemporaryFile>
#include <QtGlobal>

namespace kel::drive {

/// Call it before there is an application, on a machine without a display or with the platform "offscreen";
/// the file must outlive the application. Another platform, or one with a screen of its own, is left as it
/// is.
inline void use_unseen_screen(QTemporaryFile& file, QSize size) {
    if (qEnvironmentVariable("QT_QPA_PLATFORM") != "offscreen" || !file.open()) return;
    file.write(QString(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [)"
                       R"({"name": "unseen", "x": 0, "y": 0, "width": %1, "height": %2, "dpr": 1, )"
                       R"("logicalDpi": 96, "logicalBaseDpi": 96}]})")
                   .arg(size.width())
                   .arg(size.height())
                   .toLatin1());
    file.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

}  // namespace kel::drive
