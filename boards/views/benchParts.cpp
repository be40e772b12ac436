// SPDX-License-Identifier: Apache-2.0
#include "boards/views/benchParts.h"

namespace {

// Left edge of a pin by bit: gaps of 3 pixels between the nibbles and 6 between the bytes, so that a word reads in hex.
constexpr std::array<int, 16> pinLeft{277, 264, 251, 238, 222, 209, 196, 183, 164, 151, 138, 125, 109, 96, 83, 70};

// Which of the parts that Board-1, Board-2 and Board-4 have at the same place are a board's: indices of their controls.
struct Satellite {
    std::size_t card = 0;
    std::array<std::size_t, 2> connectors{};    // of picBOARD2_RXD, upper and lower
    std::array<std::size_t, 2> transformers{};  // of picPTR, upper and lower
    std::size_t transceiver = 0;
    std::size_t terminator = 0;
    std::size_t jumper = 0;
    std::size_t reset = 0;
    std::size_t chip = 0;
    const char* chipTip = "";
    std::size_t clock = 0;
    std::array<std::size_t, 2> addressSwitches{};  // of picSA, high and low digit
};

constexpr Satellite satellite1{.card = card::board1,
                               .connectors = {0, 1},
                               .transformers = {6, 7},
                               .transceiver = 3,
                               .terminator = 3,
                               .jumper = 2,
                               .reset = 3,
                               .chip = 3,
                               .chipTip = "ボード接続図(QDA73)",
                               .clock = 2,
                               .addressSwitches = {2, 3}};
constexpr Satellite satellite2{.card = card::board2,
                               .connectors = {2, 3},
                               .transformers = {4, 5},
                               .transceiver = 2,
                               .terminator = 2,
                               .jumper = 1,
                               .reset = 1,
                               .chip = 1,
                               .chipTip = "ボード接続図(QDA41)",
                               .clock = 1,
                               .addressSwitches = {0, 1}};
constexpr Satellite satellite4{.card = card::board4,
                               .connectors = {4, 5},
                               .transformers = {8, 9},
                               .transceiver = 4,
                               .terminator = 4,
                               .jumper = 3,
                               .reset = 5,
                               .chip = 4,
                               .chipTip = "ボード接続図(QDA52)",
                               .clock = 3,
                               .addressSwitches = {4, 5}};

class Table {
public:
    Table() {
        margin();
        centerBoard();
        satellite(satellite1);
        put(family::picBPS73, 0, card::board1, {282, 21});
        put(family::picMON_LED73, 0, card::board1, {350, 28});
        port(card::board1, slotQDA73, portOrigin);
        satellite(satellite2);
        put(family::picFConn, 0, card::board2, {412, 18});
        counters(card::board2, 0, {286, 24});
        serial(card::board2, 0, {177, 66});
        port(card::board2, slotQDA41, portOrigin);
        cascade();
        satellite(satellite4);
        board4Parts();
        port(card::board4, slotQDA52, portOrigin);
        pwmPanel();
        put(family::picBridge, 0, onBench, {474, 350});
        put(family::picPWMBridge, 0, onBench, {476, 579});
    }

    std::vector<PartRow> rows;

private:
    void put(const Family& family, std::size_t index, std::size_t card, QPointF place, const char* tip = nullptr) {
        rows.push_back({.family = &family,
                        .index = index,
                        .card = card,
                        .place = place,
                        .tip = tip != nullptr ? tip : family.tip,
                        .pointer = family.pointer});
    }

    void margin() {
        // Upper halves lie over the lower ones, and the rolls over the seam.
        put(family::picCableDn, 0, onBench, {8, 103});
        put(family::picCableUp, 0, onBench, {8, 0});
        put(family::picCableDn, 1, onBench, {8, 286});
        put(family::picCableUp, 1, onBench, {8, 203});
        put(family::picCableDn, 2, onBench, {8, 469});
        put(family::picCableUp, 2, onBench, {8, 386});
        put(family::picCableRole, 0, onBench, {11, 87});
        put(family::picCableRole, 2, onBench, {11, 446});
        put(family::picNoise, 0, onBench, {12, 629});
    }

    // The host's side ends where the register window begins at the start.
    void centerBoard() {
        for (const std::size_t line : {0U, 1U}) {
            const int top = line == 0 ? 15 : 53;
            put(family::picBOARD1_RXD, line, card::center, {-5, top - 2.0});
            put(family::picPTR, 2 * line, card::center, {46, qreal(top)});
            put(family::picPTR, 2 * line + 1, card::center, {71, qreal(top)});
            put(family::picTRX, line, card::center, {98, qreal(top)});
            put(family::picTermR, line, card::center, {4, line == 0 ? 40.0 : 78.0});
        }
        put(family::picJumper, 0, card::center, {6, 96});
        put(family::picReset, 0, card::center, {86, 90});
        put(family::picQDA, 0, card::center, {134, 17}, "ボード接続図(QDA60)");
        put(family::picClock, 0, card::center, {140, 95});
        rows.back().pointer = Pointer::arrow;
        put(family::picInt, 0, card::center, {205, 56});
        put(family::picScanLed, 0, card::center, {198, 97});
        put(family::picChkLED, 0, card::center, {227, 97}, "#CHK1端子接続 LED(赤)");
        put(family::picChkLED, 1, card::center, {256, 97}, "#CHK2端子接続 LED(赤)");
        put(family::picCPU, 0, card::center, {278, 17});
    }

