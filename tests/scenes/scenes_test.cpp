// SPDX-License-Identifier: Apache-2.0
// Plays the scenes that lie beside this file: what is done to the bench, and what is then to be seen, step by step. A file is a
// test: ./test Cable plays Cable.scene.
//
//   # a comment
//   word := text             what the learner is told, for says:word; line ends and blanks are left out
//   A scene at the left edge, which begins on the maker's bench
//       its steps under it          on the left what is done, on the right what is then to be seen
//
//   x12   82                 so many ticks; one tick, after which SSR names the next station so
//   THING:VALUE              the thing becomes so
//   THING=VALUE              it is so
//   picCLR_DblClick/4        a gesture, with its numbers
//   SCR.L<04   100<12        the host CPU writes a register, or at a bus address: two digits a byte, four a word
//   100>12m                  it reads, from memory, with "i" into the buffer, with "k" what the buffer keeps
//   says:word   silent       what the last gesture or write told the learner
//   keep   same              the memory is noted; it is still the same
//
// A THING is one of the tables below with its number behind it, or a place in memory: a register or its half (SCR, HPR.H), a
// station's word (DO2, DI2, C1@2, C7@2, DRC2) or byte (CMD2, ST2), an address. Values are hexadecimal.

#include "access/hexText.h"
#include "access/memoryAccess.h"
#include "aids/circuitDiagrams.h"
#include "boards/counters.h"
#include "boards/network.h"
#include "boards/portPins.h"
#include "boards/serialInput.h"
#include "boards/stationCheck.h"
#include "core/pwmOutput.h"
#include "tests/machines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace {

using Value = std::optional<int>;

// --- things ----------------------------------------------------------------------------------------------------------------

// What stands at a place, after it became `to`.
template <typename T>
int at(T& place, Value to) {
    if (to) {
        place = static_cast<T>(*to);
    }
    return static_cast<int>(place);
}

int wordAt(std::uint8_t* image, std::size_t word, Value to) {
    const Value high = to ? Value(*to >> 8) : Value();
    return at(image[2 * word], to) | at(image[2 * word + 1], high) << 8;
}

int pinLevels(Machine& machine, std::size_t slot) {
    const Pin* pins = slot == slotQDA52 ? &machine.picPI[16 * (slot - 1)] : &machine.picPO[16 * (slot - 1)];
    int word = 0;
    for (int bit = 0; bit < 16; ++bit) {
        word |= pins[bit].level ? 1 << bit : 0;
    }
    return word;
}

// The tables of things. Those that are numbers can be set.
template <typename T>
using Table = std::map<std::string, T, std::less<>>;

// Slots and links count from 1.
const Table<int (*)(Machine&, std::size_t number, Value to)> numbers{
    {"in", [](Machine& m, std::size_t slot, Value to) { return wordAt(m.diImage.data(), slot - 1, to); }},
    {"out",
     [](Machine& m, std::size_t slot, Value) { return static_cast<int>(slot == slotQDA52 ? m.doLatch52 : m.doLatch[slot]); }},
    {"pins", [](Machine& m, std::size_t slot, Value) { return pinLevels(m, slot); }},
    {"counter", [](Machine& m, std::size_t word, Value to) { return wordAt(m.counterImage.data(), word, to); }},
    {"serial", [](Machine& m, std::size_t slot, Value to) { return at(m.serialReady[slot - 1], to); }},
    {"handshake", [](Machine& m, std::size_t slot, Value to) { return at(m.picSSB[slot - 1].on, to); }},
    {"link", [](Machine& m, std::size_t link, Value to) { return at(m.picBOARD2_RXD[linkConnector[link - 1]].plugged, to); }},
    {"card", [](Machine& m, std::size_t, Value to) { return at(m.picBridge.visible, to); }},
    {"rate", [](Machine& m, std::size_t board, Value to) { return at(m.boardClock[board], to); }},
    {"bus", [](Machine& m, std::size_t, Value to) { return at(m.cpuType, to); }},
    {"duplex", [](Machine& m, std::size_t, Value to) { return at(m.duplexBit, to); }},
    {"jumpers", [](Machine& m, std::size_t, Value) { return m.picJumperFull ? 16 : 0; }},
    {"mode", [](Machine& m, std::size_t, Value to) { return at(m.mode52, to); }},
    {"indicator", [](Machine& m, std::size_t, Value) { return m.picInt.visible ? m.intLedShown : 0; }},
    {"scanLed", [](Machine& m, std::size_t, Value to) { return at(m.picScanLed.lit, to); }},
    {"sa", [](Machine& m, std::size_t board, Value) { return int{m.boardSA[board]}; }},
    {"chart", [](Machine& m, std::size_t group, Value) { return timingChart(m, group); }},
    {"settings",
     [](Machine& m, std::size_t, Value to) {
         return at(m.cableConnectionDefault, to) & at(m.cascadeDefault, to) & at(m.transferDefault[0], to);
     }},
    {"item",
     [](Machine& m, std::size_t combo, Value) {
         return int{std::array{m.cmbClock41, m.cmbClock52, m.cmbBPS73, m.cmbCPUType, m.cmbMode}[combo].listIndex};
     }},
    {"reset", [](Machine& m, std::size_t button, Value) { return int{m.picReset[button].down}; }},
    {"clr", [](Machine& m, std::size_t button, Value) { return int{m.picCLR[button].down}; }},
    {"button", [](Machine& m, std::size_t button, Value) { return int{m.picCounter[button].down}; }},
    {"shifting", [](Machine& m, std::size_t slot, Value) { return int{m.picSerialInt[slot - 1].visible}; }},
    {"noise", [](Machine& m, std::size_t, Value) { return int{m.noiseBurst}; }},
    {"started", [](Machine& m, std::size_t, Value to) { return at(m.startupDone, to); }},
};

