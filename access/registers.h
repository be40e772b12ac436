// SPDX-License-Identifier: Apache-2.0
// The registers of the center chip as the host CPU writes them. They have no storage of their own: they are the bytes 580H
// to 58FH of chipMemory, low byte at the even address on every bus type.
//
//   row  name   address  high byte                      low byte                       written by the learner
//   1    SCR    580H     0 0 last SA of a single scan   0 0 last SA of the continuous  both, with checks
//   2    SSR    582H     flags of the last pass         80H + next SA                  never
//   3    HPR    584H     bit 4 protect writes           bit 4 protect reads            these two bits
//                        bit 0 write buffer in use      bit 0 read buffer in use
//   4    INT0R  586H     enable bits 0 to 7             request bits 0 to 7            enable set, request cleared by 1
//   5    INT1R  588H     enable bits 3 to 7             request bits 3 to 7            the same
//   6    C1CR   58AH     -                              count of CHK1 events           cleared by writing bit 0
//   7    C2CR   58CH     -                              count of CHK2 events           the same
//   8    BCR    58EH     bits 0 to 2, no effect         bit 4 full duplex, bits 0, 1   not during a scan
//                                                       rate: 3 = 12 Mbps, 0 = 1.5
//   9    CC     none     a row of the register window without a register
//
// Not modelled: the host bus. A write is one step between two ticks, on any bus.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

#include <string_view>

inline constexpr int registerRows = 9;  // with CC
inline constexpr int rowSSR = 2;
inline constexpr int rowHPR = 3;
inline constexpr int rowBCR = 8;
inline constexpr int lastRegisterRow = 8;

// Bits of either half of HPR.
inline constexpr std::uint8_t hazardOn = 0x10;
inline constexpr std::uint8_t hazardBufferUsed = 0x01;

struct RegisterRow {
    std::string_view name;
    std::string_view address;  // three hexadecimal digits, empty for CC
};

// By row - 1.
inline constexpr std::array<RegisterRow, registerRows> registerTable{{
    {"SCR", "580"},
    {"SSR", "582"},
    {"HPR", "584"},
    {"INT0R", "586"},
    {"INT1R", "588"},
    {"C1CR", "58A"},
    {"C2CR", "58C"},
    {"BCR", "58E"},
    {"CC", ""},
}};

// Address of the register's low byte as three hexadecimal digits; the empty text for any name without a register.
std::string_view regAddress(std::string_view name);

enum class Width { byte = 8, word = 16 };
enum class Half { high = 0, low = 1 };

// One write of the host CPU. `address` is the register's even address, 580H to 58EH; any other does nothing and says nothing.
// `half` is read only for a byte; `text` is four hexadecimal digits for a word, two for a byte, in either case. A text that is
// no hexadecimal number, or one of more than 16 bits, is written as 0, and of more than two digits a byte takes the lower ones.
// Refusals change nothing, but for BCR's mismatch warning: there the value stands written. The caller refreshes the
// register and memory windows afterwards, also after a write that changed nothing.
Answer writeRegister(Machine& machine, int address, Width width, Half half, std::string_view text);

// Whether the write dialog of row 1 to 9 may open now: nothing, or the popup that says why not.
Answer registerWriteRefusal(const Machine& machine, int row);
