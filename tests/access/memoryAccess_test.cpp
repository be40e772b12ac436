// The host CPU at the memory: addresses, writes and reads on the four buses, hazard protection, write protection.

#include "access/memoryAccess.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

constexpr int little8 = 1;
constexpr int big8 = 3;

// A bench whose host has the bus `cpuType` and whose HPR is `hpr`: 1000H protects writes, 0010H reads.
Machine onBus(int cpuType, int hpr = 0) {
    Machine machine = makersMachine();
    machine.cpuType = static_cast<std::int16_t>(cpuType);
    setMemoryWord(machine, reg::hprLow, hpr);
    return machine;
}

// Writes two or four digits at a bus address, through the cell that shows it: columns count down on a little-endian bus.
WriteResult write(Machine& machine, int address, std::string_view text) {
    const int base = address < 0x180 ? 0x000 : address < 0x500 ? 0x180 : 0x500;
    const int cell = machine.cpuType < 2 ? (address - base) ^ 15 : address - base;
    const char* rowText = base == 0 ? "00x" : base == 0x180 ? "18x" : "50x";
    return writeMemory(machine, rowText, cell, text.size() == 4 ? Width::word : Width::byte, text);
}

int hprOf(const Machine& machine) {
    return memoryWord(machine, reg::hprLow);
}

TEST(BusAddress, counts_down_a_row_on_a_little_and_up_on_a_big_endian_bus) {
    // The cells in the corners of a window and their addresses.
    struct Window {
        const char* rowText;
        std::array<int, 4> cells, little, big;
    };
    for (const Window& window : {Window{"00x", {0, 15, 368, 383}, {0x00F, 0x000, 0x17F, 0x170}, {0x000, 0x00F, 0x170, 0x17F}},
                                 Window{"18x", {0, 31, 880, 895}, {0x18F, 0x190, 0x4FF, 0x4F0}, {0x180, 0x19F, 0x4F0, 0x4FF}},
                                 Window{"50x", {0, 15, 112, 127}, {0x50F, 0x500, 0x57F, 0x570}, {0x500, 0x50F, 0x570, 0x57F}}}) {
        for (int cpuType = 0; cpuType < 4; ++cpuType) {
            for (std::size_t corner = 0; corner < 4; ++corner) {
                EXPECT_EQ(labelToAddress(onBus(cpuType), window.rowText, window.cells[corner]),
                          (cpuType < 2 ? window.little : window.big)[corner])
                    << window.rowText << " " << window.cells[corner] << " on bus " << cpuType;
            }
        }
    }
    for (const auto& [cpuType, even, odd] : Rows<3>{{0, 0x100, 0x101}, {1, 0x100, 0x101}, {2, 0x101, 0x100}, {3, 0x101, 0x100}}) {
        EXPECT_EQ(busToMemoryIndex(onBus(cpuType), 0x100), even);
        EXPECT_EQ(busToMemoryIndex(onBus(cpuType), 0x101), odd);
    }
}

TEST(MemoryWrite, reaches_the_same_word_on_every_bus_and_a_byte_by_its_order) {
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        Machine machine = onBus(cpuType);
        for (const int address : {0x100, 0x101}) {
            setMemoryWord(machine, 0x100, 0);
            const WriteResult result = write(machine, address, "aB12");
            EXPECT_FALSE(result.buffered || result.upperByteRefused);
            EXPECT_EQ(memoryWord(machine, 0x100), 0xAB12) << "bus " << cpuType;
        }
        write(machine, 0x100, "c3");
        EXPECT_EQ(memoryWord(machine, 0x100), cpuType < 2 ? 0xABC3 : 0xC312) << "bus " << cpuType;
        EXPECT_EQ(memoryWord(machine, 0x0FE) + memoryWord(machine, 0x102), 0);
    }
}

