// SPDX-License-Identifier: Apache-2.0
#include "platform/look.h"
#include "platform/standardTexts.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

QtMessageHandler said = nullptr;

// A complaint of a class of Qt is a slip of ours: a painter that has no device, a timer of another thread.
void hear(QtMsgType type, const QMessageLogContext& where, const QString& complaint) {
    said(type, where, complaint);
    EXPECT_FALSE(complaint.contains("::")) << complaint.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    // The screen that the program is made for.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VRB_ASSETS "/../tests/views/screen.json");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    look::addFonts(VRB_BIN "/fonts");  // where the build puts them: the tests measure texts
    look::applyTo();
    speakJapanese(application);
    said = qInstallMessageHandler(hear);
    const int result = RUN_ALL_TESTS();
#ifdef _WIN32
    // At the exit the compiler's threads have waited for ever for a lock of their own. All is said by now.
    std::fflush(nullptr);
    std::_Exit(result);
#else
    return result;
#endif
}
