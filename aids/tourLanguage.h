// SPDX-License-Identifier: Apache-2.0
// The third line of a tour's page: what its two shown lines ask for and promise, in words that a machine can check. The learner
// never sees it. A line is statements, separated by " ; ", with words separated by blanks; registers and memory are hexadecimal.
//
//   deeds, what the learner does
//   click PART [I]          dblclick PART [I]       hold PART [I]      release        on the bench, by name and index
//   pick PART [I] = TEXT    chooses an item of a combo box of the bench, which an earlier deed has opened
//   mode MODE               clicks a run mode: RUN, STOP, SLOW, 1-Time
//   open WINDOW             close WINDOW            by the tool strip and its chooser; by the close box
//   press WINDOW = TEXT     clicks the button, box or tab of a window that bears this caption
//   key KEYS                presses keys: Return, Ctrl+F6
//   front WINDOW            clicks what can be seen of its title, so that it lies in front; also bench
//   drag WINDOW RIGHT DOWN  moves it by its title, by so many pixels
//   write REG VALUE         set ADDRESS VALUE       read ADDRESS       by the dialogs of the host CPU; REG is SCR, SCR.H, SCR.L
//   serial I WORD           types a word into the serial dialog of circuit I and lets it go out
//   ok                      cancel                  answers the message dialog
//   point REG               double ADDRESS          a double click that writes nothing; also on the row CC
//   wait SECONDS            gives the machine its time; a learner takes his own
//
//   promises, what is then to be seen
//   reg REG VALUE           mem ADDRESS VALUE       2 digits are a byte, 4 a word
//   differs REG VALUE       the register shows anything but this value
//   lit LAMP [I]            dark LAMP [I]           image PART [I] = NUMBER
//   shown PART [I]          hidden PART [I]         label PART [I] = TEXT; a window is a part, and open or not
//   label bench = 125%      label diagram = FILE    label chart = 1 to 8    label keyboard = what the keys go to
//   ticked WINDOW = TEXT    the button, box or tab with this caption is down
//   sa BOARD BYTE           the address on a board's switches, or that its place gives it
//   bus TEXT                got BYTE                the bus type over the memory; what the read dialog shows
//   says TEXT               silent                  popup and message dialog
//   moves THING             still THING             a register or part of the bench
//   cycle REG VALUES        one click on 1-Time after the other walks through these values, from wherever it stands
//
// WINDOW is register, hint, control, c1c7, drc, read, chooser, settings, version, chart or diagram. An ADDRESS is the host CPU's:
// on a big-endian bus the even one is a word's high byte.
//
// Not watched: whether a window lies over what is promised. The test that plays the tours fails where one does.

#pragma once

#include "core/mduMain.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What only the windows know. `name` and `index` are those of a part or label of the bench, or `name` is a window.
class SeenByLearner {
public:
    virtual ~SeenByLearner() = default;
    // Nothing where the bench has no such thing.
    virtual std::optional<bool> shown(const std::string& name, std::size_t index) const = 0;
    // The number of a part's picture, from 1.
    virtual std::optional<int> picture(const std::string& name, std::size_t index) const = 0;
    virtual std::optional<std::string> label(const std::string& name, std::size_t index) const = 0;
    // Whether the button, box or tab with this caption is down in a window; nothing where that is shut or has none.
    virtual std::optional<bool> ticked(const std::string& window, const std::string& caption) const = 0;
    // The value in the read dialog; empty while that is shut.
    virtual std::string readValue() const = 0;
};

// The names of the windows.
inline constexpr std::array<std::string_view, 11> tourWindows{"register", "hint",     "control", "c1c7",  "drc",    "read",
                                                              "chooser",  "settings", "version", "chart", "diagram"};

inline constexpr std::string_view tourBench = "bench";

enum class WordKind : std::uint8_t { deed, pause, promise };

// How a promise is kept by what there is to see.
enum class Keeping : std::uint8_t { same, different, moving, still, walking, said, silent };

struct Statement;
using Present = std::optional<std::string> (*)(const Statement& promise, const Machine& machine, const SeenByLearner& seen);

struct TourWord {
    std::string_view verb;
    std::string_view form;  // of what stands behind it
    WordKind kind = WordKind::deed;
    Present present = nullptr;
    Keeping keeping = Keeping::same;
    std::string_view wanted{};  // the value, where the word itself tells it
};

// Every word of the language.
std::span<const TourWord> tourWords();

struct Statement {
    const TourWord* word = nullptr;
    std::string text;                 // as written
    std::string name;                 // of the part, register, window, mode or board
    std::size_t index = 0;            // of the part
    std::optional<int> place;         // of the register or address in chipMemory; a register's high half is odd
    int digits = 0;                   // 2 a byte, 4 a word
    std::vector<std::string> values;  // what is written, chosen or promised
};

struct Script {
    std::vector<Statement> statements;
    std::string wrong;  // the first statement that is none; a line with one is prose, or has a slip
};

Script readScript(std::string_view line);

// What there is to see now where the promise looks, to be compared with its values. Nothing where the promise looks at a part
// that the bench lacks, and for what is said: that is heard, not seen.
std::optional<std::string> present(const Statement& promise, const Machine& machine, const SeenByLearner& seen);

// A text with single blanks for line ends and rows of blanks, as the language tells it.
std::string plainText(std::string_view text);
