#include "boards/boardSet.h"

#include "core/portOutput.h"

#include <string_view>

namespace {

// By IOS mode, pin 15 on the left: input, output, or taken away from the port.
constexpr std::array<std::string_view, 8> pinPatterns{
    "IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII", "OOOOOOOOOOOOIIII",
    "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO", "****OOOOIIIIIIII", "****OOOO****IIII",
};

void setPinPattern(Machine& machine) {
    constexpr auto group = std::size_t{16} * (slotQDA52 - 1);
    const auto mode = static_cast<std::size_t>(machine.ios52);
    const std::string_view pattern = pinPatterns[mode < pinPatterns.size() ? mode : 0];
    for (std::size_t bit = 0; bit < pattern.size(); ++bit) {
        const char kind = pattern[pattern.size() - 1 - bit];
        Pin& pin = machine.picPI[group + bit];
        if (kind == '*') {
            pin.visible = false;
        } else {
            pin = {.output = kind == 'O'};
        }
    }
    machine.diImage[8] = 0;
    machine.diImage[9] = 0;
}

}  // namespace

void initCombo(Machine& machine) {
    for (std::int16_t& address : machine.boardSA) {
        ++address;
    }
    if (machine.picBPSS.on) {
        ++machine.boardClock[clockQDA52];
    }
    setPinPattern(machine);
    showDO52(machine);
}

void initConnections(Machine& machine) {
    if (machine.cableConnectionDefault == 1) {
        machine.picBOARD1_RXD[0].plugged = true;
        machine.picBOARD1_RXD[1].plugged = false;
        for (const std::size_t connector : linkConnector) {
            machine.picBOARD2_RXD[connector].plugged = true;
        }
    }
    if (machine.cascadeDefault == 1) {
        machine.picBridge.visible = true;
    }
    machine.duplexBit = machine.transferDefault[0] == 1 ? 0 : fullDuplexBit;
}

void setUpBench(Machine& machine) {
    static const Machine untouched;
    machine.picScanLed = untouched.picScanLed;
    machine.picChkLED = untouched.picChkLED;
    machine.picMON_LED73 = untouched.picMON_LED73;
    machine.picMON_LED52 = untouched.picMON_LED52;
    machine.picSE = untouched.picSE;
    machine.picInt = untouched.picInt;
    machine.picPI = untouched.picPI;
    machine.picPO = untouched.picPO;
    machine.picSSA = untouched.picSSA;
    machine.picSSB = untouched.picSSB;
    machine.picBPSS = untouched.picBPSS;
    machine.picBOARD1_RXD = untouched.picBOARD1_RXD;
    machine.picBOARD2_RXD = untouched.picBOARD2_RXD;
    machine.picBridge = untouched.picBridge;
    initCombo(machine);
    initConnections(machine);
}