std::string lamps(const Machine& machine, std::size_t) {
    using Lamp = std::pair<const char*, Led>;
    std::string lit;
    for (const auto& [name, led] :
         {Lamp{"+scan", machine.picScanLed}, Lamp{"+chk1", machine.picChkLED[0]}, Lamp{"+chk2", machine.picChkLED[1]},
          Lamp{"+no1", machine.picMON_LED73}, Lamp{"+no4", machine.picMON_LED52}, Lamp{"+se1", machine.picSE[0]},
          Lamp{"+se2", machine.picSE[1]}}) {
        lit += led.lit ? name : "";
    }
    return lit.empty() ? "dark" : lit.substr(1);
}

// The links that are whole, the plugged connectors of the center, and the terminators that show: "123/0/04".
std::string line(const Machine& machine, std::size_t) {
    std::string text;
    for (std::size_t link = 0; link < linkConnector.size(); ++link) {
        text += machine.picBOARD2_RXD[linkConnector[link]].plugged ? std::to_string(link + 1) : "";
    }
    text += "/";
    for (std::size_t number = 0; number < 2; ++number) {
        text += machine.picBOARD1_RXD[number].plugged ? std::to_string(number) : "";
    }
    text += "/";
    for (std::size_t number = 0; number < machine.picTermR.size(); ++number) {
        text += machine.picTermR[number].visible ? std::to_string(number) : "";
    }
    return text;
}

std::string power(const Machine& machine, std::size_t) {
    std::string bits;
    for (const Led& bit : machine.picPower) {
        bits.insert(bits.begin(), bit.lit ? '1' : '0');
    }
    return bits;
}

// The picture and what is laid over it.
std::string diagram(const Machine& machine, std::size_t number) {
    const Diagram files = diagramFor(machine, static_cast<int>(number));
    return files.picture + (files.overlay.empty() ? "" : "+" + files.overlay);
}

// The pins of Board No4, 15 to 0.
std::string ios(const Machine& machine, std::size_t) {
    std::string kinds;
    for (std::size_t pin = 80; pin-- > 64;) {
        kinds += !machine.picPI[pin].visible ? '*' : machine.picPI[pin].output ? 'O' : 'I';
    }
    return kinds;
}

const Table<std::string (*)(const Machine&, std::size_t number)> looks{
    {"diagram", diagram},
    {"power", power},
    {"ios", ios},
    {"lamp", [](const Machine& m, std::size_t) { return std::to_string(m.lampLevel); }},
    {"interval", [](const Machine& m, std::size_t) { return std::to_string(m.timMotorInterval); }},
    {"motor",
     [](const Machine& m, std::size_t) { return std::to_string(m.motorPhase * 100 + m.motorStep * 10 + m.motorCounter); }},
    {"lamps", lamps},
    {"line", line},
    {"width", [](const Machine& m, std::size_t) { return std::to_string(formWidth(m)); }},
    {"cable", [](const Machine& m, std::size_t) { return std::to_string(m.picCableUpTop); }},
};

// --- places in memory ------------------------------------------------------------------------------------------------------

