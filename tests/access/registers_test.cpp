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
const Answer mismatchHigh{Warning{bcrMismatch + "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。", title}};
const Answer mismatchLow{
    Warning{"通信設定がハードウェア設定と一致していません。\n\n"
            "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。",
            title}};

// "1234" writes a word, "12--" its high byte, "--34" its low byte.
Answer write(Machine& machine, int address, std::string_view text) {
    if (text.substr(2) == "--") {
        return writeRegister(machine, address, Width::byte, Half::high, text.substr(0, 2));
    }
    const bool low = text.substr(0, 2) == "--";
    return low ? writeRegister(machine, address, Width::byte, Half::low, text.substr(2))
               : writeRegister(machine, address, Width::word, Half::high, text);  // the half is not read
}

// A write to the register at `address`, and what stands there before and after it.
struct Row {
    int address;
    int before;
    const char* text;
    int after;
};

TEST(RegisterTable, names_lead_to_addresses) {
    const std::array<std::string_view, 11> names{"SCR", "SSR", "HPR", "INT0R", "INT1R", "C1CR", "C2CR", "BCR", "CC", "", "SCR "};
    const std::array<std::string_view, 11> addresses{"580", "582", "584", "586", "588", "58A", "58C", "58E"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        EXPECT_EQ(regAddress(names[index]), addresses[index]);
    }
}

TEST(RegisterDialog, opens_for_all_but_ssr_and_in_a_scan_bcr) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        for (const bool on : {false, true}) {
            Machine machine = makersMachine();
            machine.*scan = on;
            machine.picScanLed.lit = !on;  // the flags are asked, not the LED
            for (int row = 1; row <= 9; ++row) {
                const Answer& answer = row == 2 ? readOnly : row == 8 && on ? protectedInScan : nothing;
                EXPECT_EQ(registerWriteRefusal(machine, row), answer) << row;
            }
        }
    }
}

enum Scan { none, continuous, single };

// BCR and jumpers agree, SCR holds 0707H.
Machine benchFor(Scan scan, bool fullDuplex) {
    Machine machine = makersMachine();
    machine.scanRunning = scan == continuous;
    machine.scanOneShot = scan == single;
    setByte(machine, reg::bcrLow, fullDuplex ? 0x13 : 0x03);
    machine.duplexBit = fullDuplex ? 16 : 0;
    setMemoryWord(machine, reg::scrLow, 0x0707);
    return machine;
}

TEST(SCR, refuses_what_does_not_suit) {
    const auto refuses = [](Scan scan, bool fullDuplex, std::initializer_list<const char*> texts) {
        for (const char* text : texts) {
            Machine machine = benchFor(scan, fullDuplex);
            EXPECT_EQ(write(machine, reg::scrLow, text), unsuitable) << text << " scan " << scan << " full " << fullDuplex;
            EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0707) << text;
        }
    };
    for (const bool fullDuplex : {true, false}) {
        // Every digit counts, also the bits that are not stored.
        refuses(none, fullDuplex, {"0404", "4080"});
        refuses(continuous, fullDuplex, {"0300", "4000", "03--", "40--"});
        refuses(single, fullDuplex, {"0003", "0080", "0300", "4000", "--03", "--40", "03--", "80--"});
    }
    // Station 1 alone: here the bits that are stored count.
    refuses(none, true, {"0001", "0081", "0100", "C100", "--01", "--41", "01--", "81--"});
    refuses(continuous, true, {"0001", "--01"});
}

TEST(SCR, takes_six_bits_of_each_half_that_is_written) {
    const auto takes = [](Scan scan, bool fullDuplex, std::initializer_list<std::pair<const char*, int>> rows) {
        for (const auto& [text, after] : rows) {
            Machine machine = benchFor(scan, fullDuplex);
            EXPECT_EQ(write(machine, reg::scrLow, text), nothing) << text << " scan " << scan << " full " << fullDuplex;
            EXPECT_EQ(memoryWord(machine, reg::scrLow), after) << text;
        }
    };
    for (const bool fullDuplex : {true, false}) {
        takes(none, fullDuplex, {{"00ff", 0x003F}, {"FF00", 0x3F00}, {"--42", 0x0702}, {"c2--", 0x0207}, {"0000", 0x0000}});
        takes(continuous, fullDuplex, {{"0008", 0x0008}, {"--09", 0x0709}, {"0000", 0x0000}, {"--00", 0x0700}, {"00--", 0x0007}});
        takes(single, fullDuplex, {{"0000", 0x0000}, {"--00", 0x0700}, {"00--", 0x0007}});
    }
    takes(none, false, {{"0001", 0x0001}, {"0100", 0x0100}, {"--41", 0x0701}, {"81--", 0x0107}});
}

