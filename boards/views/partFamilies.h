// SPDX-License-Identifier: Apache-2.0
// What the parts of the bench look like, by state of the machine: one family for each array of equal parts, under the name of
// its control.

#pragma once

#include "core/mduMain.h"

#include <QPointF>

#include <array>
#include <string_view>

// What a part shows. Pictures count from 1.
struct Appearance {
    const char* images = nullptr;  // the image list
    int number = 1;
    bool visible = true;
    QPointF moved{};            // from the place of its row
    const char* tip = nullptr;  // in place of its row's
    bool operator==(const Appearance&) const = default;
};

enum class Pointer : std::uint8_t { arrow, singleClick, doubleClick };

struct Family {
    const char* name = nullptr;
    Appearance (*appearance)(const Machine& machine, std::size_t index) = nullptr;
    Pointer pointer = Pointer::arrow;
    const char* tip = "";
    std::array<const char*, 4> states{};  // what the first pictures are called, where they tell a state
};

namespace family {
extern const Family picCableDn, picCableUp, picCableRole, picBOARD1_RXD, picBOARD2_RXD, picNoise;
extern const Family picPTR, picTRX, picTermR, picJumper, picReset, picQDA, picClock, picSA;
extern const Family picCPU, picInt, picScanLed, picChkLED;
extern const Family picBPS73, picMON_LED73, picMON_LED52, picIOS, picMode, picBPSS;
extern const Family picCounter, picCounter52, fraCounter, picSDI, picSE, picSerialInt, picFConn, picBridge, picPWMBridge;
extern const Family picSSA, picSSB, picSTB, pinFrames, bitNumbers, picCWPanel, picCW, picPI, picPI52, picPO, picCLR;
extern const Family picPower, picPWM, imgBelt, picTriangle;
}  // namespace family

// Of the frame around the power LEDs, which the card's drawing holds.
inline constexpr std::string_view powerFrameTip = "この表示はQDA52内部の状態です";
