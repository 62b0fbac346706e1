#include <gtest/gtest.h>

#include "tools/unseen_screen.h"
#include "ui/kel_application.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryFile screen;
    kel::drive::use_unseen_screen(screen, {1280, 720});  // a small laptop's
    // All screens are tested on a machine of a month-first country.
    qputenv("LC_ALL", "en_US.UTF-8");
    testing::InitGoogleTest(&argc, argv);
    const kel::kel_application application(argc, argv);
    // However slowly the letters come, those typed into a list are one word.
    constexpr int one_word_ms = 3'600'000;
    QApplication::setKeyboardInputInterval(one_word_ms);
    return RUN_ALL_TESTS();
}
