// SPDX-License-Identifier: Apache-2.0
#include "memwin/mduMemoryWindow.h"

#include "tests/machines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

Machine onBus(int cpuType) {
    Machine machine = makersMachine();
    machine.cpuType = static_cast<std::int16_t>(cpuType);
    return machine;
}

DumpView shown(Area area) {
    DumpView view(area);
    view.visible = true;
    return view;
}

DumpCell& cellOf(DumpView& view, int cell) {
    return view.cells[static_cast<std::size_t>(cell)];
}

TEST(DumpCells, every_byte_has_one_cell_and_the_cell_leads_back_to_it) {
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        const Machine machine = onBus(cpuType);
        for (const DumpArea& area : dumpAreas) {
            const DumpView view(area.area);
            for (int offset = 0; offset < area.cells; ++offset) {
                const int cell = addressToLabel(machine, offset);
                const int address = labelToAddress(machine, view.rowText(), cell);
                ASSERT_EQ(busToMemoryIndex(machine, address), area.firstByte + offset) << "bus " << cpuType;
            }
        }
    }
    for (const auto& [cpuType, offset, cell] : Rows<3>{{1, 0x00F, 0}, {0, 0x010, 31}, {3, 0x000, 1}, {2, 0x17F, 382}}) {
        EXPECT_EQ(addressToLabel(onBus(cpuType), offset), cell) << cpuType << " " << offset;
    }
    EXPECT_EQ(DumpView(Area::controlDoDi).rowText(23) + DumpView(Area::c1ToC7).rowText(55) + DumpView(Area::drc).rowText(),
              "17x4Fx50x");
}

TEST(DumpRefresh, touches_in_each_window_only_what_changed_and_turns_it_red_for_five_firings) {
    for (const DumpArea& area : dumpAreas) {
        Machine machine = onBus(0);
        DumpView view = shown(area.area);
        memoryAt(machine, area.firstByte + 0x20) = 0x7E;
        memoryAt(machine, area.firstByte + area.cells) = 0x11;  // of the next window
        if (area.firstByte != 0) {
            memoryAt(machine, area.firstByte - 1) = 0x11;
        }
        refreshArea(machine, view);
        EXPECT_EQ(view.touched, std::vector<int>{0x2F}) << area.name;
        EXPECT_EQ(cellOf(view, 0x2F).value, 0x7E);
        refreshArea(machine, view);
        EXPECT_TRUE(view.touched.empty());
        timColor_Timer(view);
        timColor_Timer(view);
        memoryAt(machine, area.firstByte + 0x20) = 0x7F;
        refreshArea(machine, view);  // the time starts anew
        for (int second = 1; second <= 4; ++second) {
            timColor_Timer(view);
            EXPECT_TRUE(cellOf(view, 0x2F).red && view.touched.empty()) << second;
        }
        timColor_Timer(view);
        EXPECT_FALSE(cellOf(view, 0x2F).red);
        EXPECT_EQ(view.touched, std::vector<int>{0x2F});
        colourWord(view, 0x13, false, true);
        for (int second = 1; second <= 300; ++second) {  // a dialog may stay open for long
            timColor_Timer(view);
        }
        EXPECT_TRUE(cellOf(view, 0x13).red && !cellOf(view, 0x12).red) << "paint has no countdown";
        colourWord(view, 0x12, true, false);
        EXPECT_TRUE(cellOf(view, 0x12).red && !cellOf(view, 0x13).red);
    }
}

