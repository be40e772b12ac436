// SPDX-License-Identifier: Apache-2.0
// What guards the learner's hardware: the reset buttons, and the warning of two stations on one address.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

// Warns of the first pair of stations on one address; the numbers in the warning are slots. Silent until the start-up is
// done. It asks one link for each station and not the whole line, so it is not what the scan goes by; nothing is changed.
Answer chkSADup(const Machine& machine);

// The press of a reset button: 0 the center, 1 to 5 by slot; no other index has a button. The center's stops the scan at once and
// resets the registers, to full duplex and 12 Mbps whatever the settings say; a board is off the line until the release.
void picReset_DblClick(Machine& machine, std::size_t index);
void picReset_MouseUp(Machine& machine, std::size_t index);
