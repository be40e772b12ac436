// SPDX-License-Identifier: Apache-2.0
#include "access/registers.h"

#include "access/hexText.h"
#include "core/simulation.h"

#include <algorithm>

namespace {

constexpr std::string_view unsuitableValue = "入力された値が不適切であるため、書き込まれません。";
constexpr std::string_view readOnly = "このレジスタはリードオンリーです。";
constexpr std::string_view protectedInScan = "スキャン中はライトプロテクト。";

constexpr std::string_view bcrMismatch = "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。";
constexpr std::string_view changeEither = "ハードウェアの設定を変更するか、ＢＣＲの値を変更してください。";
constexpr std::string_view noStartUntilChanged = "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。";
constexpr std::string_view transferMismatch = "通信設定がハードウェア設定と一致していません。";
constexpr std::string_view standsUntilChanged = "ハードウェアの設定を変更するか、レジスタの値を変更するまで停止します。";

constexpr int lastAddressBits = 0x3F;
constexpr int enableBitsOfInt1 = 0xF8;
constexpr int bcrLowBits = fullDuplexBit | rateBits;
constexpr int bcrHighBits = 0x07;

// A write, taken apart: which halves it covers and their new values. A half that isn't covered reads as 0.
struct Write {
    int address;
    bool coversLow;
    bool coversHigh;
    int low;
    int high;
};

Write takeApart(int address, Width width, Half half, std::string_view text) {
    const int value = hexValue(text).value_or(0);
    if (width == Width::word) {
        return {address, true, true, value & 0xFF, value >> 8};
    }
    const bool low = half == Half::low;
    return {address, low, !low, low ? value & 0xFF : 0, low ? 0 : value & 0xFF};
}

void store(Machine& machine, int address, int value) {
    memoryAt(machine, address) = static_cast<std::uint8_t>(value);
}

bool duplexMismatch(const Machine& machine) {
    return (machine.chipMemory[reg::bcrLow] & fullDuplexBit) != machine.duplexBit;
}

Warning twoLines(std::string_view first, std::string_view second) {
    return {std::string(first) + "\n\n" + std::string(second)};
}

// --- SCR -----------------------------------------------------------------------------------------------------------------

// A scan over station 1 alone is not for full duplex.
bool aloneInFullDuplex(const Machine& machine, int half) {
    return (machine.chipMemory[reg::bcrLow] & fullDuplexBit) != 0 && (half & lastAddressBits) == 1;
}

// What makes a value unsuitable. A half that the write doesn't cover is 0 and fails no test.
bool unsuitable(const Machine& machine, const Write& write) {
    return (write.low != 0 && write.high != 0) || (machine.scanRunning && write.high != 0) ||
           (machine.scanOneShot && (write.low != 0 || write.high != 0)) || aloneInFullDuplex(machine, write.high) ||
           aloneInFullDuplex(machine, write.low);
}

Answer writeSCR(Machine& machine, const Write& write) {
    if (unsuitable(machine, write)) {
        return Popup{std::string(unsuitableValue)};
    }
    if (duplexMismatch(machine)) {
        if (write.coversLow && write.coversHigh) {
            return twoLines(bcrMismatch, changeEither);
        }
        return write.coversHigh ? twoLines(bcrMismatch, noStartUntilChanged) : twoLines(transferMismatch, standsUntilChanged);
    }
    if (write.coversLow) {
        store(machine, reg::scrLow, write.low & lastAddressBits);
    }
    if (write.coversHigh) {
        store(machine, reg::scrHigh, write.high & lastAddressBits);
    }
    return {};
}

// --- the others ------------------------------------------------------------------------------------------------------------

Answer writeSSR(Machine& /*machine*/, const Write& /*write*/) {
    return Popup{std::string(readOnly)};
}

Answer writeHPR(Machine& machine, const Write& write) {
    const auto writeHalf = [&machine](int address, int value) {
        store(machine, address, (memoryAt(machine, address) & hazardBufferUsed) | (value & hazardOn));
    };
    if (write.coversLow) {
        writeHalf(reg::hprLow, write.low);
    }
    if (write.coversHigh) {
        writeHalf(reg::hprHigh, write.high);
    }
    return {};
}

void writeInterrupt(Machine& machine, const Write& write, int enableBits) {
    if (write.coversHigh) {
        store(machine, write.address + 1, write.high & enableBits);
    }
    if (write.coversLow) {
        store(machine, write.address, memoryAt(machine, write.address) & ~write.low);
        updateIntLed(machine);
    }
}

Answer writeINT0R(Machine& machine, const Write& write) {
    writeInterrupt(machine, write, 0xFF);
    return {};
}

Answer writeINT1R(Machine& machine, const Write& write) {
    writeInterrupt(machine, write, enableBitsOfInt1);
    return {};
}

Answer writeCounter(Machine& machine, const Write& write) {
    if ((write.low & 1) != 0) {
        store(machine, write.address, 0);
    }
    return {};
}

Answer writeBCR(Machine& machine, const Write& write) {
    if (scanOn(machine)) {
        return Popup{std::string(protectedInScan)};
    }
    if (write.coversHigh) {
        store(machine, reg::bcrHigh, write.high & bcrHighBits);
    }
    if (!write.coversLow) {
        return {};
    }
    store(machine, reg::bcrLow, write.low & bcrLowBits);
    return duplexMismatch(machine) ? Answer(twoLines(bcrMismatch, noStartUntilChanged)) : Answer();
}

using WriteRule = Answer (*)(Machine&, const Write&);

constexpr std::array<WriteRule, lastRegisterRow> writeRules{
    writeSCR, writeSSR, writeHPR, writeINT0R, writeINT1R, writeCounter, writeCounter, writeBCR,
};

}  // namespace

std::string_view regAddress(std::string_view name) {
    const auto* row = std::find_if(registerTable.begin(), registerTable.end(),
                                   [name](const RegisterRow& candidate) { return candidate.name == name; });
    return row == registerTable.end() ? std::string_view() : row->address;
}

Answer writeRegister(Machine& machine, int address, Width width, Half half, std::string_view text) {
    if (address < registerBase || address > reg::bcrLow || address % 2 != 0) {
        return {};
    }
    const auto rule = static_cast<std::size_t>((address - registerBase) / 2);
    return writeRules[rule](machine, takeApart(address, width, half, text));
}

Answer registerWriteRefusal(const Machine& machine, int row) {
    if (row == rowSSR) {
        return Popup{std::string(readOnly)};
    }
    if (row == rowBCR && scanOn(machine)) {
        return Popup{std::string(protectedInScan)};
    }
    return {};
}
