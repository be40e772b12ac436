// SPDX-License-Identifier: Apache-2.0
// Writes of the host CPU to the registers: what is stored, what is refused, and in which words; and what the register window
// marks as changed.

#include "access/registers.h"

#include "access/registerView.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

const Answer nothing;
const Answer unsuitable = Popup{"入力された値が不適切であるため、書き込まれません。"};
const Answer readOnly = Popup{"このレジスタはリードオンリーです。"};
const Answer protectedInScan = Popup{"スキャン中はライトプロテクト。"};

const std::string bcrMismatch = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\n\n";
const Answer mismatchWord = Warning{bcrMismatch + "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。", "   警 告"};
const Answer mismatchHigh = Warning{bcrMismatch + "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。"};
const Answer mismatchLow{
    Warning{"通信設定がハードウェア設定と一致していません。\n\n"
            "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。"}};

// "1234" writes a word, "12--" its high byte, "--34" its low byte.
Answer write(Machine& machine, int address, std::string_view text) {
    if (text.substr(2) == "--") {
        return writeRegister(machine, address, Width::byte, Half::high, text.substr(0, 2));
    }
    const bool low = text.substr(0, 2) == "--";
    return low ? writeRegister(machine, address, Width::byte, Half::low, text.substr(2))
               : writeRegister(machine, address, Width::word, Half::high, text);  // the half is not read
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

TEST(SCR, takes_six_bits_of_each_half_and_refuses_what_does_not_suit) {
    struct Case {
        Scan scan;
        bool full, half;          // the duplex for which it holds
        std::string_view writes;  // and the value afterwards, or "no"
    };
    for (const Case& row :
         {Case{none, true, true, "0404 no 4080 no 00ff 003F FF00 3F00 --42 0702 c2-- 0207 0000 0000"},
          Case{continuous, true, true, "0300 no 4000 no 03-- no 40-- no 0008 0008 --09 0709 0000 0000 --00 0700 00-- 0007"},
          Case{single, true, true,
               "0003 no 0080 no 0300 no 4000 no --03 no --40 no 03-- no 80-- no 0000 0000 --00 0700 00-- 0007"},
          // Station 1 alone: here the bits that are stored count.
          Case{none, true, false, "0001 no 0081 no 0100 no C100 no --01 no --41 no 01-- no 81-- no"},
          Case{continuous, true, false, "0001 no --01 no"}, Case{none, false, true, "0001 0001 0100 0100 --41 0701 81-- 0107"}}) {
        for (const bool fullDuplex : {true, false}) {
            std::istringstream words{(fullDuplex ? row.full : row.half) ? std::string(row.writes) : ""};
            for (std::string text, after; words >> text >> after;) {
                SCOPED_TRACE(testing::Message() << text << " scan " << row.scan << " full " << fullDuplex);
                Machine machine = benchFor(row.scan, fullDuplex);
                EXPECT_EQ(write(machine, reg::scrLow, text), after == "no" ? unsuitable : nothing);
                EXPECT_EQ(memoryWord(machine, reg::scrLow), after == "no" ? 0x0707 : std::stoi(after, nullptr, 16));
            }
        }
    }
}

TEST(SCR, is_refused_in_a_duplex_mismatch_in_the_words_of_its_case) {
    for (const bool fullDuplex : {true, false}) {
        for (const Scan scan : {none, continuous}) {
            Machine machine = benchFor(scan, fullDuplex);
            machine.duplexBit ^= 16;
            for (const auto& [text, answer] : {std::pair{"0004", mismatchWord},
                                               {"0000", mismatchWord},
                                               {"00--", mismatchHigh},
                                               {"--00", mismatchLow},
                                               {"0404", unsuitable}}) {
                EXPECT_EQ(write(machine, reg::scrLow, text), answer) << text;
            }
            EXPECT_EQ(memoryWord(machine, reg::scrLow), 0x0707);
        }
    }
}

TEST(BCR, is_masked_and_against_the_jumpers_stored_with_a_warning_that_lasts_in_scr) {
    Machine machine = makersMachine();
    struct Step {
        int address;
        const char* text;
        Answer answer;
        int bcr;
    };
    for (const Step& step :
         {Step{0x58E, "FFFF", nothing, 0x0713}, Step{0x58E, "0003", mismatchHigh, 0x0003}, Step{0x58E, "FD--", nothing, 0x0503},
          Step{0x58E, "--EC", mismatchHigh, 0x0500}, Step{0x580, "0004", mismatchWord, 0x0500}}) {
        EXPECT_EQ(write(machine, step.address, step.text), step.answer) << step.text;
        EXPECT_EQ(memoryWord(machine, reg::bcrLow), step.bcr) << step.text;
    }
    machine.duplexBit = 0;
    EXPECT_EQ(write(machine, reg::scrLow, "0004"), nothing) << "the jumpers agree";
    EXPECT_EQ(write(machine, reg::bcrLow, "--FF"), mismatchHigh) << "the scan begins at its first tick only";
    EXPECT_EQ(memoryWord(machine, reg::bcrLow), 0x0513);
}

TEST(Registers, are_written_by_their_masks_and_the_indicator_follows_a_clearing_write) {
    struct Case {
        int address, before;
        const char* text;
        int after;
    };
    for (const Case& row :
         {Case{0x582, 0x1234, "FFFF", 0x1234}, Case{0x582, 0x1234, "--FF", 0x1234}, Case{0x582, 0x1234, "FF--", 0x1234},
          Case{0x584, 0x0000, "FFFF", 0x1010}, Case{0x584, 0x0101, "FEFE", 0x1111}, Case{0x584, 0x1111, "0000", 0x0101},
          Case{0x584, 0x1010, "EFEF", 0x0000}, Case{0x584, 0x1111, "--00", 0x1101}, Case{0x584, 0x0000, "--FF", 0x0010},
          Case{0x584, 0x1111, "00--", 0x0111}, Case{0x584, 0x0000, "FF--", 0x1000}, Case{0x58A, 0x5533, "FFFE", 0x5533},
          Case{0x58A, 0x5533, "--FE", 0x5533}, Case{0x58A, 0x5533, "FF--", 0x5533}, Case{0x58A, 0x5533, "01--", 0x5533},
          Case{0x58A, 0x5533, "--FF", 0x5500}, Case{0x58C, 0x5533, "0001", 0x5500}, Case{0x58C, 0x5533, "01--", 0x5533},
          Case{0x586, 0x12FF, "0000", 0x00FF}, Case{0x586, 0x12FF, "FFFF", 0xFF00}, Case{0x586, 0x00FF, "A50F", 0xA5F0},
          Case{0x586, 0x120C, "--04", 0x1208}, Case{0x586, 0x120C, "--00", 0x120C}, Case{0x586, 0x120C, "FF--", 0xFF0C},
          Case{0x588, 0x00F8, "FF18", 0xF8E0}, Case{0x588, 0xF8F8, "0700", 0x00F8}, Case{0x588, 0xF888, "--88", 0xF800},
          Case{0x588, 0x0088, "FF--", 0xF888}, Case{0x57E, 0x0101, "0002", 0x0101}, Case{0x590, 0x0101, "0002", 0x0101}}) {
        SCOPED_TRACE(testing::Message() << row.text << " over " << std::hex << row.before << " at " << row.address);
        Machine machine = makersMachine();
        machine.scanRunning = true;  // of no account here
        const auto before = machine.chipMemory;
        setMemoryWord(machine, row.address, row.before);
        EXPECT_EQ(write(machine, row.address, row.text), row.address == 0x582 ? readOnly : nothing);
        EXPECT_EQ(memoryWord(machine, row.address), row.after);
        const bool clearing = (row.address == 0x586 || row.address == 0x588) && std::string_view(row.text).substr(2) != "--";
        const int image = (row.after & 0xFF) == 0 ? 1 : row.address == 0x586 ? 2 : 3;
        EXPECT_EQ(machine.intLedShown, clearing ? image : 0);
        EXPECT_EQ(machine.picInt.visible, clearing && image != 1);
        setMemoryWord(machine, row.address,
                      before[static_cast<std::size_t>(row.address)] | before[static_cast<std::size_t>(row.address + 1)] << 8);
        EXPECT_EQ(machine.chipMemory, before) << "no other register moves";
        for (const int foreign : {row.address + 1, -2, 0x7FE}) {
            EXPECT_EQ(write(machine, foreign, row.text), nothing);
            EXPECT_EQ(machine.chipMemory, before) << "an odd or foreign address";
        }
    }
}

TEST(RegisterDialog, opens_for_all_but_ssr_and_in_a_scan_bcr) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        for (const bool on : {false, true}) {
            Machine machine = makersMachine();
            machine.*scan = on;
            machine.picScanLed.lit = !on;  // the flags are asked, not the LED
            for (int row = 1; row <= registerRows; ++row) {
                const Answer& answer = row == 2 ? readOnly : row == 8 && on ? protectedInScan : nothing;
                EXPECT_EQ(registerWriteRefusal(machine, row), answer) << row;
            }
            for (const char* text : {"0713", "--13", "07--"}) {
                EXPECT_EQ(write(machine, reg::bcrLow, text), on ? protectedInScan : nothing);
                EXPECT_EQ(memoryWord(machine, reg::bcrLow) == 0x0013, on || text[0] == '-');
                setMemoryWord(machine, reg::bcrLow, 0x0013);
            }
        }
    }
    EXPECT_EQ(regAddress("BCR"), "58E");
    EXPECT_EQ(regAddress("CC").size() + regAddress("SCR ").size(), 0U);
}

