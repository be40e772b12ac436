// Where the settings lie: beside the program while files can be made there, else (an installed program) in the user's
// configuration folder. Until a first save the latter has no file; what lies beside the program is then read. The file's name
// counts in any case.

#pragma once

#include <filesystem>

inline constexpr const char* settingsFileName = "VRB_TS2.INI";

// No setting is longer; a file that is can't be read, and is not written.
inline constexpr std::size_t largestSettingsFile = std::size_t{1} << 20;

// The folder where the program's files lie: that of its executable. In a bundle of macOS (NAME.app/Contents/MacOS) it is the
// bundle's Resources, or, while these have no settings, as in the build's folder, the one where the bundle itself lies.
std::filesystem::path programFolder(const std::filesystem::path& executableFolder);

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
