#include "access/registers.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

const Answer nothing;
const Answer unsuitable = Popup{"入力された値が不適切であるため、書き込まれません。"};
const Answer protectedInScan = Popup{"スキャン中はライトプロテクト。"};
const Answer mismatchWord = Warning{
    "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\n\n"
    "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。",
    "   警 告", Warning::Kind::okOnly};
const Answer mismatchHigh = Warning{
    "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\n\n"
    "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。"};
const Answer mismatchLow = Warning{
    "通信設定がハードウェア設定と一致していません。\n\n"
    "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。"};

Answer writeWord(Machine& machine, int address, std::string_view text) {
    return writeRegister(machine, address, Width::word, Half::low, text);
}

Answer writeLow(Machine& machine, int address, std::string_view text) {
    return writeRegister(machine, address, Width::byte, Half::low, text);
}

Answer writeHigh(Machine& machine, int address, std::string_view text) {
    return writeRegister(machine, address, Width::byte, Half::high, text);
}

TEST(RegisterTable, names_lead_to_addresses) {
    EXPECT_EQ(regAddress("SCR"), "580");
    EXPECT_EQ(regAddress("INT1R"), "588");
    EXPECT_EQ(regAddress("BCR"), "58E");
    EXPECT_EQ(regAddress("CC"), "");
    EXPECT_EQ(regAddress("scr"), "");
}

TEST(SCR, refuses_what_does_not_suit_and_takes_the_rest) {
    enum Scan { none, continuous, single };
    enum Cover { word, low, high };
    struct Row {
        Scan scan;
        bool fullDuplex;
        Cover cover;
        const char* text;
        bool taken;
        int scr;  // afterwards, from 0202H
    };
    for (const Row& row : {
             Row{none, true, word, "0404", false, 0},       Row{none, true, word, "4040", false, 0},
             Row{none, true, word, "0001", false, 0},       Row{none, true, word, "0100", false, 0},
             Row{none, false, word, "0001", true, 0x0001},  Row{none, false, word, "0100", true, 0x0100},
             Row{none, true, word, "003f", true, 0x003F},   Row{none, true, word, "FF00", true, 0x3F00},
             Row{none, true, low, "41", false, 0},          Row{none, true, low, "42", true, 0x0202},
             Row{none, true, high, "C1", false, 0},         Row{none, true, high, "C5", true, 0x0502},
             Row{none, true, low, "04", true, 0x0204},      Row{continuous, true, word, "0000", true, 0},
             Row{continuous, true, word, "0300", false, 0}, Row{continuous, true, word, "0008", true, 0x0008},
             Row{continuous, true, high, "03", false, 0},   Row{continuous, true, high, "40", false, 0},
             Row{continuous, true, high, "00", true, 0x02}, Row{continuous, true, low, "09", true, 0x0209},
             Row{single, true, word, "0004", false, 0},     Row{single, true, word, "0400", false, 0},
             Row{single, true, word, "0000", true, 0},      Row{single, true, low, "04", false, 0},
             Row{single, true, high, "04", false, 0},       Row{single, true, low, "00", true, 0x0200},
             Row{single, true, high, "00", true, 0x0002},
         }) {
        SCOPED_TRACE(std::string(row.text) + " cover " + std::to_string(row.cover) + " scan " + std::to_string(row.scan));
        Machine machine = makersMachine();
        machine.scanRunning = row.scan == continuous;
        machine.scanOneShot = row.scan == single;
        setMemoryWord(machine, reg::bcrLow, row.fullDuplex ? 0x13 : 0x03);
        machine.duplexBit = row.fullDuplex ? 16 : 0;
        setMemoryWord(machine, reg::scrLow, 0x0202);
        const auto write = row.cover == word ? writeWord : row.cover == low ? writeLow : writeHigh;
        EXPECT_EQ(write(machine, reg::scrLow, row.text), row.taken ? nothing : unsuitable);
        EXPECT_EQ(memoryWord(machine, reg::scrLow), row.taken ? row.scr : 0x0202);
    }
}

