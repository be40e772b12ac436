// A player without a plan: random gestures of every kind on every window, with the simulation running. After each one the machine
// is a machine that can be, and what is shown is what the state says.
//
// VRB_SOAK_GESTURES and VRB_SOAK_SEED set how many and which. A failure names its seed; the same seed plays the same game.
// And hours of RUN, with every window open and nobody there: VRB_SOAK_MINUTES of simulated time.

#include "access/hexText.h"
#include "access/views/frmMemoryRead.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmKAIROZU.h"
#include "aids/views/frmNaviList.h"
#include "aids/views/frmNavigation.h"
#include "config/views/frmDefault.h"
#include "core/simulation.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "tests/bench.h"
#include "tests/views/BenchHand.h"
#include "tests/views/batch.h"
#include "tests/views/startedProgram.h"

#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>

#include <random>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int gesturesInTheSuite = 3000;
constexpr int minutesInTheSuite = 5;

int setting(const char* name, int otherwise) {
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : otherwise;
}

class Soak : public StartedProgram {
protected:
    void startSoak() {
        std::filesystem::copy(VRB_ASSETS "/NaviData", std::filesystem::path(folder.path().toStdString()) / "NaviData");
        // The game begins with the first window that shows.
        start(makersFile + "OPENWINDOW2=1\r\nOPENWINDOW3=1\r\n", [this] {
            switch (random(3)) {
                case 0: onTool(); break;
                case 1: onBatch(); break;
                default: onWindow(anyWindow());
            }
        });
        fire();  // the scan that the start asked for
    }

    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance); }
    bool oneIn(int many) { return random(many) == 0; }
    QPoint somewhereIn(QSize size) { return {random(std::max(size.width(), 1)), random(std::max(size.height(), 1))}; }

    void gesture();
    void onBench();
    void onTool();
    void onWindow(QWidget& window);
    void onKeys(QWidget& window);
    void onBatch();
    QWidget& anyWindow();
    void timePasses();
    void openSomething();
    void answerModal(QWidget& modal);

    void machineIsPossible();
    void shownIsTheState();
    static void nothingIsCutOff();

    std::mt19937 chance;
    std::string last;  // what was done, for the one who reads a failure
};

// --- gestures ----------------------------------------------------------------------------------------------------------------

void Soak::gesture() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        last = "popup";
        oneIn(2) ? onKeys(*popup) : onWindow(*popup);
        if (QApplication::activePopupWidget() != nullptr && oneIn(3)) {
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        }
    } else if (QWidget* modal = QApplication::activeModalWidget()) {
        answerModal(*modal);
    } else {
        switch (random(10)) {
            case 0: openSomething(); break;
            case 1: onTool(); break;
            case 2: timePasses(); break;
            case 3: onBatch(); break;
            case 4: {
                last = "any";
                QWidget& window = anyWindow();
                oneIn(2) ? onWindow(window) : onKeys(window);
                break;
            }
            default: onBench();
        }
    }
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget& Soak::anyWindow() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            windows.push_back(window);
        }
    }
    return *windows[random(static_cast<int>(windows.size()))];
}

// Several gestures at a window that come at once, before anything that the first one leads to.
void Soak::onBatch() {
    QWidget& window = anyWindow();
    last = "batch " + window.objectName().toStdString();
    if (window.objectName() == "exitQuestion") {
        return;  // its OK would end the game
    }
    const QPoint place = somewhereIn(window.size());
    QWidget* target = window.childAt(place) != nullptr ? window.childAt(place) : &window;
    for (int posted = 1 + random(3); posted >= 0; --posted) {
        switch (random(4)) {
            case 0:
                if (&window != &main()) {
                    batch::close(&window);
                }
                break;
            case 1: batch::key(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Return); break;
            default: batch::clicks(target, 1 + random(4), target->mapFrom(&window, place));
        }
    }
}

void Soak::answerModal(QWidget& modal) {
    last = "modal " + modal.objectName().toStdString();
    if (modal.objectName() == "exitQuestion") {
        QTest::keyClick(&modal, Qt::Key_Escape);  // OK would end the game
        return;
    }
    switch (random(6)) {
        case 0: QTest::keyClick(&modal, Qt::Key_Return); break;
        case 1: QTest::keyClick(&modal, Qt::Key_Escape); break;
        case 2: modal.close(); break;
        case 3: onKeys(modal); break;
        case 4: timePasses(); break;
        default: onWindow(modal);
    }
}

