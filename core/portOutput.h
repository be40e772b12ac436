// SPDX-License-Identifier: Apache-2.0
// How a delivered DO word reaches the pins of a port.

#pragma once

#include "core/mduMain.h"

// Brings the output pins picPO of `slot` into line with doLatch. Slots 1 to 4; any other number does nothing.
void showDO(Machine& machine, int slot);

// The same for slot 5 and doLatch52: only the pins that the IOS mode makes outputs follow. With the PWM panel the
// lamp or the motor follows too.
void showDO52(Machine& machine);
