// SPDX-License-Identifier: Apache-2.0
#include "boards/network.h"

#include "boards/portPins.h"
#include "boards/stationCheck.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

std::string warningOf(const Answer& answer) {
    const auto* warning = std::get_if<Warning>(&answer);
    return warning == nullptr ? std::string() : warning->text;
}

// The links that are whole, the plugged connectors of the center, and the terminators that show, as digits: "123 0 04".
std::string line(const Machine& machine) {
    std::string text;
    for (std::size_t link = 0; link < linkConnector.size(); ++link) {
        text += machine.picBOARD2_RXD[linkConnector[link]].plugged ? std::to_string(link + 1) : "";
    }
    text += " ";
    for (std::size_t number = 0; number < 2; ++number) {
        text += machine.picBOARD1_RXD[number].plugged ? std::to_string(number) : "";
    }
    text += " ";
    for (std::size_t number = 0; number < machine.picTermR.size(); ++number) {
        text += machine.picTermR[number].visible ? std::to_string(number) : "";
    }
    return text;
}

TEST(Cables, every_end_and_half_moves_its_own_cable_and_the_terminators_stand_at_the_ends) {
    using Gesture = Answer (*)(Machine&, std::size_t);
    struct Case {
        Gesture gesture;
        std::size_t index;
        const char* without;
    };
    for (const auto& [gesture, index, without] :
         {Case{picBOARD2_RXD_DblClick, 0, "23  "}, Case{picBOARD2_RXD_DblClick, 1, "13 0 03"},
          Case{picBOARD2_RXD_DblClick, 2, "13 0 03"}, Case{picBOARD2_RXD_DblClick, 3, "12 0 02"},
          Case{picBOARD2_RXD_DblClick, 4, "12 0 02"}, Case{picBOARD2_RXD_DblClick, 5, "123 0 04"},
          Case{picCableUp_Click, 0, "23  "}, Case{picCableUp_Click, 1, "13 0 03"}, Case{picCableUp_Click, 2, "12 0 02"},
          Case{picCableDn_Click, 0, "23  "}, Case{picCableDn_Click, 1, "13 0 03"}, Case{picCableDn_Click, 2, "12 0 02"},
          Case{picBOARD1_RXD_DblClick, 0, "23  "}}) {
        Machine machine = makersMachine();
        gesture(machine, index);
        EXPECT_EQ(line(machine), without) << index;
        gesture(machine, index);
        EXPECT_EQ(line(machine), "123 0 04") << index;
    }
    for (const auto& [out, left] : {std::pair{"12", "3  "}, {"13", "2  "}, {"23", "1 0 03"}, {"123", "  "}}) {
        Machine machine = makersMachine();
        for (const char cable : std::string_view(out)) {
            picCableUp_Click(machine, static_cast<std::size_t>(cable - '1'));
        }
        EXPECT_EQ(line(machine), left);
    }
}

TEST(Cables, cable_0_moves_between_the_centers_connectors_without_a_failed_visit) {
    Machine machine = scanningMachine();
    ticks(machine, 6);
    picBOARD1_RXD_DblClick(machine, 1);
    EXPECT_EQ(line(machine), "123 1 14");
    EXPECT_EQ(machine.picCableUpTop, 62);
    ticks(machine, 40);
    EXPECT_EQ(machine.chipMemory[reg::c1crLow], 0);
    picCableDn_Click(machine, 0);
    EXPECT_EQ(line(machine), "23  ");
    picCableDn_Click(machine, 0);
    EXPECT_EQ(line(machine), "123 1 14") << "the cable remembers its connector";
    picCableUp_Click(machine, 0);
    EXPECT_EQ(line(machine), "23  ");
    picBOARD1_RXD_DblClick(machine, 0);
    EXPECT_EQ(machine.picCableUpTop, 24);

    Machine fresh;
    setUpBench(fresh);
    EXPECT_EQ(line(fresh), "  01234") << "all show until the first gesture";
    picBOARD2_RXD_DblClick(fresh, 0);
    EXPECT_EQ(line(fresh), "1 0 03");
    EXPECT_EQ(fresh.picCableUpTop, 26) << "first plugged at the board it stays where it lay";
}

TEST(CascadeCard, and_the_pwm_panel_widen_the_bench) {
    Machine machine = makersMachine();
    EXPECT_EQ(formWidth(machine), 13330);
    picBridge_DblClick(machine);
    EXPECT_TRUE(formWidth(machine) == 7890 && !machine.picBridge.visible);
    machine.ios52 = 6;
    EXPECT_EQ(formWidth(machine), 13330);
    picFConn_DblClick(machine);
    picFConn_DblClick(machine);
    EXPECT_TRUE(machine.picBridge.visible);
}

