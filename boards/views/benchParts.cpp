#include "boards/views/benchParts.h"

#include "boards/boardSet.h"
#include "core/pwmOutput.h"

#include <algorithm>

namespace {

constexpr std::size_t center = 0;
constexpr std::size_t board1 = 3;
constexpr std::size_t board2 = 1;
constexpr std::size_t board3 = 2;
constexpr std::size_t board4 = 5;
constexpr std::size_t panel = 6;

// --- pictures by state -------------------------------------------------------------------------------------------------

Look two(const char* images, bool second, int first = 1) {
    return {images, second ? first + 1 : first};
}

Look ledGreen(const Led& led) {
    return two("ilsLED_G", led.lit);
}

int digitOfSA(const Machine& machine, std::size_t index) {
    const int address = machine.cmbSA[index / 2].listIndex + 1;
    return index % 2 == 0 ? address / 16 : address % 16;
}

Look lookOfPin(const Machine& machine, std::size_t index) {
    constexpr QPointF outputPlace{-1, 7.5};  // an output of Board No4 is a LED in the middle of its row
    const Pin& pin = machine.picPI[index];
    return pin.output ? Look{"ilsLED_G", pin.level ? 2 : 1, pin.visible, outputPlace, "IO端子接続 LED(緑）"}
                      : Look{"ilsDIP1", pin.level ? 2 : 1, pin.visible};
}

Look lookOfChip(const Machine& /*machine*/, std::size_t index) {
    constexpr std::array<int, 5> chip{1, 2, 2, 1, 3};  // QDA73 1, QDA41 2, QDA52 3
    return {index == 0 ? "picQDA60" : "picQDA", chip[index]};
}

bool cablePlugged(const Machine& machine, std::size_t cable) {
    return machine.picBOARD2_RXD[linkConnector[cable]].plugged;
}

Look lookOfUpperHalf(const Machine& machine, std::size_t cable) {
    Look look = two("ilsCable", cablePlugged(machine, cable));
    if (cable == 0) {
        look.moved = {0, static_cast<qreal>(machine.picCableUpTop)};
    }
    return look;
}

Look lookOfBelt(const Machine& machine, std::size_t /*index*/) {
    constexpr int lamp = 4;
    return {"ilsMotor", motorTurns(machine) ? std::max<int>(machine.motorPhase, 1) : lamp + machine.lampLevel};
}

Look lookOfTriangle(const Machine& machine, std::size_t /*index*/) {
    constexpr int pictures = 4;
    return {"ilsTriangle", std::max((1 - machine.motorCounter) * pictures + machine.motorStep, 1), motorTurns(machine)};
}

// The strobe of the DI side, and the switches of its timing, go from Board No4 while its PWM panel is there.
bool timingShown(const Machine& machine, std::size_t slotIndex) {
    return slotIndex != slotQDA52 - 1 || !pwmShown(machine);
}

Look settingSwitch(const Machine& machine, std::size_t index, const Switch& state) {
    Look look = two("ilsDIP1", state.on, 3);
    look.visible = timingShown(machine, index);
    return look;
}

#define STILL(images, number) [](const Machine&, std::size_t) { return Look{images, number}; }

// --- families ------------------------------------------------------------------------------------------------------------

constexpr std::array<const char*, 4> offOn{"OFF", "ON"};
constexpr std::array<const char*, 4> darkLit{"消灯", "点灯"};
constexpr std::array<const char*, 4> upDown{"離", "押下"};

constexpr Family picCableDn{"picCableDn",
                            [](const Machine& m, std::size_t i) { return two("ilsCable", cablePlugged(m, i), 3); },
                            Pointer::arrow,
                            "",
                            {"", "", "未接続", "接続"}};
constexpr Family picCableUp{"picCableUp", lookOfUpperHalf, Pointer::arrow, "", {"未接続", "接続"}};
constexpr Family picCableRole{"picCableRole", STILL("picCableRole", 1)};
constexpr Family picBOARD1_RXD{"picBOARD1_RXD", STILL("picConnector", 1), Pointer::doubleClick, "コネクタ着脱"};
constexpr Family picBOARD2_RXD{"picBOARD2_RXD", STILL("picConnector", 1), Pointer::doubleClick, "コネクタ着脱"};
constexpr Family picPTR{"picPTR",
                        [](const Machine& m, std::size_t i) {
                            return Look{"picPTR", 1, i % 2 == 0 || m.picJumperFull};
                        },
                        Pointer::arrow, "パルストランス(QPT770-Z)"};
constexpr Family picTRX{"picTRX", STILL("picTRX", 1), Pointer::arrow, "差動伝送ドライバ／レシーバ"};
constexpr Family picTermR{"picTermR",
                          [](const Machine& m, std::size_t i) {
                              return Look{"picTermR", 1, m.picTermR[i].visible};
                          },
                          Pointer::arrow, "ターミネーション抵抗"};
constexpr Family picJumper{"picJumper",
                           [](const Machine& m, std::size_t) { return two("ilsJumper", !m.picJumperFull); },
                           Pointer::doubleClick,
                           "Full／Half 切替ジャンパ・スイッチ",
                           {"JMP-F", "JMP-H"}};
constexpr Family picReset{"picReset", [](const Machine& m, std::size_t i) { return two("ilsRESET", m.picReset[i].down); },
                          Pointer::doubleClick, "リセット押しボタン・スイッチ", upDown};
constexpr Family picQDA{"picQDA", lookOfChip, Pointer::doubleClick};
constexpr Family picClock{"picClock", STILL("picClock", 1), Pointer::doubleClick, "発振器"};
constexpr Family picSA{"picSA",
                       [](const Machine& m, std::size_t i) {
                           return Look{"ilsRSW", digitOfSA(m, i) + 1};
                       },
                       Pointer::doubleClick, "ステーション・アドレス値(SA)の設定"};
constexpr Family picCPU{"picCPU", STILL("picCPU", 1), Pointer::doubleClick, "CPU接続種別選択"};
constexpr Family picInt{"picInt",
                        [](const Machine& m, std::size_t) {
                            return Look{"ilsInt", std::max<int>(m.intLedShown, 1), m.picInt.visible};
                        },
                        Pointer::arrow,
                        "",
                        {"", "INT0", "INT1", "INT0 INT1"}};
constexpr Family picScanLed{"picScanLed", [](const Machine& m, std::size_t) { return ledGreen(m.picScanLed); }, Pointer::arrow,
                            "スキャン端子接続 LED(緑)", darkLit};
constexpr Family picChkLED{"picChkLED", [](const Machine& m, std::size_t i) { return two("ilsLED_R", m.picChkLED[i].lit); },
                           Pointer::arrow, "", darkLit};
constexpr Family picMON_LED73{"picMON_LED73", [](const Machine& m, std::size_t) { return ledGreen(m.picMON_LED73); },
                              Pointer::arrow, "#MON端子接続 LED(緑)", darkLit};
constexpr Family picMON_LED52{"picMON_LED52", [](const Machine& m, std::size_t) { return ledGreen(m.picMON_LED52); },
                              Pointer::arrow, "#MON端子接続 LED(緑)", darkLit};
constexpr Family picBPS73{"picBPS73",
                          [](const Machine& m, std::size_t) {
                              return Look{"ilsDIP2", m.cmbBPS73.listIndex + 1};
                          },
                          Pointer::doubleClick,
                          "BPS0,1 端子接続  転送レート設定",
                          {"12Mbps", "6Mbps", "3Mbps", "1.5Mbps"}};
constexpr Family picCounter{"picCounter", [](const Machine& m, std::size_t i) { return two("ilsCount", m.picCounter[i].down); },
                            Pointer::singleClick, "16ビット・カウンタ 入力端子接続 プッシュ・スイッチ", upDown};
constexpr Family picCounter52{"picCounter",
                              [](const Machine& m, std::size_t i) {
                                  Look look = two("ilsCount", m.picCounter[i].down);
                                  look.visible = motorTurns(m);
                                  return look;
                              },
                              Pointer::singleClick, "12ビット・カウンタ 入力端子接続 プッシュ・スイッチ", upDown};
constexpr Family fraCounter{"fraCounter", [](const Machine& m, std::size_t) {
                                return Look{"picCounterFrame", 1, motorTurns(m)};
                            }};
constexpr Family picSDI{"picSDI", STILL("picSDI", 1), Pointer::doubleClick,
                        "シリアルデータを入力する回路です。ダブルクリックでデータの入力が可能です。"};
constexpr Family picSE{"picSE", [](const Machine& m, std::size_t i) { return ledGreen(m.picSE[i]); }, Pointer::arrow,
                       "SE端子接続 LED(緑)", darkLit};
constexpr Family picSerialInt{"picSerialInt", [](const Machine& m, std::size_t i) {
                                  return Look{"picSerialInt", 1, m.picSerialInt[i].visible};
                              }};
constexpr Family picFConn{"picFConn", STILL("picFConn", 1), Pointer::doubleClick, "スレーブ基盤接続コネクタ"};
constexpr Family picBridge{"picBridge",
                           [](const Machine& m, std::size_t) {
                               return Look{"picBridge", 1, m.picBridge.visible};
                           },
                           Pointer::doubleClick, "スレーブ基盤接続ケーブル"};
constexpr Family picPWMBridge{"picPWMBridge", [](const Machine& m, std::size_t) { return Look{"picPWMBridge", 1, pwmShown(m)}; }};
constexpr Family picIOS{"picIOS",
                        [](const Machine& m, std::size_t) {
                            return Look{"ilsDIP3", m.ios52 + 1};
                        },
                        Pointer::doubleClick, "IOS0-2端子接続 モード設定"};
constexpr Family picMode{"picMode", STILL("picMode", 1), Pointer::doubleClick, "CM0,1端子接続 カウンタモード設定"};
constexpr Family picBPSS{"picBPSS",
                         [](const Machine& m, std::size_t) { return two("ilsDIP1", m.picBPSS.on, 3); },
                         Pointer::doubleClick,
                         "駆動クロック選択用の入力端子",
                         {"", "", "BPSS-L", "BPSS-H"}};
constexpr Family picSSA{"picSSA",
                        [](const Machine& m, std::size_t i) { return settingSwitch(m, i, m.picSSA[i]); },
                        Pointer::doubleClick,
                        "DI取り込みタイミング設定ディップ・スイッチ",
                        {"", "", "0", "1"}};
constexpr Family picSSB{"picSSB",
                        [](const Machine& m, std::size_t i) { return settingSwitch(m, i, m.picSSB[i]); },
                        Pointer::doubleClick,
                        "DI取得ハンドシェーク設定ディップ・スイッチ",
                        {"", "", "0", "1"}};
constexpr Family picSTB{"picSTB",
                        [](const Machine& m, std::size_t i) {
                            return i % 2 == 0 ? Look{"picSTB", 1} : Look{"picSTB", 2, timingShown(m, i / 2)};
                        },
                        Pointer::doubleClick};
constexpr Family pinFrames{"pinFrames", [](const Machine& m, std::size_t) { return Look{"picPinFrames", 1, !pwmShown(m)}; }};
constexpr Family bitNumbers{"bitNumbers", [](const Machine& m, std::size_t) { return Look{"picBits", 1, !pwmShown(m)}; }};
constexpr Family picCWPanel{"picCWPanel", [](const Machine& m, std::size_t) { return Look{"picCWPanel", 1, pwmShown(m)}; }};
constexpr Family picCW{"picCW", [](const Machine& m, std::size_t i) {
                           return Look{"picCW", static_cast<int>(i) + 1, pwmShown(m)};
                       }};
constexpr Family picPI{"picPI", lookOfPin, Pointer::singleClick, "DI端子接続 入力ディップ・スイッチ", offOn};
constexpr Family picPI52{"picPI", lookOfPin, Pointer::singleClick, "IO端子接続 入力ディップ・スイッチ", offOn};
constexpr Family picPO{"picPO", [](const Machine& m, std::size_t i) { return two("ilsLED_G", m.picPO[i].level); }, Pointer::arrow,
                       "DO端子接続 LED(緑）", darkLit};
constexpr Family picCLR{"picCLR",
                        [](const Machine& m, std::size_t i) { return two("ilsCount", m.picCLR[i].down, 3); },
                        Pointer::doubleClick,
                        "DO強制クリア プッシュ・スイッチ",
                        {"", "", "離", "押下"}};
constexpr Family picPower{"picPower", [](const Machine& m, std::size_t i) { return ledGreen(m.picPower[i]); }, Pointer::arrow,
                          powerFrameTip.data(), darkLit};
constexpr Family picPWM{"picPWM", STILL("picPWM", 1), Pointer::doubleClick,
                        "PWMモータドライブ回路。ダブルクリックで回路図を表示します。"};
constexpr Family imgBelt{"imgBelt", lookOfBelt};
constexpr Family picTriangle{"picTriangle", lookOfTriangle};
constexpr Family picNoise{"picNoise", [](const Machine& m, std::size_t) { return two("ilsNOISE", m.noiseOn); },
                          Pointer::singleClick, "", upDown};

#undef STILL

// --- places ----------------------------------------------------------------------------------------------------------------

constexpr QPointF portOrigin{98, 98};
constexpr QPointF portOriginCascade{11, 98};
// Left edge of a pin by bit: gaps of 3 pixels between the nibbles and 6 between the bytes, so that a word reads in hex.
constexpr std::array<int, 16> pinLeft{277, 264, 251, 238, 222, 209, 196, 183, 164, 151, 138, 125, 109, 96, 83, 70};

class Table {
public:
    Table() {
        margin();
        centerBoard();
        satellite(board1, 3, {6, 7}, 3, 2, {0, 1}, 3, 3, 2, {2, 3});
        put(picBPS73, 0, board1, {282, 21});
        put(picMON_LED73, 0, board1, {406, 28});
        port(board1, slotQDA73, portOrigin);
        satellite(board2, 2, {4, 5}, 2, 1, {2, 3}, 1, 1, 1, {0, 1});
        put(picFConn, 0, board2, {412, 18});
        counters(board2, 0, {286, 24});
        serial(board2, 0, {177, 66});
        port(board2, slotQDA41, portOrigin);
        cascade();
        satellite(board4, 4, {8, 9}, 4, 3, {4, 5}, 5, 4, 3, {4, 5});
        board4Parts();
        port(board4, slotQDA52, portOrigin);
        pwmPanel();
        put(picBridge, 0, onBench, {474, 350});
        put(picPWMBridge, 0, onBench, {476, 579});
    }

