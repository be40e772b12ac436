#include "platform/look.h"
#include "platform/standardTexts.h"

#include <QApplication>
#include <QTemporaryFile>
#include <gtest/gtest.h>

namespace {

// The screen that the program is made for, with frames around its windows.
constexpr const char* theScreen = R"({"windowFrameMargins": true, "screens": [
    {"name": "learner", "x": 0, "y": 0, "width": 1280, "height": 1024, "dpr": 1, "logicalDpi": 96, "logicalBaseDpi": 96}]})";

}  // namespace

int main(int argc, char** argv) {
    QTemporaryFile screen;
    if (!screen.open() || screen.write(theScreen) < 0 || !screen.flush()) {
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    look::applyTo(application);
    speakJapanese(application);
    return RUN_ALL_TESTS();
}
