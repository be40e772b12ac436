#include "access/memoryAccess.h"

#include "access/hexText.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint8_t protection = 0x10;

Machine onBus(int cpuType, bool hazardWrites = false, bool hazardReads = false) {
    Machine machine = makersMachine();
    machine.cpuType = static_cast<std::int16_t>(cpuType);
    machine.chipMemory[reg::hprHigh] = hazardWrites ? protection : 0;
    machine.chipMemory[reg::hprLow] = hazardReads ? protection : 0;
    return machine;
}

// The cell of the window of `rowText` that stands at a bus address.
int cellAt(const Machine& machine, std::string_view rowText, int address) {
    for (int cell = 0; cell < 896; ++cell) {
        if (labelToAddress(machine, rowText, cell) == address) {
            return cell;
        }
    }
    return -1;
}

WriteResult writeByteAt(Machine& machine, int address, std::string_view text) {
    const std::string_view rowText = address < 0x180 ? "00x" : address < 0x500 ? "18x" : "50x";
    return writeMemory(machine, rowText, cellAt(machine, rowText, address), Width::byte, text);
}

WriteResult writeWordAt(Machine& machine, int address, std::string_view text) {
    const std::string_view rowText = address < 0x180 ? "00x" : address < 0x500 ? "18x" : "50x";
    return writeMemory(machine, rowText, cellAt(machine, rowText, address), Width::word, text);
}

bool holding(const Machine& machine) {
    return (machine.chipMemory[reg::hprHigh] & 1) != 0;
}

TEST(HexText, is_written_in_upper_case_and_read_in_either) {
    EXPECT_EQ(hexText(0xAB, 4), "00AB");
    EXPECT_EQ(hexText(0x1ABC, 2), "1ABC");
    EXPECT_EQ(hexValue("ffFF"), 0xFFFF);
    for (const char* bad : {"", "12?", " 12", "0x1", "10000", "-1", "+1", "12 "}) {
        EXPECT_EQ(hexValue(bad), std::nullopt) << bad;
    }
    EXPECT_EQ(byteToBinary(0xA5), "1010_0101");
}

TEST(BusAddress, counts_down_on_a_little_and_up_on_a_big_endian_bus) {
    struct Row {
        const char* rowText;
        int cell, little, big;
    };
    for (const Row& row : {Row{"00x", 0, 0x00F, 0x000}, Row{"00x", 15, 0x000, 0x00F}, Row{"00x", 383, 0x170, 0x17F},
                           Row{"18x", 0, 0x18F, 0x180}, Row{"18x", 17, 0x19E, 0x191}, Row{"18x", 895, 0x4F0, 0x4FF},
                           Row{"50x", 0, 0x50F, 0x500}, Row{"50x", 127, 0x570, 0x57F}}) {
        for (int cpuType = 0; cpuType < 4; ++cpuType) {
            const Machine machine = onBus(cpuType);
            EXPECT_EQ(labelToAddress(machine, row.rowText, row.cell), cpuType < 2 ? row.little : row.big)
                << row.rowText << row.cell;
        }
    }
    EXPECT_EQ(busToMemoryIndex(onBus(1), 0x101), 0x101);
    EXPECT_EQ(busToMemoryIndex(onBus(3), 0x101), 0x100);
    EXPECT_EQ(busToMemoryIndex(onBus(2), 0x100), 0x101);
}

TEST(MemoryWrite, reaches_the_same_word_on_every_bus_and_its_own_byte) {
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        Machine machine = onBus(cpuType);
        writeWordAt(machine, 0x101, "aB12");
        EXPECT_EQ(memoryWord(machine, 0x100), 0xAB12) << "bus " << cpuType;
        writeByteAt(machine, 0x100, "c3");
        EXPECT_EQ(memoryWord(machine, 0x100), cpuType < 2 ? 0xABC3 : 0xC312) << "bus " << cpuType;
    }
}

