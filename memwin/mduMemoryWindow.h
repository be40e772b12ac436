// SPDX-License-Identifier: Apache-2.0
// What the three dump windows show of the chip's memory: which byte stands in which cell, what changed of late, and where the
// columns lie. The windows only paint it.
//
//   area  window        first byte   cells   rows
//   0     frmDumpCDIO   000H         384     00x to 17x   control words, DO, DI
//   1     frmDumpC17    180H         896     18x to 4Fx   C1 to C7
//   2     frmDumpDRC    500H         128     50x to 57x   DRC
//
//   cells of a row     0    1    2    3   ...  14   15
//   little endian      FH   EH   DH   CH        1    0     offset in chipMemory, which is the bus address too
//   big endian         1    0    3    2        FH   EH     offset in chipMemory
//                      0    1    2    3        EH   FH     bus address
//   On every bus the even cell holds the high byte of its word.
//
// A change stays red for five firings of the window's timer. Colour and countdown belong to the cell: a change of byte order
// moves the byte and leaves the red. A hidden window is not brought up to date, so what moved meanwhile shows as a change
// when it opens.
//
// Lengths are twips, 15 to the pixel.

#pragma once

#include "access/memoryAccess.h"
#include "core/mduMain.h"

#include <string>
#include <string_view>
#include <vector>

inline constexpr int cellsPerRow = 16;
inline constexpr int cellsPerGroup = areaSize;  // one word for each station
inline constexpr int changedSeconds = 5;

enum class ByteView : std::int16_t { byte = 0, word = 1 };

struct DumpArea {
    Area area;
    int firstByte;
    int cells;
    std::string_view name;  // of the window
    std::string_view title;
    int left;  // first place
    int top;
    std::array<std::string_view, 7> groups;  // names of the groups of 128 bytes
};

// By area.
inline constexpr std::array<DumpArea, 3> dumpAreas{{
    {Area::controlDoDi,
     controlBase,
     3 * areaSize,
     "frmDumpCDIO",
     "Memory dump - Control + DI + DO",
     10070,
     0,
     {"Control", "DO", "DI"}},
    {Area::c1ToC7,
     counterBase,
     7 * areaSize,
     "frmDumpC17",
     "Memory dump - C1～C7",
     10950,
     1300,
     {"C1", "C2", "C3", "C4", "C5", "C6", "C7"}},
    {Area::drc, drcBase, areaSize, "frmDumpDRC", "Memory dump - DRC", 2950, 3250, {"DRC"}},
}};

struct DumpCell {
    std::uint8_t value = 0;
    bool red = false;
    std::int8_t countdown = 0;
};

// What one dump window shows.
struct DumpView {
    explicit DumpView(Area shownArea);

    const DumpArea* area;
    bool visible = false;
    ByteView piMode = ByteView::byte;
    ByteView columnsFor = ByteView::byte;  // the view that the column labels were written for
    bool bigEndian = false;                // the byte order of the last layout
    std::vector<DumpCell> cells;
    std::vector<int> touched;  // the cells that the last operation changed

    // "00x", the caption of the first row, from which the addresses of the cells count.
    std::string rowText(int row = 0) const;
};

// The character of a byte: "." for one that is no printable ASCII.
char asciiOf(std::uint8_t value);

// The cell of the byte `offset` places after an area's first byte.
int addressToLabel(const Machine& machine, int offset);

// Brings a visible window up to date. `touched` then names the cells to repaint; nothing else changes.
void refreshArea(Machine& machine, DumpView& view);

// One second of a window: counts the red cells down. `touched` names those that turned black.
void timColor_Timer(DumpView& view);

// The bus type's view of a window: byte or word, and the columns by layoutLittle or layoutBig.
void setAreaLayout(const Machine& machine, DumpView& view);

// Column labels and wedges of a visible window; a hidden one keeps its own until it opens.
void layoutLittle(DumpView& view);
void layoutBig(DumpView& view);

// Colours the two cells of the word that holds `cell`, as the write dialog does; the countdowns stay.
void colourWord(DumpView& view, int cell, bool evenRed, bool oddRed);

// The label over column 0 to 15: "-F" or ",E".
std::string columnLabel(const DumpView& view, int column);

// --- places, in twips ----------------------------------------------------------------------------------------------------

inline constexpr int cellWidth = 210;

// Where the cells of a view lie. The eight right columns stand a little apart.
struct CellLayout {
    int hexWidth;   // of Picture1
    int asciiLeft;  // of Picture2
    int windowWidth;
    int pairPitch;  // from an even column to the next even one
    int oddShift;   // from an even column to the odd one behind it
};
inline constexpr CellLayout layoutByte{4785, 5160, 7350, 510, 255};
inline constexpr CellLayout layoutWord{4545, 4890, 7110, 480, cellWidth};

constexpr const CellLayout& layoutOf(ByteView piMode) {
    return piMode == ByteView::word ? layoutWord : layoutByte;
}

// The left edge of column 0 to 15.
int columnLeft(ByteView piMode, int column);
inline constexpr int byteToWordShift = 240;  // how far a window moves right when it gets narrower

struct WedgeLine {
    int left;
    int right;
};
// The base of a wedge, under its lines on either byte order.
WedgeLine wedgeBase(bool high);
// Line 1 to 6 of a wedge, counted from the base; `high` the one over the right eight columns.
WedgeLine wedgeLine(bool bigEndian, bool high, int line);

// --- read-outs -------------------------------------------------------------------------------------------------------------

inline constexpr std::string_view restingAddress = " Pointing Address = ---- ------ : --";
inline constexpr std::string_view restingSA = " Pointing SA = --- ----";

std::string pointingAddress(const Machine& machine, const DumpView& view, int cell);
std::string pointingSA(const Machine& machine, const DumpView& view, int cell);
