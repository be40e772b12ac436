#include "tests/views/TourPlayer.h"

#include "access/hexText.h"
#include "access/registers.h"
#include "access/views/frmEditMemory.h"
#include "access/views/frmEditRegister.h"
#include "access/views/frmMemoryRead.h"
#include "access/views/frmRegister.h"
#include "aids/views/frmDialog.h"
#include "aids/views/frmHint.h"
#include "aids/views/frmMessage.h"
#include "boards/views/BenchCombo.h"
#include "boards/views/frmEditSerial.h"
#include "memwin/views/MemoryWindows.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "platform/OvertypeField.h"
#include "program/frmMDI.h"

#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <functional>
#include <sstream>

namespace {

constexpr double step = 20;  // milliseconds of waiting between two looks at the timers

std::string trimmed(const std::string& text) {
    return QString::fromStdString(text).trimmed().toStdString();
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

int hexOf(const std::string& digits) {
    return QString::fromStdString(digits).toInt(nullptr, 16);
}

// A register by its name, with the half behind a point.
struct RegisterName {
    int row = 0;
    std::optional<Half> half;
};

RegisterName registerOf(const std::string& name) {
    const auto point = name.find('.');
    const auto found = std::find_if(registerTable.begin(), registerTable.end(),
                                    [&](const RegisterRow& row) { return row.name == name.substr(0, point); });
    if (found == registerTable.end()) {
        ADD_FAILURE() << "no register " << name;
        return {1, std::nullopt};
    }
    RegisterName result{static_cast<int>(found - registerTable.begin()) + 1, std::nullopt};
    if (point != std::string::npos) {
        result.half = name.substr(point) == ".H" ? Half::high : Half::low;
    }
    return result;
}

}  // namespace

std::vector<std::string> statementsOf(const std::string& script) {
    std::vector<std::string> statements;
    for (const QString& statement : QString::fromStdString(script).split(" ; ", Qt::SkipEmptyParts)) {
        if (const QString text = statement.trimmed(); !text.isEmpty()) {
            statements.push_back(text.toStdString());
        }
    }
    return statements;
}

TourPlayer::TourPlayer(Program& program) : program_(program) {
    // Room for the whole bench, also on a small test screen.
    frmMDI& main = *program.mainWindow();
    main.showNormal();
    main.resize(1280, 994);
    main.move(-500, -300);
    main.activateWindow();
    QApplication::processEvents();
}

void TourPlayer::play(const std::string& script) {
    for (const std::string& statement : statementsOf(script)) {
        SCOPED_TRACE(statement);
        playStatement(statement);
        QApplication::processEvents();
    }
}

void TourPlayer::playStatement(const std::string& statement) {
    static const std::map<std::string, std::function<void(TourPlayer&, const Words&)>> gestures{
        {"click", [](TourPlayer& p, const Words& w) { p.hand().click(*p.part(w)); }},
        {"dblclick", [](TourPlayer& p, const Words& w) { p.hand().doubleClick(*p.part(w)); }},
        {"hold",
         [](TourPlayer& p, const Words& w) {
             p.held_ = p.part(w);
             p.heldAt_ = p.hand().at(*p.held_);
             const bool twice = p.held_->reactions().heldByDouble;
             twice ? p.hand().doublePress(*p.held_) : p.hand().press(*p.held_);
         }},
        {"release", [](TourPlayer& p, const Words& /*w*/) { p.hand().release(p.heldAt_); }},
        {"pick", [](TourPlayer& p, const Words& w) { p.pick(w); }},
        {"mode", [](TourPlayer& p, const Words& w) { p.mode(w); }},
        {"wait", [](TourPlayer& p, const Words& w) { p.fireFor(std::stod(w.at(0))); }},
        {"open", [](TourPlayer& p, const Words& w) { p.openWindow(w, true); }},
        {"close", [](TourPlayer& p, const Words& w) { p.openWindow(w, false); }},
        {"write", [](TourPlayer& p, const Words& w) { p.write(w); }},
        {"set", [](TourPlayer& p, const Words& w) { p.set(w); }},
        {"read", [](TourPlayer& p, const Words& w) { p.read(w); }},
        {"serial", [](TourPlayer& p, const Words& w) { p.serial(w); }},
        {"point", [](TourPlayer& p, const Words& w) { p.point(w); }},
        {"double", [](TourPlayer& p, const Words& w) { p.doubleClickCell(w.at(0)); }},
        {"ok", [](TourPlayer& p, const Words& /*w*/) { p.answer(Qt::Key_Return); }},
        {"cancel", [](TourPlayer& p, const Words& /*w*/) { p.answer(Qt::Key_Escape); }},
    };
    static const std::map<std::string, std::function<void(TourPlayer&, const Words&)>> expectations{
        {"reg", [](TourPlayer& p, const Words& w) { p.reg(w); }},
        {"mem", [](TourPlayer& p, const Words& w) { p.mem(w); }},
        {"lit", [](TourPlayer& p, const Words& w) { p.led(w, true); }},
        {"dark", [](TourPlayer& p, const Words& w) { p.led(w, false); }},
        {"image", [](TourPlayer& p, const Words& w) { p.image(w); }},
        {"shown", [](TourPlayer& p, const Words& w) { p.seen(w, true); }},
        {"hidden", [](TourPlayer& p, const Words& w) { p.seen(w, false); }},
        {"label", [](TourPlayer& p, const Words& w) { p.label(w); }},
        {"got",
         [](TourPlayer& p, const Words& w) {
             EXPECT_EQ(p.program_.memoryWindows()->readDialog().findChild<QLabel*>("lblData")->text().toStdString(), w.at(0));
         }},
        {"bus",
         [](TourPlayer& p, const Words& w) {
             const frmDump& dump = *p.program_.memoryWindows()->window(Area::controlDoDi);
             EXPECT_EQ(wordsOf(dump.findChild<QLabel*>("lblCPUType")->text().toStdString()), w);
         }},
        {"sa", [](TourPlayer& p, const Words& w) { p.stationAddress(w); }},
        {"cycle", [](TourPlayer& p, const Words& w) { p.cycle(w); }},
        {"moves", [](TourPlayer& p, const Words& w) { EXPECT_TRUE(p.movesWithin(w.at(0))); }},
        {"still", [](TourPlayer& p, const Words& w) { EXPECT_FALSE(p.movesWithin(w.at(0))); }},
        {"differs", [](TourPlayer& p, const Words& w) { EXPECT_NE(p.shownBy(w.at(0)), w.at(1)); }},
        {"silent", [](TourPlayer& p, const Words& /*w*/) { EXPECT_EQ(p.said(), ""); }},
    };
    const auto blank = statement.find(' ');
    const std::string verb = statement.substr(0, blank);
    const std::string rest = blank == std::string::npos ? "" : trimmed(statement.substr(blank));
    if (const auto gesture = gestures.find(verb); gesture != gestures.end()) {
        gesture->second(*this, wordsOf(rest));
    } else if (const auto expectation = expectations.find(verb); expectation != expectations.end()) {
        expectation->second(*this, wordsOf(rest));
        checked_.push_back(statement);
    } else if (verb == "says") {
        EXPECT_NE(said().find(rest), std::string::npos) << "it says: " << said();
        checked_.push_back(statement);
    } else {
        ADD_FAILURE() << "no such word";
    }
}

// --- the bench -------------------------------------------------------------------------------------------------------------

BenchHand TourPlayer::hand() {
    frmHard& bench = *program_.hardware();
    // A click on the bench brings the main window to the front.
    program_.mainWindow()->activateWindow();
    program_.mainWindow()->area().setActiveSubWindow(&bench);
    QApplication::processEvents();
    return BenchHand(bench);
}

TourPlayer::Part TourPlayer::partOf(const Words& words) {
    Part part{words.at(0), 0, {}};
    std::size_t next = 1;
    if (next < words.size() && words[next] != "=") {
        part.index = std::stoul(words[next++]);
    }
    for (++next; next < words.size(); ++next) {
        part.value += (part.value.empty() ? "" : " ") + words[next];
    }
    return part;
}

// A part that the learner can't see is no part to point at.
BenchPart* TourPlayer::part(const Words& words) {
    const Part wanted = partOf(words);
    BenchPart& found = hand().part(wanted.name, wanted.index);
    EXPECT_TRUE(found.isVisible()) << wanted.name << ' ' << wanted.index << " is hidden";
    return &found;
}

void TourPlayer::pick(const Words& words) {
    const Part wanted = partOf(words);
    BenchCombo* box = program_.hardware()->combo(wanted.name, wanted.index);
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->isOpen()) << "nothing has opened it";
    for (int item = 0; item < box->count(); ++item) {
        if (box->itemText(item).simplified().toStdString() == wanted.value) {
            box->setFocus();
            box->setCurrentIndex(item);
            emit box->activated(item);
            return;
        }
    }
    ADD_FAILURE() << "no such item";
}