    std::vector<PartRow> rows;

private:
    void put(const Family& family, std::size_t index, std::size_t card, QPointF place, const char* tip = nullptr) {
        rows.push_back({&family, index, card, place, tip != nullptr ? tip : family.tip, family.pointer});
    }
    void putStill(const Family& family, std::size_t index, std::size_t card, QPointF place) {
        put(family, index, card, place);
        rows.back().pointer = Pointer::arrow;
    }

    void margin() {
        // Upper halves lie over the lower ones, and the rolls over the seam.
        put(picCableDn, 0, onBench, {8, 103});
        put(picCableUp, 0, onBench, {8, 0});
        put(picCableDn, 1, onBench, {8, 286});
        put(picCableUp, 1, onBench, {8, 203});
        put(picCableDn, 2, onBench, {8, 469});
        put(picCableUp, 2, onBench, {8, 386});
        put(picCableRole, 0, onBench, {11, 87});
        put(picCableRole, 2, onBench, {11, 446});
        put(picNoise, 0, onBench, {12, 629});
    }

    void centerBoard() {
        for (const std::size_t line : {0U, 1U}) {
            const int top = line == 0 ? 15 : 53;
            put(picBOARD1_RXD, line, center, {-5, top - 2.0});
            put(picPTR, 2 * line, center, {46, qreal(top)});
            put(picPTR, 2 * line + 1, center, {74, qreal(top)});
            put(picTRX, line, center, {105, qreal(top)});
            put(picTermR, line, center, {4, line == 0 ? 40.0 : 78.0});
        }
        put(picJumper, 0, center, {6, 96});
        put(picReset, 0, center, {90, 90});
        put(picQDA, 0, center, {146, 17}, "ボード接続図(QDA60)");
        putStill(picClock, 0, center, {152, 95});
        put(picInt, 0, center, {236, 56});
        put(picScanLed, 0, center, {226, 97});
        put(picChkLED, 0, center, {260, 97}, "#CHK1端子接続 LED(赤)");
        put(picChkLED, 1, center, {294, 97}, "#CHK2端子接続 LED(赤)");
        put(picCPU, 0, center, {324, 17});
    }

