// SPDX-License-Identifier: Apache-2.0
#include "tests/views/TourPlayer.h"

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "access/registers.h"
#include "access/views/frmEditMemory.h"
#include "access/views/frmEditRegister.h"
#include "access/views/frmMemoryRead.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmMessage.h"
#include "aids/views/frmNavigation.h"
#include "aids/views/frmVersion.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/frmEditSerial.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/OvertypeField.h"
#include "program/frmMDI.h"
#include "tests/views/startedProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <functional>
#include <map>

namespace {

constexpr double step = 20;  // milliseconds of waiting between two looks at the timers

// A window of the area has its box on its frame.
bool closeBox(QWidget* window) {
    const bool framed = window != nullptr && qobject_cast<QMdiSubWindow*>(window->parentWidget()) != nullptr;
    const bool open = isUp(window);
    if (open) {
        (framed ? window->parentWidget() : window)->close();
    }
    return open && !isUp(window);
}

}  // namespace

TourPlayer::TourPlayer(Program& program) : program_(program), sight_(program.sight()) {
    // Room for the whole bench, also on a small test screen.
    frmMDI& main = program.mainWindow();
    main.showNormal();
    main.resize(1280, 994);
    main.move(-500, -300);
    main.activateWindow();
    QApplication::processEvents();
}

void TourPlayer::play(const std::string& script) {
    static const std::map<std::string_view, std::function<void(TourPlayer&, const Statement&)>> deeds{
        {"click", [](TourPlayer& p, const Statement& s) { p.hand().click(*p.part(s)); }},
        {"dblclick", [](TourPlayer& p, const Statement& s) { p.hand().doubleClick(*p.part(s)); }},
        {"hold", [](TourPlayer& p, const Statement& s) { p.hold(s); }},
        {"release", [](TourPlayer& p, const Statement& /*s*/) { p.hand().release(p.heldAt_); }},
        {"pick", [](TourPlayer& p, const Statement& s) { p.pick(s); }},
        {"mode", [](TourPlayer& p, const Statement& s) { p.mode(s.name); }},
        {"wait", [](TourPlayer& p, const Statement& s) { p.fireFor(std::stod(s.values.front())); }},
        {"open", [](TourPlayer& p, const Statement& s) { p.openWindow(s.name); }},
        {"close", [](TourPlayer& p, const Statement& s) { EXPECT_TRUE(closeBox(p.sight_.window(s.name))); }},
        {"press", [](TourPlayer& p, const Statement& s) { p.press(s); }},
        {"key", [](TourPlayer& p, const Statement& s) { p.key(s.name); }},
        {"write",
         [](TourPlayer& p, const Statement& s) {
             p.point(s);
             p.enter(*p.program_.registers().writeDialog(), s);
         }},
        {"set",
         [](TourPlayer& p, const Statement& s) {
             p.doubleClickCell(*s.place);
             p.enter(*p.program_.memory().writeDialog(), s);
         }},
        {"read", [](TourPlayer& p, const Statement& s) { p.read(s); }},
        {"serial", [](TourPlayer& p, const Statement& s) { p.serial(s); }},
        {"point", [](TourPlayer& p, const Statement& s) { p.point(s); }},
        {"double", [](TourPlayer& p, const Statement& s) { p.doubleClickCell(*s.place); }},
        {"ok", [](TourPlayer& p, const Statement& /*s*/) { p.answer(Qt::Key_Return); }},
        {"cancel", [](TourPlayer& p, const Statement& /*s*/) { p.answer(Qt::Key_Escape); }},
    };
    const Script read = readScript(script);
    EXPECT_EQ(read.wrong, "") << "is no statement";
    for (const Statement& statement : read.statements) {
        SCOPED_TRACE(statement.text);
        if (statement.word->kind == WordKind::promise) {
            check(statement);
            checked_.push_back(statement.text);
        } else {
            deeds.at(statement.word->verb)(*this, statement);
        }
        QApplication::processEvents();
    }
}

// --- the bench -------------------------------------------------------------------------------------------------------------

BenchHand TourPlayer::hand() {
    frmHard& bench = *program_.bench().bench();
    // A click on the bench brings the main window to the front.
    program_.mainWindow().activateWindow();
    program_.mainWindow().area().setActiveSubWindow(&bench);
    QApplication::processEvents();
    return BenchHand(bench);
}

// A part that the learner can't see is no part to point at.
BenchPart* TourPlayer::part(const Statement& s) {
    BenchPart& found = hand().part(s.name, s.index);
    EXPECT_TRUE(found.isVisible()) << s.name << ' ' << s.index << " is hidden";
    return &found;
}

void TourPlayer::hold(const Statement& s) {
    held_ = part(s);
    heldAt_ = hand().at(*held_);
    held_->reactions().heldByDouble ? hand().doublePress(*held_) : hand().press(*held_);
}