void TourPlayer::led(const Words& words, bool lit) {
    const BenchPart& led = *part(words);
    ASSERT_TRUE(std::string_view(led.shown().images).starts_with("ilsLED")) << "no LED";
    EXPECT_EQ(led.shown().number, lit ? 2 : 1);
}

void TourPlayer::image(const Words& words) {
    EXPECT_EQ(part(words)->shown().number, std::stoi(partOf(words).value));
}

void TourPlayer::seen(const Words& words, bool seen) {
    const Part wanted = partOf(words);
    if (const BenchPart* found = program_.hardware()->part(wanted.name, wanted.index)) {
        EXPECT_EQ(found->isVisible(), seen);
    } else if (const BenchLabel* text = program_.hardware()->label(wanted.name, wanted.index)) {
        EXPECT_EQ(text->isVisible(), seen);
    } else {
        ADD_FAILURE() << "no such part";
    }
}

void TourPlayer::label(const Words& words) {
    const Part wanted = partOf(words);
    const BenchLabel* text = program_.hardware()->label(wanted.name, wanted.index);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text().trimmed().toStdString(), wanted.value);
}

// --- main window and time ----------------------------------------------------------------------------------------------------

void TourPlayer::mode(const Words& words) {
    for (std::size_t index = 0; index < runModes.size(); ++index) {
        if (trimmed(std::string(runModes[index].caption)) == words.at(0)) {
            QTest::mouseClick(&program_.mainWindow()->lblRunMode(static_cast<int>(index)), Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "no such run mode";
}

void TourPlayer::fireFor(double seconds) {
    if (seconds >= 2) {
        program_.message()->hide();  // popups stay for two seconds
    }
    const auto fireWhenDue = [](Timer& timer, double& since) {
        since += step;
        if (timer.interval() > 0 && since >= timer.interval()) {
            since = 0;
            timer.fire();
        }
    };
    for (double elapsed = 0; elapsed < 1000 * seconds; elapsed += step) {
        fireWhenDue(program_.mainWindow()->timTick(), sinceTick_);
        fireWhenDue(program_.hardware()->timMotor(), sinceMotor_);
    }
}

void TourPlayer::openWindow(const Words& words, bool open) {
    frmMDI& main = *program_.mainWindow();
    MemoryWindows& memory = *program_.memoryWindows();
    const std::string& name = words.at(0);
    const std::map<std::string, int> choices{{"control", frmDumpSel::controlDoDi},
                                             {"c1c7", frmDumpSel::c1ToC7},
                                             {"drc", frmDumpSel::drc},
                                             {"read", frmDumpSel::memoryRead}};
    if (const auto choice = choices.find(name); choice != choices.end() && open) {
        QTest::mouseClick(&main.label(Tool::memoryWindow), Qt::LeftButton);
        QTest::mouseClick(&memory.chooser().cmdAREA(choice->second), Qt::LeftButton);
    } else if (choice != choices.end()) {
        choice->second == frmDumpSel::memoryRead ? memory.readDialog().close()
                                                 : memory.window(static_cast<Area>(choice->second))->parentWidget()->close();
    } else if (name == "register") {
        open ? QTest::mouseClick(&main.label(Tool::registerWindow), Qt::LeftButton)
             : static_cast<void>(program_.registerWindow()->close());
    } else if (name == "hint") {
        open ? QTest::mouseClick(&main.label(Tool::registerHint), Qt::LeftButton) : static_cast<void>(program_.hints()->close());
    } else {
        ADD_FAILURE() << "no such window";
    }
}

// --- the host CPU ------------------------------------------------------------------------------------------------------------

namespace {

// Types the value into a write dialog; the narrow option for two digits.
void enter(QWidget& dialog, const std::string& value) {
    ASSERT_TRUE(dialog.isVisible()) << "the dialog didn't open";
    auto* option = dialog.findChild<QRadioButton*>(value.size() == 2 ? "opnAccess1" : "opnAccess0");
    ASSERT_TRUE(option->isEnabled());
    option->click();
    auto* field = dialog.findChild<OvertypeField*>("txtWriteData");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, QString::fromStdString(value));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace

void TourPlayer::point(const Words& words) {
    ASSERT_TRUE(program_.registerWindow() != nullptr && program_.registerWindow()->isVisible()) << "the register window is shut";
    const RegisterName name = registerOf(words.at(0));
    const auto column = name.half == Half::high ? frmRegister::valHigh : frmRegister::valLow;
    QTest::mouseDClick(&program_.registerWindow()->cell(name.row, column), Qt::LeftButton);
}

void TourPlayer::write(const Words& words) {
    point(words);
    enter(*program_.registerDialog(), words.at(1));
}

DumpGrid& TourPlayer::doubleClickCell(const std::string& address) {
    const int place = hexOf(address);
    const auto row = std::find_if(dumpAreas.begin(), dumpAreas.end(), [place](const DumpArea& area) {
        return place >= area.firstByte && place < area.firstByte + area.cells;
    });
    frmDump& dump = *program_.memoryWindows()->window(row->area);
    EXPECT_TRUE(dump.isVisible()) << "its dump window is shut";
    const int cell = addressToLabel(program_.machine(), place - row->firstByte);
    QTest::mouseDClick(&dump.grid(), Qt::LeftButton, {}, dump.grid().cellRect(cell, DumpGrid::Side::data).center());
    return dump.grid();
}

void TourPlayer::set(const Words& words) {
    doubleClickCell(words.at(0));
    enter(program_.memoryWindows()->writeDialog(), words.at(1));
}

void TourPlayer::read(const Words& words) {
    frmMemoryRead& dialog = program_.memoryWindows()->readDialog();
    ASSERT_TRUE(dialog.isVisible()) << "the read dialog is shut";
    auto* field = dialog.findChild<OvertypeField*>("txtAddress");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, QString::fromStdString(words.at(0)));
    QTest::keyClick(field, Qt::Key_Return);
}

void TourPlayer::serial(const Words& words) {
    hand().doubleClick(hand().part("picSDI", std::stoul(words.at(0))));
    frmEditSerial& dialog = *program_.serialDialog();
    ASSERT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog.txtWriteData(), Qt::Key_Home);
    QTest::keyClicks(&dialog.txtWriteData(), QString::fromStdString(words.at(1)));
    QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionSet), Qt::LeftButton);
    QTest::mouseClick(&dialog.cmdAction(frmEditSerial::actionStart), Qt::LeftButton);
    for (int firings = 0; dialog.isVisible() && firings < 100; ++firings) {
        dialog.timEnter().fire();
        program_.mainWindow()->timTick().fire();
    }
    EXPECT_FALSE(dialog.isVisible());
}

