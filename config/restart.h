// SPDX-License-Identifier: Apache-2.0
// The restart of the simulated machine, as far as it is the machine's: from settings that applyDialog or Mdef_Set have just put
// into the variables. Around it the windows of the bench, the registers and the memory are unloaded and made anew.

#pragma once

#include "core/mduMain.h"

// No tick does anything until endRestart.
void beginRestart(Machine& machine);

// Memory by the setting, registers, board state; IOS mode and counter mode stay. The first tick after the restart starts a
// continuous scan up to SA 4. What the register and memory windows last showed stays, so that they show in red what changed.
// `dateNumber` is that of randomizeMemory.
void resetMachine(Machine& machine, std::uint64_t dateNumber);

// The scan flags go, and the checks may speak again.
void endRestart(Machine& machine);
