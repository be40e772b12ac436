// SPDX-License-Identifier: Apache-2.0
// The simulated machine: the center chip's memory with its registers, the boards on the cable, the visit in progress and
// the LED timers, as plain data. The rules that change it are free functions of the other model headers; they take the
// machine first and keep nothing of their own, so a copy of the machine is a snapshot of everything.
//
//   chipMemory                                 one word per station address SA, low byte at the even index
//   000H  control words   command byte 2*SA, status byte 2*SA + 1
//   080H  DO              word sent to the station
//   100H  DI              word read back from the station
//   180H  C1   200H  C2   280H  C3   300H  C4   380H  C5   400H  C6    counter words
//   480H  C7              serial word
//   500H  DRC             mask of change detection on the DI word
//   580H  registers       SCR SSR HPR INT0R INT1R C1CR C2CR BCR, one word each
//   590H  chip name       "QDA60 "
//   596H  to 7FFH         part of the image without a meaning, stays zero
//
//   the line of cables        link 1              link 2              link 3
//              center ----[picBOARD2_RXD 0]---Board No1---[1]---Board No2---[3]---Board No4
//                                              slot 3           slot 1            slot 5
//                                                               slot 2: Board No3, on Board No2's cascade connector
//
// Not modelled: time on the wire. A visit is one tick at every transfer rate; rate and duplex only decide who hears whom
// and whether a scan may start. The visit of SA 0 does not exist.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

// Byte addresses of the memory areas and of the registers, as indices into Machine::chipMemory.
inline constexpr int controlBase = 0x000;
inline constexpr int doBase = 0x080;
inline constexpr int diBase = 0x100;
inline constexpr int counterBase = 0x180;  // C1; the areas of C2 to C6 follow every areaSize bytes
inline constexpr int serialBase = 0x480;   // C7
inline constexpr int drcBase = 0x500;
inline constexpr int areaSize = 0x80;
inline constexpr int registerBase = 0x580;
inline constexpr int chipNameBase = 0x590;
inline constexpr int memorySize = 0x800;

namespace reg {
inline constexpr int scrLow = 0x580;   // highest SA of the continuous scan
inline constexpr int scrHigh = 0x581;  // highest SA of the single scan
inline constexpr int ssrLow = 0x582;   // 80H + SA of the next station
inline constexpr int ssrHigh = 0x583;  // flags of the last finished pass
inline constexpr int hprLow = 0x584;   // hazard protection of reads
inline constexpr int hprHigh = 0x585;  // hazard protection of writes
inline constexpr int int0Request = 0x586;
inline constexpr int int0Enable = 0x587;
inline constexpr int int1Request = 0x588;
inline constexpr int int1Enable = 0x589;
inline constexpr int c1crLow = 0x58A;  // count of CHK1 events
inline constexpr int c2crLow = 0x58C;  // count of CHK2 events
inline constexpr int bcrLow = 0x58E;   // bits 0, 1: rate code; bit 4: full duplex
inline constexpr int bcrHigh = 0x58F;
}  // namespace reg

inline constexpr std::uint8_t holdRequest = 0x04;                        // bit of INT0R's request byte that holds the scan
inline constexpr std::uint8_t fullDuplexBit = 0x10;                      // bit of BCR, and the value of duplexBit at full duplex
inline constexpr std::uint8_t rateBits = 0x03;                           // of BCR: the rate code, all set for 12 Mbps
inline constexpr std::uint8_t bcrFullDuplex = fullDuplexBit | rateBits;  // what a reset leaves in BCR
inline constexpr std::uint8_t bcrHalfDuplex = rateBits;

// A slot is one station-sized place on a board. Its number is the value of Machine::responder and indexes doLatch, clrHeld
// and resetHeld. Slot 4 is a card that never shows and never answers.
inline constexpr int slotCount = 5;
inline constexpr int slotQDA41 = 1;
inline constexpr int slotCascade = 2;
inline constexpr int slotQDA73 = 3;
inline constexpr int slotQDA52 = 5;
inline constexpr int collided = 6;  // value of responder while two answers collide or noise struck