// By station: the number behind the name.
const Table<int> areas{{"CMD", 0x000}, {"ST", 0x001},  {"DO", 0x080},  {"DI", 0x100},  {"C1@", 0x180}, {"C2@", 0x200},
                       {"C3@", 0x280}, {"C4@", 0x300}, {"C5@", 0x380}, {"C6@", 0x400}, {"C7@", 0x480}, {"DRC", 0x500}};

int addressOf(const std::string& name) {
    const auto digits = name.find_last_not_of("0123456789") + 1;
    if (areas.contains(name.substr(0, digits))) {
        return areas.at(name.substr(0, digits)) + 2 * std::stoi(name.substr(digits));
    }
    if (const auto address = hexValue(regAddress(name.substr(0, name.find('.'))))) {
        return *address + (name.ends_with(".H") ? 1 : 0);
    }
    return hexValue(name).value();
}

// --- gestures --------------------------------------------------------------------------------------------------------------

// Stands for whatever number a rule takes.
struct Argument {
    int number = 0;
    template <typename T>
    operator T() const {  // NOLINT(google-explicit-constructor)
        return static_cast<T>(number);
    }
};

template <auto rule>
Answer play(Machine& machine, Argument first, Argument second) {
    const auto call = [&] {
        if constexpr (std::is_invocable_v<decltype(rule), Machine&, Argument, Argument>) {
            return rule(machine, first, second);
        } else if constexpr (std::is_invocable_v<decltype(rule), Machine&, Argument>) {
            return rule(machine, first);
        } else {
            return rule(machine);
        }
    };
    if constexpr (std::is_same_v<decltype(call()), Answer>) {
        return call();
    } else {
        call();
        return {};
    }
}

using Gesture = Answer (*)(Machine&, Argument, Argument);

// A number below 0: the dialog is cancelled.
Answer endShiftWith(Machine& machine, Argument index, Argument word) {
    endShift(machine, index, word.number < 0 ? "" : hexText(word, 4));
    return {};
}

#define RULE(name) Table<Gesture>::value_type(#name, play<name>)
const Table<Gesture> gestures{
    RULE(beginShift),           RULE(cmbBPS73_LostFocus), RULE(cmbCPUType_LostFocus),   RULE(cmbClock41_LostFocus),
    RULE(cmbClock52_LostFocus), RULE(cmbIOS_LostFocus),   RULE(cmbMode_LostFocus),      RULE(cmbSA_LostFocus),
    {"endShift", endShiftWith}, RULE(memoryWriteRefusal), RULE(picBOARD1_RXD_DblClick), RULE(picBOARD2_RXD_DblClick),
    RULE(picBPSS_DblClick),     RULE(picBridge_DblClick), RULE(picCLR_DblClick),        RULE(picCLR_MouseUp),
    RULE(picCableDn_Click),     RULE(picCableUp_Click),   RULE(picCounter_MouseDown),   RULE(picCounter_MouseUp),
    RULE(picFConn_DblClick),    RULE(picJumper_Answered), RULE(picJumper_DblClick),     RULE(picNoise_MouseDown),
    RULE(picNoise_MouseUp),     RULE(picPI_Click),        RULE(picReset_DblClick),      RULE(picReset_MouseUp),
    RULE(picSDI_DblClick),      RULE(picSSA_DblClick),    RULE(picSSB_DblClick),        RULE(registerWriteRefusal),
    RULE(resetRegisters),       RULE(setUpBench),         RULE(timMotor_Timer)};

// Title and text, without blanks and line ends.
std::string toldBy(const Answer& answer) {
    std::string text;
    if (const auto* popup = std::get_if<Popup>(&answer)) {
        text = popup->text;
    } else if (const auto* warning = std::get_if<Warning>(&answer)) {
        text = warning->title + ":" + warning->text + (warning->kind == Warning::Kind::okCancel ? "[OK/Cancel]" : "");
    }
    std::erase_if(text, [](char sign) { return sign == ' ' || sign == '\n'; });
    return text;
}

// --- a scene ---------------------------------------------------------------------------------------------------------------

using Words = Table<std::string>;

class Scene {
public:
    explicit Scene(const Words& words) : words_(words) {}