TEST(MemoryWrite, of_a_control_word_keeps_its_status_byte_during_a_scan) {
    Machine machine = onBus(0);
    machine.picScanLed.lit = true;
    setMemoryWord(machine, 0x008, 0x1400);
    EXPECT_TRUE(writeWordAt(machine, 0x008, "ABCD").upperByteRefused);
    EXPECT_EQ(memoryWord(machine, 0x008), 0x14CD);
    EXPECT_FALSE(writeWordAt(machine, 0x008, "1455").upperByteRefused) << "it wouldn't change";
    EXPECT_FALSE(writeWordAt(machine, 0x080, "ABCD").upperByteRefused) << "a DO word is free";
    EXPECT_EQ(memoryWord(machine, 0x080), 0xABCD);
    EXPECT_TRUE(writeWordAt(machine, 0x07E, "ABCD").upperByteRefused) << "the last control word";
    EXPECT_FALSE(writeByteAt(machine, 0x009, "FF").upperByteRefused) << "a byte isn't asked";
    EXPECT_EQ(memoryWord(machine, 0x008), 0xFF55);
    machine.picScanLed.lit = false;
    EXPECT_FALSE(writeWordAt(machine, 0x008, "ABCD").upperByteRefused);
    EXPECT_EQ(memoryWord(machine, 0x008), 0xABCD);
    EXPECT_EQ(upperByteRefusedPopup().text, "スキャン中、コントロールワードの上位バイトはライトプロテクト。");
    EXPECT_EQ(bufferedPopup().text, "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。");
}

TEST(HazardWrite, the_second_byte_brings_the_first_into_its_own_word) {
    Machine machine = onBus(1, true);
    setMemoryWord(machine, 0x100, 0x0000);
    EXPECT_TRUE(writeByteAt(machine, 0x101, "12").buffered);
    EXPECT_EQ(memoryWord(machine, 0x100), 0x0000);
    EXPECT_TRUE(holding(machine));
    EXPECT_FALSE(writeByteAt(machine, 0x100, "34").buffered);
    EXPECT_EQ(memoryWord(machine, 0x100), 0x1234);
    EXPECT_EQ(machine.chipMemory[reg::hprHigh], protection);

    writeByteAt(machine, 0x101, "56");
    writeByteAt(machine, 0x141, "78");
    EXPECT_EQ(machine.chipMemory[0x141], 0x56) << "the waiting byte overwrites the second one on the same half";
    EXPECT_EQ(memoryWord(machine, 0x100), 0x1234) << "the word it was meant for stays";

    writeByteAt(machine, 0x102, "9A");
    EXPECT_FALSE(writeByteAt(machine, 0x011, "10").buffered) << "a control word goes straight to memory";
    EXPECT_EQ(memoryWord(machine, 0x010), 0x109A);
}

TEST(HazardWrite, covers_080H_to_4FEH_as_indices) {
    struct Row {
        int cpuType, address;
        bool buffered;
    };
    for (const Row& row : {Row{1, 0x07F, false}, Row{1, 0x080, true}, Row{1, 0x4FE, true}, Row{1, 0x4FF, false},
                           Row{1, 0x500, false}, Row{3, 0x07E, false}, Row{3, 0x080, true}, Row{3, 0x081, true},
                           Row{3, 0x4FE, false}, Row{3, 0x4FF, true}, Row{0, 0x100, false}, Row{2, 0x100, false}}) {
        Machine machine = onBus(row.cpuType, true);
        EXPECT_EQ(writeByteAt(machine, row.address, "5A").buffered, row.buffered) << row.cpuType << " " << row.address;
        const auto index = static_cast<std::size_t>(busToMemoryIndex(machine, row.address));
        EXPECT_EQ(machine.chipMemory[index], row.buffered ? 0x00 : 0x5A);
    }
}

TEST(HazardWrite, a_waiting_byte_is_dropped_kept_or_committed_by_what_comes_next) {
    const auto waiting = [] {
        Machine machine = onBus(1, true);
        writeByteAt(machine, 0x101, "12");
        return machine;
    };
    Machine machine = waiting();
    machine.cpuType = 0;
    writeWordAt(machine, 0x200, "ABCD");
    EXPECT_EQ(memoryWord(machine, 0x200), 0xABCD);
    EXPECT_FALSE(holding(machine) || machine.writeTempHighFull) << "dropped by a word";

    machine = waiting();
    machine.cpuType = 0;
    writeByteAt(machine, 0x200, "CD");
    EXPECT_EQ(memoryWord(machine, 0x200), 0x00CD);
    EXPECT_FALSE(holding(machine) || machine.writeTempHighFull) << "dropped by a byte on a 16-bit bus";

    machine = waiting();
    writeRegister(machine, reg::hprLow, Width::byte, Half::high, "00");
    EXPECT_TRUE(holding(machine)) << "switching off keeps it";
    EXPECT_FALSE(writeByteAt(machine, 0x200, "34").buffered);
    EXPECT_EQ(memoryWord(machine, 0x200), 0x1234);
    EXPECT_EQ(machine.chipMemory[reg::hprHigh], 0);

    machine = waiting();
    resetRegisters(machine);
    EXPECT_TRUE(machine.writeTempHighFull) << "the flags outlive a reset of the registers";
    writeByteAt(machine, 0x200, "34");
    EXPECT_EQ(memoryWord(machine, 0x200), 0x1234);
}