// Elements of Machine::boardSA. Before initCombo an element holds the list index of the settings, which is SA - 1.
enum BoardIndex : std::size_t { saQDA41 = 0, saQDA73 = 1, saQDA52 = 2 };
// Elements of Machine::boardClock.
enum ClockIndex : std::size_t { clockCenter = 0, clockQDA41 = 1, clockQDA73 = 2, clockQDA52 = 3 };

// The links of the cable, as indices into picBOARD2_RXD.
inline constexpr std::array<std::size_t, 3> linkConnector{0, 1, 3};

// States of the things on the bench. A state bears the name of the control that shows it.
struct Led {
    bool lit = false;
    bool operator==(const Led&) const = default;
};
struct Switch {
    bool on = false;  // the switch stands at "1"
    bool operator==(const Switch&) const = default;
};
struct Connector {
    bool plugged = false;
    bool operator==(const Connector&) const = default;
};
struct Button {
    bool down = false;
    bool operator==(const Button&) const = default;
};
struct Combo {
    std::int16_t listIndex = 0;  // from 0
    bool operator==(const Combo&) const = default;
};
struct Card {
    bool visible = false;
    bool operator==(const Card&) const = default;
};
struct Pin {
    bool output = false;
    bool level = false;
    bool visible = true;  // a pin taken away by an IOS mode is hidden and keeps its direction
    bool operator==(const Pin&) const = default;
};

inline constexpr Card inPlace{true};

// Tops of cable 0's upper half at the two connectors of the center, and before it was ever plugged.
inline constexpr std::int16_t cableAtConnector0 = 24;
inline constexpr std::int16_t cableAtConnector1 = 62;
inline constexpr std::int16_t cableAtStart = 26;

struct Machine {
    // --- the center chip -------------------------------------------------------------------------------------------
    std::array<std::uint8_t, memorySize> chipMemory{};
    std::array<std::uint8_t, memorySize> memoryShadow{};  // what the memory windows last showed
    std::array<std::uint8_t, 9> registerShadowHigh{};     // what the register window last showed, by row 1 to 8
    std::array<std::uint8_t, 9> registerShadowLow{};
    bool memoryRefreshAll = false;  // the next refresh of the memory windows repaints every cell

    // Temporary buffers of hazard protection on an 8-bit bus. HPR bit 8 and bit 0 say that they are in use.
    std::uint8_t writeTempLow = 0;   // waiting byte for an even index
    std::uint8_t writeTempHigh = 0;  // waiting byte for an odd index
    bool writeTempLowFull = false;
    bool writeTempHighFull = false;
    std::array<std::uint8_t, 2> readTempBuffer{};  // the even and the odd byte of the word read last

    // --- configuration of the boards -------------------------------------------------------------------------------
    std::array<std::int16_t, 3> boardSA{};     // station address 1 to 63, by BoardIndex
    std::array<std::int16_t, 4> boardClock{};  // rate index 0 to 3 = 12, 6, 3, 1.5 Mbps, by ClockIndex
    std::uint8_t duplexBit = 0;                // what the jumpers say: 16 full duplex, 0 half duplex
    std::int16_t cpuType = 0;                  // host bus: bit 0 set 8 bit wide, 2 and more big endian
    std::int16_t ios52 = 0;                    // IOS mode of Board No4, 0 to 7
    std::int16_t mode52 = 0;                   // counter mode of Board No4, 0 to 3

