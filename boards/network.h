// SPDX-License-Identifier: Apache-2.0
// The line of cables: center, Board No1, Board No2 with its cascade card Board No3, Board No4.
//
//   picBOARD1_RXD 0 "RXD1" \                      link 1                    link 2                    link 3
//                           cable 0 --- picBOARD2_RXD 0 [No1] 1 --cable 1-- 2 [No2] 3 --cable 2-- 4 [No4] 5
//   picBOARD1_RXD 1 "RXD2" /
//
// A link is a whole cable: it is plugged or unplugged as one thing, whichever end the gesture touches. A board hears the
// center through every link ahead of it. Cable 0 has two places at the center and remembers the one it came from.
//
// Not modelled: terminators are pictures only, and it makes no difference which connector of the center is used.

#pragma once

#include "core/answer.h"
#include "core/mduMain.h"

// A double click on a connector, center 0 or 1, boards 0 to 5. The answer is chkSADup's.
Answer picBOARD1_RXD_DblClick(Machine& machine, std::size_t connector);
Answer picBOARD2_RXD_DblClick(Machine& machine, std::size_t connector);

// A click on a half of cable 0 to 2: the same as a double click on the connector at that end.
Answer picCableUp_Click(Machine& machine, std::size_t cable);
Answer picCableDn_Click(Machine& machine, std::size_t cable);

// Fits and removes the cascade card.
Answer picFConn_DblClick(Machine& machine);
Answer picBridge_DblClick(Machine& machine);

// Puts the terminators at the two ends of the line as it stands.
void updateTerminators(Machine& machine);

// The jumpers of all boards as duplexBit says.
void showDuplexJumpers(Machine& machine);

// The double click on a jumper: refused during a scan, otherwise the question that goes before the change of all boards.
Answer picJumper_DblClick(const Machine& machine);
// What follows the question, answered with OK or not: the change, and a warning where BCR says otherwise.
Answer picJumper_Answered(Machine& machine, bool ok);

// Cables, cascade card and duplex jumpers by the settings. Only a setting of exactly 1 plugs, fits or means half duplex.
void initConnections(Machine& machine);

// The bench is wide while it has something to show on the right: the cascade card or the PWM panel. In twips.
int formWidth(const Machine& machine);