void Soak::onBench() {
    const BenchHand hand(*program->bench().bench());
    std::vector<BenchPart*> parts;
    for (BenchPart* part : program->bench().bench()->view().parts()) {
        if (part->isVisible() && part->reactions().any()) {
            parts.push_back(part);
        }
    }
    BenchPart& part = *parts[static_cast<std::size_t>(random(static_cast<int>(parts.size())))];
    last = "bench " + part.objectName().toStdString();
    main().activateWindow();
    main().area().setActiveSubWindow(program->bench().bench());
    switch (random(5)) {
        case 0: hand.click(part); break;
        case 1: hand.doubleClick(part); break;
        case 2: {  // held while time passes, and let up anywhere, if nothing came between
            const QPointer<QWidget> view = hand.viewport();
            oneIn(2) ? hand.press(part) : hand.doublePress(part);
            if (QApplication::activeModalWidget() == nullptr) {
                fire(random(5));
            }
            if (view != nullptr) {
                QTest::mouseRelease(view, Qt::LeftButton, {}, somewhereIn(view->size()));
            }
            break;
        }
        case 3:
            part.setFocus(Qt::TabFocusReason);
            QTest::keyClick(hand.viewport(), oneIn(2) ? Qt::Key_Return : Qt::Key_Space);
            break;
        default: onWindow(*hand.viewport());
    }
}

void Soak::onTool() {
    const auto tool = static_cast<Tool>(random(toolCount));
    last = "tool " + std::to_string(static_cast<int>(tool));
    if (oneIn(2)) {
        QTest::mouseClick(&main().lblRunMode(random(4)), Qt::LeftButton);
    } else if (tool == Tool::navigator) {
        QTest::mouseDClick(&main().label(tool), Qt::LeftButton);
    } else {
        QTest::mouseClick(&main().label(tool), Qt::LeftButton);
    }
    main().timTick().setEnabled(false);
}

// The windows that a random click seldom finds, and what only a row of right clicks reaches.
void Soak::openSomething() {
    last = "open";
    MemoryWindows& memory = program->memory();
    switch (random(8)) {
        case 0: memory.openArea(static_cast<Area>(random(3))); break;
        case 1: QTest::mouseClick(&main().label(Tool::registerWindow), Qt::LeftButton); break;
        case 2: emit program->bench().bench()->diagramWanted(random(6)); break;
        case 3:
            if (program->aids().navigation() != nullptr && program->aids().navigation()->isVisible()) {
                program->aids().navigation()->cmdAction(static_cast<frmNavigation::Action>(random(4))).click();
            }
            break;
        case 4:
            if (program->settings().dialog() != nullptr && program->settings().dialog()->isVisible()) {
                program->settings().dialog()->cmdAction(static_cast<frmDefault::Action>(random(4))).click();
            }
            break;
        case 5: {
            const Area area = static_cast<Area>(random(3));
            if (isUp(memory.window(area))) {
                DumpGrid& grid = memory.window(area)->grid();
                const auto side = oneIn(8) ? DumpGrid::Side::ascii : DumpGrid::Side::data;
                const int cell = random(static_cast<int>(memory.window(area)->view().cells.size()));
                QTest::mouseDClick(&grid, Qt::LeftButton, {}, grid.cellRect(cell, side).center());
            }
            break;
        }
        case 6: main().close(); break;
        default:
            if (program->registers().window() != nullptr && program->registers().window()->isVisible()) {
                open(1 + random(9), static_cast<std::size_t>(random(4)));
            }
    }
    if (program->aids().naviList() != nullptr && program->aids().naviList()->isVisible()) {
        program->aids().naviList()->lstTitle().setCurrentRow(random(10));
        if (oneIn(2)) {
            program->aids().naviList()->cmdStart().click();
        }
    }
}

void Soak::onWindow(QWidget& window) {
    last += " window " + window.objectName().toStdString();
    const QPoint place = somewhereIn(window.size());
    const QPointer<QWidget> target = window.childAt(place) != nullptr ? window.childAt(place) : &window;
    const QPoint inside = target->mapFrom(&window, place);
    switch (random(6)) {
        case 0: QTest::mouseDClick(target, Qt::LeftButton, {}, inside); break;
        case 1:  // a drag
            QTest::mousePress(target, Qt::LeftButton, {}, inside);
            if (target != nullptr) {
                QTest::mouseMove(target, somewhereIn(target->size()));
            }
            if (target != nullptr) {
                QTest::mouseRelease(target, Qt::LeftButton, {}, somewhereIn(target->size()));
            }
            break;
        case 2:
            if (&window != &main()) {
                window.close();
            }
            break;
        default: QTest::mouseClick(target, Qt::LeftButton, {}, inside);
    }
}

