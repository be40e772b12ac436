#include "boards/network.h"

#include "boards/stationCheck.h"
#include "tests/bench.h"

#include <gtest/gtest.h>

namespace {

std::string warningOf(const Answer& answer) {
    const auto* warning = std::get_if<Warning>(&answer);
    return warning == nullptr ? std::string() : warning->text;
}

// The terminators that show, as digits.
std::string terminators(const Machine& machine) {
    std::string text;
    for (std::size_t number = 0; number < machine.picTermR.size(); ++number) {
        text += machine.picTermR[number].visible ? std::to_string(number) : "";
    }
    return text;
}

// The links that are whole, as digits 1 to 3.
std::string links(const Machine& machine) {
    std::string text;
    for (std::size_t link = 0; link < linkConnector.size(); ++link) {
        text += machine.picBOARD2_RXD[linkConnector[link]].plugged ? std::to_string(link + 1) : "";
    }
    return text;
}

TEST(Cables, every_end_and_half_moves_its_own_cable) {
    const std::array<std::string, 6> withoutIt{"23", "13", "13", "12", "12", "123"};
    for (std::size_t connector = 0; connector < 6; ++connector) {
        Machine machine = makersMachine();
        picBOARD2_RXD_DblClick(machine, connector);
        EXPECT_EQ(links(machine), withoutIt[connector]) << "connector " << connector;
        picBOARD2_RXD_DblClick(machine, connector);
        EXPECT_EQ(links(machine), "123");
    }
    const std::array<std::string, 3> withoutCable{"23", "13", "12"};
    for (std::size_t cable = 0; cable < 3; ++cable) {
        for (const auto click : {picCableUp_Click, picCableDn_Click}) {
            Machine machine = makersMachine();
            click(machine, cable);
            EXPECT_EQ(links(machine), withoutCable[cable]);
            click(machine, cable);
            EXPECT_EQ(links(machine), "123");
        }
    }
}

TEST(Cables, terminators_stand_at_the_two_ends_of_the_line) {
    const std::array<std::string, 8> expected{"", "03", "", "02", "", "03", "", "04"};  // by link bits 1, 2, 4
    for (std::size_t whole = 0; whole < 8; ++whole) {
        Machine machine = makersMachine();
        for (std::size_t link = 0; link < 3; ++link) {
            if ((whole >> link & 1) == 0) {
                picCableUp_Click(machine, link);
            }
        }
        EXPECT_EQ(terminators(machine), expected[whole]) << "links " << links(machine);
    }
    Machine untouched;
    Mdef_Set(untouched);
    untouched.cableConnectionDefault = 0;
    setUpBench(untouched);
    EXPECT_EQ(terminators(untouched), "01234") << "all show until the first gesture";
    picBOARD2_RXD_DblClick(untouched, 5);
    EXPECT_EQ(terminators(untouched), "");
}

TEST(Cables, cable_0_moves_between_the_centers_connectors_without_a_failed_visit) {
    Machine machine = scanningMachine();
    ticks(machine, 6);
    picBOARD1_RXD_DblClick(machine, 1);
    EXPECT_TRUE(machine.picBOARD1_RXD[1].plugged && !machine.picBOARD1_RXD[0].plugged);
    EXPECT_EQ(machine.picCableUpTop, 62);
    EXPECT_EQ(terminators(machine), "14");
    ticks(machine, 40);
    EXPECT_EQ(machine.chipMemory[reg::c1crLow], 0);

    picCableDn_Click(machine, 0);
    EXPECT_EQ(links(machine), "23");
    EXPECT_FALSE(machine.picBOARD1_RXD[0].plugged || machine.picBOARD1_RXD[1].plugged);
    picCableDn_Click(machine, 0);
    EXPECT_TRUE(machine.picBOARD1_RXD[1].plugged) << "the cable remembers its connector";
    picCableUp_Click(machine, 0);
    EXPECT_FALSE(machine.picBOARD1_RXD[1].plugged);
    picBOARD1_RXD_DblClick(machine, 0);
    EXPECT_EQ(machine.picCableUpTop, 24);

    Machine fresh;
    setUpBench(fresh);
    picBOARD2_RXD_DblClick(fresh, 0);
    EXPECT_TRUE(fresh.picBOARD1_RXD[0].plugged);
    EXPECT_EQ(fresh.picCableUpTop, 26) << "first plugged at the board it stays where it lay";
}

TEST(CascadeCard, answers_on_the_next_address_and_widens_the_bench) {
    Machine machine = scanningMachine();
    EXPECT_EQ(formWidth(machine), 13330);
    picBridge_DblClick(machine);
    EXPECT_EQ(formWidth(machine), 7890);
    ticks(machine, 4);
    EXPECT_EQ(statusOf(machine, 3), 0x14);
    picFConn_DblClick(machine);
    picFConn_DblClick(machine);
    ticks(machine, 4);
    EXPECT_EQ(statusOf(machine, 3), 0);
    picBridge_DblClick(machine);
    machine.ios52 = 6;
    EXPECT_EQ(formWidth(machine), 13330) << "the PWM panel wants the room too";
}

TEST(Duplex, is_refused_in_a_scan_asked_and_warned_of) {
    for (bool Machine::*scan : {&Machine::scanRunning, &Machine::scanOneShot}) {
        Machine machine = makersMachine();
        machine.*scan = true;
        EXPECT_EQ(picJumper_DblClick(machine), Answer(Popup{"スキャン中の変更は禁止です。"}));
    }
    Machine machine = makersMachine();
    const Answer question = picJumper_DblClick(machine);
    EXPECT_EQ(question, Answer(Warning{"すべてのボードの通信方式を切り替えます。\nよろしいですか？", "切り替え確認",
                                       Warning::Kind::okCancel}));
    EXPECT_EQ(picJumper_Answered(machine, false), Answer());
    EXPECT_EQ(machine.duplexBit, 16);
    const Answer mismatch = Warning{"設定がＱＤＡ６０のレジスタ設定と一致していません。"};
    EXPECT_EQ(picJumper_Answered(machine, true), mismatch);
    EXPECT_EQ(machine.duplexBit, 0);
    EXPECT_FALSE(machine.picJumperFull);
    EXPECT_EQ(picJumper_Answered(machine, false), mismatch) << "a cancel is warned as well";
    EXPECT_EQ(picJumper_Answered(machine, true), Answer());

    picJumper_Answered(machine, true);
    resetRegisters(machine);
    EXPECT_EQ(machine.duplexBit, 16);
    EXPECT_FALSE(machine.picJumperFull) << "a reset leaves the jumpers as they are drawn";
}

TEST(DoubledAddresses, are_named_by_slot_first_pair_first) {
    const auto text = [](int first, int second) {
        return "ボード" + std::to_string(first) + "と、ボード" + std::to_string(second) +
               "のＳＡが重複しています｡正常な通信が行えません｡ ";
    };
    struct Row {
        int sa41, sa73, sa52;
        bool card;
        int openLink;  // 0 for none
        std::string warning;
    };
    for (const Row& row : {
             Row{2, 1, 4, true, 0, ""},
             Row{5, 5, 9, false, 0, text(1, 3)},
             Row{5, 1, 6, true, 0, text(2, 5)},
             Row{5, 1, 6, false, 0, ""},
             Row{5, 6, 9, true, 0, text(2, 3)},
             Row{7, 7, 7, false, 0, text(1, 3)},
             Row{5, 9, 9, false, 0, text(3, 5)},
             Row{5, 1, 5, false, 3, ""},
             Row{5, 5, 9, false, 2, ""},  // Board No1 counts by link 2
             Row{5, 5, 9, false, 1, ""},  // Board No2 by link 1
             Row{5, 9, 9, false, 1, text(3, 5)},
         }) {
        Machine machine = makersMachine();
        machine.picBridge.visible = row.card;
        cmbSA_LostFocus(machine, saQDA41, row.sa41 - 1);
        cmbSA_LostFocus(machine, saQDA73, row.sa73 - 1);
        if (row.openLink != 0) {
            unplug(machine, row.openLink);
        }
        EXPECT_EQ(warningOf(cmbSA_LostFocus(machine, saQDA52, row.sa52 - 1)), row.warning)
            << row.sa41 << " " << row.sa73 << " " << row.sa52 << " open " << row.openLink;
    }
    Machine starting;
    EXPECT_EQ(chkSADup(starting), Answer());
    setUpBench(starting);  // no settings: all boards on SA 1
    EXPECT_EQ(warningOf(picCableUp_Click(starting, 0)), "") << "silent until the start-up is done";
    starting.startupDone = true;
    EXPECT_EQ(warningOf(picCableUp_Click(starting, 1)), text(1, 3)) << "the first gesture afterwards warns";
    EXPECT_EQ(warningOf(picCableUp_Click(starting, 0)), "") << "Board No2 counts by link 1";
}

TEST(DoubledAddresses, with_all_cables_out_the_line_is_read_tag_by_tag) {
    Machine machine = makersMachine();
    cmbSA_LostFocus(machine, saQDA41, 3);
    unplug(machine, 2);
    EXPECT_EQ(warningOf(chkSADup(machine)), "ボード1と、ボード5のＳＡが重複しています｡正常な通信が行えません｡ ")
        << "Board No4 counts by link 3 though link 2 is open";
}

}  // namespace
