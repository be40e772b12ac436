// The boards take their settings: station addresses, rates, the IOS mode's pins, the cables, the cascade card and the
// jumpers. This is what the bench does once when it is set up, before the first tick that scans.
//
//   rate index   rate        Board No2: clock   Board No1: pins   Board No4: clock (BPSS-L)   (BPSS-H)
//   0            12 Mbps     48 MHz             12 Mbps           48 MHz
//   1             6 Mbps     24 MHz              6 Mbps           24 MHz                      48 MHz
//   2             3 Mbps     12 MHz              3 Mbps           12 MHz                      24 MHz
//   3           1.5 Mbps                       1.5 Mbps                                       12 MHz

#pragma once

#include "core/mduMain.h"

// The settings reach the boards: a list index of boardSA becomes the address, BPSS adds to the rate of Board No4, and the
// IOS mode gives slot 5 its pins.
void initCombo(Machine& machine);

// Cables, cascade card and duplex jumpers by the settings. Only a setting of exactly 1 plugs, fits or means half duplex.
void initConnections(Machine& machine);

// A bench as it stands when nothing has been touched: LEDs dark, all pins low, switches at "0", BPSS-L, no cable, no card; then
// the two operations above.
void setUpBench(Machine& machine);
