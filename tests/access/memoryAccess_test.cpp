// SPDX-License-Identifier: Apache-2.0
// The host CPU at the memory: addresses, writes and reads on the four buses, hazard protection, write protection.

#include "access/memoryAccess.h"

#include "tests/bench.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

constexpr int little8 = 1;
constexpr int big8 = 3;

const std::string_view fromBuffer = "リードテンポラリバッファからデータを取得しました。";
const std::string_view intoBuffer = "リードテンポラリバッファにデータを格納しました。";
const std::string_view fromMemory = "メモリよりデータを取得しました。";

const Answer upperByteStays = Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト。"};
const Answer waits = Popup{"ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。"};

// A bench whose host has the bus `cpuType` and whose HPR is `hpr`: 1000H protects writes, 0010H reads.
Machine onBus(int cpuType, int hpr = 0) {
    Machine machine = makersMachine();
    machine.cpuType = static_cast<std::int16_t>(cpuType);
    setMemoryWord(machine, reg::hprLow, hpr);
    return machine;
}

TEST(BusAddress, counts_down_a_row_on_a_little_and_up_on_a_big_endian_bus) {
    struct Corner {
        const char* rowText;
        int cell, little, big;
    };
    for (const auto& [rowText, cell, little, big] :
         {Corner{"00x", 0, 0x00F, 0x000}, Corner{"00x", 15, 0x000, 0x00F}, Corner{"00x", 368, 0x17F, 0x170},
          Corner{"18x", 31, 0x190, 0x19F}, Corner{"18x", 895, 0x4F0, 0x4FF}, Corner{"50x", 127, 0x570, 0x57F}}) {
        for (int cpuType = 0; cpuType < 4; ++cpuType) {
            const Machine machine = onBus(cpuType);
            EXPECT_EQ(labelToAddress(machine, rowText, cell), cpuType < 2 ? little : big) << rowText << " " << cell;
            EXPECT_EQ(busToMemoryIndex(machine, big), cpuType < 2 ? big : big ^ 1);
        }
    }
}

// What the host does and finds, step by step. The numbers are hexadecimal, memory words as the chip holds them.
//   new1:1000    a new bench, host bus 1, HPR 1000H
//   bus3         another host bus
//   100<12       a byte, or with four digits a word, is written at a bus address; with "!" it waits in the buffer, with "^"
//                the upper byte of a control word is refused
//   100>12m      a byte is read, from memory, with "i" into the buffer, with "k" the one kept there
//   100=1234     a word of memory is so, also HPR (584)
//   100:1234     it becomes so
//   off          the learner switches write protection off
//   reset        the registers are reset
//   lit          the scan LED is lit
class Host {
public:
    void does(const std::string& step) {
        const auto number = [&step](std::size_t from) { return std::stoi(step.substr(from), nullptr, 16); };
        if (step.starts_with("new")) {
            machine_ = onBus(step[3] - '0', number(5));
        } else if (step.starts_with("bus")) {
            machine_.cpuType = static_cast<std::int16_t>(step[3] - '0');
        } else if (step == "off") {
            writeRegister(machine_, reg::hprLow, Width::byte, Half::high, "00");
        } else if (step == "reset") {
            resetRegisters(machine_);
        } else if (step == "lit") {
            machine_.picScanLed.lit = true;
        } else if (step[3] == '<') {
            write(number(0), step.substr(4));
        } else if (step[3] == '>') {
            const std::string_view guide = step[6] == 'm' ? fromMemory : step[6] == 'i' ? intoBuffer : fromBuffer;
            EXPECT_EQ(readMemory(machine_, step.substr(0, 3)), (ReadResult{static_cast<std::uint8_t>(number(4)), guide}));
        } else if (step[3] == '=') {
            EXPECT_EQ(memoryWord(machine_, number(0)), number(4));
        } else {
            setMemoryWord(machine_, number(0), number(4));
        }
    }

private:
    // Through the cell that shows the address: columns count down on a little-endian bus.
    void write(int address, const std::string& text) {
        const auto digits = text.find_last_not_of("!^") + 1;
        const int base = address < 0x180 ? 0x000 : address < 0x500 ? 0x180 : 0x500;
        const int cell = machine_.cpuType < 2 ? (address - base) ^ 15 : address - base;
        const Answer answer = writeMemory(machine_,
                                          base == 0       ? "00x"
                                          : base == 0x180 ? "18x"
                                                          : "50x",
                                          cell, digits == 4 ? Width::word : Width::byte, text.substr(0, digits));
        EXPECT_EQ(answer, text.back() == '!' ? waits : text.back() == '^' ? upperByteStays : Answer());
    }

    Machine machine_ = makersMachine();
};

