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

// On the screen that the program is made for, under a title as a desktop draws it: the platform's own frame is thinner.
constexpr QPoint mainPlace{0, 20};
constexpr QSize mainSize{1280, 1002};

// A finger's breadth around the point to be touched.
QRect touched(QPoint point) {
    return {point - QPoint(2, 2), QSize(5, 5)};
}

}  // namespace

TourPlayer::TourPlayer(Program& program, Eyes eyes) : program_(program), sight_(program.sight()), eyes_(eyes) {
    frmMDI& main = program.mainWindow();
    main.showNormal();
    main.resize(mainSize);
    main.move(mainPlace);
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
        {"close", [](TourPlayer& p, const Statement& s) { p.close(s.name); }},
        {"front", [](TourPlayer& p, const Statement& s) { p.front(s.name); }},
        {"drag", [](TourPlayer& p, const Statement& s) { p.drag(s); }},
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

// --- what can be seen --------------------------------------------------------------------------------------------------------

void TourPlayer::see(const QWidget& widget, const QRect& rect) {
    if (eyes_ == Eyes::open) {
        EXPECT_EQ(screen_.over(widget, rect), "") << "lies over it";
    }
}

void TourPlayer::click(QWidget& widget) {
    see(widget, touched(widget.rect().center()));
    widget.window()->activateWindow();
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void TourPlayer::look(const Statement& promise) {
    constexpr std::array<std::size_t, 4> switchesOf{2, 0, 0, 4};  // Board-3 has none and follows Board-2
    const std::string_view verb = promise.word->verb;
    if (promise.word->present == nullptr || eyes_ == Eyes::closed) {
        return;  // what is said comes up in front
    }
    if (promise.place) {
        promise.name.empty() ? lookAtMemory(promise) : lookAtRegister(promise);
    } else if (verb == "sa") {
        lookAtBench("picSA", switchesOf[promise.index - 1]);
        lookAtBench("picSA", switchesOf[promise.index - 1] + 1);
    } else if (verb == "bus") {
        see(*program_.memory().window(Area::controlDoDi)->findChild<QLabel*>("lblCPUType"));
    } else if (verb == "got") {
        see(*program_.memory().readDialog()->findChild<QLabel*>("lblData"));
    } else if (promise.name != "keyboard" && !lookAtWindow(promise.name)) {
        lookAtBench(promise.name, promise.index);
    }
}

// By its title or a good piece of its face, or as a whole where it has no title; one that is shut is not to be seen. False for
// what is no window.
bool TourPlayer::lookAtWindow(const std::string& name) {
    const bool known = name == tourBench || std::find(tourWindows.begin(), tourWindows.end(), name) != tourWindows.end();
    const QWidget* open = known ? window(name) : nullptr;
    if (isUp(open)) {
        const bool titled = (open->isWindow() || qobject_cast<const QMdiSubWindow*>(open) != nullptr) &&
                            !(open->windowFlags() & Qt::FramelessWindowHint);
        if (titled) {
            const QRect piece(open->rect().center(), QSize(open->width() / 4, 30));
            EXPECT_TRUE(screen_.titleOf(*open).has_value() || screen_.over(*open, piece).empty()) << "title and face are covered";
        } else {
            see(*open);
        }
    }
    return known;
}

// Where a part or label is, or would be.
void TourPlayer::lookAtBench(const std::string& name, std::size_t index) {
    frmHard& bench = *program_.bench().bench();
    const QGraphicsItem* item = bench.part(name, index);
    item = item != nullptr ? item : bench.label(name, index);
    ASSERT_NE(item, nullptr) << "no such part";
    const QRectF place = item->mapRectToScene(item->shape().boundingRect());
    QWidget& viewport = *bench.view().viewport();
    const QRect rect = bench.view().mapFromScene(place).boundingRect();
    // The bench grows narrower with the last part of its right column.
    if (item->isVisible() || viewport.rect().contains(rect)) {
        see(viewport, rect);
    }
}

void TourPlayer::lookAtRegister(const Statement& s) {
    frmRegister* window = program_.registers().window();
    ASSERT_TRUE(isUp(window)) << "the register window is shut";
    const int row = (*s.place - registerBase) / 2 + 1;
    const bool high = *s.place % 2 != 0;
    if (s.digits == 4 || high) {
        see(window->cell(row, frmRegister::valHigh));
    }
    if (s.digits == 4 || !high) {
        see(window->cell(row, frmRegister::valLow));
    }
}

void TourPlayer::lookAtMemory(const Statement& s) {
    frmDump* dump = dumpOf(*s.place);
    ASSERT_TRUE(isUp(dump)) << "its dump window is shut";
    for (int place = *s.place; place < *s.place + s.digits / 2; ++place) {
        see(dump->grid(), cellOf(*dump, place));
    }
}

// --- the bench -------------------------------------------------------------------------------------------------------------

BenchHand TourPlayer::hand() {
    program_.mainWindow().activateWindow();  // by the click that follows
    return BenchHand(*program_.bench().bench());
}

// A part that the learner can't see is no part to point at.
BenchPart* TourPlayer::part(const Statement& s) {
    BenchPart& found = hand().part(s.name, s.index);
    EXPECT_TRUE(found.isVisible()) << s.name << ' ' << s.index << " is hidden";
    see(*hand().viewport(), touched(hand().at(found)));
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
    see(*box);
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
            click(program_.mainWindow().lblRunMode(static_cast<int>(index)));
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
    click(program_.mainWindow().label(way.tool));
    if (way.entry != noEntry) {
        click(program_.memory().chooser()->cmdAREA(way.entry));
    }
}

void TourPlayer::press(const Statement& s) {
    QWidget* window = sight_.window(s.name);
    ASSERT_TRUE(isUp(window)) << "the window is shut";
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (plainText(button->text().toStdString()) == s.values.front()) {
            ASSERT_TRUE(button->isEnabled());
            see(*button);
            button->window()->activateWindow();
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

// With its frame: one of the area has its title and its box on that.
QWidget* TourPlayer::window(const std::string& name) {
    if (name == tourBench) {
        return program_.bench().bench();
    }
    QWidget* found = sight_.window(name);
    const bool framed = found != nullptr && qobject_cast<QMdiSubWindow*>(found->parentWidget()) != nullptr;
    return framed ? found->parentWidget() : found;
}

void TourPlayer::close(const std::string& name) {
    QWidget* shut = window(name);
    ASSERT_TRUE(isUp(shut)) << "it is not open";
    EXPECT_TRUE(screen_.titleSeen(*shut, LearnersScreen::closeBoxOf(*shut).x(), 1)) << "its close box is covered";
    shut->close();
}

// The window to be taken by its title, and the point of the screen where.
QWidget* TourPlayer::byTitle(const std::string& name, QPoint& title) {
    QWidget* taken = window(name);
    if (!isUp(taken)) {
        ADD_FAILURE() << "it is not open";
        return nullptr;
    }
    const std::optional<QPoint> seen = screen_.titleOf(*taken);
    EXPECT_TRUE(seen.has_value()) << "its title is covered";
    title = seen.value_or(QPoint());
    taken->window()->activateWindow();
    return seen ? taken : nullptr;
}

// The desktop does it for its own windows, the area for those in it.
void TourPlayer::front(const std::string& name) {
    QPoint title;
    if (QWidget* behind = byTitle(name, title)) {
        behind->isWindow() ? behind->raise() : QTest::mouseClick(behind, Qt::LeftButton, {}, behind->mapFromGlobal(title));
    }
}

void TourPlayer::drag(const Statement& s) {
    const QPoint way(std::stoi(s.values[0]), std::stoi(s.values[1]));
    QPoint title;
    QWidget* dragged = byTitle(s.name, title);
    if (dragged == nullptr) {
        return;
    }
    const QPoint before = dragged->pos();
    if (dragged->isWindow()) {
        dragged->move(before + way);
    } else {
        const QPoint at = dragged->mapFromGlobal(title);
        const auto moveTo = [dragged](QPoint place, Qt::MouseButtons held) {
            QMouseEvent move(QEvent::MouseMove, place, dragged->mapToGlobal(place), Qt::NoButton, held, {});
            QApplication::sendEvent(dragged, &move);
        };
        moveTo(at, Qt::NoButton);
        QTest::mousePress(dragged, Qt::LeftButton, {}, at);
        moveTo(at + way, Qt::LeftButton);
        QTest::mouseRelease(dragged, Qt::LeftButton, {}, dragged->mapFromGlobal(title + way));
    }
    EXPECT_EQ(dragged->pos(), before + way);
}

// --- the host CPU ------------------------------------------------------------------------------------------------------------

// Types the value into a write dialog; the narrow option for two digits.
void TourPlayer::enter(QWidget& dialog, const Statement& s) {
    ASSERT_TRUE(dialog.isVisible()) << "the dialog didn't open";
    see(dialog);
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
    frmRegister* window = program_.registers().window();
    ASSERT_TRUE(isUp(window)) << "the register window is shut";
    const auto* row = std::find_if(registerTable.begin(), registerTable.end(),
                                   [&s](const RegisterRow& candidate) { return candidate.name == s.name; });
    const auto column = s.place.value_or(0) % 2 != 0 ? frmRegister::valHigh : frmRegister::valLow;
    RegisterCell& cell = window->cell(static_cast<int>(row - registerTable.begin()) + 1, column);
    see(cell, touched(cell.rect().center()));
    window->activateWindow();
    QTest::mouseDClick(&cell, Qt::LeftButton);
}

frmDump* TourPlayer::dumpOf(int place) {
    const auto* row = std::find_if(dumpAreas.begin(), dumpAreas.end(), [place](const DumpArea& area) {
        return place >= area.firstByte && place < area.firstByte + area.cells;
    });
    return program_.memory().window(row->area);
}

QRect TourPlayer::cellOf(frmDump& dump, int place) {
    const int first = dumpAreas[static_cast<std::size_t>(dump.area())].firstByte;
    return dump.grid().cellRect(addressToLabel(program_.machine(), busToMemoryIndex(program_.machine(), place) - first),
                                DumpGrid::Side::data);
}

void TourPlayer::doubleClickCell(int place) {
    frmDump* dump = dumpOf(place);
    ASSERT_TRUE(isUp(dump)) << "its dump window is shut";
    const QPoint at = cellOf(*dump, place).center();
    see(dump->grid(), touched(at));
    dump->window()->activateWindow();
    QTest::mouseDClick(&dump->grid(), Qt::LeftButton, {}, at);
}

void TourPlayer::read(const Statement& s) {
    frmMemoryRead& dialog = *program_.memory().readDialog();
    ASSERT_TRUE(dialog.isVisible()) << "the read dialog is shut";
    auto* field = dialog.findChild<OvertypeField*>("txtAddress");
    click(*field);
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, QString::fromStdString(hexText(static_cast<unsigned>(*s.place), 3)));
    QTest::keyClick(field, Qt::Key_Return);
}

void TourPlayer::serial(const Statement& s) {
    Statement circuit = s;
    circuit.name = "picSDI";
    hand().doubleClick(*part(circuit));
    frmEditSerial& dialog = *program_.bench().serialDialog();
    ASSERT_TRUE(dialog.isVisible());
    see(dialog);
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
    look(promise);
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
    ASSERT_TRUE(isUp(window)) << "the register window is shut";
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
    see(*program_.aids().dialog());
    QTest::keyClick(program_.aids().dialog(), key);
    program_.mainWindow().activateWindow();
}