    // --- board images: what the boards hold for the scan ------------------------------------------------------------
    std::array<std::uint8_t, 10> diImage{};       // DI word of a slot at 2*(slot-1), low byte first
    std::array<std::uint8_t, 50> counterImage{};  // C1 to C6 of slots 1 and 2 at 12*(slot-1) + 2*(k-1); the
                                                  // 12-bit counter of Board No4 at 48
    std::array<std::uint8_t, 8> serialData{};     // serial word of a slot at 2*(slot-1), low byte first
    std::array<bool, 4> serialReady{};            // by slot-1: the serial word waits to be collected
    std::int16_t serialEditSlot = 0;              // what the serial dialog edits, 0 or 1
    std::array<std::uint32_t, 5> doLatch{};       // by slot 1 to 4: the DO word last delivered
    std::uint32_t doLatch52 = 0;                  // the same for slot 5
    std::uint8_t doLow52 = 0;                     // low byte of the word last delivered to slot 5: the motor's
    std::array<bool, 5> clrHeld{};                // by slot 1 to 4: CLR is down, the output is not updated
    bool clrHeld52 = false;
    std::array<bool, 5> resetHeld{};  // by slot 1 to 4: reset is down, the slot is off the line
    bool resetHeld52 = false;
    bool noiseOn = false;              // the noise button is down
    std::int16_t noiseBurst = 0;       // ticks before random noise begins, noiseQuietTicks at the press
    std::int16_t noiseErrorCount = 0;  // noise failures in the present cycle, 0 to 14
    std::int16_t noiseErrorAddr = 0;   // SA of the last random noise failure
    std::int16_t motorPhase = 0;       // belt picture, 1 to 3
    std::int16_t motorStep = 0;        // sawtooth picture within its row, 1 to 4
    std::int16_t motorCounter = 0;     // row of the sawtooth: 1 for direction 80H, 0 for 40H

    // --- scan: written by the tick ----------------------------------------------------------------------------------
    bool scanRunning = false;          // a continuous scan is on
    bool scanOneShot = false;          // a single scan is on
    std::int16_t scanLastAddr = 0;     // highest SA of this pass
    std::uint8_t scanAddr = 0;         // SA being visited
    std::int16_t visitAddr = 0;        // scanAddr at the start of the visit
    std::int16_t stationPtr = 0;       // address of the visited control word, 2 * scanAddr
    std::uint8_t cmdNibble = 0;        // low four bits of the visited command byte
    std::uint8_t stationErrorBit = 0;  // bit 2 of the visited status byte: 0 or 4
    std::int16_t responder = 0;        // who answers: 0 nobody, a slot, or `collided`
    std::int16_t responderSA = 0;
    bool serialPending = false;   // the responder has serial data waiting
    bool ssrDataChanged = false;  // in this pass a DI word changed under its DRC mask
    bool ssrSerialData = false;   // in this pass serial data first showed
    bool ssrErrorSeen = false;    // in this pass a station failed
    bool chk1Seen = false;        // in this pass a station failed for the first time in a row
    bool chk2Seen = false;        // in this pass a station failed for the third time in a row

    // --- LED timers, in ticks ---------------------------------------------------------------------------------------
    std::int16_t chkLed1Timer = 0;
    std::int16_t chkLed2Timer = 0;
    std::int16_t monLed73Timer = 0;
    std::int16_t monLed52Timer = 0;
    std::int16_t intLedShown = 0;  // image of picInt, 1 to 4; 0 before the first showing
    std::int16_t intLedWanted = 0;

    // --- what the bench shows and the tick reads -----------------------------------------------------------------------
    Led picScanLed;
    std::array<Led, 2> picChkLED;
    Led picMON_LED73;
    Led picMON_LED52;
    std::array<Led, 4> picSE;                   // by slot-1: serial data waits
    std::array<Card, 2> picSerialInt;           // by slot-1: a serial word is being shifted in
    Card picInt;                                // the interrupt indicator, hidden until a request shows it
    std::array<Connector, 2> picBOARD1_RXD;     // the two connectors of the center: cable 0 is plugged here
    std::array<Connector, 6> picBOARD2_RXD;     // 0, 1 and 3: link 1, 2, 3 is whole
    Card picBridge;                             // the flat cable of the cascade card: Board No3 is fitted
    std::int16_t picCableUpTop = cableAtStart;  // top of cable 0's upper half, in pixels: its connector
    std::array<Card, 5> picTermR{inPlace, inPlace, inPlace, inPlace,
                                 inPlace};  // terminators: 0, 1 center, then Board No2, No1, No4
    bool picJumperFull = true;              // the jumpers of all boards as they are drawn
    std::array<Button, 6> picReset;         // 0 center, then by slot
    std::array<Button, 5> picCLR;           // by slot-1
    std::array<Button, 26> picCounter;      // counter buttons
    std::array<Led, 6> picPower;            // internal power value of Board No4, bit by bit
    std::int16_t lampLevel = 0;             // 0 dark to 7
    std::int16_t timMotorInterval = 0;      // milliseconds, 0 is off
    std::array<Combo, 3> cmbSA;             // by BoardIndex; SA is the list index + 1
    Combo cmbClock41;
    Combo cmbClock52;
    Combo cmbBPS73;
    Combo cmbCPUType;
    Combo cmbIOS;
    Combo cmbMode;
    std::array<Switch, 5> picSSA;  // by slot-1: moment of capture, for the timing chart only
    std::array<Switch, 5> picSSB;  // by slot-1: handshake, a DI word is never dropped
    Switch picBPSS;                // on: BPSS-H, the rate of Board No4 is halved
    std::array<Pin, 80> picPI;     // by 16*(slot-1) + bit; of slot 5 inputs and outputs alike
    std::array<Pin, 64> picPO;     // by 16*(slot-1) + bit, slots 1 to 4

