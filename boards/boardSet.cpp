// SPDX-License-Identifier: Apache-2.0
#include "boards/boardSet.h"

#include "access/hexText.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/stationCheck.h"

std::string addressItem(int listIndex) {
    return "0x" + hexText(static_cast<unsigned>(listIndex + 1), 2);
}

Answer applySA(Machine& machine, std::size_t board, std::string_view digits) {
    machine.boardSA[board] = static_cast<std::int16_t>(hexValue(digits).value_or(0));
    return chkSADup(machine);
}

Answer cmbSA_LostFocus(Machine& machine, std::size_t board, int listIndex) {
    machine.cmbSA[board].listIndex = static_cast<std::int16_t>(listIndex);
    return applySA(machine, board, addressItem(listIndex).substr(2));
}

void cmbClock41_LostFocus(Machine& machine, int listIndex) {
    machine.cmbClock41.listIndex = static_cast<std::int16_t>(listIndex);
    machine.boardClock[clockQDA41] = machine.cmbClock41.listIndex;
}

void cmbClock52_LostFocus(Machine& machine, int listIndex) {
    machine.cmbClock52.listIndex = static_cast<std::int16_t>(listIndex);
    machine.boardClock[clockQDA52] = static_cast<std::int16_t>(listIndex + (machine.picBPSS.on ? 1 : 0));
}

void cmbBPS73_LostFocus(Machine& machine, int listIndex) {
    machine.cmbBPS73.listIndex = static_cast<std::int16_t>(listIndex);
    machine.boardClock[clockQDA73] = machine.cmbBPS73.listIndex;
}

void cmbCPUType_LostFocus(Machine& machine, int listIndex) {
    machine.cmbCPUType.listIndex = static_cast<std::int16_t>(listIndex);
    machine.cpuType = machine.cmbCPUType.listIndex;
}

void picBPSS_DblClick(Machine& machine) {
    std::int16_t& rate = machine.boardClock[clockQDA52];
    machine.picBPSS.on = !machine.picBPSS.on;
    if (machine.picBPSS.on) {
        ++rate;
    } else if (rate != 0) {
        --rate;
    }
}

void initCombo(Machine& machine) {
    machine.cmbCPUType.listIndex = machine.cpuType;
    for (const std::size_t board : {saQDA41, saQDA73, saQDA52}) {
        cmbSA_LostFocus(machine, board, machine.boardSA[board]);
    }
    cmbClock41_LostFocus(machine, machine.boardClock[clockQDA41]);
    cmbClock52_LostFocus(machine, machine.boardClock[clockQDA52]);
    cmbBPS73_LostFocus(machine, machine.boardClock[clockQDA73]);
    machine.cmbMode.listIndex = machine.mode52;
    cmbIOS_LostFocus(machine, machine.ios52);
}

void setUpBench(Machine& machine) {
    static const Machine untouched;
    machine.picScanLed = untouched.picScanLed;
    machine.picChkLED = untouched.picChkLED;
    machine.picMON_LED73 = untouched.picMON_LED73;
    machine.picMON_LED52 = untouched.picMON_LED52;
    machine.picSE = untouched.picSE;
    machine.picSerialInt = untouched.picSerialInt;
    machine.picInt = untouched.picInt;
    machine.picBOARD1_RXD = untouched.picBOARD1_RXD;
    machine.picBOARD2_RXD = untouched.picBOARD2_RXD;
    machine.picBridge = untouched.picBridge;
    machine.picCableUpTop = untouched.picCableUpTop;
    machine.picTermR = untouched.picTermR;
    machine.picReset = untouched.picReset;
    machine.picCLR = untouched.picCLR;
    machine.picCounter = untouched.picCounter;
    machine.picBPSS = untouched.picBPSS;
    initPins(machine);
    initCombo(machine);
    initConnections(machine);
}
