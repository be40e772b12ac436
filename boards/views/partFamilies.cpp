// SPDX-License-Identifier: Apache-2.0
#include "boards/views/partFamilies.h"

#include "core/pwmOutput.h"

#include <algorithm>

namespace {

// --- appearances ---------------------------------------------------------------------------------------------------------

Appearance still(const char* images, bool visible = true) {
    return {.images = images, .visible = visible};
}

Appearance two(const char* images, bool second, int first = 1) {
    return {.images = images, .number = second ? first + 1 : first};
}

Appearance ledGreen(const Led& led) {
    return two("ilsLED_G", led.lit);
}

int digitOfSA(const Machine& machine, std::size_t index) {
    const int address = machine.cmbSA[index / 2].listIndex + 1;
    return index % 2 == 0 ? address / 16 : address % 16;
}

Appearance pin(const Machine& machine, std::size_t index) {
    constexpr QPointF outputPlace{-1, 7.5};  // an output of Board No4 is a LED in the middle of its row
    const Pin& state = machine.picPI[index];
    Appearance shown = two(state.output ? "ilsLED_G" : "ilsDIP1", state.level);
    shown.visible = state.visible;
    if (state.output) {
        shown.moved = outputPlace;
        shown.tip = "IO端子接続 LED(緑）";
    }
    return shown;
}

Appearance chip(const Machine& /*machine*/, std::size_t index) {
    constexpr std::array<int, 5> chips{1, 2, 2, 1, 3};  // QDA73 1, QDA41 2, QDA52 3
    return {.images = index == 0 ? "picQDA60" : "picQDA", .number = chips[index]};
}

bool cablePlugged(const Machine& machine, std::size_t cable) {
    return machine.picBOARD2_RXD[linkConnector[cable]].plugged;
}

Appearance upperHalf(const Machine& machine, std::size_t cable) {
    Appearance shown = two("ilsCable", cablePlugged(machine, cable));
    if (cable == 0) {
        shown.moved = {0, static_cast<qreal>(machine.picCableUpTop)};
    }
    return shown;
}

Appearance belt(const Machine& machine, std::size_t /*index*/) {
    constexpr int lamp = 4;
    return {.images = "ilsMotor",
            .number = motorTurns(machine) ? std::max<int>(machine.motorPhase, 1) : lamp + machine.lampLevel};
}

Appearance triangle(const Machine& machine, std::size_t /*index*/) {
    constexpr int pictures = 4;
    return {.images = "ilsTriangle",
            .number = std::max((1 - machine.motorCounter) * pictures + machine.motorStep, 1),
            .visible = motorTurns(machine)};
}

// The strobe of the DI side, and the switches of its timing, go from Board No4 while its PWM panel is there.
bool timingShown(const Machine& machine, std::size_t slotIndex) {
    return slotIndex != slotQDA52 - 1 || !pwmShown(machine);
}

Appearance settingSwitch(const Machine& machine, std::size_t index, const Switch& state) {
    Appearance shown = two("ilsDIP1", state.on, 3);
    shown.visible = timingShown(machine, index);
    return shown;
}

Appearance strobe(const Machine& machine, std::size_t index) {
    const bool input = index % 2 != 0;
    return {.images = "picSTB", .number = input ? 2 : 1, .visible = !input || timingShown(machine, index / 2)};
}

Appearance counter52(const Machine& machine, std::size_t index) {
    Appearance shown = two("ilsCount", machine.picCounter[index].down);
    shown.visible = motorTurns(machine);
    return shown;
}

#define STILL(images) [](const Machine&, std::size_t) { return still(images); }

constexpr std::array<const char*, 4> offOn{"OFF", "ON"};
constexpr std::array<const char*, 4> darkLit{"消灯", "点灯"};
constexpr std::array<const char*, 4> upDown{"離", "押下"};

}  // namespace

// --- families ------------------------------------------------------------------------------------------------------------

