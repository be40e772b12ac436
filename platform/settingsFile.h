// SPDX-License-Identifier: Apache-2.0
// Where the settings lie: beside the program while files can be made there, else (an installed program) in the user's
// configuration folder. What an installer of Windows has put into a folder of the user's own can be written, and yet is not the
// place: the next version overwrites it. Until a first save the user's folder has no file; what lies beside the program is then
// read. The file's name counts in any case.

#pragma once

#include <filesystem>

inline constexpr const char* settingsFileName = "VRB_TS2.INI";

// No setting is longer; a file that is can't be read, and is not written.
inline constexpr std::size_t largestSettingsFile = std::size_t{1} << 20;

// The folder where the program's files lie: that of its executable. In a bundle of macOS (NAME.app/Contents/MacOS) it is the
// bundle's Resources, or, while these have no settings, as in the build's folder, the one where the bundle itself lies.
std::filesystem::path programFolder(const std::filesystem::path& executableFolder);

// By this file beside the program one sees that an installer has put it there.
inline constexpr const char* uninstallerName = "Uninstall.exe";

// The user's folder for this program's settings; it need not be there yet. On Windows it goes with the user from one machine to
// the next.
std::filesystem::path userFolder();

class SettingsPlace {
public:
    // One folder for all.
    SettingsPlace(const std::filesystem::path& folder) : SettingsPlace(folder, folder) {}
    SettingsPlace(std::filesystem::path programFolder, const std::filesystem::path& userFolder);

    // The file that a save writes, and the file to be read now.
    std::filesystem::path saved() const;
    std::filesystem::path toRead() const;

    // Removes what killed saves of earlier versions left beside the file: "<name>.<digits>.tmp".
    void clearAway() const;

private:
    std::filesystem::path shippedFolder_;
    std::filesystem::path savedFolder_;
};
