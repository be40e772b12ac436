// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"
#include "platform/standardTexts.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    look::addFonts(VRB_BIN "/fonts");  // where the build puts them: the tests measure texts
    look::applyTo(application);
    speakJapanese(application);
    return RUN_ALL_TESTS();
}
