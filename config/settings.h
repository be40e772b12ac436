// The settings: the 19 numbers of VRB_TS2.INI, section INIT, in one table that says for each key which variable of the
// machine takes it, which values it may have, what the maker recommends and which control of the dialog shows it.
//
//   file ──readSettings──▶ variables ◀──Mdef_Set── maker's values
//    ▲ │                       ▲                        │
//    │ └─loadDialog─▶ values ──┴─applyDialog            │
//    └────saveDialog─── of the dialog ◀──setDialogMaker─┘
//
// The file is read at start and by the dialog when it is loaded; only saveDialog writes it, only applyDialog and Mdef_Set
// change the variables while the program runs. An absent key reads as 0, and so does a list index outside its list and a
// number outside 16 bits. No message tells of a missing file.

#pragma once

#include "access/memoryAccess.h"
#include "boards/boardSet.h"
#include "boards/counters.h"
#include "boards/portPins.h"
#include "config/profileFile.h"
#include "core/answer.h"
#include "core/mduMain.h"

#include <string>
#include <string_view>

inline constexpr std::string_view settingsFileName = "VRB_TS2.INI";
inline constexpr std::string_view settingsSection = "INIT";

// The items of a combo box; their index is the value of the setting.
struct ItemList {
    int count = 0;
    std::string (*item)(int index) = nullptr;
};

template <const auto& items>
constexpr ItemList listOf() {
    return {static_cast<int>(items.size()), [](int index) { return std::string(items[static_cast<std::size_t>(index)]); }};
}

inline constexpr ItemList cpuTypeList = listOf<cpuTypeNames>();
inline constexpr ItemList addressList{stationAddresses, addressItem};
inline constexpr ItemList clockList = listOf<clockItems>();
// The dialog lines the rates up by a blank that the bench has no room for.
inline constexpr std::array<std::string_view, 4> alignedRateItems{" 12Mbps", "  6Mbps", "  3Mbps", "1.5Mbps"};
inline constexpr ItemList rateList = listOf<alignedRateItems>();
inline constexpr ItemList iosList{static_cast<int>(iosModes.size()),
                                  [](int index) { return std::string(iosModes[static_cast<std::size_t>(index)].caption); }};
inline constexpr ItemList modeList = listOf<modeItems>();

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
    {"CPUTYPE", "cmbCPUType", 0, cpuTypeList, [](Machine& m) -> std::int16_t& { return m.cpuType; }},
    {"SA-QDA41", "cmbSA0", 1, addressList, [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA41]; }},
    {"SA-QDA73", "cmbSA2", 0, addressList, [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA73]; }},
    {"SA-QDA52", "cmbSA4", 3, addressList, [](Machine& m) -> std::int16_t& { return m.boardSA[saQDA52]; }},
    // The start of a scan computes the center's rate from BCR: whatever stands here has no effect.
    {"CLOCK-QDA60", "", 0, rateList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockCenter]; }},
    {"CLOCK-QDA41", "cmbClockDEF41", 0, clockList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA41]; }},
    {"CLOCK-QDA73", "cmbClockDEF73", 0, rateList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA73]; }},
    {"CLOCK-QDA52", "cmbClockDEF52", 0, clockList, [](Machine& m) -> std::int16_t& { return m.boardClock[clockQDA52]; }},
    {"CASCADE-QDA41", "chkCascade", 1, {}, [](Machine& m) -> std::int16_t& { return m.cascadeDefault; }},
    {"IOS-QDA52", "cmbIOS", 5, iosList, [](Machine& m) -> std::int16_t& { return m.ios52; }},
    {"MODE-QDA52", "cmbMode", 0, modeList, [](Machine& m) -> std::int16_t& { return m.mode52; }},
    {"OPENWINDOW1", "chkDef2", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[1]; }},
    {"OPENWINDOW2", "chkDef3", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[2]; }},
    {"OPENWINDOW3", "chkDef4", 1, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[3]; }},
    {"OPENWINDOW4", "chkDef5", 0, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[4]; }},
    {"OPENWINDOW5", "chkDef6", 0, {}, [](Machine& m) -> std::int16_t& { return m.openWindowDefault[5]; }},
}};

// The folder where the program's files lie: that of its executable. In a bundle of macOS (NAME.app/Contents/MacOS) it is the
// bundle's Resources, or, while these have no settings, as in the build's folder, the one where the bundle itself lies.
std::filesystem::path programFolder(const std::filesystem::path& executableFolder);

// By this file beside the program one sees that an installer has put it there.
inline constexpr const char* uninstallerName = "Uninstall.exe";

// Where the settings file lies: beside the program while files can be made there, else (an installed program) in the user's
// configuration folder. What an installer of Windows has put into a folder of the user's own can be written, and yet isn't the
// place: the next version overwrites it. Until a first save the latter has no file; what lies beside the program is then read.
class SettingsPlace {
public:
    // One folder for all.
    SettingsPlace(const std::filesystem::path& folder) : SettingsPlace(folder, folder) {}
    SettingsPlace(const std::filesystem::path& programFolder, const std::filesystem::path& userFolder);

    const std::filesystem::path& saved() const { return saved_; }
    // The file to be read now.
    std::filesystem::path toRead() const;

private:
    std::filesystem::path shipped_;
    std::filesystem::path saved_;
};

// Clears the board state and takes all settings from the file, whose path iniPath keeps: the one that a save would write.
void readSettings(Machine& machine, const SettingsPlace& place);

// Takes all settings from a profile that has been read.
void takeSettings(Machine& machine, const ProfileFile& profile);

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

// The values into the file; everything else in it stays. The error names the file and why it is as it was.
std::optional<FileError> saveDialog(const SettingsPlace& place, const DialogValues& values, const SaveFault& fault = {});

// What the learner is told of a save that failed.
Warning saveWarning(const FileError& error);
