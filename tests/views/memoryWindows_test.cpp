#include "memwin/views/MemoryWindows.h"

#include "access/views/frmEditMemory.h"
#include "access/views/frmMemoryRead.h"
#include "memwin/views/frmDump.h"
#include "memwin/views/frmDumpSel.h"
#include "tests/views/startedProgram.h"

#include <QCheckBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalSpy>

namespace {

const std::string withDump = makersFile + "OPENWINDOW3=1\r\n";

// Counts the paint events of a widget.
class Paints : public QObject {
public:
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    QRegion region;
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++count;
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return QObject::eventFilter(watched, event);
    }
};

class MemoryView : public StartedProgram {
protected:
    MemoryWindows& memory() { return program->memory(); }
    frmDump& dump(Area area = Area::controlDoDi) { return *memory().window(area); }
    frmEditMemory& writeDialog() { return *memory().writeDialog(); }
    OvertypeField& value() { return *writeDialog().findChild<OvertypeField*>("txtWriteData"); }
    QString writeText(const char* name) { return writeDialog().findChild<QLabel*>(name)->text(); }

    void doubleClick(Area area, int cell, DumpGrid::Side side = DumpGrid::Side::data) {
        QTest::mouseDClick(&dump(area).grid(), Qt::LeftButton, {}, dump(area).grid().cellRect(cell, side).center());
    }
    void cancel() { QTest::keyClick(&writeDialog(), Qt::Key_Escape); }
    const DumpCell& shown(Area area, int cell) { return dump(area).view().cells[static_cast<std::size_t>(cell)]; }
};

TEST_F(MemoryView, an_unchanged_firing_paints_nothing_and_a_change_its_own_cells) {
    start(withDump);
    fire();
    QApplication::processEvents();
    dump().grid().grab();
    Paints paints(dump().grid());
    fire(3);
    QApplication::processEvents();
    EXPECT_EQ(paints.count, 0);
    machine().chipMemory[0x0A2] = 0x3F;
    fire();
    QApplication::processEvents();
    EXPECT_GE(paints.count, 1);
    const int cell = addressToLabel(machine(), 0x0A2);
    EXPECT_TRUE(paints.region.contains(dump().grid().cellRect(cell, DumpGrid::Side::data)));
    EXPECT_FALSE(paints.region.contains(dump().grid().cellRect(cell + 32, DumpGrid::Side::data).center()));
}

TEST_F(MemoryView, the_chooser_leads_to_every_window_and_closes_them_all) {
    start();
    ToolLabel& label = main().label(Tool::memoryWindow);
    for (int index = 0; index < 3; ++index) {
        QTest::mouseClick(&label, Qt::LeftButton);
        ASSERT_TRUE(isUp(memory().chooser()));
        QTest::mouseClick(&memory().chooser()->cmdAREA(index), Qt::LeftButton);
        EXPECT_FALSE(isUp(memory().chooser()));
        EXPECT_TRUE(isUp(memory().window(static_cast<Area>(index)))) << index;
    }
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_FALSE(isUp(memory().chooser())) << "the label is a toggle";

    for (int time = 0; time < 2; ++time) {
        QTest::mouseClick(&label, Qt::LeftButton);
        QTest::mouseClick(&memory().chooser()->cmdAREA(4), Qt::LeftButton);
        for (const Area area : {Area::controlDoDi, Area::c1ToC7, Area::drc}) {
            EXPECT_FALSE(isUp(memory().window(area)));
        }
        ASSERT_NE(program->registers().window(), nullptr) << "they stay loaded";
        EXPECT_FALSE(registers().isVisible());
    }
    EXPECT_EQ(main().label(Tool::registerWindow).cursor().shape(), Qt::BitmapCursor);
    QTest::mouseClick(&main().label(Tool::registerWindow), Qt::LeftButton);
    EXPECT_TRUE(registers().isVisible());
    machine().chipMemory[0x500] = 0x77;
    fire();
    memory().openArea(Area::drc);
    EXPECT_TRUE(shown(Area::drc, 15).red) << "what moved meanwhile shows as a change";
}