std::string TourPlayer::shownBy(const std::string& register_) {
    const RegisterName name = registerOf(register_);
    frmRegister* window = program_.registerWindow();
    EXPECT_TRUE(window != nullptr && window->isVisible()) << "the register window is shut";
    const std::string high = window->cell(name.row, frmRegister::valHigh).text().toStdString();
    const std::string low = window->cell(name.row, frmRegister::valLow).text().toStdString();
    return !name.half ? high + low : *name.half == Half::high ? high : low;
}

void TourPlayer::reg(const Words& words) {
    EXPECT_EQ(shownBy(words.at(0)), words.at(1));
}

// The boards by their captions: where in picSA their two switches stand. Board-3 has none and follows Board-2.
void TourPlayer::stationAddress(const Words& words) {
    const int board = std::stoi(words.at(0));
    const auto first = std::map<int, std::size_t>{{1, 2}, {2, 0}, {3, 0}, {4, 4}}.at(board);
    const auto digit = [this](std::size_t index) { return hand().part("picSA", index).shown().number - 1; };
    if (board == 3) {
        EXPECT_TRUE(hand().part("picBridge").isVisible());
    }
    const int address = 16 * digit(first) + digit(first + 1) + (board == 3 ? 1 : 0);
    EXPECT_EQ(hexText(static_cast<unsigned>(address), 2), words.at(1));
}

