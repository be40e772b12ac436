// SPDX-License-Identifier: Apache-2.0
// The windows of the host CPU: what they show of registers and memory, what turns red and how long, and where a write goes.

#include "access/views/frmEditMemory.h"
#include "access/views/frmMemoryRead.h"
#include "tests/views/desk.h"
#include "tests/views/hands.h"

#include <QCheckBox>
#include <QMdiSubWindow>
#include <QScreen>
#include <QSignalSpy>

namespace {

constexpr auto high = frmRegister::valHigh;
constexpr auto low = frmRegister::valLow;

class Host : public Desk {
protected:
    frmEditMemory& memoryDialog() { return *program->memory().writeDialog(); }
    const DumpCell& shown(int cell, Area area = Area::controlDoDi) {
        return dump(area).view().cells[static_cast<std::size_t>(cell)];
    }
    // The four cells of a register, or the two of a word of memory: "r" red, "b" black.
    std::string colours(int row) {
        std::string text;
        for (std::size_t column = 0; column < 4; ++column) {
            text += registers().cell(row, column).red() ? 'r' : 'b';
        }
        return text;
    }
    std::string coloursOf(int cell) { return {shown(cell & ~1).red ? 'r' : 'b', shown(cell | 1).red ? 'r' : 'b'}; }
    void seconds(int count) {
        for (int second = 0; second < count; ++second) {
            registers().timRegister().fire();
            dump().timColor().fire();
        }
    }
    // Address, bits and value in a write dialog.
    static std::string access(const QWidget& dialog) {
        return (labelOf(dialog, "lblAdr") + " " + labelOf(dialog, "lblBitInd") + " " + field(dialog).text()).toStdString();
    }
};

TEST_F(Host, a_change_is_red_for_four_seconds_in_a_register_and_for_five_in_memory) {
    startAtBench(withDump);
    EXPECT_EQ(registers().timRegister().interval(), 1000);
    EXPECT_EQ(dump().timColor().interval(), 1000);
    seconds(5);
    ASSERT_EQ(colours(1), "bbbb");
    constexpr int cell = 256 + 15 - 4;
    machine().chipMemory[reg::c1crLow] = 7;
    machine().diImage[0] = 0x35;  // station 2
    fire();
    EXPECT_EQ(shown(cell).value, 0x35);
    seconds(3);
    EXPECT_EQ(colours(6), "brbr");
    machine().chipMemory[reg::c1crLow] = 8;
    fire();  // its time starts anew
    seconds(1);
    EXPECT_TRUE(shown(cell).red);
    seconds(1);
    EXPECT_FALSE(shown(cell).red);
    seconds(1);
    EXPECT_EQ(colours(6), "brbr");
    seconds(1);
    EXPECT_EQ(colours(6), "bbbb");

    const QString before = registers().cell(rowSSR, low).text();
    fire();
    EXPECT_NE(registers().cell(rowSSR, low).text(), before);
    EXPECT_EQ(colours(rowSSR), "bbbb") << "its low byte follows the scan";
    machine().chipMemory[reg::ssrHigh] = 2;
    program->refreshAll();
    EXPECT_EQ(colours(rowSSR), "rbrb");
}

TEST_F(Host, what_moved_while_a_window_was_away_shows_as_a_change) {
    startAtBench(withDump);
    play("open drc ; close drc ; close register");
    machine().chipMemory[reg::c1crLow] = 3;
    machine().chipMemory[0x500] = 0x77;
    fire();
    play("open drc ; open register");
    EXPECT_EQ(colours(6), "brbr");
    EXPECT_EQ(registers().cell(6, low).text(), "03");
    EXPECT_TRUE(shown(15, Area::drc).red);
}

// What the dialog shows and which cells turn red while it is up, by bus type and width.
TEST_F(Host, a_write_dialog_shows_where_the_write_goes) {
    startAtBench(withDump);
    play("write SCR 0000 ; wait 1");
    setMemoryWord(machine(), reg::c1crLow, 0x12AB);
    setMemoryWord(machine(), 0x00E, 0x12AB);
    setMemoryWord(machine(), 0x000, 0x34CD);
    struct Row {
        int cpuType;
        std::optional<std::size_t> column;  // of C1CR
        int cell;                           // of memory, without a column
        bool chooseByte;
        const char* shown;
        const char* red;
    };
    for (const Row& row :
         {Row{0, high, 0, false, "58AH C1CR 15-0 bit 15-0 12AB", "rrrr"},
          Row{0, high, 0, true, "58BH C1CR 15-8 bit 15-8 12", "rbrb"}, Row{1, low, 0, false, "58AH C1CR 7-0 bit 7-0 AB", "brbr"},
          Row{2, low, 0, true, "58BH C1CR 7-0 bit 7-0 AB", "brbr"}, Row{3, high, 0, false, "58AH C1CR 15-8 bit 15-8 12", "rbrb"},
          Row{0, {}, 0, false, "00E bit 15----0 12AB", "rr"}, Row{0, {}, 0, true, "00F bit 7--0 12", "rb"},
          Row{1, {}, 1, false, "00E bit 7--0 AB", "br"}, Row{3, {}, 1, false, "001 bit 7--0 CD", "br"}}) {
        SCOPED_TRACE(std::string(row.shown) + " on bus " + std::to_string(row.cpuType));
        machine().cpuType = static_cast<std::int16_t>(row.cpuType);
        program->memory().busTypeChanged();
        program->refreshAll();
        seconds(5);
        const auto red = [&] { return row.column ? colours(6) : coloursOf(row.cell); };
        row.column ? openRegister(6, *row.column) : openCell(row.cell);
        const QDialog& dialog = row.column ? static_cast<QDialog&>(this->dialog()) : memoryDialog();
        EXPECT_EQ(option(dialog, 0).isEnabled(), row.cpuType % 2 == 0);
        EXPECT_TRUE(option(dialog, row.cpuType % 2).isChecked());
        if (row.chooseByte) {
            option(dialog, 1).click();
        }
        EXPECT_EQ(access(dialog), row.shown);
        EXPECT_EQ(field(dialog).selectedText().size(), 1);
        EXPECT_EQ(red(), row.red);
        for (const Qt::Key toCancel : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}) {
            key(toCancel);
        }
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(red().find('r'), std::string::npos);
    }
    EXPECT_EQ(memoryWord(machine(), reg::c1crLow), memoryWord(machine(), 0x00E)) << "cancel writes nothing";
    play("dblclick picCPU ; pick cmbCPUType = 16bit-Bus Little ; set 082 0011");
    EXPECT_EQ(coloursOf(addressToLabel(machine(), 0x082)), "br") << "only the byte that the write changed";
    play("write HPR FFFF");
    EXPECT_EQ(colours(rowHPR), "bbbb") << "what the learner wrote is no change";
}

