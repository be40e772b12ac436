// SPDX-License-Identifier: Apache-2.0
#include "core/portOutput.h"

#include "core/pwmOutput.h"

namespace {

constexpr std::size_t pinsPerSlot = 16;

bool bitOf(std::uint32_t word, std::size_t bit) {
    return (word >> bit & 1U) != 0;
}

}  // namespace

void showDO(Machine& machine, int slot) {
    if (slot < 1 || slot >= slotQDA52) {
        return;
    }
    const auto group = static_cast<std::size_t>(slot - 1) * pinsPerSlot;
    for (std::size_t bit = 0; bit < pinsPerSlot; ++bit) {
        machine.picPO[group + bit] = {.output = true, .level = bitOf(machine.doLatch[static_cast<std::size_t>(slot)], bit)};
    }
}

void showDO52(Machine& machine) {
    constexpr std::size_t group = (slotQDA52 - 1) * pinsPerSlot;
    for (std::size_t bit = 0; bit < pinsPerSlot; ++bit) {
        Pin& pin = machine.picPI[group + bit];
        if (pin.output) {
            pin.level = bitOf(machine.doLatch52, bit);
        }
    }
    if (pwmShown(machine)) {
        showPower(machine);
    }
}