TEST(SCR, a_duplex_mismatch_refuses_every_value_in_the_words_of_its_case) {
    for (const bool fullDuplex : {true, false}) {
        for (const Scan scan : {none, continuous}) {
            Machine machine = benchFor(scan, fullDuplex);
            machine.duplexBit ^= 16;
            EXPECT_EQ(write(machine, reg::scrLow, "0004"), mismatchWord);
            EXPECT_EQ(write(machine, reg::scrLow, "0000"), mismatchWord);
            EXPECT_EQ(write(machine, reg::scrLow, "00--"), mismatchHigh);
            EXPECT_EQ(write(machine, reg::scrLow, "--00"), mismatchLow);
            EXPECT_EQ(write(machine, reg::scrLow, "0404"), unsuitable) << "an unsuitable value comes first";
            EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0707);
        }
    }
}

TEST(SSR, is_read_only) {
    for (const char* text : {"FFFF", "--FF", "FF--"}) {
        Machine machine = makersMachine();
        EXPECT_EQ(write(machine, reg::ssrLow, text), readOnly);
        EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0);
    }
}

TEST(Registers, hpr_keeps_its_buffer_bits_and_event_counters_are_cleared_by_bit_0) {
    for (const Row& row :
         {Row{0x584, 0x0000, "FFFF", 0x1010}, Row{0x584, 0x0101, "FEFE", 0x1111}, Row{0x584, 0x1111, "0000", 0x0101},
          Row{0x584, 0x1010, "EFEF", 0x0000}, Row{0x584, 0x1111, "--00", 0x1101}, Row{0x584, 0x0000, "--FF", 0x0010},
          Row{0x584, 0x1111, "00--", 0x0111}, Row{0x584, 0x0000, "FF--", 0x1000}, Row{0x58A, 0x5533, "FFFE", 0x5533},
          Row{0x58A, 0x5533, "--FE", 0x5533}, Row{0x58A, 0x5533, "FF--", 0x5533}, Row{0x58A, 0x5533, "01--", 0x5533},
          Row{0x58A, 0x5533, "--FF", 0x5500}, Row{0x58A, 0x5533, "0001", 0x5500}, Row{0x58C, 0x5533, "FFFE", 0x5533},
          Row{0x58C, 0x5533, "01--", 0x5533}, Row{0x58C, 0x5533, "--01", 0x5500}, Row{0x58C, 0x5533, "FFFF", 0x5500}}) {
        Machine machine = makersMachine();
        machine.scanRunning = true;  // of no account here
        const auto before = machine.chipMemory;
        setMemoryWord(machine, row.address, row.before);
        EXPECT_EQ(write(machine, row.address, row.text), nothing);
        EXPECT_EQ(memoryWord(machine, row.address), row.after) << row.text << " over " << std::hex << row.before;
        setMemoryWord(machine, row.address, 0);
        EXPECT_EQ(machine.chipMemory, before) << "no other register moves";
    }
}

TEST(InterruptRegisters, enables_are_set_requests_cleared_by_1_and_the_indicator_follows_a_clearing_write) {
    for (const Row& row :
         {Row{0x586, 0x12FF, "0000", 0x00FF}, Row{0x586, 0x12FF, "FFFF", 0xFF00}, Row{0x586, 0x00FF, "A50F", 0xA5F0},
          Row{0x586, 0x120C, "--04", 0x1208}, Row{0x586, 0x120C, "--00", 0x120C}, Row{0x586, 0x120C, "FF--", 0xFF0C},
          Row{0x588, 0x00F8, "FF18", 0xF8E0}, Row{0x588, 0xF8F8, "0700", 0x00F8}, Row{0x588, 0xF888, "--88", 0xF800},
          Row{0x588, 0x0088, "FF--", 0xF888}}) {
        SCOPED_TRACE(testing::Message() << row.text << " over " << std::hex << row.before << " at " << row.address);
        Machine machine = makersMachine();
        setMemoryWord(machine, row.address, row.before);
        EXPECT_EQ(write(machine, row.address, row.text), nothing);
        EXPECT_EQ(memoryWord(machine, row.address), row.after);
        const bool clearing = std::string_view(row.text).substr(2) != "--";
        const int image = (row.after & 0xFF) == 0 ? 1 : row.address == 0x586 ? 2 : 3;
        EXPECT_EQ(machine.intLedShown, clearing ? image : 0);
        EXPECT_EQ(machine.picInt.visible, clearing && image != 1);
    }
}