TEST_F(MemoryView, the_read_dialog_is_for_an_8_bit_bus) {
    start();
    chooseMemory(frmDumpSel::memoryRead);
    EXPECT_EQ(popupText(), "８ビットバス選択時のみ機能します");
    EXPECT_FALSE(isUp(memory().readDialog()));

    machine().cpuType = 1;
    chooseMemory(frmDumpSel::memoryRead);
    frmMemoryRead& dialog = *memory().readDialog();
    QSignalSpy beeps(&memory(), &MemoryWindows::beepWanted);
    auto& address = *dialog.findChild<OvertypeField*>("txtAddress");
    const auto read = [&](const char* digits) {
        QTest::keyClick(&address, Qt::Key_Home);
        QTest::keyClicks(&address, digits);
        QTest::keyClick(&address, Qt::Key_Return);
        QString text = address.text();
        for (const char* label : {"lblAdr", "lblData", "lblGuide"}) {
            text += "|" + dialog.findChild<QLabel*>(label)->text();
        }
        return text.toStdString();
    };
    EXPECT_EQ(read("59"), "59?|???H|??|") << "a ? left in the box is refused";
    EXPECT_EQ(beeps.count(), 1);
    EXPECT_EQ(read("58e"), "???|58eH|13|メモリよりデータを取得しました。");
    EXPECT_EQ(beeps.count(), 1);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    chooseMemory(frmDumpSel::memoryRead);
    EXPECT_EQ(dialog.findChild<QLabel*>("lblData")->text(), "13") << "it keeps its state";
    write(3, frmRegister::valLow, "10");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblData")->text(), "??") << "a change of HPR's low byte starts it anew";
    chooseMemory(frmDumpSel::closeAll);
    EXPECT_FALSE(dialog.isVisible());
    chooseMemory(frmDumpSel::memoryRead);
    for (const int busType : {3, 2}) {
        machine().cpuType = static_cast<std::int16_t>(busType);
        emit program->bench().busTypeChanged();
        EXPECT_EQ(dialog.isVisible(), busType == 3);
    }
}

// Which cells of the word turn red, and what the dialog shows of it.
TEST_F(MemoryView, the_write_dialog_takes_its_address_by_bus_type_and_width) {
    start(withDump);
    machine().chipMemory[reg::scrLow] = 0;
    setMemoryWord(machine(), 0x00E, 0x12AB);
    setMemoryWord(machine(), 0x000, 0x34CD);
    struct Row {
        int cpuType, cell;
        bool chooseByte;
        const char* dialog;
        const char* red;
    };
    for (const Row& row : {Row{0, 0, false, "00E bit 15----0 12AB", "rr"}, Row{0, 0, true, "00F bit 7--0 12", "rb"},
                           Row{1, 1, false, "00E bit 7--0 AB", "br"}, Row{3, 1, false, "001 bit 7--0 CD", "br"}}) {
        SCOPED_TRACE(row.dialog);
        machine().cpuType = static_cast<std::int16_t>(row.cpuType);
        memory().busTypeChanged();
        for (int second = 0; second < 5; ++second) {
            dump().timColor().fire();
        }
        const auto colours = [&] {
            const auto red = [&](int cell) { return shown(Area::controlDoDi, cell).red ? "r" : "b"; };
            return std::string(red(row.cell & ~1)) + red(row.cell | 1);
        };
        doubleClick(Area::controlDoDi, row.cell);
        EXPECT_EQ(writeDialog().findChild<QRadioButton*>("opnAccess0")->isEnabled(), row.cpuType % 2 == 0);
        if (row.chooseByte) {
            writeDialog().findChild<QRadioButton*>("opnAccess1")->click();
        }
        EXPECT_EQ(writeText("lblAdr") + " " + writeText("lblBitInd") + " " + value().text(), row.dialog);
        EXPECT_EQ(colours(), row.red);
        cancel();
        EXPECT_EQ(colours(), "bb");
    }
    EXPECT_EQ(memoryWord(machine(), 0x00E), 0x12AB) << "cancel writes nothing";
}

TEST_F(MemoryView, a_change_is_red_for_five_seconds_and_points_follow_the_mouse) {
    start(withDump);
    machine().diImage[0] = 0x35;  // station 2
    fire();
    constexpr int cell = 256 + 15 - 4;
    EXPECT_EQ(dump().timColor().interval(), 1000);
    EXPECT_EQ(shown(Area::controlDoDi, cell).value, 0x35);
    for (int second = 0; second < 5; ++second) {
        EXPECT_TRUE(shown(Area::controlDoDi, cell).red) << second;
        dump().timColor().fire();
    }
    EXPECT_FALSE(shown(Area::controlDoDi, cell).red);

    const auto readOut = [this] { return dump().findChild<QLabel*>("lblPointAddress")->text(); };
    const QString resting = readOut();
    for (const auto side : {DumpGrid::Side::data, DumpGrid::Side::ascii}) {
        QTest::mouseMove(&dump().grid(), dump().grid().cellRect(0, side).center());
        EXPECT_EQ(readOut(), " Pointing Address = 00FH (  15) : 00");
        EXPECT_EQ(dump().grid().cursor().shape(), Qt::BitmapCursor);
        QTest::mouseMove(&dump().grid(), {2, 2});
        EXPECT_EQ(readOut(), resting);
        EXPECT_EQ(dump().grid().cursor().shape(), Qt::ArrowCursor);
    }
}