    void does(const std::string& step) {
        const auto sign = step.find_first_of(":=<>");
        if (step == "keep") {
            noted_ = machine_.chipMemory;
        } else if (step == "same") {
            EXPECT_TRUE(machine_.chipMemory == noted_);
        } else if (step == "silent" || step.starts_with("says:")) {
            EXPECT_EQ(toldBy(told_), step == "silent" ? "" : words_.at(step.substr(5)));
        } else if (step[0] == 'x') {
            ticks(machine_, std::stoi(step.substr(1)));
        } else if (sign != std::string::npos) {
            looksOrTouches(step.substr(0, sign), step[sign], step.substr(sign + 1));
        } else if (step.size() == 2) {
            ticks(machine_, 1);
            EXPECT_EQ(hexText(memoryAt(machine_, reg::ssrLow), 2), step);
        } else {
            std::string text = step;
            std::replace(text.begin(), text.end(), '/', ' ');
            std::istringstream parts(text);
            parts.unsetf(std::ios::basefield);  // 0x12AB is a number, too
            std::string name;
            Argument first;
            Argument second;
            parts >> name >> first.number >> second.number;
            told_ = gestures.at(name)(machine_, first, second);
        }
    }

private:
    void looksOrTouches(const std::string& name, char sign, const std::string& value) {
        const auto digits = name.find_last_not_of("0123456789") + 1;
        const std::string kind = name.substr(0, digits);
        const std::size_t number = digits == name.size() ? 0 : std::stoul(name.substr(digits));
        if (sign == '<') {
            told_ = write(name, value);
        } else if (sign == '>') {
            read(name, value);
        } else if (numbers.contains(kind)) {
            const int now = numbers.at(kind)(machine_, number, sign == ':' ? Value(std::stoi(value, nullptr, 16)) : Value());
            EXPECT_EQ(hexText(static_cast<unsigned>(now), static_cast<int>(value.size())), value);
        } else if (looks.contains(kind)) {
            EXPECT_EQ(looks.at(kind)(machine_, number), value);
        } else {
            const int address = addressOf(name);
            const bool word = value.size() == 4;
            if (sign == ':') {
                (word ? setMemoryWord : setByte)(machine_, address, hexValue(value).value());
            }
            const int now = word ? memoryWord(machine_, address) : byteAt(machine_, address);
            EXPECT_EQ(hexText(static_cast<unsigned>(now), word ? 4 : 2), value);
        }
    }
    Answer write(const std::string& place, const std::string& digits) {
        const int address = addressOf(place);
        const Width width = digits.size() == 4 ? Width::word : Width::byte;
        if (std::isalpha(place[0]) != 0) {
            return writeRegister(machine_, address & ~1, width, address % 2 != 0 ? Half::high : Half::low, digits);
        }
        // Through the cell that shows the address: columns count down on a little-endian bus.
        const auto [row, base] = address < 0x180   ? std::pair{"00x", 0x000}
                                 : address < 0x500 ? std::pair{"18x", 0x180}
                                                   : std::pair{"50x", 0x500};
        return writeMemory(machine_, row, bigEndian(machine_) ? address - base : (address - base) ^ 15, width, digits);
    }
    void read(const std::string& address, const std::string& value) {
        const auto found = readMemory(machine_, address);
        const std::string guide = value.at(2) == 'm'   ? "メモリよりデータを取得しました。"
                                  : value.at(2) == 'i' ? "リードテンポラリバッファにデータを格納しました。"
                                                       : "リードテンポラリバッファからデータを取得しました。";
        EXPECT_EQ(found, (ReadResult{static_cast<std::uint8_t>(hexValue(value.substr(0, 2)).value()), guide}));
    }

    Machine machine_ = makersMachine();
    decltype(Machine::chipMemory) noted_{};
    Answer told_;
    const Words& words_;
};

class Scenes : public testing::TestWithParam<std::string> {};

TEST_P(Scenes, happen_as_they_are_written) {
    std::ifstream file(VRB_SCENES + GetParam() + ".scene");
    Words words;
    std::optional<Scene> scene;
    std::string title;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        const auto colon = text.find(" := ");
        if (colon != std::string::npos) {
            words[text.substr(0, colon)] = text.substr(colon + 4);
        } else if (text.starts_with(' ')) {
            std::istringstream steps(text);
            for (std::string step; steps >> step;) {
                SCOPED_TRACE(testing::Message() << "line " << number << ", " << title << ": " << step);
                try {
                    scene.value().does(step);
                } catch (const std::exception& error) {
                    ADD_FAILURE() << "is no step: " << error.what();
                }
            }
        } else if (!text.empty() && text[0] != '#') {
            title = text;
            scene.emplace(words);
        }
    }
    EXPECT_TRUE(scene) << "no scene at all";
}

std::vector<std::string> sceneFiles() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(VRB_SCENES)) {
        if (entry.path().extension() == ".scene") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Played, Scenes, testing::ValuesIn(sceneFiles()), [](const auto& file) { return file.param; });

}  // namespace