TEST(HazardRead, the_next_read_is_answered_by_parity) {
    Machine machine = onBus(1, false, true);
    setMemoryWord(machine, 0x100, 0x1234);
    setMemoryWord(machine, 0x2A0, 0xABCD);
    const auto first = readMemory(machine, "100");
    EXPECT_EQ(first->value, 0x34);
    EXPECT_EQ(first->guide, "リードテンポラリバッファにデータを格納しました。");
    EXPECT_EQ(machine.chipMemory[reg::hprLow], protection | 1);
    setMemoryWord(machine, 0x100, 0xFFFF);
    const auto second = readMemory(machine, "2a1");
    EXPECT_EQ(second->value, 0x12);
    EXPECT_EQ(second->guide, "リードテンポラリバッファからデータを取得しました。");
    EXPECT_EQ(machine.chipMemory[reg::hprLow], protection);
    EXPECT_EQ(readMemory(machine, "2A1")->value, 0xAB);
    writeRegister(machine, reg::hprLow, Width::byte, Half::low, "00");
    EXPECT_EQ(readMemory(machine, "005")->value, 0xAB) << "the buffer answers though protection is off";
    const auto plain = readMemory(machine, "2A1");
    EXPECT_EQ(plain->value, 0xAB);
    EXPECT_EQ(plain->guide, "メモリよりデータを取得しました。");

    Machine big = onBus(3, false, true);
    setMemoryWord(big, 0x100, 0x1234);
    EXPECT_EQ(readMemory(big, "100")->value, 0x12);
    EXPECT_EQ(readMemory(big, "101")->value, 0x34);
}

TEST(HazardRead, covers_080H_to_4FFH_as_bus_addresses) {
    for (const int cpuType : {1, 3}) {
        for (const auto& [address, covered] : {std::pair{"07F", false}, {"080", true}, {"4FF", true}, {"500", false}}) {
            Machine machine = onBus(cpuType, false, true);
            readMemory(machine, address);
            EXPECT_EQ((machine.chipMemory[reg::hprLow] & 1) != 0, covered) << cpuType << " " << address;
        }
    }
}

TEST(MemoryRead, refuses_what_is_no_address_and_reads_the_chip_name) {
    Machine machine = onBus(1, false, true);
    for (const char* bad : {"800", "FFF", "12?", "???", "12", "1234", "", "g00", " 12"}) {
        EXPECT_EQ(readMemory(machine, bad), std::nullopt) << bad;
    }
    EXPECT_EQ(machine.chipMemory[reg::hprLow], protection);
    std::string name;
    for (const char* address : {"590", "591", "592", "593", "594", "595"}) {
        name += static_cast<char>(readMemory(machine, address)->value);
    }
    EXPECT_EQ(name, "QDA60 ");
    EXPECT_EQ(readMemory(machine, "7ff")->value, 0);
}

TEST(WriteProtection, is_asked_cell_by_cell_while_the_scan_led_is_lit) {
    const Answer free;
    const Answer upperByte = Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト"};
    const Answer scanWritten = Popup{"スキャン中はライトプロテクト"};
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        SCOPED_TRACE(cpuType);
        Machine machine = onBus(cpuType);
        const Answer even = cpuType % 2 != 0 ? upperByte : free;
        for (const bool scan : {true, false}) {
            machine.picScanLed.lit = scan;
            const auto expect = [&](Area area, int cell, const Answer& answer) {
                EXPECT_EQ(memoryWriteRefusal(machine, area, cell), scan ? answer : free) << cell;
            };
            expect(Area::controlDoDi, 0, even);
            expect(Area::controlDoDi, 1, free);
            expect(Area::controlDoDi, 126, even);
            expect(Area::controlDoDi, 127, free);
            expect(Area::controlDoDi, 128, free);
            expect(Area::controlDoDi, 255, free);
            expect(Area::controlDoDi, 256, scanWritten);
            expect(Area::controlDoDi, 383, scanWritten);
            expect(Area::c1ToC7, 0, scanWritten);
            expect(Area::c1ToC7, 895, scanWritten);
            expect(Area::drc, 0, free);
        }
    }
}

}  // namespace
