// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"
#include "platform/standardTexts.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The screen that the program is made for.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VRB_ASSETS "/../tests/views/screen.json");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    look::addFonts(VRB_BIN "/fonts");  // where the build puts them: the tests measure texts
    look::applyTo();
    speakJapanese(application);
    return RUN_ALL_TESTS();
}
