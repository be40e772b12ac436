// SPDX-License-Identifier: Apache-2.0
// What the DO word of Board No4 does beyond its pins, in the IOS modes 6 (lamp) and 7 (motor).
//
//   bits of the word   0-5 internal power value    6-7 direction: 40H, 80H; 00H and C0H are none and mean power 0
//
//   mode 6   the lamp's level is power / 8, and only direction 40H counts
//   mode 7   the belt turns, the faster the higher the power: timMotor fires every
//            (63 - power) * 14.5 + 100 ms, 125 ms at 63, never at 0
//
// Power comes from doLatch52 and the direction from doLow52: CLR and reset clear the one and leave the other.
//
// Not modelled: the four PWM signals themselves; their symbols on the board are fixed.

#pragma once

#include "core/mduMain.h"

// The IOS modes with a PWM panel, 6 and 7, and the one whose motor turns, 7.
bool pwmShown(const Machine& machine);
bool motorTurns(const Machine& machine);

// Takes the power from the DO word and starts the pictures of its movement anew.
void showPower(Machine& machine);

// A firing of timMotor: one step of the moving pictures, backwards for direction 40H.
void timMotor_Timer(Machine& machine);
