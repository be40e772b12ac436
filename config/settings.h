// SPDX-License-Identifier: Apache-2.0
// The settings: the 19 numbers of VRB_TS2.INI, section INIT, in one table that says for each key which variable of the
// machine takes it, which values it may have, what the maker recommends and which control of the dialog shows it.
//
//   file ──readSettings──▶ variables ◀──Mdef_Set── maker's values
//    ▲ │                       ▲                        │
//    │ └─loadDialog─▶ values ──┴─applyDialog            │
//    └────saveDialog─── of the dialog ◀──setDialogMaker─┘
//
// The file is read at start and by the dialog when it is loaded; only saveDialog changes it, only applyDialog and Mdef_Set
// change the variables while the program runs. An absent key reads as 0, and so does a list index outside its list and a
// number outside 16 bits. No message tells of a missing file. Here the file is its profile; SettingsStore brings it from the disk
// and back.

#pragma once

#include "boards/comboLists.h"
#include "config/profileFile.h"
#include "core/answer.h"
#include "core/mduMain.h"

#include <string>
#include <string_view>
#include <system_error>

inline constexpr std::string_view settingsSection = "INIT";

// The dialog lines the rates up by a blank that the bench has no room for.
inline constexpr std::array<std::string_view, 4> alignedRateItems{" 12Mbps", "  6Mbps", "  3Mbps", "1.5Mbps"};
inline constexpr ItemList rateList = listOf<alignedRateItems>();

// A setting without a list is a choice of two: the dialog shows it chosen for a number greater than 0, and writes 1 or 0.
struct Setting {
    std::string_view key;
    std::string_view control;  // of frmDefault; empty: not shown, and never written
    std::int16_t makersValue;
    ItemList list;
    std::int16_t& (*variable)(Machine&);
};

// In the order in which a new file has them.
inline constexpr std::array<Setting, 19> settings{{
    {"CABLECONNECTION", "chkDef0", 1, {}, [](Machine& m) -> std::int16_t& { return m.cableConnectionDefault; }},
    {"MEMORYCLEAR", "chkDef1", 1, {}, [](Machine& m) -> std::int16_t& { return m.memoryClearDefault; }},
    {"TRANSFER", "optHF1", 0, {}, [](Machine& m) -> std::int16_t& { return m.transferDefault[0]; }},
    {"CPUTYPE", "cmbCPUType", 0, initCPUTypeCombo(), [](Machine& m) -> std::int16_t& { return m.cpuType; }},
    {"SA-QDA41", "cmbSA0", 1, initSACombos(), [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA41]; }},
    {"SA-QDA73", "cmbSA2", 0, initSACombos(), [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA73]; }},
    {"SA-QDA52", "cmbSA4", 3, initSACombos(), [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA52]; }},
    // The start of a scan computes the center's rate from BCR: whatever stands here has no effect.
    {"CLOCK-QDA60", "", 0, rateList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockCenter]; }},
    {"CLOCK-QDA41", "cmbClockDEF41", 0, initClockCombos(), [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA41]; }},
    {"CLOCK-QDA73", "cmbClockDEF73", 0, rateList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA73]; }},
    {"CLOCK-QDA52", "cmbClockDEF52", 0, initClockCombos(), [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA52]; }},
    {"CASCADE-QDA41", "chkCascade", 1, {}, [](Machine& m) -> std::int16_t& { return m.cascadeDefault; }},
    {"IOS-QDA52", "cmbIOS", 5, initIOSCombo(), [](Machine& m) -> std::int16_t& { return m.ios52; }},
    {"MODE-QDA52", "cmbMode", 0, initModeCombo(), [](Machine& m) -> std::int16_t& { return m.mode52; }},
    {"OPENWINDOW1", "chkDef2", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[1]; }},
    {"OPENWINDOW2", "chkDef3", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[2]; }},
    {"OPENWINDOW3", "chkDef4", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[3]; }},
    {"OPENWINDOW4", "chkDef5", 0, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[4]; }},
    {"OPENWINDOW5", "chkDef6", 0, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[5]; }},
}};

// Clears the board state and takes all settings from the file.
void readSettings(Machine& machine, const ProfileFile& profile);

// The maker's values into the variables; the file stays as it is.
void Mdef_Set(Machine& machine);

// --- the dialog's operations ---------------------------------------------------------------------------------------------

// What the dialog's controls show, in the order of `settings`: 1 or 0, or a list index. 0 for a setting without a control.
using DialogValues = std::array<std::int16_t, settings.size()>;

DialogValues loadDialog(const ProfileFile& profile);
DialogValues setDialogMaker();

// The values into the variables of the machine. boardSA then holds list indices again, so a restart of the machine has to
// follow, which sets the bench up from them. The counter mode becomes 0, whatever the values say.
void applyDialog(Machine& machine, const DialogValues& values);

// The values into the file; everything else in it stays.
void saveDialog(ProfileFile& profile, const DialogValues& values);

// --- what the learner is told ----------------------------------------------------------------------------------------------

// Why a file could not be had, or could not be written.
struct FileError {
    enum class Access { reading, writing };

    std::string file;  // its path, in UTF-8
    std::error_code reason;
    Access access = Access::writing;
};

// Settings that could not be read: the program goes on as without them.
Warning readWarning(const FileError& error);
// A save that failed. The file is as it was.
Warning saveWarning(const FileError& error);
