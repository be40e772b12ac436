// SPDX-License-Identifier: Apache-2.0
// Short scenes in the words of aids/tourLanguage.h: what the windows answer, in cases that no tour comes to. Each begins on the
// maker's bench with the scan running, the register window and the first memory window open.

#include "tests/views/desk.h"

namespace {

struct Scene {
    const char* name;
    const char* text;
};

const Scene scenes[]{
    {"a_single_click_does_nothing_where_two_are_wanted",
     "click picBPSS ; click picSSA 1 ; click picSSB 2 ; click picReset 3 ; click picCLR 1 ; click picJumper ; click picQDA 1 ; "
     "click picSDI ; silent ; image picBPSS = 3 ; image picSSA 1 = 3 ; image picSSB 2 = 3 ; hidden diagram ; hidden chart"},
    {"fast_clicks_lose_no_press",
     "dblclick picPI 0 ; dblclick picPI 0 ; click picPI 0 ; image picPI 0 = 2 ; dblclick picCounter 2 ; dblclick picCounter 2 ; "
     "click picCounter 2 ; set 004 0030 ; wait 1 ; mem 284 0005"},
    {"either_half_of_a_cable_and_either_connector_pulls_it",
     "click picCableDn 1 ; image picCableDn 1 = 3 ; image picCableUp 1 = 1 ; wait 1 ; mem 005 7C ; click picCableDn 1 ; "
     "image picCableDn 1 = 4 ; wait 1 ; mem 005 00 ; dblclick picBOARD2_RXD 0 ; image picCableDn 0 = 3 ; hidden picTermR 1 ; "
     "dblclick picBOARD2_RXD 0 ; dblclick picBOARD1_RXD 1 ; image picCableUp 0 = 2 ; mem 005 00"},
    {"the_end_of_the_line_has_no_cable", "dblclick picBOARD2_RXD 5 ; wait 1 ; silent ; mem 008 0000"},
    {"outputs_are_no_switches",
     "dblclick picIOS ; pick cmbIOS = 2 DI= 8bit DO= 8bit ; click picPI 72 ; click picPI 64 ; wait 1 ; mem 108 0001"},
    {"duplex_is_asked_for_and_may_be_left",
     "dblclick picJumper 2 ; says スキャン中の変更は禁止です。 ; wait 2 ; dblclick picReset 0 ; dblclick picJumper 2 ; "
     "says すべてのボードの通信方式を切り替えます。 ; cancel ; silent ; image picJumper 2 = 1 ; dblclick picJumper 3 ; ok ; "
     "says 設定がＱＤＡ６０のレジスタ設定と一致していません。 ; ok ; image picJumper 1 = 2 ; label lblHF 2 = JMP-H"},
    {"an_address_of_two_digits_on_every_board",
     "dblclick picSA 1 ; pick cmbSA = 0x10 ; sa 2 10 ; sa 3 11 ; image picSA 0 = 2 ; image picSA 1 = 1 ; dblclick picSA 5 ; "
     "pick cmbSA 2 = 0x3F ; sa 4 3F ; image picSA 4 = 4 ; image picSA 5 = 16 ; dblclick picSA 3 ; pick cmbSA 1 = 0x21 ; sa 1 21"},
    {"every_chip_has_its_diagram_and_an_open_one_follows",
     "dblclick picQDA 0 ; label diagram = QDA60_FULL_16BIT ; dblclick picQDA 2 ; label diagram = QDA41_NEST ; "
     "dblclick picQDA 3 ; label diagram = QDA73_FULL ; dblclick picQDA 4 ; label diagram = QDA52_IOS_5 ; "
     "dblclick picCPU ; pick cmbCPUType = 8bit-Bus Big ; label diagram = QDA52_IOS_5 ; "
     "dblclick picIOS ; pick cmbIOS = 7 DI= 4bit DO= 4bit & PWM + Counter ; label diagram = QDA52_IOS_7 ; "
     "dblclick picBridge ; hidden diagram ; dblclick picPWM ; label diagram = QDA52_IOS_7 ; dblclick picQDA 1 ; "
     "label diagram = QDA41_FULL ; dblclick picFConn ; label diagram = QDA41_FULL_NEST"},
    {"the_read_dialog_is_for_an_8_bit_bus",
     "open read ; says ８ビットバス選択時のみ機能します ; hidden read ; dblclick picCPU ; pick cmbCPUType = 8bit-Bus Little ; "
     "open read ; key Escape ; hidden read ; open read ; shown read ; read 58E ; got 13 ; key Escape ; open read ; got 13 ; "
     "open chooser ; press chooser = Window All Close ; hidden read ; open read ; dblclick picCPU ; "
     "pick cmbCPUType = 8bit-Bus Big ; shown read ; dblclick picCPU ; pick cmbCPUType = 16bit-Bus Big ; hidden read"},
    {"registers_that_cannot_be_written_say_so_and_a_dialog_takes_that_away",
     "point SSR ; says このレジスタはリードオンリーです。 ; point BCR ; says スキャン中はライトプロテクト。 ; point HPR ; silent "
     "; "
     "key Escape ; write SCR 0404 ; says 入力された値が不適切であるため、書き込まれません。 ; reg SCR 0004 ; "
     "write HPR FFFF ; reg HPR 1010 ; reg INT0R 0000 ; point CC ; key 1 ; key Return ; silent ; mem 000 0000"},
    {"memory_that_is_protected_says_so",
     "set 004 FF11 ; says スキャン中、コントロールワードの上位バイトはライトプロテクト。 ; mem 004 0011 ; dblclick picCPU ; "
     "pick cmbCPUType = 8bit-Bus Little ; double 005 ; says スキャン中、コントロールワードの上位バイトはライトプロテクト ; "
     "double 104 ; says スキャン中はライトプロテクト ; double 082 ; silent ; label keyboard = value ; key Escape"},
    {"the_chooser_leads_to_every_window_and_closes_them_all",
     "open c1c7 ; hidden chooser ; open drc ; open control ; shown c1c7 ; shown drc ; open chooser ; shown chooser ; open "
     "chooser ; "
     "hidden chooser ; open chooser ; press chooser = Window All Close ; hidden chooser ; hidden c1c7 ; hidden drc ; "
     "hidden control ; hidden register ; open register ; shown register ; open drc ; shown drc ; close drc ; hidden drc ; "
     "open drc ; shown drc"},
    {"a_hint_page_for_what_the_learner_looks_at",
     "open hint ; ticked hint = SCR ; write SCR 0000 ; wait 1 ; point BCR ; ticked hint = BCR ; write C2CR 0000 ; ticked hint = "
     "C1CR C2CR ; double 004 ; "
     "key Escape ; ticked hint = コントロールワード ; key Escape ; press hint = INT0R ; ticked hint = INT0R ; close hint ; "
     "point HPR ; key Escape ; open hint ; ticked hint = INT0R"},
    // The ways of the keyboard. What it goes to is named as it is spoken.
    {"return_presses_the_button_that_has_it",
     "write SCR 0000 ; wait 1 ; point HPR ; key 1 ; key Return ; reg HPR 1000 ; point HPR ; key 0 ; key Tab ; key Return ; "
     "reg HPR 0000 ; point HPR ; key 1 ; key Tab ; key Tab ; key Return ; reg HPR 0000 ; double 082 ; key 1 ; key Tab ; key "
     "Return ; "
     "mem 082 1000 ; double 082 ; key 2 ; key Tab ; key Tab ; key Return ; mem 082 1000 ; double 082 ; key 3 ; key Return ; mem "
     "082 3000"},
    {"return_reads_or_closes_in_the_read_dialog",
     "dblclick picCPU ; pick cmbCPUType = 8bit-Bus Little ; open read ; key 5 ; key 8 ; key E ; key Tab ; key Tab ; key Return ; "
     "hidden read ; open read ; key 5 ; key 8 ; key E ; key Tab ; key Return ; got 13 ; key 5 ; key 9 ; key 0 ; key Return ; got "
     "51"},
    {"an_option_chosen_by_arrow_key_leads_on_to_the_value",
     "write SCR 0000 ; wait 1 ; write HPR 1010 ; point HPR ; label keyboard = value ; key Tab ; key Tab ; key Tab ; key Down ; "
     "label keyboard = value ; key 0 ; key 0 ; key Return ; reg HPR 1000"},
    {"the_keyboard_is_where_it_was_when_the_chooser_has_gone",
     "open chooser ; key Up ; key Down ; key Escape ; hidden chooser ; label keyboard = HardWare ; key Return ; "
     "image picCableUp 0 = 2 ; key F6 ; label keyboard = Register Window ; key Tab ; key Return ; key Down ; key Return ; "
     "hidden chooser ; shown c1c7 ; label keyboard = Memory dump - C1～C7"},
    {"the_chooser_goes_round_by_arrow_key",
     "open chooser ; key Up ; key Return ; hidden register ; open chooser ; key Down ; "
     "key Return ; shown control"},
    {"the_chooser_goes_when_the_learner_turns_elsewhere",
     "open chooser ; front control ; hidden chooser ; open chooser ; click picPI 0 ; hidden chooser ; open chooser ; mode RUN ; "
     "hidden chooser ; open chooser ; open version ; hidden chooser ; wait 3 ; hidden version ; open settings ; open chooser ; "
     "press settings = 今すぐ設定 ; hidden chooser"},
    {"keys_lead_to_the_strip_and_from_window_to_window",
     "open hint ; click picPI 0 ; key F6 ; label keyboard = Register Window ; key F6 ; label keyboard = picPI 0 ; key Ctrl+Tab ; "
     "label keyboard = Memory dump - Control + DI + DO ; key Ctrl+Tab ; key PgDown ; ticked hint = SSR ; key Ctrl+Tab ; "
     "label keyboard = SCR 15-8 ; key Ctrl+Tab ; label keyboard = picPI 0 ; key Ctrl+F6 ; "
     "label keyboard = Memory dump - Control + DI + DO ; key Ctrl+Shift+F6 ; label keyboard = picPI 0 ; key Ctrl+Shift+Tab ; "
     "label keyboard = SCR 15-8 ; key Ctrl+Shift+Tab ; key PgUp ; ticked hint = SCR"},
    {"arrow_keys_lead_over_the_registers",
     "point SSR ; label keyboard = SSR 7-0 ; key Up ; label keyboard = SCR 7-0 ; key Up ; key Left ; label keyboard = SCR 15-8 ; "
     "key Left ; label keyboard = SCR 15-8 ; key Right ; key Right ; key Right ; key Right ; key Down ; label keyboard = SSR 7-0 "
     "; "
     "key Left ; label keyboard = SSR 15-8 ; key Left ; label keyboard = SSR 7-0"},
    {"page_keys_turn_the_hints_and_Escape_closes_the_window_at_work",
     "open hint ; key PgDown ; ticked hint = SSR ; key PgUp ; ticked hint = SCR ; key PgUp ; ticked hint = CC ; key PgDown ; "
     "ticked hint = SCR ; key Escape ; hidden hint ; shown control"},
};

class Scenes : public Desk, public testing::WithParamInterface<Scene> {};

TEST_P(Scenes, hold) {
    giveFolder(VRB_BIN "/HintData");
    startAtBench(withDump);
    play(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(, Scenes, testing::ValuesIn(scenes), [](const auto& scene) { return std::string(scene.param.name); });

}  // namespace