TEST_F(Host, reading_refuses_half_an_address_and_starts_anew_with_its_protection) {
    startAtBench();
    machine().cpuType = 1;
    play("open read");
    frmMemoryRead& dialog = *program->memory().readDialog();
    QSignalSpy beeps(&program->memory(), &MemoryWindows::beepWanted);
    const auto shown = [&] {
        return field(dialog).text() + "|" + labelOf(dialog, "lblAdr") + "|" + labelOf(dialog, "lblData") + "|" +
               labelOf(dialog, "lblGuide");
    };
    type("59");
    key(Qt::Key_Return);
    EXPECT_EQ(shown(), "59?|???H|??|");
    EXPECT_EQ(beeps.count(), 1);
    play("read 58E");
    EXPECT_EQ(shown(), "???|58EH|13|メモリよりデータを取得しました。");
    play("write HPR.L 10");
    EXPECT_EQ(shown(), "???|???H|??|");
}

TEST_F(Host, the_read_outs_follow_the_mouse_and_the_keys) {
    startAtBench(withDump);
    const auto readOut = [this] { return labelOf(dump(), "lblPointAddress"); };
    const QString resting = readOut();
    for (const auto side : {DumpGrid::Side::data, DumpGrid::Side::ascii}) {
        hover(dump().grid(), dump().grid().cellRect(0, side).center());
        EXPECT_EQ(readOut(), " Pointing Address = 00FH (  15) : 00");
        EXPECT_EQ(dump().grid().cursor().shape(), Qt::BitmapCursor);
        hover(dump().grid(), {2, 2});
        EXPECT_EQ(readOut(), resting);
        EXPECT_EQ(dump().grid().cursor().shape(), Qt::ArrowCursor);
    }
    openCell(300, Area::controlDoDi, DumpGrid::Side::ascii);
    EXPECT_TRUE(memoryDialog().isVisible()) << "a character asks nothing of the scan";
    key(Qt::Key_Escape);

    main().activateWindow();
    dump().grid().setFocus();
    using Step = std::pair<Qt::Key, const char*>;
    for (const auto& [pressed, at] :
         {Step{Qt::Key_Down, "01F"}, Step{Qt::Key_Right, "01E"}, Step{Qt::Key_Right, "01D"}, Step{Qt::Key_Left, "01E"},
          Step{Qt::Key_Up, "00E"}, Step{Qt::Key_Up, "00E"}, Step{Qt::Key_PageDown, "08E"}, Step{Qt::Key_End, "080"},
          Step{Qt::Key_Home, "08F"}, Step{Qt::Key_PageDown, "10F"}, Step{Qt::Key_PageDown, "17F"}, Step{Qt::Key_Down, "17F"},
          Step{Qt::Key_PageUp, "0FF"}, Step{Qt::Key_PageUp, "07F"}, Step{Qt::Key_PageUp, "00F"}, Step{Qt::Key_Left, "00F"}}) {
        key(pressed);
        EXPECT_EQ(readOut().mid(20, 3), at) << pressed;
    }
}