TEST(MemoryWrite, of_a_control_word_keeps_its_upper_byte_while_the_scan_led_is_lit) {
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        Machine machine = onBus(cpuType);
        machine.picScanLed.lit = true;
        for (const auto& [address, text, refused, after] : {std::tuple{0x008, "ABCD", true, 0x14CD},
                                                            {0x008, "1455", false, 0x1455},
                                                            {0x009, "AB66", true, 0x1466},
                                                            {0x07E, "0033", true, 0x1433},
                                                            {0x080, "ABCD", false, 0xABCD}}) {
            setMemoryWord(machine, address & ~1, 0x1400);
            EXPECT_EQ(write(machine, address, text).upperByteRefused, refused) << address << " " << text;
            EXPECT_EQ(memoryWord(machine, address & ~1), after) << address << " " << text;
        }
        EXPECT_FALSE(write(machine, cpuType < 2 ? 0x009 : 0x008, "FF").upperByteRefused) << "a byte isn't asked";
        EXPECT_EQ(memoryWord(machine, 0x008), 0xFF66);
        machine.picScanLed.lit = false;
        machine.scanRunning = true;  // the LED is asked, not the flag
        EXPECT_FALSE(write(machine, 0x008, "ABCD").upperByteRefused);
        EXPECT_EQ(memoryWord(machine, 0x008), 0xABCD);
    }
    EXPECT_EQ(upperByteRefusedPopup().text, "スキャン中、コントロールワードの上位バイトはライトプロテクト。");
    EXPECT_EQ(bufferedPopup().text, "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。");
}

TEST(HazardWrite, the_second_byte_brings_the_first_into_memory) {
    for (const int cpuType : {little8, big8}) {
        for (const bool highFirst : {true, false}) {
            Machine machine = onBus(cpuType, 0x1010);
            const int highAt = cpuType == little8 ? 0x101 : 0x100;
            const int firstAt = highFirst ? highAt : highAt ^ 1;
            EXPECT_TRUE(write(machine, firstAt, highFirst ? "12" : "34").buffered);
            EXPECT_EQ(memoryWord(machine, 0x100), 0);
            EXPECT_EQ(hprOf(machine), 0x1110);
            EXPECT_FALSE(write(machine, firstAt ^ 1, highFirst ? "34" : "12").buffered);
            EXPECT_EQ(memoryWord(machine, 0x100), 0x1234);
            EXPECT_EQ(hprOf(machine), 0x1010) << "armed again";
            setByte(machine, reg::hprHigh, 0);
            write(machine, 0x100 + (firstAt ^ 1), "56");
            EXPECT_EQ(memoryWord(machine, 0x200), highFirst ? 0x0056 : 0x5600) << "nothing waits any more";
        }
    }
}

TEST(HazardWrite, the_waiting_byte_goes_to_the_word_of_the_second_write) {
    for (const auto& [first, second, word] : Rows<3>{{0x101, 0x141, 0xAA00},     // the same half: overwritten at once
                                                     {0x100, 0x140, 0x00AA},     //
                                                     {0x101, 0x140, 0xAABB},     // the other half of another word
                                                     {0x100, 0x011, 0xBBAA},     // a control word
                                                     {0x101, 0x50E, 0xAABB}}) {  // a mask
        Machine machine = onBus(little8, 0x1000);
        EXPECT_TRUE(write(machine, first, "AA").buffered);
        EXPECT_FALSE(write(machine, second, "BB").buffered);
        EXPECT_EQ(memoryWord(machine, second & ~1), word) << first << " " << second;
        EXPECT_EQ(memoryWord(machine, 0x100), 0);
    }
}

TEST(HazardWrite, covers_080H_to_4FEH_as_indices_on_an_8_bit_bus) {
    const auto expect = [](int cpuType, std::initializer_list<int> addresses, bool buffered) {
        for (const int address : addresses) {
            SCOPED_TRACE(testing::Message() << std::hex << address << " on bus " << cpuType);
            Machine machine = onBus(cpuType, 0x1000);
            EXPECT_EQ(write(machine, address, "5A").buffered, buffered);
            EXPECT_EQ(byteAt(machine, cpuType < 2 ? address : address ^ 1), buffered ? 0x00 : 0x5A);
            EXPECT_EQ(hprOf(machine), buffered ? 0x1100 : 0x1000);
            machine = onBus(cpuType, 0x0010);
            EXPECT_FALSE(write(machine, address, "5A").buffered) << "only reads are protected";
        }
    };
    expect(little8, {0x080, 0x100, 0x4FE}, true);
    expect(little8, {0x000, 0x07F, 0x4FF, 0x500}, false);
    expect(big8, {0x080, 0x081, 0x4FF}, true);
    expect(big8, {0x07E, 0x07F, 0x4FE, 0x501}, false);
    expect(0, {0x080, 0x100, 0x101}, false);
    expect(2, {0x080, 0x100, 0x101}, false);
}