    // What Board-1, Board-2 and Board-4 have at the same place.
    void satellite(std::size_t card, std::size_t transceiver, std::array<std::size_t, 2> transformers, std::size_t terminator,
                   std::size_t jumper, std::array<std::size_t, 2> connectors, std::size_t reset, std::size_t chip,
                   std::size_t clock, std::array<std::size_t, 2> addressSwitches) {
        constexpr std::array<const char*, 5> chipTips{nullptr, "ボード接続図(QDA41)", nullptr, "ボード接続図(QDA73)",
                                                      "ボード接続図(QDA52)"};
        // Nothing plugs into the last connector of the line.
        put(picBOARD2_RXD, connectors[0], card, {-5, 13});
        put(picBOARD2_RXD, connectors[1], card, {-5, 51}, connectors[1] == 5 ? "" : nullptr);
        put(picPTR, transformers[0], card, {46, 15});
        put(picPTR, transformers[1], card, {46, 53});
        put(picTRX, transceiver, card, {78, 34});
        put(picTermR, terminator, card, {4, 81});
        put(picJumper, jumper, card, {6, 98});
        put(picReset, reset, card, {10, 124});
        put(picQDA, chip, card, {116, 20}, chipTips[chip]);
        put(picClock, clock, card, {116, 74});
        put(picSA, addressSwitches[0], card, {186, 15});
        put(picSA, addressSwitches[1], card, {225, 15});
    }