void TourPlayer::cycle(const Words& words) {
    const Words values(words.begin() + 1, words.end());
    std::string last;
    for (std::size_t click = 0; click <= values.size(); ++click) {
        mode({"1-Time"});
        const std::string now = shownBy(words.at(0));
        const auto place = std::find(values.begin(), values.end(), now);
        ASSERT_NE(place, values.end()) << now;
        if (!last.empty()) {
            EXPECT_EQ(last, place == values.begin() ? values.back() : *(place - 1)) << "before " << now;
        }
        last = now;
    }
}

bool TourPlayer::movesWithin(const std::string& thing) {
    const auto look = [&] {
        return thing.starts_with("pic") || thing.starts_with("img") ? std::to_string(hand().part(thing).shown().number)
                                                                    : shownBy(thing);
    };
    const std::string before = look();
    const double seconds = program_.machine().runMode == modeSlow ? 5 : 1;
    for (double waited = 0; waited < seconds; waited += 0.1) {
        fireFor(0.1);
        if (look() != before) {
            return true;
        }
    }
    return false;
}

void TourPlayer::mem(const Words& words) {
    const auto address = static_cast<std::size_t>(hexOf(words.at(0)));
    const auto& memory = program_.machine().chipMemory;
    ASSERT_LT(address + 1, memory.size());
    const bool word = words.at(1).size() == 4;
    const int value = word ? memory[address] + 256 * memory[address + 1] : memory[address];
    EXPECT_EQ(hexText(static_cast<unsigned>(value), word ? 4 : 2), words.at(1));
}

// --- what the program says ---------------------------------------------------------------------------------------------------

std::string TourPlayer::said() const {
    const QString popup = program_.message()->isVisible() ? program_.message()->text() : QString();
    const frmDialog& dialog = *program_.dialog();
    return (dialog.isVisible() ? dialog.findChild<QLabel*>("lblMessage")->text() : popup).toStdString();
}

void TourPlayer::answer(Qt::Key key) {
    frmDialog& dialog = *program_.dialog();
    ASSERT_TRUE(dialog.isVisible()) << "nothing is asked";
    QTest::keyClick(&dialog, key);
    program_.mainWindow()->activateWindow();
}