Machine withWaitingHighByte() {
    Machine machine = onBus(little8, 0x1010);
    write(machine, 0x101, "12");
    return machine;
}

TEST(HazardWrite, a_word_or_a_16_bit_bus_drops_the_waiting_byte) {
    for (const auto& [cpuType, width] : Rows<2>{{0, 16}, {2, 16}, {little8, 16}, {0, 8}, {2, 8}}) {
        SCOPED_TRACE(testing::Message() << cpuType << " " << width);
        Machine machine = withWaitingHighByte();
        setByte(machine, reg::hprLow, 0x11);
        machine.cpuType = static_cast<std::int16_t>(cpuType);
        const int lowAt = cpuType < 2 ? 0x200 : 0x201;
        EXPECT_FALSE(write(machine, lowAt, width == 16 ? "ABCD" : "CD").buffered);
        EXPECT_EQ(memoryWord(machine, 0x200), width == 16 ? 0xABCD : 0x00CD);
        EXPECT_EQ(hprOf(machine), 0x1011) << "the read buffer is none of its business";
        machine.cpuType = little8;
        EXPECT_TRUE(write(machine, 0x300, "34").buffered);
        EXPECT_FALSE(write(machine, 0x300, "35").buffered);
        EXPECT_EQ(memoryWord(machine, 0x300), 0x0034) << "nothing left of the byte dropped";
    }
}

TEST(HazardWrite, a_waiting_byte_outlasts_switching_off_a_change_of_bus_and_a_reset_of_the_registers) {
    Machine machine = withWaitingHighByte();
    writeRegister(machine, 0x584, Width::byte, Half::high, "00");
    EXPECT_EQ(hprOf(machine), 0x0110);
    EXPECT_FALSE(write(machine, 0x200, "34").buffered);
    EXPECT_EQ(memoryWord(machine, 0x200), 0x1234);
    EXPECT_EQ(hprOf(machine), 0x0010);
    write(machine, 0x202, "56");
    EXPECT_EQ(memoryWord(machine, 0x202), 0x0056) << "off";

    machine = withWaitingHighByte();
    machine.cpuType = big8;
    write(machine, 0x201, "34");
    EXPECT_EQ(memoryWord(machine, 0x200), 0x1234);

    machine = withWaitingHighByte();
    resetRegisters(machine);
    write(machine, 0x200, "34");
    EXPECT_EQ(memoryWord(machine, 0x200), 0x1234) << "the commit asks the flags";

    machine = withWaitingHighByte();
    resetRegisters(machine);
    setByte(machine, reg::hprHigh, 0x10);
    EXPECT_TRUE(write(machine, 0x200, "34").buffered) << "the buffering asks HPR";
    write(machine, 0x300, "56");
    EXPECT_EQ(memoryWord(machine, 0x300), 0x1234) << "both halves waited";
}

const std::string_view fromBuffer = "リードテンポラリバッファからデータを取得しました。";
const std::string_view intoBuffer = "リードテンポラリバッファにデータを格納しました。";
const std::string_view fromMemory = "メモリよりデータを取得しました。";