TEST(RegisterView, marks_each_changed_half_for_four_seconds_but_for_ssr_s_low_one) {
    for (int address = registerBase; address < registerBase + 18; ++address) {
        SCOPED_TRACE(address);
        const int row = (address - registerBase) / 2 + 1;
        const Half half = address % 2 != 0 ? Half::high : Half::low;
        Machine machine = makersMachine();
        RegisterView view;
        refreshRegisters(machine, view);
        memoryAt(machine, address) ^= 0x55;
        EXPECT_EQ(registerByte(machine, row, half), row == 9 ? 0 : byteAt(machine, address));
        for (int second = 0; second <= 4; ++second) {
            refreshRegisters(machine, view);
            int red = 0;
            for (int other = 1; other <= registerRows; ++other) {
                red += (view.at(other, Half::low).red ? 1 : 0) + (view.at(other, Half::high).red ? 1 : 0);
            }
            const bool marked = second < 4 && row != 9 && address != reg::ssrLow;
            EXPECT_TRUE(view.at(row, half).red == marked && red == (marked ? 1 : 0)) << second;
            timRegister_Timer(view);
        }
        colourRow(view, row, half == Half::high, half == Half::low);
        timRegister_Timer(view);
        EXPECT_TRUE(view.at(row, half).red) << "paint of the dialog has no countdown";
    }
}

}  // namespace
