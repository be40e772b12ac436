// SPDX-License-Identifier: Apache-2.0
// The tick. One tick is one visit to one station: boardTick carries the center's frame along the cable and settles who
// answers, scanStep is the center chip that takes the answer. Nothing but the run control calls simulationTick.
//
//   pass:   SA 1, SA 2, ... scanLastAddr, then the pass end: SSR, interrupt requests, the next pass or the stop
//
//   command byte of a station   bits 0-3  command      what the next good visit transfers
//                               bits 4-5  step mode    0 stays   1 clears bits 0-5 after one visit
//                                                      2 counts up 0..6 and back to 0   3 the same once
//                               bits 6-7  kept
//   status byte                 bit 0 serial data waits    bit 1 DI changed under the mask   bit 2 failed
//                               bit 3 failed three times and more    bits 4-6 failures in a row, up to 7
//
// A scan is on while scanRunning or scanOneShot is set. Request bit 2 of INT0R holds it: no visit until the bit is cleared.
// A tick allocates nothing.

#pragma once

#include "core/mduMain.h"

// One tick: boardTick, then scanStep.
void simulationTick(Machine& machine);

// The center side of a tick, after boardTick.
void scanStep(Machine& machine);

// A station reached one (CHK1) or three (CHK2) failures in a row.
void chk1Event(Machine& machine);
void chk2Event(Machine& machine);

// Raises the request bits of a finished pass where they are enabled.
void passEndInterrupts(Machine& machine);

// Brings the interrupt indicator into line with the request bytes. Register writes call it as well.
void updateIntLed(Machine& machine);

// Steps the command byte of the visited station by its step mode.
void stepCommand(Machine& machine);