TEST(DumpRefresh, a_hidden_window_shows_as_changed_what_moved_meanwhile) {
    Machine machine = onBus(0);
    DumpView view(Area::drc);
    machine.chipMemory[0x500] = 0xAB;
    machine.chipMemory[0x57F] = 2;
    refreshArea(machine, view);
    EXPECT_TRUE(view.touched.empty());
    view.visible = true;
    machine.memoryRefreshAll = true;
    refreshArea(machine, view);
    EXPECT_EQ(view.touched.size(), 128U);
    EXPECT_TRUE(cellOf(view, 15).red && cellOf(view, 112).red);
    const auto red = [&view] {
        return std::count_if(view.cells.begin(), view.cells.end(), [](const DumpCell& cell) { return cell.red; });
    };
    EXPECT_EQ(red(), 2) << "a repaint is no change";
    machine.cpuType = 2;
    setAreaLayout(machine, view);
    refreshArea(machine, view);
    EXPECT_TRUE(cellOf(view, 1).value == 0xAB && !cellOf(view, 1).red && cellOf(view, 15).red) << "the byte moves, the red stays";
    EXPECT_EQ(red(), 2);
}

TEST(DumpLayout, follows_the_bus_type_when_the_window_is_visible) {
    struct Case {
        int cpuType;
        ByteView piMode;
        std::string_view columns;  // 0, 1 and 15
    };
    for (const Case& row : {Case{0, ByteView::word, "-F,E,0"}, Case{1, ByteView::byte, "-F-E-0"},
                            Case{2, ByteView::word, "-0,1,F"}, Case{3, ByteView::byte, "-0-1-F"}}) {
        DumpView view = shown(Area::drc);
        setAreaLayout(onBus(row.cpuType), view);
        EXPECT_EQ(view.piMode, row.piMode);
        EXPECT_EQ(columnLabel(view, 0) + columnLabel(view, 1) + columnLabel(view, 15), row.columns);
    }
    DumpView hidden(Area::drc);
    setAreaLayout(onBus(3), hidden);
    EXPECT_EQ(columnLabel(hidden, 0), "-F") << "a hidden window keeps its columns";
}

TEST(DumpLayout, places_columns_and_wedges_by_twips) {
    for (const auto& [column, byteView, wordView] :
         Rows<3>{{0, 510, 510}, {1, 765, 720}, {7, 2295, 2160}, {8, 2610, 2490}, {15, 4395, 4140}}) {
        EXPECT_EQ(columnLeft(ByteView::byte, column), byteView);
        EXPECT_EQ(columnLeft(ByteView::word, column), wordView);
    }
    EXPECT_EQ(layoutByte.windowWidth - layoutWord.windowWidth, byteToWordShift);
    EXPECT_TRUE(wedgeBase(false).left == 540 && wedgeBase(true).right == 4320);
    for (const auto& [big, high, line, left, right] :
         {Row<5>{0, 0, 6, 900, 960}, Row<5>{0, 1, 1, 2580, 2940}, Row<5>{1, 0, 6, 1980, 1980}, Row<5>{1, 1, 1, 3960, 4260}}) {
        const WedgeLine wedge = wedgeLine(big != 0, high != 0, line);
        EXPECT_TRUE(wedge.left == left && wedge.right == right) << big << high << line;
    }
}

TEST(DumpReadOuts, say_address_byte_and_station) {
    Machine machine = onBus(0);
    DumpView view = shown(Area::controlDoDi);
    cellOf(view, 0x0AD).value = 0x3F;
    EXPECT_EQ(pointingAddress(machine, view, 0x0AD), " Pointing Address = 0A2H ( 162) : 3F");
    EXPECT_EQ(pointingSA(machine, view, 0x005), " Pointing SA = 05H  ( 5)");
    machine.cpuType = 3;
    const DumpView last = shown(Area::c1ToC7);
    EXPECT_EQ(pointingAddress(machine, last, 895), " Pointing Address = 4FFH (1279) : 00");
    EXPECT_EQ(pointingSA(machine, last, 895), " Pointing SA = 3FH  (63)");
    for (const auto& [value, character] : {std::pair{0x1F, '.'}, {0x20, ' '}, {0x7E, '~'}, {0x7F, '.'}, {0x80, '.'}}) {
        EXPECT_EQ(asciiOf(static_cast<std::uint8_t>(value)), character);
    }
}

}  // namespace