void Soak::onKeys(QWidget& window) {
    static const std::vector<Qt::Key> keys{Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape,
                                           Qt::Key_Up,        Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right, Qt::Key_PageUp,
                                           Qt::Key_PageDown,  Qt::Key_Home,    Qt::Key_End,    Qt::Key_0,     Qt::Key_1,
                                           Qt::Key_4,         Qt::Key_9,       Qt::Key_A,      Qt::Key_F,     Qt::Key_G,
                                           Qt::Key_Backspace, Qt::Key_Delete,  Qt::Key_Plus};
    last += " keys " + window.objectName().toStdString();
    for (int typed = random(6); typed >= 0; --typed) {
        QWidget* focused = window.focusWidget() != nullptr ? window.focusWidget() : &window;
        const auto modifier = oneIn(6) ? Qt::ControlModifier : oneIn(8) ? Qt::ShiftModifier : Qt::NoModifier;
        const QPointer<QWidget> alive = &window;
        QTest::keyClick(focused, keys[static_cast<std::size_t>(random(static_cast<int>(keys.size())))], modifier);
        if (alive == nullptr || !alive->isVisible()) {
            return;
        }
    }
}

void Soak::timePasses() {
    last = "time";
    switch (random(4)) {
        case 0: program->bench().bench()->timMotor().fire(); break;
        case 1:
            if (program->registers().window() != nullptr) {
                program->registers().window()->timRegister().fire();
            }
            break;
        case 2:
            if (frmDump* dump = program->memory().window(static_cast<Area>(random(3)))) {
                dump->timColor().fire();
            }
            break;
        default: fire(1 + random(20));
    }
}

// --- what must hold ----------------------------------------------------------------------------------------------------------

void Soak::machineIsPossible() {
    const Machine& m = machine();
    EXPECT_FALSE(m.scanRunning && m.scanOneShot);
    EXPECT_TRUE(!m.scanRunning || (m.scanAddr >= 1 && m.scanAddr <= m.scanLastAddr)) << int{m.scanAddr} << m.scanLastAddr;
    EXPECT_EQ(m.picScanLed.lit, m.scanRunning || m.scanOneShot);
    struct Mask {
        std::size_t address;
        int bits;
    };
    for (const auto& [address, bits] : {Mask{0x580, 0x3F},
                                        {0x581, 0x3F},
                                        {0x582, 0xBF},
                                        {0x583, 0x07},
                                        {0x584, 0x11},
                                        {0x585, 0x11},
                                        {0x588, 0xF8},
                                        {0x589, 0xF8},
                                        {0x58E, 0x13},
                                        {0x58F, 0x07}}) {
        EXPECT_EQ(m.chipMemory[address] & ~bits, 0) << std::hex << address;
    }
    for (std::size_t unused = 0x596; unused < m.chipMemory.size(); ++unused) {
        ASSERT_EQ(m.chipMemory[unused], 0) << std::hex << unused;
    }
    for (const auto address : m.boardSA) {
        EXPECT_TRUE(address >= 1 && address <= 63) << address;
    }
    EXPECT_TRUE(m.ios52 >= 0 && m.ios52 < 8 && m.cpuType >= 0 && m.cpuType < 4);
    EXPECT_TRUE(m.duplexBit == 0 || m.duplexBit == 16);
    EXPECT_TRUE(m.runMode >= modeRun && m.runMode <= modeOneTime) << m.runMode;
    EXPECT_TRUE(m.startupDone);
}