TEST(HazardRead, keeps_a_word_and_answers_the_next_read_by_parity) {
    for (const auto& [cpuType, even, odd] : Rows<3>{{little8, 0x34, 0x12}, {big8, 0x12, 0x34}}) {
        SCOPED_TRACE(cpuType);
        const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
        Machine machine = onBus(cpuType, 0x1110);
        setMemoryWord(machine, 0x100, 0x1234);
        setMemoryWord(machine, 0x2A0, 0xABAB);
        for (const auto& [address, value] : {std::pair{"2a1", odd}, {"100", even}, {"000", even}, {"7FF", odd}}) {
            EXPECT_EQ(readMemory(machine, "100"), (ReadResult{byte(even), intoBuffer}));
            EXPECT_EQ(hprOf(machine), 0x1111);
            setMemoryWord(machine, 0x100, 0xFFFF);
            EXPECT_EQ(readMemory(machine, address), (ReadResult{byte(value), fromBuffer})) << address;
            EXPECT_EQ(hprOf(machine), 0x1110);
            setMemoryWord(machine, 0x100, 0x1234);
        }
        EXPECT_EQ(readMemory(machine, "101"), (ReadResult{byte(odd), intoBuffer}));
        writeRegister(machine, 0x584, Width::word, Half::low, "0000");
        EXPECT_EQ(readMemory(machine, "2A0"), (ReadResult{byte(even), fromBuffer})) << "answers though protection is off";
        EXPECT_EQ(readMemory(machine, "2A0"), (ReadResult{0xAB, fromMemory}));
    }
}

TEST(HazardRead, covers_080H_to_4FFH_as_bus_addresses) {
    for (const int cpuType : {little8, big8}) {
        const auto expect = [cpuType](std::initializer_list<const char*> addresses, bool covered) {
            for (const char* address : addresses) {
                Machine machine = onBus(cpuType, 0x0010);
                EXPECT_EQ(readMemory(machine, address)->guide, covered ? intoBuffer : fromMemory) << cpuType << " " << address;
                EXPECT_EQ(hprOf(machine), covered ? 0x0011 : 0x0010);
                machine = onBus(cpuType, 0x1000);
                EXPECT_EQ(readMemory(machine, address)->guide, fromMemory) << "only writes are protected";
            }
        };
        expect({"080", "081", "4FE", "4FF"}, true);
        expect({"07E", "07F", "500", "501"}, false);
    }
}

TEST(MemoryRead, refuses_what_is_no_address_and_reads_to_the_end) {
    Machine machine = onBus(little8, 0x0011);
    for (const char* bad : {"800", "FFF", "12?", "???", "?12", "12", "1234", "0100", "", "g00", " 12", "12 ", "-12"}) {
        EXPECT_EQ(readMemory(machine, bad), std::nullopt) << bad;
    }
    EXPECT_EQ(hprOf(machine), 0x0011) << "a refused read leaves the buffer";
    for (const auto& [cpuType, name] : {std::pair{little8, "QDA60 "}, {big8, "DQ6A 0"}}) {
        machine = onBus(cpuType);
        std::string text;
        for (const char* address : {"590", "591", "592", "593", "594", "595"}) {
            text += static_cast<char>(readMemory(machine, address)->value);
        }
        EXPECT_EQ(text, name);
    }
    machine = onBus(little8);
    setByte(machine, 0x7FF, 0x5A);
    EXPECT_EQ(readMemory(machine, "7ff"), (ReadResult{0x5A, fromMemory}));
}

TEST(WriteProtection, is_asked_cell_by_cell_while_the_scan_led_is_lit) {
    const Answer free;
    const Answer upperByte = Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト"};
    const Answer scanWritten = Popup{"スキャン中はライトプロテクト"};
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        const Answer upper = cpuType % 2 != 0 ? upperByte : free;
        for (const bool lit : {true, false}) {
            Machine machine = onBus(cpuType);
            machine.picScanLed.lit = lit;
            machine.scanRunning = !lit;
            const auto expect = [&machine, lit, &free](Area area, std::initializer_list<int> cells, const Answer& answer) {
                for (const int cell : cells) {
                    EXPECT_EQ(memoryWriteRefusal(machine, area, cell), lit ? answer : free) << cell;
                }
            };
            expect(Area::controlDoDi, {0, 126}, upper);
            expect(Area::controlDoDi, {1, 127, 128, 255}, free);
            expect(Area::controlDoDi, {256, 383}, scanWritten);
            expect(Area::c1ToC7, {0, 1, 127, 128, 895}, scanWritten);
            expect(Area::drc, {0, 1, 127}, free);
        }
    }
}

}  // namespace