TEST(SCR, a_duplex_mismatch_refuses_every_value_in_its_own_words) {
    Machine machine = makersMachine();
    machine.duplexBit = 0;
    EXPECT_EQ(writeWord(machine, reg::scrLow, "0004"), mismatchWord);
    EXPECT_EQ(writeWord(machine, reg::scrLow, "0000"), mismatchWord);
    EXPECT_EQ(writeHigh(machine, reg::scrLow, "04"), mismatchHigh);
    EXPECT_EQ(writeLow(machine, reg::scrLow, "04"), mismatchLow);
    EXPECT_EQ(writeWord(machine, reg::scrLow, "0404"), unsuitable) << "an unsuitable value comes first";
    EXPECT_EQ(memoryWord(machine, reg::scrLow), 0);
}

TEST(SCR, starts_a_scan_over_one_station_in_half_duplex) {
    Machine machine = makersMachine();
    machine.duplexBit = 0;
    EXPECT_EQ(writeWord(machine, reg::bcrLow, "0003"), nothing);
    EXPECT_EQ(writeWord(machine, reg::scrLow, "0001"), nothing);
    ticks(machine, 3);
    EXPECT_TRUE(machine.scanRunning);
    EXPECT_EQ(machine.scanAddr, 1);
    EXPECT_EQ(writeWord(machine, reg::scrLow, "0000"), nothing);
    ticks(machine, 1);
    EXPECT_FALSE(machine.scanRunning);
}

TEST(SSR, is_read_only) {
    Machine machine = makersMachine();
    const Answer readOnly = Popup{"このレジスタはリードオンリーです。"};
    EXPECT_EQ(writeWord(machine, reg::ssrLow, "FFFF"), readOnly);
    EXPECT_EQ(writeLow(machine, reg::ssrLow, "FF"), readOnly);
    EXPECT_EQ(writeHigh(machine, reg::ssrLow, "FF"), readOnly);
    EXPECT_EQ(memoryWord(machine, reg::ssrLow), 0);
}

TEST(HPR, takes_its_two_switches_and_keeps_the_buffer_bits) {
    Machine machine = makersMachine();
    EXPECT_EQ(writeWord(machine, reg::hprLow, "FFFF"), nothing);
    EXPECT_EQ(memoryWord(machine, reg::hprLow), 0x1010);
    setMemoryWord(machine, reg::hprLow, 0x0101);
    writeWord(machine, reg::hprLow, "FEFE");
    EXPECT_EQ(memoryWord(machine, reg::hprLow), 0x1111);
    machine.scanRunning = true;
    writeLow(machine, reg::hprLow, "00");
    EXPECT_EQ(memoryWord(machine, reg::hprLow), 0x1101);
    writeHigh(machine, reg::hprLow, "00");
    EXPECT_EQ(memoryWord(machine, reg::hprLow), 0x0101);
}

TEST(InterruptRegisters, enables_are_set_and_requests_cleared_by_1) {
    struct Row {
        int address;
        int before;
        const char* text;
        int after;
    };
    for (const Row& row : {Row{reg::int0Request, 0x00FF, "0000", 0x00FF}, Row{reg::int0Request, 0x12FF, "FFFF", 0xFF00},
                           Row{reg::int0Request, 0x00FF, "A50F", 0xA5F0}, Row{reg::int1Request, 0x00F8, "FF18", 0xF8E0},
                           Row{reg::int1Request, 0xF8F8, "0700", 0x00F8}}) {
        Machine machine = makersMachine();
        setMemoryWord(machine, row.address, row.before);
        EXPECT_EQ(writeWord(machine, row.address, row.text), nothing);
        EXPECT_EQ(memoryWord(machine, row.address), row.after) << row.text;
    }
    Machine machine = makersMachine();
    setMemoryWord(machine, reg::int1Request, 0x0088);
    writeLow(machine, reg::int1Request, "08");
    EXPECT_EQ(memoryWord(machine, reg::int1Request), 0x0080);
    writeHigh(machine, reg::int1Request, "FF");
    EXPECT_EQ(memoryWord(machine, reg::int1Request), 0xF880);
}