void TourPlayer::pick(const Statement& s) {
    BenchCombo* box = program_.bench().bench()->combo(s.name, s.index);
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->isOpen()) << "nothing has opened it";
    for (int item = 0; item < box->count(); ++item) {
        if (plainText(box->itemText(item).toStdString()) == s.values.front()) {
            box->setFocus();
            box->setCurrentIndex(item);
            emit box->activated(item);
            return;
        }
    }
    ADD_FAILURE() << "no such item";
}

// --- main window and time ----------------------------------------------------------------------------------------------------

void TourPlayer::mode(const std::string& name) {
    for (std::size_t index = 0; index < runModes.size(); ++index) {
        if (plainText(runModes[index].caption) == name) {
            QTest::mouseClick(&program_.mainWindow().lblRunMode(static_cast<int>(index)), Qt::LeftButton);
        }
    }
}

void TourPlayer::fireFor(double seconds) {
    if (seconds >= 2) {
        program_.aids().hideMessage();  // popups stay for two seconds
    }
    const auto fireWhenDue = [](Timer& timer, double& since) {
        since += step;
        if (timer.interval() > 0 && since >= timer.interval()) {
            since = 0;
            timer.fire();
        }
    };
    for (double elapsed = 0; elapsed < 1000 * seconds; elapsed += step) {
        fireWhenDue(program_.mainWindow().timTick(), sinceTick_);
        fireWhenDue(program_.bench().bench()->timMotor(), sinceMotor_);
        if (frmNavigation* tour = program_.aids().navigation()) {
            fireWhenDue(tour->timWatch(), sinceWatch_);
        }
        if (frmVersion* panel = program_.aids().versionPanel()) {
            fireWhenDue(panel->timTimer(), sinceVersion_);
        }
    }
}

void TourPlayer::openWindow(const std::string& name) {
    constexpr int noEntry = -1;
    struct Way {
        Tool tool;
        int entry = noEntry;  // of the chooser
    };
    static const std::map<std::string, Way> ways{{"register", {Tool::registerWindow}},
                                                 {"hint", {Tool::registerHint}},
                                                 {"settings", {Tool::defaultSet}},
                                                 {"version", {Tool::version}},
                                                 {"chooser", {Tool::memoryWindow}},
                                                 {"control", {Tool::memoryWindow, frmDumpSel::controlDoDi}},
                                                 {"c1c7", {Tool::memoryWindow, frmDumpSel::c1ToC7}},
                                                 {"drc", {Tool::memoryWindow, frmDumpSel::drc}},
                                                 {"read", {Tool::memoryWindow, frmDumpSel::memoryRead}}};
    ASSERT_TRUE(ways.contains(name)) << "the strip doesn't lead there";
    const Way& way = ways.at(name);
    QTest::mouseClick(&program_.mainWindow().label(way.tool), Qt::LeftButton);
    if (way.entry != noEntry) {
        QTest::mouseClick(&program_.memory().chooser()->cmdAREA(way.entry), Qt::LeftButton);
    }
}

void TourPlayer::press(const Statement& s) {
    QWidget* window = sight_.window(s.name);
    ASSERT_TRUE(isUp(window)) << "the window is shut";
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (plainText(button->text().toStdString()) == s.values.front()) {
            ASSERT_TRUE(button->isEnabled());
            button->click();
            return;
        }
    }
    ADD_FAILURE() << "no such button";
}

// To whatever has the keyboard.
void TourPlayer::key(const std::string& keys) {
    const QKeySequence sequence(QString::fromStdString(keys), QKeySequence::PortableText);
    ASSERT_EQ(sequence.count(), 1);
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &program_.mainWindow(), sequence[0].key(), sequence[0].keyboardModifiers());
}

// --- the host CPU ------------------------------------------------------------------------------------------------------------

// Types the value into a write dialog; the narrow option for two digits.
void TourPlayer::enter(QWidget& dialog, const Statement& s) {
    ASSERT_TRUE(dialog.isVisible()) << "the dialog didn't open";
    auto* option = dialog.findChild<QRadioButton*>(s.digits == 2 ? "opnAccess1" : "opnAccess0");
    ASSERT_TRUE(option->isEnabled());
    option->click();
    auto* field = dialog.findChild<OvertypeField*>("txtWriteData");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, QString::fromStdString(s.values.front()));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

void TourPlayer::point(const Statement& s) {
    ASSERT_TRUE(isUp(program_.registers().window())) << "the register window is shut";
    const auto* row = std::find_if(registerTable.begin(), registerTable.end(),
                                   [&s](const RegisterRow& candidate) { return candidate.name == s.name; });
    const auto column = s.place.value_or(0) % 2 != 0 ? frmRegister::valHigh : frmRegister::valLow;
    QTest::mouseDClick(&program_.registers().window()->cell(static_cast<int>(row - registerTable.begin()) + 1, column),
                       Qt::LeftButton);
}

