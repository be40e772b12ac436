// Writes of the host CPU to the registers: what is stored, what is refused, and in which words.

#include "access/registers.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

const Answer nothing;
const Answer unsuitable = Popup{"入力された値が不適切であるため、書き込まれません。"};
const Answer readOnly = Popup{"このレジスタはリードオンリーです。"};
const Answer protectedInScan = Popup{"スキャン中はライトプロテクト。"};

const std::string title = "   警 告";
const std::string bcrMismatch = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\n\n";
const Answer mismatchWord = Warning{bcrMismatch + "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。", title};
const Answer mismatchHigh =
    Warning{bcrMismatch + "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。", title};
const Answer mismatchLow = Warning{
    "通信設定がハードウェア設定と一致していません。\n\nハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。",
    title};

enum Cover { word, low, high };

Answer write(Machine& machine, int address, Cover cover, std::string_view text) {
    // For a word the half is not to be read.
    return writeRegister(machine, address, cover == word ? Width::word : Width::byte, cover == low ? Half::low : Half::high,
                         text);
}

TEST(RegisterTable, names_lead_to_addresses) {
    const std::array<std::string_view, 9> names{"SCR", "SSR", "HPR", "INT0R", "INT1R", "C1CR", "C2CR", "BCR", "CC"};
    const std::array<std::string_view, 9> addresses{"580", "582", "584", "586", "588", "58A", "58C", "58E", ""};
    for (std::size_t index = 0; index < names.size(); ++index) {
        EXPECT_EQ(regAddress(names[index]), addresses[index]);
    }
    EXPECT_EQ(regAddress(""), "");
    EXPECT_EQ(regAddress("SCR "), "");
}

TEST(RegisterDialog, opens_for_all_but_ssr_and_in_a_scan_bcr) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        Machine machine = makersMachine();
        machine.picScanLed.lit = true;  // the flags are asked, not the LED
        for (int row = 1; row <= 9; ++row) {
            EXPECT_EQ(registerWriteRefusal(machine, row), row == 2 ? readOnly : nothing) << row;
        }
        machine.picScanLed.lit = false;
        machine.*scan = true;
        for (int row = 1; row <= 9; ++row) {
            EXPECT_EQ(registerWriteRefusal(machine, row), row == 2 ? readOnly : row == 8 ? protectedInScan : nothing) << row;
        }
    }
}