TEST(InterruptRegisters, clearing_the_last_request_darkens_the_indicator_at_once) {
    Machine machine = makersMachine();
    machine.chipMemory[reg::int0Request] = 0x0C;
    machine.chipMemory[reg::int1Request] = 0x08;
    updateIntLed(machine);
    ASSERT_EQ(machine.intLedShown, 4);
    writeLow(machine, reg::int0Request, "04");
    EXPECT_EQ(machine.intLedShown, 4);
    writeWord(machine, reg::int0Request, "0008");
    EXPECT_EQ(machine.intLedShown, 3);
    writeLow(machine, reg::int1Request, "08");
    EXPECT_EQ(machine.intLedShown, 1);
    EXPECT_FALSE(machine.picInt.visible);
}

TEST(EventCounters, are_cleared_by_bit_0_and_by_nothing_else) {
    for (const int address : {reg::c1crLow, reg::c2crLow}) {
        Machine machine = makersMachine();
        setMemoryWord(machine, address, 0x5533);
        EXPECT_EQ(writeWord(machine, address, "FFFE"), nothing);
        EXPECT_EQ(writeHigh(machine, address, "FF"), nothing);
        EXPECT_EQ(writeLow(machine, address, "FE"), nothing);
        EXPECT_EQ(memoryWord(machine, address), 0x5533);
        EXPECT_EQ(writeLow(machine, address, "01"), nothing);
        EXPECT_EQ(memoryWord(machine, address), 0x5500);
        setMemoryWord(machine, address, 0x5533);
        writeWord(machine, address, "0001");
        EXPECT_EQ(memoryWord(machine, address), 0x5500);
    }
}

TEST(BCR, is_masked_and_stored_with_a_warning_on_a_mismatch) {
    Machine machine = makersMachine();
    EXPECT_EQ(writeWord(machine, reg::bcrLow, "FFFF"), nothing);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0713);
    EXPECT_EQ(writeWord(machine, reg::bcrLow, "0003"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0003) << "the value stays";
    EXPECT_EQ(writeHigh(machine, reg::bcrLow, "FD"), nothing) << "a high byte doesn't warn";
    EXPECT_EQ(writeLow(machine, reg::bcrLow, "EC"), mismatchHigh);
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0500);
    EXPECT_EQ(writeLow(machine, reg::bcrLow, "12"), nothing);
}

TEST(BCR, is_protected_while_a_scan_is_on) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        Machine machine = makersMachine();
        machine.*scan = true;
        EXPECT_EQ(writeWord(machine, reg::bcrLow, "0000"), protectedInScan);
        EXPECT_EQ(writeLow(machine, reg::bcrLow, "00"), protectedInScan);
        EXPECT_EQ(writeHigh(machine, reg::bcrLow, "07"), protectedInScan);
        EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0013);
        EXPECT_EQ(registerWriteRefusal(machine, rowBCR), protectedInScan);
        EXPECT_EQ(registerWriteRefusal(machine, rowHPR), nothing);
    }
}

TEST(BCR, gives_the_center_its_rate_at_the_next_start) {
    Machine machine = makersMachine();
    writeWord(machine, reg::bcrLow, "0012");
    writeWord(machine, reg::scrLow, "0004");
    ticks(machine, 4);
    for (const int sa : {1, 2, 3, 4}) {
        EXPECT_EQ(statusOf(machine, sa), 0x14) << "a board at 12 Mbps doesn't hear a center at 6";
    }
}

TEST(Registers, an_odd_or_foreign_address_does_nothing) {
    for (const int address : {0x57E, 0x581, 0x58F, 0x590, 0, -2}) {
        Machine machine = makersMachine();
        const auto before = machine.chipMemory;
        EXPECT_EQ(writeWord(machine, address, "0002"), nothing);
        EXPECT_EQ(machine.chipMemory, before);
    }
}

}  // namespace
