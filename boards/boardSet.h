// SPDX-License-Identifier: Apache-2.0
// The boards' settings: station addresses, clocks, rate pins, bus type, and how the bench is set up from the settings file.
// A setting has its effect at the next visit of the scan and stops none; only the duplex jumpers are guarded (network.h).
//
//   rate index   rate        Board No2: clock   Board No1: pins   Board No4: clock (BPSS-L)   (BPSS-H)
//   0            12 Mbps     48MHz              12Mbps            48MHz
//   1             6 Mbps     24MHz               6Mbps            24MHz                       48MHz
//   2             3 Mbps     12MHz               3Mbps            12MHz                       24MHz
//   3           1.5 Mbps                       1.5Mbps                                        12MHz
//
// A board hears the center only while its rate index equals the center's, which BCR gives at the start of a scan.
// A combo box commits when it loses the focus; the commits also bring the settings of the file to the boards.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

#include <string>
#include <string_view>

inline constexpr int stationAddresses = 63;
inline constexpr std::array<std::string_view, 3> clockItems{"48MHz", "24MHz", "12MHz"};
inline constexpr std::array<std::string_view, 4> rateItems{"12Mbps", "  6Mbps", "  3Mbps", "1.5Mbps"};

// "0x01" to "0x3F", by list index 0 to 62.
std::string addressItem(int listIndex);

// Gives a board, by BoardIndex, the address of two hexadecimal digits, "01" to "3F"; a text that is no hexadecimal number is
// address 0, which no scan visits. The answer is chkSADup's.
Answer applySA(Machine& machine, std::size_t board, std::string_view digits);

// The commits of the combo boxes. `listIndex` counts from 0 and is an item of the list (comboLists.h): 0 to 62 for an address,
// 0 to 2 for a clock, 0 to 3 for the rate pins and the bus type. Nothing is checked here, since a list offers nothing else.
Answer cmbSA_LostFocus(Machine& machine, std::size_t board, int listIndex);
void cmbClock41_LostFocus(Machine& machine, int listIndex);
void cmbClock52_LostFocus(Machine& machine, int listIndex);
void cmbBPS73_LostFocus(Machine& machine, int listIndex);
void cmbCPUType_LostFocus(Machine& machine, int listIndex);

// The BPSS pin of Board No4: BPSS-H halves its rate, in either order with the clock.
void picBPSS_DblClick(Machine& machine);

// The settings reach the boards by the commits of their combo boxes: a list index of boardSA becomes the address.
void initCombo(Machine& machine);

// A bench as it stands when nothing has been touched: LEDs dark, all pins low, switches at "0", BPSS-L, no cable, no card.
// Then the settings, by initCombo and initConnections.
void setUpBench(Machine& machine);
