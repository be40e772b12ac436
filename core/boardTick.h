// SPDX-License-Identifier: Apache-2.0
// The board side of a tick: starts a scan when SCR asks for one, runs the LED timers, carries the center's frame along the
// links and lets the slots that hear their address take their DO word and answer.
//
//   a slot takes part in a visit when   it hears its own address through whole links,
//                                       its board's rate index equals the center's,
//                                       its reset is not held, and for slot 2 the cascade card is fitted
//
// The DO word moves when the frame is heard, before anything is known about the answer: a board takes it in a collision and
// in a visit that noise spoils, too. Two answers, or noise, leave nobody as responder, and the visit fails at the center.
//
// Not modelled: the boards sample nothing here. Switches, counters and serial words stand in the board images from the
// gesture on, and the center takes them when it visits the station.

#pragma once

#include "core/mduMain.h"

// Ticks from the press of the noise button to the random phase; the first of them is spoiled.
inline constexpr std::int16_t noiseQuietTicks = 500;

// Leaves visitAddr, stationPtr, cmdNibble, stationErrorBit, responder, responderSA and serialPending to scanStep.
void boardTick(Machine& machine);

// The noise decision of a visit: may set responder to `collided` ahead of the answers.
void noiseStep(Machine& machine);