    // --- run and program state ----------------------------------------------------------------------------------------
    std::int16_t runMode = 0;  // row of runModes, or 4 while the machine restarts
    bool startupDone = false;
    bool soundAvailable = false;
    std::int16_t cableConnectionDefault = 0;  // the settings of the same names, as read
    std::int16_t memoryClearDefault = 0;
    std::int16_t cascadeDefault = 0;
    std::array<std::int16_t, 5> transferDefault{};    // nonzero: half duplex
    std::array<std::int16_t, 6> openWindowDefault{};  // 1 registers, 2 hints, 3 control + DI + DO, 4 C1 to C7, 5 DRC

    // --- what the rules may not fetch themselves --------------------------------------------------------------------
    std::mt19937_64 random;         // the one source of random numbers
    std::uint64_t systemTimer = 0;  // milliseconds; whoever drives the ticks keeps it up to date
};

// A byte of chipMemory.
inline std::uint8_t& memoryAt(Machine& machine, int index) {
    return machine.chipMemory[static_cast<std::size_t>(index)];
}

// A word of chipMemory, low byte at the even `index`.
inline int memoryWord(const Machine& machine, int index) {
    const auto at = static_cast<std::size_t>(index);
    return machine.chipMemory[at] | machine.chipMemory[at + 1] << 8;
}

inline void setMemoryWord(Machine& machine, int index, int word) {
    const auto at = static_cast<std::size_t>(index);
    machine.chipMemory[at] = static_cast<std::uint8_t>(word);
    machine.chipMemory[at + 1] = static_cast<std::uint8_t>(word >> 8);
}

// A scan is on: the chip refuses what it refuses during a scan, and its SCAN LED is lit.
inline bool scanOn(const Machine& machine) {
    return machine.scanRunning || machine.scanOneShot;
}

// Zeroes what the boards hold and the scan keeps from visit to visit, the write temporary buffer and the LED timers. Scan
// flags, addresses and rates stay. The settings are read after it, so that ios52 and mode52 then take theirs.
void clearBoardState(Machine& machine);

// Zeroes the memory image and its shadow. The memory windows are to repaint everything after it.
void clearMemory(Machine& machine);

// Fills 000H to 57FH with random bytes; registers, shadow and everything above stay. `dateNumber` is the present date and
// time as the number yyyymmddhhmmss.
void randomizeMemory(Machine& machine, std::uint64_t dateNumber);

// The chip's reset: registers to zero, chip name, BCR and duplexBit from the TRANSFER setting. The scan flags stay: a scan
// under way finds SCR zero at its next pass end.
void resetRegisters(Machine& machine);

// Memory as the setting memoryClearDefault has it at a start: zero or random. `dateNumber` is that of randomizeMemory.
void fillMemory(Machine& machine, std::uint64_t dateNumber);

// The machine starts: the chip is reset, and 4 in SCR's low byte makes the first tick begin a continuous scan of SA 1 to 4. The
// program's start and every restart end with it.
void startMachine(Machine& machine);
