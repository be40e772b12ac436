// SPDX-License-Identifier: Apache-2.0
// The host CPU at the chip's memory: bus addresses, writes and reads by bus type, write protection during a scan, and hazard
// protection, which keeps the two bytes of a word together on an 8-bit bus.
//
//   cpuType  bus               a cell's bus address          index in chipMemory
//   0        16 bit little     columns count down            the address
//   1         8 bit little     columns count down            the address
//   2        16 bit big        columns count up              address XOR 1
//   3         8 bit big        columns count up              address XOR 1
//
//   write buffer, told by HPR bits 12 and 8        next 8-bit write on an 8-bit bus
//   0 0  off                                       to memory
//   1 0  armed                                     into the buffer inside 080H to 4FEH (index), else to memory
//   1 1  holding                                   to memory, and the waiting byte into the same word; armed again
//   0 1  holding, protection switched off          the same; then off
//
//   A 16-bit write, and any write on a 16-bit bus, drops a waiting byte.
//
//   read buffer, told by HPR bit 0                 next read
//   0    empty                                     inside 080H to 4FFH (bus address) with HPR bit 4: the word is kept
//   1    holds a word                              answered from the buffer by parity, whatever the address
//
// Not modelled: a board is not told of a write. The scan takes DO words, commands and masks when it visits the station.

#pragma once

#include "access/registers.h"
#include "core/answer.h"
#include "core/mduMain.h"

#include <optional>
#include <string_view>

inline constexpr std::array<std::string_view, 4> cpuTypeNames{"16bit-Bus Little", " 8bit-Bus Little", "16bit-Bus  Big  ",
                                                              " 8bit-Bus  Big  "};

inline bool bus8bit(const Machine& machine) {
    return (machine.cpuType & 1) != 0;
}

inline bool bigEndian(const Machine& machine) {
    return machine.cpuType >= 2;
}

// The areas of memory that a window shows.
enum class Area { controlDoDi = 0, c1ToC7 = 1, drc = 2 };

// The bus address of a cell of a dump window. `rowText` is the caption of the window's first row, such as "18x" (any other
// text counts as row 0), and `cell` the number of the cell from 0, in rows of sixteen.
int labelToAddress(const Machine& machine, std::string_view rowText, int cell);

// The index in chipMemory of a bus address.
int busToMemoryIndex(const Machine& machine, int address);

// One write at a cell: four hexadecimal digits for a word, at the address rounded down to even, two for a byte. A text that is
// no hexadecimal number is written as 0. The answer is a popup where not all went to memory: a word that left the status byte
// of a control word as it was, or a byte that waits in the write temporary buffer.
Answer writeMemory(Machine& machine, std::string_view rowText, int cell, Width width, std::string_view text);

struct ReadResult {
    std::uint8_t value;
    std::string_view guide;  // where the byte came from, in words
    bool operator==(const ReadResult&) const = default;
};

// One read of a byte. `addressText` is three hexadecimal digits, 000 to 7FF; for anything else there is no result, nothing
// changes, and the caller beeps.
std::optional<ReadResult> readMemory(Machine& machine, std::string_view addressText);

// Whether the write dialog of a data cell may open now: nothing, or the popup at the pointer that says why not.
Answer memoryWriteRefusal(const Machine& machine, Area area, int cell);