TEST_F(Host, a_memory_window_moves_with_its_view_and_goes_out_of_the_area_and_back_whole) {
    startAtBench(withDump);
    QWidget* frame = dump().parentWidget();
    const QRect before = frame->geometry();
    play("press control = Byte ; press control = Byte");
    EXPECT_TRUE(frame->x() == before.x() - 16 && frame->width() == before.width() + 16);
    play("press control = Word");
    EXPECT_EQ(frame->geometry(), before);

    auto* box = dump().findChild<QCheckBox*>("chkTopMost");
    for (const char* value : {"0001", "0002"}) {
        box->click();
        EXPECT_TRUE(dump().isWindow() && dump().isVisible());
        EXPECT_EQ(main().area().subWindowList().size(), 1) << "the hardware window";
        play(std::string("set 082 ") + value + " ; mem 082 " + value);
        EXPECT_EQ(shown(addressToLabel(machine(), 0x082)).value, value[3] - '0') << "it goes on following";
        box->click();
        EXPECT_TRUE(!dump().isWindow() && dump().isVisible());
        EXPECT_EQ(dump().parentWidget()->geometry(), before) << "whole, and where it was";
    }
    dump().parentWidget()->showMinimized();
    play("open control");
    EXPECT_FALSE(dump().parentWidget()->isMinimized());
    EXPECT_TRUE(dump().grid().hasFocus());
    EXPECT_EQ(dump().parentWidget()->width(), before.width());
}

// --- what is painted ---------------------------------------------------------------------------------------------------------

// Cells keep what they have drawn: the same text in the other colour, and a text that comes back, are drawn as they are.
TEST_F(Host, paints_what_its_cells_say) {
    startAtBench(withDump);
    RegisterCell::Drawn drawn;
    RegisterCell cell("00", Qt::white, drawn, nullptr);
    cell.resize(30, 18);
    const auto picture = [&cell](const QString& text, bool red) {
        cell.show(text, red);
        return cell.grab().toImage();
    };
    const QImage black = picture("00", false);
    const QImage red = picture("00", true);
    EXPECT_TRUE(holds(red, reddish) && !holds(black, reddish));
    for (int value = 1; value < 200; ++value) {
        EXPECT_NE(picture(QString::number(value), false), black) << value;
    }
    EXPECT_EQ(picture("00", false), black);
    EXPECT_EQ(picture("00", true), red);
    RegisterCell neighbour("00", Qt::yellow, drawn, nullptr);
    neighbour.resize(cell.size());
    EXPECT_EQ(neighbour.grab().toImage().pixelColor(0, 0), Qt::yellow) << "each on its own ground";

    const QImage grid = dump().grid().grab().toImage();
    const auto dark = [](const QColor& colour) { return colour.lightness() < 150; };
    for (const auto side : {DumpGrid::Side::data, DumpGrid::Side::ascii}) {
        EXPECT_TRUE(holds(grid.copy(dump().grid().cellRect(15, side).translated(0, -14)), dark))
            << "a digit heads the last column";
    }
    for (int at = 0; at < 3 * 128; ++at) {
        EXPECT_TRUE(holds(grid.copy(dump().grid().cellRect(at, DumpGrid::Side::data)), dark)) << at;
        if (at % 128 == 0) {
            const int top = dump().grid().cellRect(at, DumpGrid::Side::data).top();
            for (const int row : {top + 3, top + 90}) {
                EXPECT_TRUE(holds(grid.copy(4, row, 13, 1), dark)) << "the strip of group " << at / 128;
                EXPECT_FALSE(dark(grid.pixelColor(1, row)) || dark(grid.pixelColor(19, row)));
            }
        }
    }
}

TEST_F(Host, a_firing_that_changes_nothing_repaints_nothing_and_a_change_its_own_place) {
    startAtBench(withDump);
    struct Paints : QObject {
        explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
        QRegion region;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            region += event->type() == QEvent::Paint ? static_cast<QPaintEvent*>(event)->region() : QRegion();
            return false;
        }
    };
    program->memory().openArea(Area::controlDoDi);
    key(Qt::Key_Right);  // for the ring
    fire(40);
    QApplication::processEvents();
    DumpGrid& grid = dump().grid();
    Paints onBench(*hand().viewport());
    Paints onGrid(grid);
    EXPECT_EQ(bench().refresh(), 0);
    machine().picSSA[0].on = true;
    EXPECT_EQ(bench().refresh(), 1) << "what changed is told";
    QApplication::processEvents();
    onBench.region = {};
    fire(5);
    QApplication::processEvents();
    EXPECT_TRUE(onBench.region.isEmpty() && onGrid.region.isEmpty());
    emit part("picPI").touched(&part("picPI"), Touch::click);
    machine().chipMemory[0x0A2] = 0x3F;
    fire();
    QApplication::processEvents();
    EXPECT_TRUE(onBench.region.contains(hand().at(part("picPI", 0))));
    const int cell = addressToLabel(machine(), 0x0A2);
    const QImage seen = main().screen()->grabWindow(main().winId()).toImage();
    EXPECT_TRUE(onGrid.region.contains(grid.cellRect(cell, DumpGrid::Side::data)));
    EXPECT_FALSE(onGrid.region.contains(grid.cellRect(cell + 32, DumpGrid::Side::data).center()));
    const QRect place(grid.mapTo(&main(), QPoint()), grid.size());
    EXPECT_EQ(seen.copy(place), grid.grab().toImage().convertToFormat(seen.format())) << "as a whole repaint has it";
}

}  // namespace
