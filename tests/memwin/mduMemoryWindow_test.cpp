#include "memwin/mduMemoryWindow.h"

#include "tests/bench.h"

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

const DumpCell& cellOf(const DumpView& view, int cell) {
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
                ASSERT_EQ(cell % 2 == 0, offset % 2 != 0) << "the even cell shows the high byte";
            }
        }
    }
}

TEST(DumpCells, stand_where_the_byte_order_wants_them) {
    struct Row {
        int cpuType, offset, cell;
    };
    for (const Row& row : {Row{1, 0x000, 15}, Row{1, 0x00F, 0}, Row{0, 0x010, 31}, Row{3, 0x000, 1}, Row{3, 0x001, 0},
                           Row{2, 0x17F, 382}, Row{2, 0x002, 3}}) {
        EXPECT_EQ(addressToLabel(onBus(row.cpuType), row.offset), row.cell) << row.cpuType << " " << row.offset;
    }
    EXPECT_EQ(DumpView(Area::controlDoDi).rowText(23), "17x");
    EXPECT_EQ(DumpView(Area::c1ToC7).rowText(55), "4Fx");
    EXPECT_EQ(DumpView(Area::drc).rowText(), "50x");
}

TEST(DumpRefresh, touches_only_what_changed_and_turns_it_red_for_five_firings) {
    Machine machine = onBus(0);
    DumpView view = shown(Area::controlDoDi);
    machine.chipMemory[0x100] = 0x7E;
    machine.chipMemory[0x180] = 0x11;  // in the next window
    refreshArea(machine, view);
    EXPECT_EQ(view.touched, std::vector<int>{0x10F});
    EXPECT_EQ(cellOf(view, 0x10F).value, 0x7E);
    EXPECT_EQ(machine.memoryShadow[0x180], 0) << "each window follows its own area";
    refreshArea(machine, view);
    EXPECT_TRUE(view.touched.empty());

    for (int second = 1; second <= 2; ++second) {
        timColor_Timer(view);
    }
    machine.chipMemory[0x100] = 0x7F;
    refreshArea(machine, view);  // the time starts anew
    for (int second = 1; second <= 4; ++second) {
        timColor_Timer(view);
        EXPECT_TRUE(cellOf(view, 0x10F).red) << second;
        EXPECT_TRUE(view.touched.empty());
    }
    timColor_Timer(view);
    EXPECT_FALSE(cellOf(view, 0x10F).red);
    EXPECT_EQ(view.touched, std::vector<int>{0x10F});
}

TEST(DumpRefresh, a_hidden_window_shows_as_changed_what_moved_meanwhile) {
    Machine machine = onBus(0);
    DumpView view(Area::drc);
    machine.chipMemory[0x500] = 1;
    machine.chipMemory[0x57F] = 2;
    machine.chipMemory[0x580] = 3;
    refreshArea(machine, view);
    EXPECT_TRUE(view.touched.empty());
    view.visible = true;
    machine.memoryRefreshAll = true;
    refreshArea(machine, view);
    EXPECT_EQ(view.touched.size(), 128U);
    EXPECT_TRUE(cellOf(view, 15).red && cellOf(view, 112).red);
    EXPECT_EQ(std::count_if(view.cells.begin(), view.cells.end(), [](const DumpCell& cell) { return cell.red; }), 2)
        << "a repaint is no change";
}

TEST(DumpRefresh, a_change_of_byte_order_moves_the_byte_and_leaves_the_red) {
    Machine machine = onBus(0);
    DumpView view = shown(Area::drc);
    machine.chipMemory[0x500] = 0xAB;
    refreshArea(machine, view);
    ASSERT_TRUE(cellOf(view, 15).red);
    machine.cpuType = 2;
    setAreaLayout(machine, view);
    machine.memoryRefreshAll = true;
    refreshArea(machine, view);
    EXPECT_EQ(cellOf(view, 1).value, 0xAB);
    EXPECT_FALSE(cellOf(view, 1).red);
    EXPECT_TRUE(cellOf(view, 15).red);
}