TEST(Duplex, is_refused_in_a_scan_asked_and_warned_of) {
    Machine machine = makersMachine();
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        machine.*scan = true;
        EXPECT_EQ(picJumper_DblClick(machine), Answer(Popup{"スキャン中の変更は禁止です。"}));
        machine.*scan = false;
    }
    EXPECT_EQ(picJumper_DblClick(machine), Answer(Warning{"すべてのボードの通信方式を切り替えます。\nよろしいですか？",
                                                          "切り替え確認", Warning::Kind::okCancel}));
    const Answer mismatch = Warning{"設定がＱＤＡ６０のレジスタ設定と一致していません。"};
    // OK or not, and the jumpers afterwards. A cancel is warned as well.
    for (const auto& [ok, duplexBit] : Rows<2>{{0, 16}, {1, 0}, {0, 0}, {1, 16}, {1, 0}}) {
        EXPECT_EQ(picJumper_Answered(machine, ok != 0), duplexBit == 0 ? mismatch : Answer());
        EXPECT_EQ(machine.duplexBit, duplexBit);
        EXPECT_EQ(machine.picJumperFull, duplexBit == 16);
    }
    resetRegisters(machine);
    EXPECT_EQ(machine.duplexBit, 16);
    EXPECT_FALSE(machine.picJumperFull) << "a reset leaves the jumpers as they are drawn";
}

TEST(DoubledAddresses, are_named_by_slot_first_pair_first_when_the_start_up_is_done) {
    // SA of Board No2, No1 and No4, the card, an open link or 0, and the pair of slots as digits. The line is read link by
    // link: Board No2 counts by link 1, Board No1 by link 2, Board No4 by link 3.
    for (const auto& [sa41, sa73, sa52, card, openLink, pair] :
         {Row<6>{2, 1, 4, 1, 0, 0}, Row<6>{5, 5, 9, 0, 0, 13}, Row<6>{5, 1, 6, 1, 0, 25}, Row<6>{5, 1, 6, 0, 0, 0},
          Row<6>{5, 6, 9, 1, 0, 23}, Row<6>{7, 7, 7, 0, 0, 13}, Row<6>{5, 9, 9, 0, 0, 35}, Row<6>{5, 1, 5, 0, 3, 0},
          Row<6>{5, 5, 9, 0, 2, 0}, Row<6>{5, 5, 9, 0, 1, 0}, Row<6>{5, 9, 9, 0, 1, 35}, Row<6>{5, 6, 9, 1, 1, 0},
          Row<6>{4, 1, 4, 1, 2, 15}, Row<6>{1, 2, 3, 1, 0, 23}}) {
        SCOPED_TRACE(testing::Message() << sa41 << " " << sa73 << " " << sa52 << " open " << openLink);
        Machine machine = makersMachine();
        machine.picBridge.visible = card != 0;
        cmbSA_LostFocus(machine, saQDA41, sa41 - 1);
        cmbSA_LostFocus(machine, saQDA73, sa73 - 1);
        plug(machine, std::max(openLink, 1), openLink == 0);
        const std::string text = "ボード" + std::to_string(pair / 10) + "と、ボード" + std::to_string(pair % 10) +
                                 "のＳＡが重複しています｡正常な通信が行えません｡ ";
        EXPECT_EQ(warningOf(cmbSA_LostFocus(machine, saQDA52, sa52 - 1)), pair == 0 ? "" : text);
        EXPECT_EQ(warningOf(chkSADup(machine)), pair == 0 ? "" : text);
        machine.startupDone = false;
        EXPECT_EQ(chkSADup(machine), Answer());
    }
    // With all boards on one address every gesture that may bring two stations together asks.
    Machine machine = makersMachine();
    for (const BoardIndex board : {saQDA41, saQDA73, saQDA52}) {
        cmbSA_LostFocus(machine, board, 6);
    }
    for (const Answer& answer : {picBridge_DblClick(machine), picFConn_DblClick(machine), cmbIOS_LostFocus(machine, 0),
                                 picBOARD1_RXD_DblClick(machine, 1), picCableDn_Click(machine, 2)}) {
        EXPECT_NE(warningOf(answer), "");
    }
}

}  // namespace