namespace family {

const Family picCableDn{.name = "picCableDn",
                        .appearance = [](const Machine& m, std::size_t i) { return two("ilsCable", cablePlugged(m, i), 3); },
                        .states = {"", "", "未接続", "接続"}};
const Family picCableUp{.name = "picCableUp", .appearance = upperHalf, .states = {"未接続", "接続"}};
const Family picCableRole{.name = "picCableRole", .appearance = STILL("picCableRole")};
const Family picBOARD1_RXD{
    .name = "picBOARD1_RXD", .appearance = STILL("picConnector"), .pointer = Pointer::doubleClick, .tip = "コネクタ着脱"};
const Family picBOARD2_RXD{
    .name = "picBOARD2_RXD", .appearance = STILL("picConnector"), .pointer = Pointer::doubleClick, .tip = "コネクタ着脱"};
const Family picNoise{.name = "picNoise",
                      .appearance = [](const Machine& m, std::size_t) { return two("ilsNOISE", m.noiseOn); },
                      .pointer = Pointer::singleClick,
                      .states = upDown};

const Family picPTR{.name = "picPTR",
                    .appearance = [](const Machine& m, std::size_t i) { return still("picPTR", i % 2 == 0 || m.picJumperFull); },
                    .tip = "パルストランス(QPT770-Z)"};
const Family picTRX{.name = "picTRX", .appearance = STILL("picTRX"), .tip = "差動伝送ドライバ／レシーバ"};
const Family picTermR{.name = "picTermR",
                      .appearance = [](const Machine& m, std::size_t i) { return still("picTermR", m.picTermR[i].visible); },
                      .tip = "ターミネーション抵抗"};
const Family picJumper{.name = "picJumper",
                       .appearance = [](const Machine& m, std::size_t) { return two("ilsJumper", !m.picJumperFull); },
                       .pointer = Pointer::doubleClick,
                       .tip = "Full／Half 切替ジャンパ・スイッチ",
                       .states = {"JMP-F", "JMP-H"}};
const Family picReset{.name = "picReset",
                      .appearance = [](const Machine& m, std::size_t i) { return two("ilsRESET", m.picReset[i].down); },
                      .pointer = Pointer::doubleClick,
                      .tip = "リセット押しボタン・スイッチ",
                      .states = upDown};
const Family picQDA{.name = "picQDA", .appearance = chip, .pointer = Pointer::doubleClick};
const Family picClock{.name = "picClock", .appearance = STILL("picClock"), .pointer = Pointer::doubleClick, .tip = "発振器"};
const Family picSA{.name = "picSA",
                   .appearance = [](const Machine& m, std::size_t i) -> Appearance {
                       return {.images = "ilsRSW", .number = digitOfSA(m, i) + 1};
                   },
                   .pointer = Pointer::doubleClick,
                   .tip = "ステーション・アドレス値(SA)の設定"};

const Family picCPU{.name = "picCPU", .appearance = STILL("picCPU"), .pointer = Pointer::doubleClick, .tip = "CPU接続種別選択"};
const Family picInt{.name = "picInt",
                    .appearance = [](const Machine& m, std::size_t) -> Appearance {
                        return {.images = "ilsInt", .number = std::max<int>(m.intLedShown, 1), .visible = m.picInt.visible};
                    },
                    .states = {"", "INT0", "INT1", "INT0 INT1"}};
const Family picScanLed{.name = "picScanLed",
                        .appearance = [](const Machine& m, std::size_t) { return ledGreen(m.picScanLed); },
                        .tip = "スキャン端子接続 LED(緑)",
                        .states = darkLit};
const Family picChkLED{.name = "picChkLED",
                       .appearance = [](const Machine& m, std::size_t i) { return two("ilsLED_R", m.picChkLED[i].lit); },
                       .states = darkLit};

const Family picBPS73{.name = "picBPS73",
                      .appearance = [](const Machine& m, std::size_t) -> Appearance {
                          return {.images = "ilsDIP2", .number = m.cmbBPS73.listIndex + 1};
                      },
                      .pointer = Pointer::doubleClick,
                      .tip = "BPS0,1 端子接続  転送レート設定",
                      .states = {"12Mbps", "6Mbps", "3Mbps", "1.5Mbps"}};
const Family picMON_LED73{.name = "picMON_LED73",
                          .appearance = [](const Machine& m, std::size_t) { return ledGreen(m.picMON_LED73); },
                          .tip = "#MON端子接続 LED(緑)",
                          .states = darkLit};
const Family picMON_LED52{.name = "picMON_LED52",
                          .appearance = [](const Machine& m, std::size_t) { return ledGreen(m.picMON_LED52); },
                          .tip = "#MON端子接続 LED(緑)",
                          .states = darkLit};
const Family picIOS{
    .name = "picIOS",
    .appearance = [](const Machine& m, std::size_t) -> Appearance { return {.images = "ilsDIP3", .number = m.ios52 + 1}; },
    .pointer = Pointer::doubleClick,
    .tip = "IOS0-2端子接続 モード設定"};
const Family picMode{.name = "picMode",
                     .appearance = STILL("picMode"),
                     .pointer = Pointer::doubleClick,
                     .tip = "CM0,1端子接続 カウンタモード設定"};
const Family picBPSS{.name = "picBPSS",
                     .appearance = [](const Machine& m, std::size_t) { return two("ilsDIP1", m.picBPSS.on, 3); },
                     .pointer = Pointer::doubleClick,
                     .tip = "駆動クロック選択用の入力端子",
                     .states = {"", "", "BPSS-L", "BPSS-H"}};

const Family picCounter{.name = "picCounter",
                        .appearance = [](const Machine& m, std::size_t i) { return two("ilsCount", m.picCounter[i].down); },
                        .pointer = Pointer::singleClick,
                        .tip = "16ビット・カウンタ 入力端子接続 プッシュ・スイッチ",
                        .states = upDown};
const Family picCounter52{.name = "picCounter",
                          .appearance = counter52,
                          .pointer = Pointer::singleClick,
                          .tip = "12ビット・カウンタ 入力端子接続 プッシュ・スイッチ",
                          .states = upDown};
const Family fraCounter{.name = "fraCounter",
                        .appearance = [](const Machine& m, std::size_t) { return still("picCounterFrame", motorTurns(m)); }};
const Family picSDI{.name = "picSDI",
                    .appearance = STILL("picSDI"),
                    .pointer = Pointer::doubleClick,
                    .tip = "シリアルデータを入力する回路です。ダブルクリックでデータの入力が可能です。"};
const Family picSE{.name = "picSE",
                   .appearance = [](const Machine& m, std::size_t i) { return ledGreen(m.picSE[i]); },
                   .tip = "SE端子接続 LED(緑)",
                   .states = darkLit};
const Family picSerialInt{.name = "picSerialInt", .appearance = [](const Machine& m, std::size_t i) {
                              return still("picSerialInt", m.picSerialInt[i].visible);
                          }};
const Family picFConn{
    .name = "picFConn", .appearance = STILL("picFConn"), .pointer = Pointer::doubleClick, .tip = "スレーブ基盤接続コネクタ"};
const Family picBridge{.name = "picBridge",
                       .appearance = [](const Machine& m, std::size_t) { return still("picBridge", m.picBridge.visible); },
                       .pointer = Pointer::doubleClick,
                       .tip = "スレーブ基盤接続ケーブル"};
const Family picPWMBridge{.name = "picPWMBridge",
                          .appearance = [](const Machine& m, std::size_t) { return still("picPWMBridge", pwmShown(m)); }};

const Family picSSA{.name = "picSSA",
                    .appearance = [](const Machine& m, std::size_t i) { return settingSwitch(m, i, m.picSSA[i]); },
                    .pointer = Pointer::doubleClick,
                    .tip = "DI取り込みタイミング設定ディップ・スイッチ",
                    .states = {"", "", "0", "1"}};
const Family picSSB{.name = "picSSB",
                    .appearance = [](const Machine& m, std::size_t i) { return settingSwitch(m, i, m.picSSB[i]); },
                    .pointer = Pointer::doubleClick,
                    .tip = "DI取得ハンドシェーク設定ディップ・スイッチ",
                    .states = {"", "", "0", "1"}};
const Family picSTB{.name = "picSTB", .appearance = strobe, .pointer = Pointer::doubleClick};
const Family pinFrames{.name = "pinFrames",
                       .appearance = [](const Machine& m, std::size_t) { return still("picPinFrames", !pwmShown(m)); }};
const Family bitNumbers{.name = "bitNumbers",
                        .appearance = [](const Machine& m, std::size_t) { return still("picBits", !pwmShown(m)); }};
const Family picCWPanel{.name = "picCWPanel",
                        .appearance = [](const Machine& m, std::size_t) { return still("picCWPanel", pwmShown(m)); }};
const Family picCW{.name = "picCW", .appearance = [](const Machine& m, std::size_t i) -> Appearance {
                       return {.images = "picCW", .number = static_cast<int>(i) + 1, .visible = pwmShown(m)};
                   }};
const Family picPI{.name = "picPI",
                   .appearance = pin,
                   .pointer = Pointer::singleClick,
                   .tip = "DI端子接続 入力ディップ・スイッチ",
                   .states = offOn};
const Family picPI52{.name = "picPI",
                     .appearance = pin,
                     .pointer = Pointer::singleClick,
                     .tip = "IO端子接続 入力ディップ・スイッチ",
                     .states = offOn};
const Family picPO{.name = "picPO",
                   .appearance = [](const Machine& m, std::size_t i) { return two("ilsLED_G", m.picPO[i].level); },
                   .tip = "DO端子接続 LED(緑）",
                   .states = darkLit};
const Family picCLR{.name = "picCLR",
                    .appearance = [](const Machine& m, std::size_t i) { return two("ilsCount", m.picCLR[i].down, 3); },
                    .pointer = Pointer::doubleClick,
                    .tip = "DO強制クリア プッシュ・スイッチ",
                    .states = {"", "", "離", "押下"}};

const Family picPower{.name = "picPower",
                      .appearance = [](const Machine& m, std::size_t i) { return ledGreen(m.picPower[i]); },
                      .tip = powerFrameTip.data(),
                      .states = darkLit};
const Family picPWM{.name = "picPWM",
                    .appearance = STILL("picPWM"),
                    .pointer = Pointer::doubleClick,
                    .tip = "PWMモータドライブ回路。ダブルクリックで回路図を表示します。"};
const Family imgBelt{.name = "imgBelt", .appearance = belt};
const Family picTriangle{.name = "picTriangle", .appearance = triangle};

#undef STILL

}  // namespace family
