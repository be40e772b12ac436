// SPDX-License-Identifier: Apache-2.0
#include "access/memoryAccess.h"

#include "access/hexText.h"

namespace {

constexpr int coveredFrom = doBase;
constexpr int writeCoveredTo = 0x4FE;  // an index
constexpr int readCoveredTo = 0x4FF;   // a bus address

constexpr std::size_t digitsOfAddress = 3;

constexpr std::string_view fromBuffer = "リードテンポラリバッファからデータを取得しました。";
constexpr std::string_view intoBuffer = "リードテンポラリバッファにデータを格納しました。";
constexpr std::string_view fromMemory = "メモリよりデータを取得しました。";

void emptyWriteBuffer(Machine& machine) {
    machine.writeTempLowFull = false;
    machine.writeTempHighFull = false;
    memoryAt(machine, reg::hprHigh) &= hazardOn;
}

Answer writeWord(Machine& machine, int address, int value) {
    Answer answer;
    const auto high = static_cast<std::uint8_t>(value >> 8);
    memoryAt(machine, address) = static_cast<std::uint8_t>(value);
    if (machine.picScanLed.lit && address < doBase && high != memoryAt(machine, address + 1)) {
        answer = Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト。"};
    } else {
        memoryAt(machine, address + 1) = high;
    }
    emptyWriteBuffer(machine);
    return answer;
}

bool goesToBuffer(const Machine& machine, int index) {
    const std::uint8_t protection = machine.chipMemory[reg::hprHigh];
    return bus8bit(machine) && (protection & hazardOn) != 0 && (protection & hazardBufferUsed) == 0 && index >= coveredFrom &&
           index <= writeCoveredTo;
}

void keepByte(Machine& machine, int index, std::uint8_t value) {
    const bool high = index % 2 != 0;
    (high ? machine.writeTempHigh : machine.writeTempLow) = value;
    (high ? machine.writeTempHighFull : machine.writeTempLowFull) = true;
    memoryAt(machine, reg::hprHigh) |= hazardBufferUsed;
}

// The waiting byte goes into the word of the present write, whichever word it was meant for.
void commitWaitingByte(Machine& machine, int index) {
    const int even = index & ~1;
    if (machine.writeTempHighFull) {
        memoryAt(machine, even + 1) = machine.writeTempHigh;
    }
    if (machine.writeTempLowFull) {
        memoryAt(machine, even) = machine.writeTempLow;
    }
}

Answer writeByte(Machine& machine, int address, std::uint8_t value) {
    const int index = busToMemoryIndex(machine, address);
    if (goesToBuffer(machine, index)) {
        keepByte(machine, index, value);
        return Popup{"ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。"};
    }
    memoryAt(machine, index) = value;
    if (bus8bit(machine)) {
        commitWaitingByte(machine, index);
    }
    emptyWriteBuffer(machine);
    return {};
}

}  // namespace

int labelToAddress(const Machine& machine, std::string_view rowText, int cell) {
    const int baseRow = hexValue(rowText.substr(0, 2)).value_or(0);
    const int column = bigEndian(machine) ? cell & 15 : 15 - (cell & 15);
    return baseRow * 16 + cell / 16 * 16 + column;
}

int busToMemoryIndex(const Machine& machine, int address) {
    return bigEndian(machine) ? address ^ 1 : address;
}

Answer writeMemory(Machine& machine, std::string_view rowText, int cell, Width width, std::string_view text) {
    const int address = labelToAddress(machine, rowText, cell);
    const int value = hexValue(text).value_or(0);
    return width == Width::word ? writeWord(machine, address & ~1, value)
                                : writeByte(machine, address, static_cast<std::uint8_t>(value));
}

std::optional<ReadResult> readMemory(Machine& machine, std::string_view addressText) {
    const auto entered = addressText.size() == digitsOfAddress ? hexValue(addressText) : std::nullopt;
    if (!entered || *entered >= memorySize) {
        return std::nullopt;
    }
    const int address = *entered;
    const int index = busToMemoryIndex(machine, address);
    const auto half = static_cast<std::size_t>(index & 1);
    std::uint8_t& protection = memoryAt(machine, reg::hprLow);

    if ((protection & hazardBufferUsed) != 0) {
        protection &= static_cast<std::uint8_t>(~hazardBufferUsed);
        return ReadResult{machine.readTempBuffer[half], fromBuffer};
    }
    if ((protection & hazardOn) != 0 && address >= coveredFrom && address <= readCoveredTo) {
        machine.readTempBuffer = {memoryAt(machine, index & ~1), memoryAt(machine, index | 1)};
        protection |= hazardBufferUsed;
        return ReadResult{machine.readTempBuffer[half], intoBuffer};
    }
    return ReadResult{memoryAt(machine, index), fromMemory};
}

Answer memoryWriteRefusal(const Machine& machine, Area area, int cell) {
    if (!machine.picScanLed.lit) {
        return {};
    }
    const bool controlWord = area == Area::controlDoDi && cell < areaSize;
    // An even cell shows the upper byte of its word on either byte order.
    if (controlWord && bus8bit(machine) && cell % 2 == 0) {
        return Popup{"スキャン中、コントロールワードの上位バイトはライトプロテクト"};
    }
    const bool scanWritten = area == Area::c1ToC7 || (area == Area::controlDoDi && cell >= 2 * areaSize);
    if (scanWritten) {
        return Popup{"スキャン中はライトプロテクト"};
    }
    return {};
}