TEST(SCR, refuses_what_does_not_suit_and_takes_the_rest) {
    enum Scan { none, continuous, single };
    struct Row {
        Scan scan;
        int fullDuplex;
        Cover cover;
        const char* text;
        int scr;  // afterwards, from 0707H; -1 when the value doesn't suit
    };
    // Both halves at once; the high byte in a continuous scan; anything but 0 in a single scan; station 1 alone in full
    // duplex. The last one asks the six bits that are stored, the others the digits as they are written.
    for (const Row& row : {Row{none, 1, word, "0404", -1},
                           Row{none, 0, word, "0404", -1},
                           Row{none, 0, word, "4080", -1},
                           Row{none, 1, low, "04", 0x0704},
                           Row{none, 1, high, "04", 0x0407},
                           Row{continuous, 1, word, "0300", -1},
                           Row{continuous, 0, word, "4000", -1},
                           Row{continuous, 1, high, "03", -1},
                           Row{continuous, 1, high, "40", -1},
                           Row{continuous, 1, high, "00", 0x0007},
                           Row{continuous, 1, word, "0008", 0x0008},
                           Row{continuous, 1, word, "0000", 0x0000},
                           Row{continuous, 1, low, "09", 0x0709},
                           Row{single, 1, word, "0003", -1},
                           Row{single, 1, word, "0300", -1},
                           Row{single, 1, low, "03", -1},
                           Row{single, 1, high, "03", -1},
                           Row{single, 0, low, "40", -1},
                           Row{single, 0, high, "80", -1},
                           Row{single, 1, word, "0000", 0x0000},
                           Row{single, 1, low, "00", 0x0700},
                           Row{single, 1, high, "00", 0x0007},
                           Row{none, 1, word, "0001", -1},
                           Row{none, 1, word, "0100", -1},
                           Row{none, 1, word, "0081", -1},
                           Row{none, 1, word, "C100", -1},
                           Row{none, 1, low, "41", -1},
                           Row{none, 1, high, "41", -1},
                           Row{continuous, 1, low, "01", -1},
                           Row{none, 0, word, "0001", 0x0001},
                           Row{none, 0, word, "0100", 0x0100},
                           Row{none, 0, low, "41", 0x0701},
                           Row{none, 0, high, "81", 0x0107},
                           Row{none, 1, low, "42", 0x0702},
                           Row{none, 1, high, "c2", 0x0207},
                           Row{none, 1, word, "00ff", 0x003F},
                           Row{none, 1, word, "FF00", 0x3F00}}) {
        SCOPED_TRACE(testing::Message() << row.text << " cover " << row.cover << " scan " << row.scan << " full "
                                        << row.fullDuplex);
        Machine machine = makersMachine();
        machine.scanRunning = row.scan == continuous;
        machine.scanOneShot = row.scan == single;
        setByte(machine, reg::bcrLow, row.fullDuplex != 0 ? 0x13 : 0x03);
        machine.duplexBit = row.fullDuplex != 0 ? 16 : 0;
        setMemoryWord(machine, reg::scrLow, 0x0707);
        EXPECT_EQ(write(machine, reg::scrLow, row.cover, row.text), row.scr < 0 ? unsuitable : nothing);
        EXPECT_EQ(memoryWord(machine, reg::scrLow), row.scr < 0 ? 0x0707 : row.scr);
    }
}

TEST(SCR, a_duplex_mismatch_refuses_every_value_in_the_words_of_its_case) {
    for (const auto& [bcr, jumpers] : Rows<2>{{0x13, 0}, {0x03, 16}}) {
        Machine machine = makersMachine();
        setByte(machine, reg::bcrLow, bcr);
        setMemoryWord(machine, reg::scrLow, 0x0005);
        machine.duplexBit = static_cast<std::uint8_t>(jumpers);
        for (const bool scan : {false, true}) {
            machine.scanRunning = scan;
            EXPECT_EQ(write(machine, reg::scrLow, word, "0004"), mismatchWord);
            EXPECT_EQ(write(machine, reg::scrLow, word, "0000"), mismatchWord);
            EXPECT_EQ(write(machine, reg::scrLow, high, "00"), mismatchHigh);
            EXPECT_EQ(write(machine, reg::scrLow, low, "00"), mismatchLow);
            EXPECT_EQ(write(machine, reg::scrLow, word, "0404"), unsuitable) << "an unsuitable value comes first";
        }
        EXPECT_EQ(write(machine, reg::scrLow, high, "04"), unsuitable);
        EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0005);
    }
}

TEST(SSR, is_read_only) {
    Machine machine = makersMachine();
    for (const Cover cover : {word, low, high}) {
        EXPECT_EQ(write(machine, reg::ssrLow, cover, cover == word ? "FFFF" : "FF"), readOnly);
    }
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0);
}

TEST(HPR, takes_its_two_switches_and_keeps_the_buffer_bits) {
    struct Row {
        int before;
        Cover cover;
        const char* text;
        int after;
    };
    for (const Row& row : {Row{0x0000, word, "FFFF", 0x1010}, Row{0x0101, word, "FEFE", 0x1111},
                           Row{0x1111, word, "0000", 0x0101}, Row{0x1010, word, "EFEF", 0x0000}, Row{0x1111, low, "00", 0x1101},
                           Row{0x0000, low, "FF", 0x0010}, Row{0x1111, high, "00", 0x0111}, Row{0x0000, high, "FF", 0x1000}}) {
        Machine machine = makersMachine();
        machine.scanRunning = true;  // of no account here
        setMemoryWord(machine, reg::hprLow, row.before);
        EXPECT_EQ(write(machine, reg::hprLow, row.cover, row.text), nothing);
        EXPECT_EQ(memoryWord(machine, reg::hprLow), row.after) << row.text << " over " << row.before;
    }
}

