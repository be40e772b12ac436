// SPDX-License-Identifier: Apache-2.0
// A player without a plan: random gestures of every kind on every window, with the simulation running. After each one the machine
// is a machine that can be, and what is shown is what the state says.
//
// VRB_SOAK_GESTURES and VRB_SOAK_SEED set how many and which. A failure names its seed; the same seed plays the same game.
// And hours of RUN, with every window open and nobody there: VRB_SOAK_MINUTES of simulated time.

#include "access/hexText.h"
#include "tests/machines.h"
#include "tests/views/desk.h"

#include <random>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int gesturesInTheSuite = 3000;
constexpr int minutesInTheSuite = 5;
constexpr std::array allAreas{Area::controlDoDi, Area::c1ToC7, Area::drc};

int setting(const char* name, int otherwise) {
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : otherwise;
}

class Soak : public Desk {
protected:
    void startSoak() {
        giveFolder(VRB_ASSETS "/NaviData");
        // The game begins with the first window that shows.
        start(withHintsAndDump, [this] { oneOf({[&] { onTool(); }, [&] { onBatch(); }, [&] { onWindow(anyWindow()); }}); });
        fire();  // the scan that the start asked for
    }

    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance); }
    bool oneIn(int many) { return random(many) == 0; }
    QPoint somewhereIn(QSize size) { return {random(std::max(size.width(), 1)), random(std::max(size.height(), 1))}; }
    Area anyArea() { return allAreas[static_cast<std::size_t>(random(3))]; }
    using Deeds = std::vector<std::function<void()>>;
    void oneOf(const Deeds& deeds) { deeds[static_cast<std::size_t>(random(static_cast<int>(deeds.size())))](); }

    // --- gestures ----------------------------------------------------------------------------------------------------------

    void gesture() {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            last = "popup";
            oneIn(2) ? onKeys(*popup) : onWindow(*popup);
            if (QApplication::activePopupWidget() != nullptr && oneIn(3)) {
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            }
        } else if (QWidget* modal = QApplication::activeModalWidget()) {
            answerModal(*modal);
        } else if (oneIn(2)) {
            onBench();
        } else {
            last = "any";
            QWidget& window = anyWindow();
            oneOf({[&] { openSomething(); }, [&] { onTool(); }, [&] { timePasses(); }, [&] { onBatch(); },
                   [&] { oneIn(2) ? onWindow(window) : onKeys(window); }});
        }
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget& anyWindow() {
        QWidgetList windows = QApplication::topLevelWidgets();
        windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
        return *windows[random(static_cast<int>(windows.size()))];
    }

    // The widget at a place of a window, and the place in it.
    std::pair<QPointer<QWidget>, QPoint> anywhereIn(QWidget& window) {
        const QPoint place = somewhereIn(window.size());
        QWidget* target = window.childAt(place) != nullptr ? window.childAt(place) : &window;
        return {target, target->mapFrom(&window, place)};
    }

    // Several gestures at a window that come at once, before anything that the first one leads to.
    void onBatch() {
        QWidget& window = anyWindow();
        last = "batch " + window.objectName().toStdString();
        if (window.objectName() == "exitQuestion") {
            return;  // its OK would end the game
        }
        const auto [target, place] = anywhereIn(window);
        for (int posted = 1 + random(3); posted >= 0; --posted) {
            switch (random(4)) {
                case 0: &window != &main() ? batch::close(&window) : void(); break;
                case 1: batch::key(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Return); break;
                default: batch::clicks(target, 1 + random(4), place);
            }
        }
    }

    void answerModal(QWidget& modal) {
        last = "modal " + modal.objectName().toStdString();
        if (modal.objectName() == "exitQuestion") {
            QTest::keyClick(&modal, Qt::Key_Escape);  // OK would end the game
            return;
        }
        oneOf({[&] { QTest::keyClick(&modal, Qt::Key_Return); }, [&] { QTest::keyClick(&modal, Qt::Key_Escape); },
               [&] { modal.close(); }, [&] { onKeys(modal); }, [&] { timePasses(); }, [&] { onWindow(modal); }});
    }

    void onBench() {
        std::vector<BenchPart*> parts = bench().view().parts();
        std::erase_if(parts, [](const BenchPart* part) { return !part->isVisible() || !part->reactions().any(); });
        BenchPart& part = *parts[static_cast<std::size_t>(random(static_cast<int>(parts.size())))];
        last = "bench " + part.objectName().toStdString();
        main().activateWindow();
        main().area().setActiveSubWindow(&bench());
        const QPointer<QWidget> view = hand().viewport();
        // Held while time passes, and let up anywhere, if nothing came between.
        const auto hold = [&] {
            oneIn(2) ? hand().press(part) : hand().doublePress(part);
            if (QApplication::activeModalWidget() == nullptr) {
                fire(random(5));
            }
            if (view != nullptr) {
                QTest::mouseRelease(view, Qt::LeftButton, {}, somewhereIn(view->size()));
            }
        };
        const auto byKey = [&] {
            part.setFocus(Qt::TabFocusReason);
            QTest::keyClick(view, oneIn(2) ? Qt::Key_Return : Qt::Key_Space);
        };
        oneOf({[&] { hand().click(part); }, [&] { hand().doubleClick(part); }, hold, byKey, [&] { onWindow(*view); }});
    }

    void onTool() {
        const auto tool = static_cast<Tool>(random(toolCount));
        last = "tool " + std::to_string(static_cast<int>(tool));
        if (oneIn(2)) {
            click(main().lblRunMode(random(4)));
        } else {
            tool == Tool::navigator ? openNaviList() : click(tool);
        }
        main().timTick().setEnabled(false);
    }

    // The windows that a random click seldom finds, and what only a row of right clicks reaches.
    void openSomething() {
        last = "open";
        const auto pressIn = [this](auto* window) {
            using Window = std::remove_pointer_t<decltype(window)>;
            isUp(window) ? window->cmdAction(static_cast<typename Window::Action>(random(4))).click() : void();
        };
        const auto cell = [this] {
            const Area area = anyArea();
            if (isUp(program->memory().window(area))) {
                const int number = random(static_cast<int>(dump(area).view().cells.size()));
                openCell(number, area, oneIn(8) ? DumpGrid::Side::ascii : DumpGrid::Side::data);
            }
        };
        oneOf({[&] { program->memory().openArea(anyArea()); }, [&] { click(Tool::registerWindow); },
               [&] { emit bench().diagramWanted(random(6)); }, [&] { pressIn(program->aids().navigation()); },
               [&] { pressIn(program->settings().dialog()); }, cell, [&] { main().close(); },
               [&] { up("register") ? openRegister(1 + random(9), static_cast<std::size_t>(random(4))) : void(); }});
        if (frmNaviList* list = program->aids().naviList(); isUp(list)) {
            list->lstTitle().setCurrentRow(random(10));
            oneIn(2) ? list->cmdStart().click() : void();
        }
    }

    void onWindow(QWidget& window) {
        last += " window " + window.objectName().toStdString();
        const auto [target, place] = anywhereIn(window);
        switch (random(6)) {
            case 0: QTest::mouseDClick(target, Qt::LeftButton, {}, place); break;
            case 1:  // a drag
                QTest::mousePress(target, Qt::LeftButton, {}, place);
                target != nullptr ? QTest::mouseMove(target, somewhereIn(target->size())) : void();
                target != nullptr ? QTest::mouseRelease(target, Qt::LeftButton, {}, somewhereIn(target->size())) : void();
                break;
            case 2: &window != &main() ? static_cast<void>(window.close()) : void(); break;
            default: QTest::mouseClick(target, Qt::LeftButton, {}, place);
        }
    }

    void onKeys(QWidget& window) {
        static const QString keys("\t\r\x1b\b +0149AFG");
        static const std::vector moves{Qt::Key_Backtab, Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,
                                       Qt::Key_PageUp,  Qt::Key_Home, Qt::Key_End,  Qt::Key_Delete, Qt::Key_PageDown};
        last += " keys " + window.objectName().toStdString();
        const QPointer<QWidget> alive = &window;
        for (int typed = random(6); typed >= 0 && isUp(alive); --typed) {
            QWidget* focused = window.focusWidget() != nullptr ? window.focusWidget() : &window;
            const auto modifier = oneIn(6) ? Qt::ControlModifier : oneIn(8) ? Qt::ShiftModifier : Qt::NoModifier;
            if (oneIn(2)) {
                QTest::keyClick(focused, keys[random(static_cast<int>(keys.size()))].toLatin1(), modifier);
            } else {
                QTest::keyClick(focused, moves[static_cast<std::size_t>(random(static_cast<int>(moves.size())))], modifier);
            }
        }
    }

    void timePasses() {
        last = "time";
        const auto dumpTimer = [this] {
            const Area area = anyArea();
            program->memory().window(area) != nullptr ? dump(area).timColor().fire() : void();
        };
        oneOf({[&] { bench().timMotor().fire(); }, dumpTimer, [&] { fire(1 + random(20)); },
               [&] { program->registers().window() != nullptr ? registers().timRegister().fire() : void(); }});
    }

    // --- what must hold ----------------------------------------------------------------------------------------------------

    void machineIsPossible() {
        const Machine& m = machine();
        EXPECT_FALSE(m.scanRunning && m.scanOneShot);
        EXPECT_TRUE(!m.scanRunning || (m.scanAddr >= 1 && m.scanAddr <= m.scanLastAddr)) << int{m.scanAddr} << m.scanLastAddr;
        EXPECT_EQ(m.picScanLed.lit, m.scanRunning || m.scanOneShot);
        using Mask = std::pair<int, int>;
        for (const auto& [address, bits] :
             {Mask{0x580, 0x3F}, Mask{0x581, 0x3F}, Mask{0x582, 0xBF}, Mask{0x583, 0x07}, Mask{0x584, 0x11}, Mask{0x585, 0x11},
              Mask{0x588, 0xF8}, Mask{0x589, 0xF8}, Mask{0x58E, 0x13}, Mask{0x58F, 0x07}}) {
            EXPECT_EQ(byteAt(m, address) & ~bits, 0) << std::hex << address;
        }
        EXPECT_TRUE(std::all_of(m.chipMemory.begin() + 0x596, m.chipMemory.end(), [](int unused) { return unused == 0; }));
        for (const auto address : m.boardSA) {
            EXPECT_TRUE(address >= 1 && address <= 63) << address;
        }
        EXPECT_TRUE(m.ios52 >= 0 && m.ios52 < 8 && m.cpuType >= 0 && m.cpuType < 4);
        EXPECT_TRUE(m.duplexBit == 0 || m.duplexBit == 16);
        EXPECT_TRUE(m.runMode >= modeRun && m.runMode <= modeOneTime) << m.runMode;
        EXPECT_TRUE(m.startupDone);
    }

    void shownIsTheState() {
        EXPECT_EQ(bench().refresh(), 0) << "the bench lags behind the machine";
        for (int row = 1; row <= lastRegisterRow && up("register"); ++row) {
            for (const auto& [column, half] : {std::pair{frmRegister::valHigh, Half::high}, {frmRegister::valLow, Half::low}}) {
                EXPECT_EQ(registers().cell(row, column).text().toStdString(), hexText(registerByte(machine(), row, half), 2));
            }
        }
        for (const Area area : allAreas) {
            const int cells = isUp(program->memory().window(area)) ? dump(area).view().area->cells : 0;
            for (int offset = 0; offset < cells; ++offset) {
                const DumpView& view = dump(area).view();
                ASSERT_EQ(view.cells[static_cast<std::size_t>(addressToLabel(machine(), offset))].value,
                          byteAt(machine(), view.area->firstByte + offset))
                    << view.area->name << ' ' << offset;
            }
        }
    }

    // The text of every button, and every label of one line, has room where it stands.
    static void nothingIsCutOff() {
        for (const QWidget* widget : QApplication::allWidgets()) {
            const auto* button = qobject_cast<const QPushButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            if (!widget->isVisible() || (button == nullptr && (label == nullptr || label->wordWrap()))) {
                continue;
            }
            QString text = button != nullptr ? button->text() : label->text();
            QFont font = widget->font();
            font.setBold(font.bold() || (button != nullptr && (button->isDefault() || button->isChecked())));
            EXPECT_LE(QFontMetrics(font).size(0, text.remove('&')).width(), widget->width() - (button != nullptr ? 4 : 0))
                << widget->window()->objectName().toStdString() << ": " << text.toStdString();
        }
    }

    std::mt19937 chance;
    std::string last;  // what was done, for the one who reads a failure
};

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
    for (const Area area : allAreas) {
        program->memory().openArea(area);
    }
    machine().runMode = modeRun;
    constexpr int firingsOfAMinute = 60 * 1000 / runModes[modeRun].interval;
    plug(machine(), 1, false);  // three stations fail in every pass
    const auto runMinutes = [&](int minutes) {
        for (int firing = 0; firing < minutes * firingsOfAMinute; ++firing) {
            fire();
            firing % 50 == 0 ? QApplication::processEvents() : void();
        }
    };
    runMinutes(1);  // by now every picture that will be shown has been

    Machine reference = machine();
    const std::size_t heapBefore = heapInUse();
    const int minutes = setting("VRB_SOAK_MINUTES", minutesInTheSuite);
    runMinutes(minutes);
    const std::size_t heapAfter = heapInUse();
    EXPECT_LE(heapAfter, heapBefore + 64 * 1024);
    std::cout << minutes << " minutes of RUN, heap " << heapBefore << " to " << heapAfter << " bytes" << std::endl;

    ticks(reference, minutes * firingsOfAMinute * runModes[modeRun].ticks);
    EXPECT_EQ(machine().scanAddr, reference.scanAddr);
    EXPECT_EQ(machine().chipMemory, reference.chipMemory);
    shownIsTheState();
}

}  // namespace