    void cascade() {
        put(picQDA, 2, board3, {36, 20}, "ボード接続図(QDA41) カスケード接続");
        put(picReset, 2, board3, {106, 20});
        counters(board3, 6, {218, 24});
        serial(board3, 1, {93, 66});
        port(board3, slotCascade, portOriginCascade);
    }

    void board4Parts() {
        put(picIOS, 0, board4, {274, 15});
        put(picMode, 0, board4, {325, 21});
        put(picBPSS, 0, board4, {367, 21});
        put(picMON_LED52, 0, board4, {406, 28});
        put(fraCounter, 4, board4, {274, 66});
        put(picCounter52, 24, board4, {296, 75});
        put(picCounter52, 25, board4, {346, 75});
    }

    // Six buttons, number 5 on the left.
    void counters(std::size_t card, std::size_t first, QPointF leftmost) {
        constexpr int pitch = 19;
        for (int button = 5; button >= 0; --button) {
            put(picCounter, first + static_cast<std::size_t>(button), card, leftmost + QPointF(pitch * (5 - button), 0));
        }
    }

    void serial(std::size_t card, std::size_t index, QPointF left) {
        put(picSerialInt, index, card, left);
        put(picSDI, index, card, left + QPointF(25, 0));
        put(picSE, index, card, left + QPointF(126, 1));
    }