TEST(InterruptRegisters, enables_are_set_requests_cleared_by_1_and_the_indicator_follows_a_clearing_write) {
    struct Row {
        int address;
        int before;
        Cover cover;
        const char* text;
        int after;
        bool updates;
    };
    for (const Row& row : {Row{0x586, 0x12FF, word, "0000", 0x00FF, true}, Row{0x586, 0x12FF, word, "FFFF", 0xFF00, true},
                           Row{0x586, 0x00FF, word, "A50F", 0xA5F0, true}, Row{0x586, 0x120C, low, "04", 0x1208, true},
                           Row{0x586, 0x120C, low, "00", 0x120C, true}, Row{0x586, 0x120C, high, "FF", 0xFF0C, false},
                           Row{0x588, 0x00F8, word, "FF18", 0xF8E0, true}, Row{0x588, 0xF8F8, word, "0700", 0x00F8, true},
                           Row{0x588, 0xF888, low, "08", 0xF880, true}, Row{0x588, 0x0088, high, "FF", 0xF888, false}}) {
        SCOPED_TRACE(testing::Message() << row.text << " over " << std::hex << row.before << " at " << row.address);
        Machine machine = makersMachine();
        setMemoryWord(machine, row.address, row.before);
        EXPECT_EQ(write(machine, row.address, row.cover, row.text), nothing);
        EXPECT_EQ(memoryWord(machine, row.address), row.after);
        const int image = (row.after & 0xFF) == 0 ? 1 : row.address == 0x586 ? 2 : 3;
        EXPECT_EQ(machine.intLedShown, row.updates ? image : 0);
        EXPECT_EQ(machine.picInt.visible, row.updates && image != 1);
    }
}

TEST(InterruptRegisters, clearing_request_2_sets_the_held_scan_going) {
    Machine machine = scanningMachine();
    write(machine, reg::int0Request, high, "04");
    setMemoryWord(machine, drcBase + 2 * 1, 0xFFFF);
    setInput(machine, slotQDA73, 0x0001);
    ticks(machine, 4 + 3);
    EXPECT_EQ(machine.scanAddr, 1) << "held after the pass";
    EXPECT_TRUE(machine.picInt.visible);
    write(machine, reg::int0Request, low, "FB");
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 1) << "the other bits don't matter";
    write(machine, reg::int0Request, low, "04");
    EXPECT_FALSE(machine.picInt.visible);
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 3);
}

TEST(EventCounters, are_cleared_by_bit_0_and_by_nothing_else) {
    for (const int address : {reg::c1crLow, reg::c2crLow}) {
        Machine machine = makersMachine();
        for (const auto& [cover, text] : {std::pair{word, "FFFE"}, {high, "FF"}, {high, "01"}, {low, "FE"}, {word, "0100"}}) {
            setMemoryWord(machine, address, 0x5533);
            EXPECT_EQ(write(machine, address, cover, text), nothing);
            EXPECT_EQ(memoryWord(machine, address), 0x5533) << text;
        }
        for (const auto& [cover, text] : {std::pair{word, "0001"}, {low, "01"}, {low, "FF"}}) {
            setMemoryWord(machine, address, 0x5533);
            EXPECT_EQ(write(machine, address, cover, text), nothing);
            EXPECT_EQ(memoryWord(machine, address), 0x5500) << text;
        }
    }
}

