// SPDX-License-Identifier: Apache-2.0
#include "tests/views/TourPlayer.h"

#include "access/hexText.h"
#include "access/views/frmEditMemory.h"
#include "access/views/frmEditRegister.h"
#include "access/views/frmMemoryRead.h"
#include "aids/views/frmNavigation.h"
#include "aids/views/frmVersion.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/frmEditSerial.h"
#include "memwin/views/frmDumpSel.h"
#include "program/frmMDI.h"
#include "tests/views/TourEyes.h"

#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
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

// A timer whose time is told by waiting.
class Clock {
public:
    void wait(Timer& timer) {
        since_ += step;
        if (timer.interval() > 0 && since_ >= timer.interval()) {
            since_ = 0;
            timer.fire();
        }
    }

private:
    double since_ = 0;  // milliseconds
};

}  // namespace

class TourPlayer::Hands {
public:
    Hands(Program& program, Eyes eyes) : program_(program), eyes_(program, eyes) {
        frmMDI& main = program.mainWindow();
        if (eyes == Eyes::open) {
            main.showNormal();
            main.resize(mainSize);
            main.move(mainPlace);
        }
        main.activateWindow();
        QApplication::processEvents();
    }

    void deed(const Statement& s) {
        using Deed = void (Hands::*)(const Statement&);
        static const std::map<std::string_view, Deed> deeds{{"click", &Hands::click},   {"dblclick", &Hands::doubleClick},
                                                            {"hold", &Hands::hold},     {"release", &Hands::release},
                                                            {"pick", &Hands::pick},     {"mode", &Hands::mode},
                                                            {"wait", &Hands::wait},     {"open", &Hands::open},
                                                            {"close", &Hands::close},   {"front", &Hands::front},
                                                            {"drag", &Hands::drag},     {"press", &Hands::press},
                                                            {"key", &Hands::key},       {"write", &Hands::write},
                                                            {"set", &Hands::set},       {"read", &Hands::read},
                                                            {"serial", &Hands::serial}, {"point", &Hands::point},
                                                            {"ok", &Hands::ok},         {"double", &Hands::doubleClickCell},
                                                            {"cancel", &Hands::cancel}};
        (this->*deeds.at(s.word->verb))(s);
    }

    void check(const Statement& promise) {
        eyes_.look(promise);
        const std::string wanted = promise.values.empty() ? "" : promise.values.front();
        switch (promise.word->keeping) {
            case Keeping::same: EXPECT_EQ(eyes_.now(promise), wanted); break;
            case Keeping::different: EXPECT_NE(eyes_.now(promise), wanted); break;
            case Keeping::moving: EXPECT_TRUE(movesWithin(promise)); break;
            case Keeping::still: EXPECT_FALSE(movesWithin(promise)); break;
            case Keeping::walking: cycle(promise); break;
            case Keeping::said: EXPECT_NE(eyes_.said().find(wanted), std::string::npos) << "it says: " << eyes_.said(); break;
            case Keeping::silent: EXPECT_EQ(eyes_.said(), ""); break;
        }
    }

private:
    // --- promises --------------------------------------------------------------------------------------------------------------

    void cycle(const Statement& promise) {
        const std::vector<std::string>& values = promise.values;
        std::string last;
        for (std::size_t click = 0; click <= values.size(); ++click) {
            this->click(program_.mainWindow().lblRunMode(modeOneTime));
            const auto place = std::find(values.begin(), values.end(), eyes_.now(promise));
            ASSERT_NE(place, values.end()) << eyes_.now(promise);
            if (!last.empty()) {
                EXPECT_EQ(last, place == values.begin() ? values.back() : *(place - 1)) << "before " << *place;
            }
            last = *place;
        }
    }

    bool movesWithin(const Statement& promise) {
        const std::string before = eyes_.now(promise);
        const double seconds = program_.machine().runMode == modeSlow ? 5 : 1.2;  // the belt takes a second a step at power 1
        for (double waited = 0; waited < seconds; waited += 0.1) {
            fireFor(0.1);
            if (eyes_.now(promise) != before) {
                return true;
            }
        }
        return false;
    }

    // --- the bench -------------------------------------------------------------------------------------------------------------

    BenchHand hand() {
        program_.mainWindow().activateWindow();  // by the click that follows
        return BenchHand(*program_.bench().bench());
    }

    // A part that the learner can't see is no part to point at.
    BenchPart& part(const std::string& name, std::size_t index) {
        BenchPart& found = hand().part(name, index);
        EXPECT_TRUE(found.isVisible()) << name << ' ' << index << " is hidden";
        eyes_.see(*hand().viewport(), touched(hand().at(found)));
        return found;
    }

