// SPDX-License-Identifier: Apache-2.0
#include "boards/network.h"

#include "boards/stationCheck.h"
#include "core/pwmOutput.h"

namespace {

constexpr int narrowForm = 7890;
constexpr int wideForm = 13330;
constexpr int connector0Above = 40;  // a cable drawn higher than this is in connector 0

constexpr std::size_t link1 = 0;
constexpr std::size_t link2 = 1;
constexpr std::size_t link3 = 3;

// The link of a board's connector: 1 and 2 are the ends of cable 1, 3 and 4 those of cable 2. Nothing plugs into 5.
constexpr std::array<std::size_t, 5> linkOfConnector{link1, link2, link2, link3, link3};

// Indices of picTermR by board along the line.
constexpr std::array<std::size_t, 3> terminatorOnLine{3, 2, 4};

std::size_t connectorOfCable0(const Machine& machine) {
    return machine.picCableUpTop < connector0Above ? 0 : 1;
}

Answer lineChanged(Machine& machine) {
    updateTerminators(machine);
    return chkSADup(machine);
}

}  // namespace

Answer picBOARD1_RXD_DblClick(Machine& machine, std::size_t connector) {
    Connector& here = machine.picBOARD1_RXD[connector];
    here.plugged = !here.plugged;
    if (here.plugged) {
        // From the other connector it moves, and link 1 stays whole throughout.
        machine.picCableUpTop = connector == 0 ? cableAtConnector0 : cableAtConnector1;
        machine.picBOARD1_RXD[1 - connector].plugged = false;
    }
    machine.picBOARD2_RXD[link1].plugged = here.plugged;
    return lineChanged(machine);
}

Answer picBOARD2_RXD_DblClick(Machine& machine, std::size_t connector) {
    if (connector < linkOfConnector.size()) {
        Connector& link = machine.picBOARD2_RXD[linkOfConnector[connector]];
        link.plugged = !link.plugged;
        if (connector == 0) {
            machine.picBOARD1_RXD = {};
            machine.picBOARD1_RXD[connectorOfCable0(machine)].plugged = link.plugged;
        }
    }
    return lineChanged(machine);
}

Answer picCableUp_Click(Machine& machine, std::size_t cable) {
    constexpr std::array<std::size_t, 3> upperConnector{0, 1, 3};
    return cable == 0 ? picBOARD1_RXD_DblClick(machine, connectorOfCable0(machine))
                      : picBOARD2_RXD_DblClick(machine, upperConnector[cable]);
}

Answer picCableDn_Click(Machine& machine, std::size_t cable) {
    return picBOARD2_RXD_DblClick(machine, 2 * cable);
}

Answer picFConn_DblClick(Machine& machine) {
    machine.picBridge.visible = true;
    return chkSADup(machine);
}

Answer picBridge_DblClick(Machine& machine) {
    machine.picBridge.visible = false;
    return chkSADup(machine);
}

void updateTerminators(Machine& machine) {
    for (std::size_t connector = 0; connector < machine.picBOARD1_RXD.size(); ++connector) {
        machine.picTermR[connector].visible = machine.picBOARD1_RXD[connector].plugged;
    }
    // The last board that the line reaches has the terminator.
    bool reached = true;
    for (std::size_t board = 0; board < terminatorOnLine.size(); ++board) {
        reached = reached && machine.picBOARD2_RXD[linkConnector[board]].plugged;
        machine.picTermR[terminatorOnLine[board]].visible = reached;
        if (reached && board > 0) {
            machine.picTermR[terminatorOnLine[board - 1]].visible = false;
        }
    }
}

void showDuplexJumpers(Machine& machine) {
    machine.picJumperFull = machine.duplexBit != 0;
}

Answer picJumper_DblClick(const Machine& machine) {
    if (scanOn(machine)) {
        return Popup{"スキャン中の変更は禁止です。"};
    }
    return Warning{"すべてのボードの通信方式を切り替えます。\nよろしいですか？", "切り替え確認", Warning::Kind::okCancel};
}

Answer picJumper_Answered(Machine& machine, bool ok) {
    if (ok) {
        machine.duplexBit = machine.duplexBit != 0 ? 0 : fullDuplexBit;
        showDuplexJumpers(machine);
    }
    if ((machine.chipMemory[reg::bcrLow] & fullDuplexBit) != machine.duplexBit) {
        return Warning{"設定がＱＤＡ６０のレジスタ設定と一致していません。"};
    }
    return {};
}

void initConnections(Machine& machine) {
    if (machine.cableConnectionDefault == 1) {
        if (!machine.picBOARD1_RXD[0].plugged) {
            picBOARD1_RXD_DblClick(machine, 0);
        }
        for (const std::size_t connector : {link2, link3}) {
            if (!machine.picBOARD2_RXD[connector].plugged) {
                picBOARD2_RXD_DblClick(machine, connector);
            }
        }
    }
    if (machine.cascadeDefault == 1) {
        picFConn_DblClick(machine);
    }
    machine.duplexBit = machine.transferDefault[0] == 1 ? 0 : fullDuplexBit;
    showDuplexJumpers(machine);
}

int formWidth(const Machine& machine) {
    return machine.picBridge.visible || pwmShown(machine) ? wideForm : narrowForm;
}
