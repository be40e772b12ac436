// SPDX-License-Identifier: Apache-2.0
#include "platform/browser.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "platform/settingsFile.h"
#include "platform/standardTexts.h"
#include "program/Program.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <memory>
#include <optional>

namespace {

// Qt keeps a reference to the number of arguments, and the program lives on a page when main has long returned.
struct Run {
    Run(int argc, char** argv) : count(argc), application(count, argv) {}

    int count;
    QApplication application;
    std::unique_ptr<Program> program;
};

// A teacher's link leads straight into a tour.
std::optional<std::size_t> tourAskedFor(const QApplication& application) {
    const QCommandLineOption tour("tour", "Begin with tour <number> of the list.", "number");
    QCommandLineParser arguments;
    arguments.setApplicationDescription("Training simulator of a small fieldbus.");
    arguments.addHelpOption();
    arguments.addOption(tour);
    arguments.process(application);
    return arguments.isSet(tour) ? std::optional<std::size_t>(arguments.value(tour).toUInt()) : std::nullopt;
}

void begin(Run& run) {
    QApplication::setApplicationName("VRB-TS");
    QApplication::setDesktopFileName("vrb-ts");  // by it a desktop finds name and icon
    const std::optional<std::size_t> tour = tourAskedFor(run.application);
    QApplication::setQuitOnLastWindowClosed(false);  // only the exit question ends the program
    const std::filesystem::path folder = programFolder(pathOf(QApplication::applicationDirPath()));
    look::addFonts(textOfPath(folder / "fonts"));
    look::applyTo();
    speakJapanese(run.application);

    // What the browser keeps of a page stands for the file beside the program.
    run.program = std::make_unique<Program>(folder, inBrowser ? folder : userFolder());
    Program& program = *run.program;
    QObject::connect(&program, &Program::started, &program, [&program, tour] {
        if (tour) {
            program.openTour(*tour);
        }
        if constexpr (inBrowser) {
            page::tellStarted();
        }
    });
    // The learner has been asked: nothing asks the windows again.
    const auto end = [] {
        if constexpr (inBrowser) {
            page::tellEnded();
        } else {
            QApplication::exit();
        }
    };
    QObject::connect(&program, &Program::finished, &run.application, end, Qt::QueuedConnection);
    QTimer::singleShot(0, &program, &Program::Main);
}

}  // namespace

int main(int argc, char** argv) {
    auto run = std::make_unique<Run>(argc, argv);
    begin(*run);
    const int result = QApplication::exec();
    if constexpr (inBrowser) {
        static_cast<void>(run.release());  // the page's events go on
    }
    return result;
}