    void click(const Statement& s) { hand().click(part(s.name, s.index)); }
    void doubleClick(const Statement& s) { hand().doubleClick(part(s.name, s.index)); }

    void hold(const Statement& s) {
        BenchPart& held = part(s.name, s.index);
        heldAt_ = hand().at(held);
        held.reactions().heldByDouble ? hand().doublePress(held) : hand().press(held);
    }
    void release(const Statement& /*s*/) { hand().release(heldAt_); }

    void pick(const Statement& s) {
        BenchCombo* box = program_.bench().bench()->combo(s.name, s.index);
        ASSERT_TRUE(box != nullptr && box->isOpen()) << "nothing has opened it";
        eyes_.see(*box);
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

    void serial(const Statement& s) {
        hand().doubleClick(part("picSDI", s.index));
        frmEditSerial& dialog = *program_.bench().serialDialog();
        ASSERT_TRUE(dialog.isVisible());
        eyes_.see(dialog);
        type(dialog.txtWriteData(), s.values.front());
        QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionSet), Qt::LeftButton);
        QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionStart), Qt::LeftButton);
        for (int firings = 0; dialog.isVisible() && firings < 100; ++firings) {
            dialog.timEnter().fire();
            program_.mainWindow().timTick().fire();
        }
        EXPECT_FALSE(dialog.isVisible());
    }

    // --- main window and time --------------------------------------------------------------------------------------------------

    void mode(const Statement& s) {
        for (std::size_t index = 0; index < runModes.size(); ++index) {
            if (plainText(runModes[index].caption) == s.name) {
                click(program_.mainWindow().lblRunMode(static_cast<int>(index)));
            }
        }
    }

    void wait(const Statement& s) { fireFor(std::stod(s.values.front())); }
    void fireFor(double seconds) {
        if (seconds >= 2) {
            program_.aids().hideMessage();  // popups stay for two seconds
        }
        for (double elapsed = 0; elapsed < 1000 * seconds; elapsed += step) {
            tick_.wait(program_.mainWindow().timTick());
            motor_.wait(program_.bench().bench()->timMotor());
            if (frmNavigation* tour = program_.aids().navigation()) {
                watch_.wait(tour->timWatch());
            }
            if (frmVersion* panel = program_.aids().versionPanel()) {
                version_.wait(panel->timTimer());
            }
        }
    }

    void open(const Statement& s) {
        using Label = std::pair<const std::string_view, Tool>;
        static const std::map labels{Label{"register", Tool::registerWindow}, Label{"hint", Tool::registerHint},
                                     Label{"settings", Tool::defaultSet}, Label{"version", Tool::version}};
        constexpr std::array<std::string_view, 4> entries{"control", "c1c7", "drc", "read"};
        click(program_.mainWindow().label(labels.contains(s.name) ? labels.at(s.name) : Tool::memoryWindow));
        const auto entry = std::find(entries.begin(), entries.end(), s.name) - entries.begin();
        if (entry < std::ssize(entries)) {
            click(program_.memory().chooser()->cmdAREA(static_cast<int>(entry)));
        }
    }

    // --- windows ---------------------------------------------------------------------------------------------------------------

    void click(QWidget& widget) {
        eyes_.see(widget, touched(widget.rect().center()));
        widget.window()->activateWindow();
        QTest::mouseClick(&widget, Qt::LeftButton);
    }

    void press(const Statement& s) {
        const QWidget* window = program_.sight().window(s.name);
        ASSERT_TRUE(isUp(window)) << "the window is shut";
        for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            if (plainText(button->text().toStdString()) == s.values.front()) {
                ASSERT_TRUE(button->isEnabled());
                eyes_.see(*button);
                button->window()->activateWindow();
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no such button";
    }

    // To whatever has the keyboard.
    void key(const Statement& s) {
        const QKeySequence sequence(QString::fromStdString(s.name), QKeySequence::PortableText);
        ASSERT_EQ(sequence.count(), 1);
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &program_.mainWindow(), sequence[0].key(), sequence[0].keyboardModifiers());
    }

    void close(const Statement& s) {
        QWidget* shut = eyes_.window(s.name);
        ASSERT_TRUE(isUp(shut)) << "it is not open";
        EXPECT_TRUE(eyes_.closeBoxSeen(*shut)) << "its close box is covered";
        shut->close();
    }

    // The window to be taken by its title, and the point of the screen where.
    QWidget* byTitle(const std::string& name, QPoint& title) {
        QWidget* taken = eyes_.window(name);
        const std::optional<QPoint> seen = isUp(taken) ? eyes_.titleOf(*taken) : std::nullopt;
        EXPECT_TRUE(seen.has_value()) << "it is not open, or its title is covered";
        title = seen.value_or(QPoint());
        return seen ? taken : nullptr;
    }

    // The desktop does it for its own windows, the area for those in it.
    void front(const Statement& s) {
        QPoint title;
        if (QWidget* behind = byTitle(s.name, title)) {
            behind->window()->activateWindow();
            behind->isWindow() ? behind->raise() : QTest::mouseClick(behind, Qt::LeftButton, {}, behind->mapFromGlobal(title));
        }
    }

    void drag(const Statement& s) {
        const QPoint way(std::stoi(s.values[0]), std::stoi(s.values[1]));
        QPoint title;
        QWidget* dragged = byTitle(s.name, title);
        ASSERT_NE(dragged, nullptr);
        dragged->window()->activateWindow();
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

    void ok(const Statement& /*s*/) { answer(Qt::Key_Return); }
    void cancel(const Statement& /*s*/) { answer(Qt::Key_Escape); }
    void answer(Qt::Key key) {
        ASSERT_TRUE(isUp(program_.aids().dialog())) << "nothing is asked";
        eyes_.see(*program_.aids().dialog());
        QTest::keyClick(program_.aids().dialog(), key);
        program_.mainWindow().activateWindow();
    }

    // --- the host CPU -------------------------------------------------------------------------------------------------------

    static void type(OvertypeField& field, const std::string& digits) {
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClicks(&field, QString::fromStdString(digits));
    }

    // Types the value into a write dialog; the narrow option for two digits.
    void enter(QWidget* dialog, const Statement& s) {
        ASSERT_TRUE(isUp(dialog)) << "the dialog didn't open";
        eyes_.see(*dialog);
        auto* option = dialog->findChild<QRadioButton*>(s.digits == 2 ? "opnAccess1" : "opnAccess0");
        ASSERT_TRUE(option->isEnabled());
        option->click();
        auto* field = dialog->findChild<OvertypeField*>("txtWriteData");
        field->setFocus();
        type(*field, s.values.front());
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible());
    }

    void write(const Statement& s) {
        point(s);
        enter(program_.registers().writeDialog(), s);
    }
    void set(const Statement& s) {
        doubleClickCell(s);
        enter(program_.memory().writeDialog(), s);
    }

    void point(const Statement& s) {
        frmRegister* window = program_.registers().window();
        ASSERT_TRUE(isUp(window)) << "the register window is shut";
        const auto* row = std::find_if(registerTable.begin(), registerTable.end(),
                                       [&s](const RegisterRow& candidate) { return candidate.name == s.name; });
        const auto column = s.place.value_or(0) % 2 != 0 ? frmRegister::valHigh : frmRegister::valLow;
        RegisterCell& cell = window->cell(static_cast<int>(row - registerTable.begin()) + 1, column);
        eyes_.see(cell, touched(cell.rect().center()));
        window->activateWindow();
        QTest::mouseDClick(&cell, Qt::LeftButton);
    }

    void doubleClickCell(const Statement& s) {
        DumpGrid& grid = eyes_.dumpOf(*s.place).grid();
        const QPoint at = eyes_.cellOf(*s.place).center();
        eyes_.see(grid, touched(at));
        grid.window()->activateWindow();
        QTest::mouseDClick(&grid, Qt::LeftButton, {}, at);
    }

    void read(const Statement& s) {
        frmMemoryRead* dialog = program_.memory().readDialog();
        ASSERT_TRUE(isUp(dialog)) << "the read dialog is shut";
        auto* field = dialog->findChild<OvertypeField*>("txtAddress");
        click(*field);
        type(*field, hexText(static_cast<unsigned>(*s.place), 3));
        QTest::keyClick(field, Qt::Key_Return);
    }

    Program& program_;
    TourEyes eyes_;
    QPoint heldAt_;
    Clock tick_, motor_, watch_, version_;
};

TourPlayer::TourPlayer(Program& program, Eyes eyes) : hands_(std::make_unique<Hands>(program, eyes)) {}

TourPlayer::~TourPlayer() = default;

void TourPlayer::play(const std::string& script) {
    const Script read = readScript(script);
    EXPECT_EQ(read.wrong, "") << "is no statement";
    for (const Statement& statement : read.statements) {
        SCOPED_TRACE(statement.text);
        if (statement.word->kind == WordKind::promise) {
            hands_->check(statement);
            checked_.push_back(statement.text);
        } else {
            hands_->deed(statement);
        }
        QApplication::processEvents();
    }
}