void Soak::shownIsTheState() {
    EXPECT_EQ(program->bench().bench()->refresh(), 0) << "the bench lags behind the machine";
    if (program->registers().window() != nullptr && program->registers().window()->isVisible()) {
        for (int row = 1; row <= lastRegisterRow; ++row) {
            EXPECT_EQ(registers().cell(row, frmRegister::valHigh).text().toStdString(),
                      hexText(registerByte(machine(), row, Half::high), 2));
            EXPECT_EQ(registers().cell(row, frmRegister::valLow).text().toStdString(),
                      hexText(registerByte(machine(), row, Half::low), 2));
        }
    }
    for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        if (!isUp(program->memory().window(area))) {
            continue;
        }
        const DumpView& view = program->memory().window(area)->view();
        for (int offset = 0; offset < view.area->cells; ++offset) {
            ASSERT_EQ(view.cells[static_cast<std::size_t>(addressToLabel(machine(), offset))].value,
                      machine().chipMemory[static_cast<std::size_t>(view.area->firstByte + offset)])
                << view.area->name << ' ' << offset;
        }
    }
}

// The text of every button, and every label of one line, has room where it stands.
void Soak::nothingIsCutOff() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (!widget->isVisible()) {
            continue;
        }
        const auto* button = qobject_cast<QPushButton*>(widget);
        const auto* label = qobject_cast<QLabel*>(widget);
        if (button == nullptr && (label == nullptr || label->wordWrap())) {
            continue;
        }
        QString text = button != nullptr ? button->text() : label->text();
        QFont font = widget->font();
        font.setBold(font.bold() || (button != nullptr && (button->isDefault() || button->isChecked())));
        EXPECT_LE(QFontMetrics(font).size(0, text.remove('&')).width(), widget->width() - (button != nullptr ? 4 : 0))
            << widget->window()->objectName().toStdString() << ' ' << widget->objectName().toStdString() << ": "
            << text.toStdString();
    }
}

TEST_F(Soak, random_gestures_leave_a_machine_and_its_picture) {
    const int gestures = setting("VRB_SOAK_GESTURES", gesturesInTheSuite);
    const int seed = setting("VRB_SOAK_SEED", static_cast<int>(std::random_device{}() & 0x7FFFFFFF));
    SCOPED_TRACE("VRB_SOAK_SEED=" + std::to_string(seed));
    std::cout << gestures << " gestures with seed " << seed << std::endl;
    chance.seed(static_cast<unsigned>(seed));
    startSoak();
    for (int made = 1; made <= gestures; ++made) {
        gesture();
        machineIsPossible();
        shownIsTheState();
        nothingIsCutOff();
        ASSERT_FALSE(HasFailure()) << "gesture " << made << ": " << last;
    }
}

// Bytes of the heap in use; 0 where that can't be told, under the sanitizers among others.
std::size_t heapInUse() {
#ifdef __GLIBC__
    return mallinfo2().uordblks + mallinfo2().hblkhd;
#else
    return 0;
#endif
}

TEST_F(Soak, hours_of_RUN_lose_no_tick_and_keep_no_memory) {
    startSoak();
    for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
        program->memory().openArea(area);
    }
    machine().runMode = modeRun;
    constexpr int firingsOfAMinute = 60 * 1000 / runModes[modeRun].interval;
    unplug(machine(), 1);  // three stations fail in every pass
    const auto runMinutes = [&](int minutes) {
        for (int done = 0; done < minutes; ++done) {
            for (int firing = 0; firing < firingsOfAMinute; ++firing) {
                main().timTick().fire();
                if (firing % 50 == 0) {
                    QApplication::processEvents();
                }
            }
        }
    };
    runMinutes(1);  // by now every picture that will be shown has been

    const Machine before = machine();
    const std::size_t heapBefore = heapInUse();
    const int minutes = setting("VRB_SOAK_MINUTES", minutesInTheSuite);
    runMinutes(minutes);
    const std::size_t heapAfter = heapInUse();
    EXPECT_LE(heapAfter, heapBefore + 64 * 1024);
    std::cout << minutes << " minutes of RUN, heap " << heapBefore << " to " << heapAfter << " bytes" << std::endl;

    // A pass has as many ticks as it takes to come back to the same station; what is left of the ticks over whole passes tells
    // where the scan stands.
    Machine reference = before;
    long long pass = 0;
    do {
        simulationTick(reference);
        ++pass;
    } while (reference.scanAddr != before.scanAddr);
    const long long ticked = 1LL * minutes * firingsOfAMinute * runModes[modeRun].ticks;
    for (long long left = ticked % pass; left > 0; --left) {
        simulationTick(reference);
    }
    EXPECT_EQ(machine().scanAddr, reference.scanAddr) << ticked << " ticks in passes of " << pass;
    shownIsTheState();
}

}  // namespace