TEST(Host, writes_and_reads_by_bus_and_hazard_protection) {
    struct Script {
        const char* name;
        const char* steps;
    };
    for (const auto& [name, steps] :
         {Script{"a word and a byte on a little-endian bus", "new0:0 101<aB12 100=AB12 100<c3 100=ABC3 0FE=0 102=0"},
          Script{"8 bit wide", "new1:0 100<aB12 100=AB12 101<c3 100=C312 100>12m"},
          Script{"big-endian", "new2:0 101<aB12 100=AB12 100<c3 100=C312 102=0"},
          Script{"big-endian, 8 bit wide", "new3:0 100<aB12 100=AB12 101<c3 100=ABC3 101>C3m 7FF>00m 590>44m"},
          Script{"in a scan a word keeps the upper byte of a control word, a byte isn't asked",
                 "new0:0 lit 008:1400 008<ABCD^ 008=14CD 009<1455 008=1455 07E<0033 07F<AB66^ 07E=0066 009<FF 008=FF55 080<ABCD "
                 "080=ABCD new2:0 lit 07E<0100^ 07E=0"},
          // Hazard protection of writes: the second byte brings the first.
          Script{"high byte first", "new1:1010 101<12! 100=0 584=1110 100<34 100=1234 584=1010 584:10 200<56 200=56"},
          Script{"low byte first", "new1:1010 100<34! 100=0 584=1110 101<12 100=1234 584=1010 584:10 201<56 200=5600"},
          Script{"big-endian", "new3:1010 100<12! 584=1110 101<34 100=1234 584=1010 101<34! 100<12 100=1234"},
          Script{"the same half: overwritten at once", "new1:1000 101<AA! 141<BB 140=AA00 100=0 100<AA! 142<BB 142=AA"},
          Script{"into another word, a control word, a mask",
                 "new1:1000 101<AA! 140<BB 140=AABB 100=0 100<AA! 011<BB 010=BBAA 101<AA! 50E<BB 50E=AABB"},
          Script{"a word drops it", "new1:1010 101<12! 584:1111 200<ABCD 200=ABCD 584=1011 300<34! 300<35 300=0034"},
          Script{"a 16-bit bus too",
                 "new1:1010 101<12! bus0 200<CD 200=00CD 584=1010 bus1 100<34! bus2 200<EF12 200=EF12 584=1010 "
                 "bus1 300<56! 300<57 300=0056"},
          Script{"outlasts switching off", "new1:1010 101<12! off 584=0110 200<34 200=1234 584=0010 202<56 202=56"},
          Script{"and a change of bus", "new1:1010 101<12! bus3 201<34 200=1234"},
          Script{"and a reset: the commit asks the flags, the buffering HPR",
                 "new1:1010 101<12! reset 200<34 200=1234 new1:1010 101<12! reset 584:1000 200<34! 300<56 300=1234"},
          Script{"covers 080H to 4FEH as indices on an 8-bit bus",
                 "new1:1000 080<5A! new1:1000 4FE<5A! new1:1000 07F<5A 07E=5A00 4FF<5A 584=1000 500<5A 000<5A 000=5A new3:1000 "
                 "081<5A! "
                 "new3:1000 080<5A! new3:1000 4FF<5A! new3:1000 07E<5A 07F<5A 4FE<5A 501<5A new0:1000 100<5A new2:1000 100<5A "
                 "new1:10 100<5A"},
          // Of reads: the word is kept and answers the next read by parity.
          Script{"keeps the word",
                 "new1:1110 100:1234 2A0:ABAB 100>34i 584=1111 100:FFFF 2a1>12k 584=1110 100:1234 101>12i 000>34k "
                 "100>34i 7FF>12k 100>34i 100>34k"},
          Script{"big-endian", "new3:0010 100:1234 100>12i 584=0011 100:FFFF 2A1>34k 584=0010 100:1234 101>34i 000>12k"},
          Script{"answers though protection is off", "new1:0010 100:1234 2A0:ABAB 101>12i 584:1 2A0>34k 584=0 2A0>ABm"},
          Script{
              "covers 080H to 4FFH as bus addresses",
              "new1:10 07E>00m 07F>00m 500>00m 501>00m 080>00i new1:10 4FF>00i new3:10 07E>00m 07F>00m 500>00m 501>00m 080>00i "
              "new3:10 4FF>00i new3:10 081>00i new3:10 4FE>00i new1:1000 100>00m"}}) {
        Host host;
        std::istringstream words(steps);
        for (std::string step; words >> step;) {
            SCOPED_TRACE(std::string(name) + " at " + step);
            host.does(step);
        }
    }
}

TEST(MemoryRead, refuses_what_is_no_address_and_leaves_the_buffer) {
    Machine machine = onBus(little8, 0x0011);
    for (const char* bad : {"800", "FFF", "12?", "???", "?12", "12", "1234", "0100", "", "g00", " 12", "12 ", "-12"}) {
        EXPECT_EQ(readMemory(machine, bad), std::nullopt) << bad;
    }
    EXPECT_EQ(memoryWord(machine, reg::hprLow), 0x0011);
}

TEST(WriteProtection, is_asked_cell_by_cell_while_the_scan_led_is_lit) {
    const Answer free;
    const Answer upperByte = Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト"};
    const Answer scanWritten = Popup{"スキャン中はライトプロテクト"};
    for (int cpuType = 0; cpuType < 4; ++cpuType) {
        for (const bool lit : {true, false}) {
            Machine machine = onBus(cpuType);
            machine.picScanLed.lit = lit;  // the LED is asked, not the flag
            machine.scanRunning = !lit;
            const auto expect = [&](Area area, std::initializer_list<int> cells, const Answer& answer) {
                for (const int cell : cells) {
                    EXPECT_EQ(memoryWriteRefusal(machine, area, cell), lit ? answer : free) << cell;
                }
            };
            expect(Area::controlDoDi, {0, 126}, cpuType == little8 || cpuType == big8 ? upperByte : free);
            expect(Area::controlDoDi, {1, 127, 128, 255}, free);
            expect(Area::controlDoDi, {256, 383}, scanWritten);
            expect(Area::c1ToC7, {0, 1, 127, 128, 895}, scanWritten);
            expect(Area::drc, {0, 1, 127}, free);
        }
    }
}

}  // namespace