TEST_F(MemoryView, what_is_protected_is_said_and_a_character_asks_nothing) {
    start(withDump);
    fire();
    machine().cpuType = 1;
    doubleClick(Area::controlDoDi, 0);
    EXPECT_EQ(popupText(), "スキャン中、コントロールワードの上位バイトはライトプロテクト");
    doubleClick(Area::controlDoDi, 300);
    EXPECT_EQ(popupText(), "スキャン中はライトプロテクト");
    EXPECT_FALSE(isUp(memory().writeDialog()));
    doubleClick(Area::controlDoDi, 300, DumpGrid::Side::ascii);
    EXPECT_TRUE(isUp(memory().writeDialog()));
    EXPECT_EQ(popupText(), "") << "the dialog takes the popup away";
    cancel();

    machine().cpuType = 0;
    doubleClick(Area::controlDoDi, 0);
    QTest::keyClicks(&value(), "ff11");
    QTest::keyClick(&value(), Qt::Key_Return);
    EXPECT_EQ(popupText(), "スキャン中、コントロールワードの上位バイトはライトプロテクト。");
    EXPECT_EQ(memoryWord(machine(), 0x00E) & 0xFF, 0x11);
    // What the write changed turns red, and no other part of the word.
    EXPECT_TRUE(shown(Area::controlDoDi, 1).red && shown(Area::controlDoDi, 1).value == 0x11);
    EXPECT_FALSE(shown(Area::controlDoDi, 3).red);
}

TEST_F(MemoryView, byte_and_word_views_move_the_window_by_240_twips) {
    start(withDump);
    QWidget* frame = dump().parentWidget();
    const int left = frame->x();
    const int width = dump().width();
    auto* byteButton = dump().findChild<QPushButton*>("cmbBit0");
    auto* wordButton = dump().findChild<QPushButton*>("cmbBit1");
    byteButton->click();
    EXPECT_EQ(frame->x(), left - 16);
    EXPECT_EQ(dump().width(), width + 16);
    byteButton->click();
    EXPECT_EQ(frame->x(), left - 16);
    wordButton->click();
    EXPECT_EQ(frame->x(), left);
    EXPECT_EQ(dump().width(), width);
}

TEST_F(MemoryView, always_in_front_takes_the_window_out_of_the_area_and_back) {
    start(withDump);
    auto* box = dump().findChild<QCheckBox*>("chkTopMost");
    const auto seenAt = [&] {  // as far as its frame lets it be seen
        return QRect(dump().mapToGlobal(QPoint()),
                     dump().size().boundedTo(
                         dump().parentWidget()->rect().marginsRemoved(dump().parentWidget()->contentsMargins()).size()));
    };
    const QRect place = seenAt();
    for (int time = 0; time < 2; ++time) {
        box->click();
        EXPECT_TRUE(dump().isWindow() && isUp(memory().window(Area::controlDoDi)));
        EXPECT_EQ(main().area().subWindowList().size(), 1) << "the hardware window";
        machine().chipMemory[0x080] = static_cast<std::uint8_t>(time + 1);
        fire();
        EXPECT_EQ(shown(Area::controlDoDi, 0x8F).value, time + 1) << "it goes on following";
        box->click();
        EXPECT_FALSE(dump().isWindow());
        EXPECT_TRUE(isUp(memory().window(Area::controlDoDi)));
        EXPECT_EQ(main().area().subWindowList().size(), 2);
        EXPECT_EQ(seenAt(), place) << "whole, and where it was";
    }
    main().area().subWindowList().last()->close();
    EXPECT_FALSE(isUp(memory().window(Area::controlDoDi)));
    memory().openArea(Area::controlDoDi);
    EXPECT_TRUE(isUp(memory().window(Area::controlDoDi))) << "the close box only hides";
}

}  // namespace