    void port(std::size_t card, std::size_t slot, QPointF origin) {
        const std::size_t group = slot - 1;
        const bool four = slot == slotQDA52;
        put(picSSA, group, card, origin + QPointF(8, 16), slot == slotQDA41 ? "DI取得タイミング設定ディップ・スイッチ" : nullptr);
        put(picSSB, group, card, origin + QPointF(34, 16));
        put(picSTB, 2 * group, card, origin + QPointF(3, 47), "DOデータ更新タイミング・ストローブ");
        put(picSTB, 2 * group + 1, card, origin + QPointF(29, 47), "DIデータ取り込みタイミング・ストローブ");
        if (four) {
            pwmSigns(card, origin);
        }
        for (std::size_t bit = pinLeft.size(); bit-- > 0;) {
            put(four ? picPI52 : picPI, 16 * group + bit, card, origin + QPointF(pinLeft[bit], 16));
        }
        for (std::size_t bit = pinLeft.size(); bit-- > 0 && !four;) {
            put(picPO, 16 * group + bit, card, origin + QPointF(pinLeft[bit] - 1, 53));
        }
        put(picCLR, group, card, origin + QPointF(300, 49), four ? "IO強制クリア プッシュ・スイッチ" : nullptr);
    }

    // The PWM signals take the place of pins 15 to 12.
    void pwmSigns(std::size_t card, QPointF origin) {
        constexpr int signs = 4;
        constexpr int pitch = 10;
        put(pinFrames, 0, card, origin + QPointF(70, 16));
        put(bitNumbers, 0, card, origin + QPointF(70, 42));
        put(picCWPanel, 0, card, origin + QPointF(56, 10));
        for (int sign = 0; sign < signs; ++sign) {
            put(picCW, static_cast<std::size_t>(sign), card, origin + QPointF(59, 12 + pitch * sign));
        }
    }