TEST(InterruptRegisters, clearing_request_2_sets_the_held_scan_going) {
    Machine machine = scanningMachine();
    write(machine, reg::int0Request, "04--");
    setMemoryWord(machine, drcBase + 2 * 1, 0xFFFF);
    setInput(machine, slotQDA73, 0x0001);
    ticks(machine, 4 + 3);
    EXPECT_EQ(machine.scanAddr, 1) << "held after the pass";
    write(machine, reg::int0Request, "--FB");
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 1) << "the other bits don't matter";
    EXPECT_TRUE(machine.picInt.visible);
    write(machine, reg::int0Request, "--04");
    EXPECT_FALSE(machine.picInt.visible);
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 3);
}

TEST(BCR, is_masked_and_against_the_jumpers_stored_with_a_warning_that_lasts_in_scr) {
    Machine machine = makersMachine();
    EXPECT_EQ(write(machine, reg::bcrLow, "FFFF"), nothing);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0713);
    EXPECT_EQ(write(machine, reg::bcrLow, "0003"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0003) << "the value stands";
    EXPECT_EQ(write(machine, reg::bcrLow, "FD--"), nothing) << "a high byte doesn't warn";
    EXPECT_EQ(write(machine, reg::bcrLow, "--EC"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0500);
    EXPECT_EQ(write(machine, reg::scrLow, "0004"), mismatchWord);
    machine.duplexBit = 0;
    EXPECT_EQ(write(machine, reg::scrLow, "0004"), nothing) << "the jumpers agree";
    EXPECT_EQ(write(machine, reg::bcrLow, "--FF"), mismatchHigh) << "the scan begins at its first tick only";
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0513);
}

TEST(BCR, is_protected_while_a_scan_is_on) {
    for (const Scan scan : {continuous, single}) {
        Machine machine = benchFor(scan, true);
        for (const char* text : {"0000", "--00", "07--"}) {
            EXPECT_EQ(write(machine, reg::bcrLow, text), protectedInScan);
            EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0013);
        }
    }
}

TEST(BCR, gives_the_center_a_rate_at_the_next_start_that_the_boards_must_share) {
    Machine machine = makersMachine();
    const auto scanOnce = [&machine] {
        EXPECT_EQ(write(machine, reg::scrLow, "04--"), nothing);
        ticks(machine, 4);
        EXPECT_FALSE(scanOn(machine));
        return std::array{statusOf(machine, 1), statusOf(machine, 2), statusOf(machine, 3), statusOf(machine, 4)};
    };
    EXPECT_EQ(scanOnce(), (std::array{0, 0, 0, 0}));
    write(machine, reg::bcrLow, "--12");
    EXPECT_EQ(scanOnce(), (std::array{0x14, 0x14, 0x14, 0x14})) << "boards at 12 Mbps don't hear a center at 6";
    EXPECT_EQ(memoryWord(machine, reg::c1crLow), 4);
    machine.boardClock[clockQDA73] = 1;
    EXPECT_EQ(scanOnce(), (std::array{0, 0x24, 0x24, 0x24}));
    write(machine, reg::bcrLow, "--13");
    EXPECT_EQ(scanOnce(), (std::array{0x14, 0, 0, 0}));
}

TEST(SCR, is_taken_at_the_pass_end_and_0_ends_the_scan_there) {
    Machine machine = benchFor(none, false);
    EXPECT_EQ(write(machine, reg::scrLow, "0001"), nothing);
    ticks(machine, 3);
    EXPECT_EQ(machine.scanAddr, 1);
    EXPECT_EQ(write(machine, reg::scrLow, "--03"), nothing);
    ticks(machine, 2);
    EXPECT_EQ(machine.scanAddr, 2);
    EXPECT_EQ(write(machine, reg::scrLow, "0000"), nothing);
    ticks(machine, 1);
    EXPECT_TRUE(machine.scanRunning);
    ticks(machine, 1);
    EXPECT_FALSE(machine.scanRunning);
}

TEST(Registers, an_odd_or_foreign_address_does_nothing) {
    for (const int address : {0x000, 0x57E, 0x581, 0x585, 0x58B, 0x58F, 0x590, 0x7FE, -2}) {
        for (const char* text : {"0002", "--02", "02--"}) {
            Machine machine = makersMachine();
            const auto before = machine.chipMemory;
            EXPECT_EQ(write(machine, address, text), nothing);
            EXPECT_EQ(machine.chipMemory, before) << address;
        }
    }
}

}  // namespace