TEST(DumpRefresh, random_memory_at_start_is_red_where_it_is_not_zero) {
    Machine machine = onBus(0);
    randomizeMemory(machine, 20260101000000);
    for (const DumpArea& area : dumpAreas) {
        DumpView view = shown(area.area);
        refreshArea(machine, view);
        for (const DumpCell& cell : view.cells) {
            ASSERT_EQ(cell.red, cell.value != 0);
        }
    }
}

TEST(DumpLayout, follows_the_bus_type_when_the_window_is_visible) {
    struct Row {
        int cpuType;
        ByteView piMode;
        const char* first;
        const char* second;
        const char* last;
    };
    for (const Row& row : {Row{0, ByteView::word, "-F", ",E", ",0"}, Row{1, ByteView::byte, "-F", "-E", "-0"},
                           Row{2, ByteView::word, "-0", ",1", ",F"}, Row{3, ByteView::byte, "-0", "-1", "-F"}}) {
        DumpView view = shown(Area::drc);
        setAreaLayout(onBus(row.cpuType), view);
        EXPECT_EQ(view.piMode, row.piMode);
        EXPECT_EQ(columnLabel(view, 0), row.first);
        EXPECT_EQ(columnLabel(view, 1), row.second);
        EXPECT_EQ(columnLabel(view, 15), row.last);
    }
    DumpView hidden(Area::drc);
    setAreaLayout(onBus(3), hidden);
    EXPECT_EQ(columnLabel(hidden, 0), "-F") << "a hidden window keeps its columns";
}

TEST(DumpLayout, places_columns_and_wedges_by_twips) {
    EXPECT_EQ(columnLeft(ByteView::byte, 0), 510);
    EXPECT_EQ(columnLeft(ByteView::byte, 7), 2295);
    EXPECT_EQ(columnLeft(ByteView::byte, 8), 2610);
    EXPECT_EQ(columnLeft(ByteView::word, 6), 1950);
    EXPECT_EQ(columnLeft(ByteView::word, 7), 1950 + cellWidth);
    EXPECT_EQ(columnLeft(ByteView::word, 8), 2490);
    EXPECT_EQ(columnLeft(ByteView::word, 15), 3930 + cellWidth);
    EXPECT_EQ(windowWidth(ByteView::byte) - windowWidth(ByteView::word), byteToWordShift);
    const WedgeLine little = wedgeLine(false, false, 6);
    EXPECT_EQ(little.left, 900);
    EXPECT_EQ(little.right, 960);
    const WedgeLine big = wedgeLine(true, true, 1);
    EXPECT_EQ(big.left, 3960);
    EXPECT_EQ(big.right, 4260);
}

TEST(DumpReadOuts, say_address_byte_and_station) {
    Machine machine = onBus(0);
    DumpView view = shown(Area::controlDoDi);
    machine.chipMemory[0x0A2] = 0x3F;
    refreshArea(machine, view);
    const int cell = addressToLabel(machine, 0x0A2);
    EXPECT_EQ(pointingAddress(machine, view, cell), " Pointing Address = 0A2H ( 162) : 3F");
    EXPECT_EQ(pointingSA(machine, view, addressToLabel(machine, 0x00A)), " Pointing SA = 05H  ( 5)");
    DumpView last = shown(Area::c1ToC7);
    machine.cpuType = 3;
    EXPECT_EQ(pointingAddress(machine, last, 895), " Pointing Address = 4FFH (1279) : 00");
    EXPECT_EQ(pointingSA(machine, last, 895), " Pointing SA = 3FH  (63)");
    for (const auto& [value, character] : {std::pair{0x1F, '.'}, {0x20, ' '}, {0x7E, '~'}, {0x7F, '.'}, {0x80, '.'}}) {
        EXPECT_EQ(asciiOf(static_cast<std::uint8_t>(value)), character);
    }
}

}  // namespace