    void pwmPanel() {
        constexpr int leds = 6;
        constexpr int pitch = 20;
        for (int bit = leds - 1; bit >= 0; --bit) {
            put(picPower, static_cast<std::size_t>(bit), panel, {66.0 + pitch * (leds - 1 - bit), 31});
        }
        put(picPWM, 0, panel, {34, 74});
        put(imgBelt, 0, panel, {196, 20});
        put(picTriangle, 0, panel, {196, 112});
    }
};

// --- labels ----------------------------------------------------------------------------------------------------------------

constexpr QRgb silk = 0xfff3f7f1;
constexpr QRgb darkPrint = 0xff14492f;
constexpr QRgb canPrint = 0xff23292d;

bool always(const Machine& /*machine*/, std::size_t /*index*/) {
    return true;
}

std::string_view clockText(const Machine& machine, std::size_t index) {
    const int item = index == 1 ? machine.cmbClock41.listIndex : index == 3 ? machine.cmbClock52.listIndex : 0;
    return clockItems[static_cast<std::size_t>(item)];
}

std::vector<LabelRow> makeLabels() {
    std::vector<LabelRow> rows;
    // The chip's caption stands in a white field to the right of the board's.
    struct Plate {
        std::size_t card;
        const char* boardLabel;
        std::size_t boardIndex;
        std::size_t chipIndex;
        qreal left;
        qreal chipLeft;
    };
    for (const Plate& plate : {Plate{center, "lblBoardName", 7, 0, 46, 128}, Plate{board1, "lblSatteliteNo", 2, 3, 46, 98},
                               Plate{board2, "lblSatteliteNo", 0, 1, 46, 98}, Plate{board3, "lblSatteliteNo", 1, 2, 18, 70},
                               Plate{board4, "lblSatteliteNo", 4, 5, 46, 98}}) {
        rows.push_back({plate.boardLabel,
                        plate.boardIndex,
                        plate.card,
                        {plate.left, 12},
                        Align::left,
                        11,
                        [](const Machine&, std::size_t index) -> std::string_view {
                            constexpr std::array<std::string_view, 8> boards{"Board-2", "Board-3", "Board-1", "",
                                                                             "Board-4", "",        "",        "Center-Board"};
                            return boards[index];
                        },
                        always,
                        silk});
        rows.push_back({"lblBoardName",
                        plate.chipIndex,
                        plate.card,
                        {plate.chipLeft + 20, 11.5},
                        Align::centre,
                        10,
                        [](const Machine&, std::size_t index) -> std::string_view {
                            constexpr std::array<std::string_view, 6> chips{"QDA60", "QDA41", "QDA41", "QDA73", "", "QDA52"};
                            return chips[index];
                        },
                        always,
                        darkPrint,
                        true});
    }
    struct Indexed {
        std::size_t card = onBench;
        std::size_t index = 0;
        QPointF place;
    };
    for (const Indexed& at : {Indexed{center, 0, {176, 108}}, Indexed{board1, 2, {140, 87}}, Indexed{board2, 1, {140, 87}},
                              Indexed{board4, 3, {140, 87}}}) {
        rows.push_back({"lblClock", at.index, at.card, at.place, Align::centre, 9, clockText, always, canPrint});
    }
    for (const Indexed& at : {Indexed{center, 0, {45, 106}}, Indexed{board1, 2, {45, 108}}, Indexed{board2, 1, {45, 108}},
                              Indexed{board4, 3, {45, 108}}}) {
        rows.push_back({"lblHF", at.index, at.card, at.place, Align::left, 9,
                        [](const Machine& m, std::size_t) -> std::string_view { return m.picJumperFull ? "JMP-F" : "JMP-H"; },
                        always, silk});
    }
    for (const Indexed& at : {Indexed{center, 0, {41, 48}}, Indexed{center, 1, {41, 86}}, Indexed{board1, 3, {41, 89}},
                              Indexed{board2, 2, {41, 89}}, Indexed{board4, 4, {41, 89}}}) {
        rows.push_back({"lblRt", at.index, at.card, at.place, Align::left, 8,
                        [](const Machine&, std::size_t) -> std::string_view { return "Rt"; },
                        [](const Machine& m, std::size_t index) { return m.picTermR[index].visible; }, silk});
    }
    rows.push_back({"lblPBPSS",
                    0,
                    board4,
                    {373, 62},
                    Align::centre,
                    9,
                    [](const Machine& m, std::size_t) -> std::string_view { return m.picBPSS.on ? "BPSS-H" : "BPSS-L"; },
                    always,
                    silk});
    const auto timing = [](const Machine& m, std::size_t) { return !pwmShown(m); };
    for (const std::size_t index : {0U, 1U}) {
        rows.push_back({"lblPWMSSA", index, board4, portOrigin + QPointF(index == 0 ? 14 : 40, 14), Align::centre, 9,
                        [](const Machine&, std::size_t i) -> std::string_view { return i == 0 ? "SSA" : "SSB"; }, timing, silk});
    }
    rows.push_back({"lblSTB2", 0, board4, portOrigin + QPointF(40, 67), Align::centre, 9,
                    [](const Machine&, std::size_t) -> std::string_view { return "STB2"; }, timing, silk});
    for (const std::size_t index : {0U, 1U, 2U, 3U}) {
        rows.push_back({"lblPWMTitle", index, board4, portOrigin + QPointF(76, 20 + 10.0 * static_cast<int>(index)), Align::left,
                        8,
                        [](const Machine&, std::size_t i) -> std::string_view {
                            constexpr std::array<std::string_view, 4> titles{"CWON", "CCWON", "CW-Pulse", "CCW-Pulse"};
                            return titles[i];
                        },
                        [](const Machine& m, std::size_t) { return pwmShown(m); }, silk});
    }
    return rows;
}

}  // namespace

bool cardVisible(const Machine& machine, std::size_t card) {
    switch (card) {
        case board3: return machine.picBridge.visible;
        case 4: return false;
        case panel: return pwmShown(machine);
        default: return true;
    }
}

const std::vector<PartRow>& benchParts() {
    static const Table table;
    return table.rows;
}

const std::vector<LabelRow>& benchLabels() {
    static const std::vector<LabelRow> rows = makeLabels();
    return rows;
}