DumpGrid& TourPlayer::doubleClickCell(int place) {
    const auto row = std::find_if(dumpAreas.begin(), dumpAreas.end(), [place](const DumpArea& area) {
        return place >= area.firstByte && place < area.firstByte + area.cells;
    });
    frmDump& dump = *program_.memory().window(row->area);
    EXPECT_TRUE(dump.isVisible()) << "its dump window is shut";
    const int cell = addressToLabel(program_.machine(), busToMemoryIndex(program_.machine(), place) - row->firstByte);
    QTest::mouseDClick(&dump.grid(), Qt::LeftButton, {}, dump.grid().cellRect(cell, DumpGrid::Side::data).center());
    return dump.grid();
}

void TourPlayer::read(const Statement& s) {
    frmMemoryRead& dialog = *program_.memory().readDialog();
    ASSERT_TRUE(dialog.isVisible()) << "the read dialog is shut";
    auto* field = dialog.findChild<OvertypeField*>("txtAddress");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, QString::fromStdString(hexText(static_cast<unsigned>(*s.place), 3)));
    QTest::keyClick(field, Qt::Key_Return);
}

void TourPlayer::serial(const Statement& s) {
    hand().doubleClick(hand().part("picSDI", s.index));
    frmEditSerial& dialog = *program_.bench().serialDialog();
    ASSERT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog.txtWriteData(), Qt::Key_Home);
    QTest::keyClicks(&dialog.txtWriteData(), QString::fromStdString(s.values.front()));
    QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionSet), Qt::LeftButton);
    QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionStart), Qt::LeftButton);
    for (int firings = 0; dialog.isVisible() && firings < 100; ++firings) {
        dialog.timEnter().fire();
        program_.mainWindow().timTick().fire();
    }
    EXPECT_FALSE(dialog.isVisible());
}

// --- promises ------------------------------------------------------------------------------------------------------------------

void TourPlayer::check(const Statement& promise) {
    if (promise.word->verb == "reg" || promise.word->verb == "differs") {
        registerIsShown(promise);
    }
    const std::string wanted = promise.values.empty() ? "" : promise.values.front();
    switch (promise.word->keeping) {
        case Keeping::same: EXPECT_EQ(now(promise), wanted); break;
        case Keeping::different: EXPECT_NE(now(promise), wanted); break;
        case Keeping::moving: EXPECT_TRUE(movesWithin(promise)); break;
        case Keeping::still: EXPECT_FALSE(movesWithin(promise)); break;
        case Keeping::walking: cycle(promise); break;
        case Keeping::said: EXPECT_NE(said().find(wanted), std::string::npos) << "it says: " << said(); break;
        case Keeping::silent: EXPECT_EQ(said(), ""); break;
    }
}

std::string TourPlayer::now(const Statement& promise) {
    const std::optional<std::string> there = present(promise, program_.machine(), sight_);
    EXPECT_TRUE(there.has_value()) << "no such part";
    return there.value_or("");
}

void TourPlayer::registerIsShown(const Statement& promise) {
    frmRegister* window = program_.registers().window();
    ASSERT_TRUE(window != nullptr && window->isVisible()) << "the register window is shut";
    const auto cell = [&](auto column) {
        return window->cell((*promise.place - registerBase) / 2 + 1, column).text().toStdString();
    };
    const std::string both = cell(frmRegister::valHigh) + cell(frmRegister::valLow);
    EXPECT_EQ(now(promise), promise.digits == 4 ? both : both.substr(*promise.place % 2 != 0 ? 0 : 2, 2));
}

void TourPlayer::cycle(const Statement& promise) {
    const std::vector<std::string>& values = promise.values;
    std::string last;
    for (std::size_t click = 0; click <= values.size(); ++click) {
        mode("1-Time");
        const auto place = std::find(values.begin(), values.end(), now(promise));
        ASSERT_NE(place, values.end()) << now(promise);
        if (!last.empty()) {
            EXPECT_EQ(last, place == values.begin() ? values.back() : *(place - 1)) << "before " << *place;
        }
        last = *place;
    }
}

bool TourPlayer::movesWithin(const Statement& promise) {
    const std::string before = now(promise);
    const double seconds = program_.machine().runMode == modeSlow ? 5 : 1.2;  // the belt takes a second a step at power 1
    for (double waited = 0; waited < seconds; waited += 0.1) {
        fireFor(0.1);
        if (now(promise) != before) {
            return true;
        }
    }
    return false;
}

// --- what the program says ---------------------------------------------------------------------------------------------------

std::string TourPlayer::said() const {
    const frmMessage* popup = program_.aids().message();
    const frmDialog* dialog = program_.aids().dialog();
    const QString text = isUp(dialog)  ? dialog->findChild<QLabel*>("lblMessage")->text()
                         : isUp(popup) ? popup->text()
                                       : QString();
    return plainText(text.toStdString());
}

void TourPlayer::answer(Qt::Key key) {
    ASSERT_TRUE(isUp(program_.aids().dialog())) << "nothing is asked";
    QTest::keyClick(program_.aids().dialog(), key);
    program_.mainWindow().activateWindow();
}