    void satellite(const Satellite& board) {
        constexpr std::size_t endOfLine = 5;  // nothing plugs into the last connector
        put(family::picBOARD2_RXD, board.connectors[0], board.card, {-5, 13});
        put(family::picBOARD2_RXD, board.connectors[1], board.card, {-5, 51}, board.connectors[1] == endOfLine ? "" : nullptr);
        put(family::picPTR, board.transformers[0], board.card, {46, 15});
        put(family::picPTR, board.transformers[1], board.card, {46, 53});
        put(family::picTRX, board.transceiver, board.card, {78, 34});
        put(family::picTermR, board.terminator, board.card, {4, 81});
        put(family::picJumper, board.jumper, board.card, {6, 98});
        put(family::picReset, board.reset, board.card, {10, 124});
        put(family::picQDA, board.chip, board.card, {116, 20}, board.chipTip);
        put(family::picClock, board.clock, board.card, {116, 74});
        put(family::picSA, board.addressSwitches[0], board.card, {186, 15});
        put(family::picSA, board.addressSwitches[1], board.card, {225, 15});
    }

    void cascade() {
        put(family::picQDA, 2, card::board3, {36, 20}, "ボード接続図(QDA41) カスケード接続");
        put(family::picReset, 2, card::board3, {106, 20});
        counters(card::board3, 6, {218, 24});
        serial(card::board3, 1, {89, 66});
        port(card::board3, slotCascade, portOriginCascade);
    }

    void board4Parts() {
        put(family::picIOS, 0, card::board4, {274, 15});
        put(family::picMode, 0, card::board4, {325, 21});
        put(family::picBPSS, 0, card::board4, {367, 21});
        put(family::picMON_LED52, 0, card::board4, {406, 28});
        put(family::fraCounter, 4, card::board4, {274, 66});
        put(family::picCounter52, 24, card::board4, {296, 75});
        put(family::picCounter52, 25, card::board4, {346, 75});
    }

    // Six buttons, number 5 on the left.
    void counters(std::size_t card, std::size_t first, QPointF leftmost) {
        constexpr int pitch = 19;
        for (int button = 5; button >= 0; --button) {
            put(family::picCounter, first + static_cast<std::size_t>(button), card, leftmost + QPointF(pitch * (5 - button), 0));
        }
    }

    // Close together, so that the dialog that feeds the circuit of the cascade card stands beside it.
    void serial(std::size_t card, std::size_t index, QPointF left) {
        put(family::picSerialInt, index, card, left);
        put(family::picSDI, index, card, left + QPointF(25, 0));
        put(family::picSE, index, card, left + QPointF(116, 1));
    }

    void port(std::size_t card, std::size_t slot, QPointF origin) {
        const std::size_t group = slot - 1;
        const bool four = slot == slotQDA52;
        put(family::picSSA, group, card, origin + QPointF(8, 16),
            slot == slotQDA41 ? "DI取得タイミング設定ディップ・スイッチ" : nullptr);
        put(family::picSSB, group, card, origin + QPointF(34, 16));
        put(family::picSTB, 2 * group, card, origin + QPointF(3, 47), "DOデータ更新タイミング・ストローブ");
        put(family::picSTB, 2 * group + 1, card, origin + QPointF(29, 47), "DIデータ取り込みタイミング・ストローブ");
        if (four) {
            pwmSigns(card, origin);
        }
        for (std::size_t bit = pinLeft.size(); bit-- > 0;) {
            put(four ? family::picPI52 : family::picPI, 16 * group + bit, card, origin + QPointF(pinLeft[bit], 16));
        }
        for (std::size_t bit = pinLeft.size(); bit-- > 0 && !four;) {
            put(family::picPO, 16 * group + bit, card, origin + QPointF(pinLeft[bit] - 1, 53));
        }
        put(family::picCLR, group, card, origin + QPointF(300, 49), four ? "IO強制クリア プッシュ・スイッチ" : nullptr);
    }

    // The PWM signals take the place of pins 15 to 12.
    void pwmSigns(std::size_t card, QPointF origin) {
        constexpr int signs = 4;
        constexpr int pitch = 10;
        put(family::pinFrames, 0, card, origin + QPointF(70, 16));
        put(family::bitNumbers, 0, card, origin + QPointF(70, 42));
        put(family::picCWPanel, 0, card, origin + QPointF(56, 10));
        for (int sign = 0; sign < signs; ++sign) {
            put(family::picCW, static_cast<std::size_t>(sign), card, origin + QPointF(59, 12 + pitch * sign));
        }
    }

    void pwmPanel() {
        constexpr int leds = 6;
        constexpr int pitch = 20;
        for (int bit = leds - 1; bit >= 0; --bit) {
            put(family::picPower, static_cast<std::size_t>(bit), card::panel, {66.0 + pitch * (leds - 1 - bit), 31});
        }
        put(family::picPWM, 0, card::panel, {34, 74});
        put(family::imgBelt, 0, card::panel, {196, 20});
        put(family::picTriangle, 0, card::panel, {196, 112});
    }
};

}  // namespace

const std::vector<PartRow>& benchParts() {
    static const Table table;
    return table.rows;
}