TEST(BCR, is_masked_and_against_the_jumpers_stored_with_a_warning_that_lasts_in_scr) {
    Machine machine = makersMachine();
    EXPECT_EQ(write(machine, reg::bcrLow, word, "FFFF"), nothing);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0713);
    EXPECT_EQ(write(machine, reg::bcrLow, word, "0003"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0003) << "the value stands";
    EXPECT_EQ(write(machine, reg::bcrLow, high, "FD"), nothing) << "a high byte doesn't warn";
    EXPECT_EQ(write(machine, reg::bcrLow, low, "EC"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0500);
    EXPECT_EQ(write(machine, reg::scrLow, word, "0004"), mismatchWord);
    machine.duplexBit = 0;
    EXPECT_EQ(write(machine, reg::scrLow, word, "0004"), nothing) << "the jumpers agree";
    EXPECT_EQ(write(machine, reg::bcrLow, low, "FF"), mismatchHigh) << "written before the scan's first tick";
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0513);
    machine.duplexBit = 16;
    EXPECT_EQ(write(machine, reg::bcrLow, low, "12"), nothing);
}

TEST(BCR, is_protected_while_a_scan_is_on) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        Machine machine = makersMachine();
        machine.*scan = true;
        EXPECT_EQ(write(machine, reg::bcrLow, word, "0000"), protectedInScan);
        EXPECT_EQ(write(machine, reg::bcrLow, low, "00"), protectedInScan);
        EXPECT_EQ(write(machine, reg::bcrLow, high, "07"), protectedInScan);
        EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0013);
    }
}

TEST(BCR, gives_the_center_a_rate_at_the_next_start_that_the_boards_must_share) {
    Machine machine = makersMachine();
    const auto scanOnce = [&machine] {
        EXPECT_EQ(write(machine, reg::scrLow, high, "04"), nothing);
        ticks(machine, 4);
        return std::array{statusOf(machine, 1), statusOf(machine, 2), statusOf(machine, 3), statusOf(machine, 4)};
    };
    EXPECT_EQ(scanOnce(), (std::array{0, 0, 0, 0}));
    EXPECT_FALSE(scanOn(machine));
    write(machine, reg::bcrLow, low, "12");
    EXPECT_EQ(scanOnce(), (std::array{0x14, 0x14, 0x14, 0x14})) << "boards at 12 Mbps don't hear a center at 6";
    machine.boardClock[clockQDA73] = 1;
    EXPECT_EQ(scanOnce(), (std::array{0, 0x24, 0x24, 0x24}));
    EXPECT_EQ(memoryWord(machine, reg::c1crLow), 4);
    write(machine, reg::bcrLow, low, "13");
    EXPECT_EQ(scanOnce(), (std::array{0x14, 0, 0, 0}));
}

TEST(RegisterWrite, of_0_to_scr_ends_the_scan_with_the_pass) {
    Machine machine = makersMachine();
    machine.duplexBit = 0;
    write(machine, reg::bcrLow, word, "0003");
    write(machine, reg::scrLow, word, "0001");
    ticks(machine, 3);
    EXPECT_TRUE(machine.scanRunning);
    EXPECT_EQ(write(machine, reg::scrLow, low, "03"), nothing);
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 2);
    EXPECT_EQ(write(machine, reg::scrLow, word, "0000"), nothing);
    ticks(machine, 1);
    EXPECT_TRUE(machine.scanRunning);
    ticks(machine, 1);
    EXPECT_FALSE(machine.scanRunning);
}

TEST(RegisterWrite, to_an_odd_or_foreign_address_does_nothing) {
    for (const int address : {0x000, 0x57E, 0x581, 0x585, 0x58B, 0x58F, 0x590, 0x7FE, -2}) {
        for (const Cover cover : {word, low, high}) {
            Machine machine = makersMachine();
            machine.chipMemory.fill(0x11);
            const auto before = machine.chipMemory;
            EXPECT_EQ(write(machine, address, cover, cover == word ? "0002" : "02"), nothing);
            EXPECT_EQ(machine.chipMemory, before) << address;
        }
    }
}

}  // namespace
