#include "config/settings.h"

#include <limits>

namespace {

namespace fs = std::filesystem;

using Limits = std::numeric_limits<std::int16_t>;

// The number that the file gives a setting.
std::int16_t numberOf(const Setting& setting, const ProfileFile& profile) {
    const std::int32_t number = leadingNumber(profile.value(settingsSection, setting.key));
    const int least = setting.list.count != 0 ? 0 : Limits::min();
    const int most = setting.list.count != 0 ? setting.list.count - 1 : Limits::max();
    return number < least || number > most ? std::int16_t{0} : static_cast<std::int16_t>(number);
}

// One setting rules the duplex of all boards.
void copyTransfer(Machine& machine) {
    machine.transferDefault.fill(machine.transferDefault[0]);
}

std::string textOfPath(const fs::path& path) {
    const std::u8string name = path.u8string();  // in UTF-8 on every desktop
    return {name.begin(), name.end()};
}

struct Reason {
    std::errc code;
    const char* text;
};
constexpr std::array<Reason, 9> reasons{{
    {std::errc::permission_denied, "書き込みが許可されていません。"},
    {std::errc::operation_not_permitted, "書き込みが許可されていません。"},
    {std::errc::read_only_file_system, "書き込み禁止のディスクです。"},
    {std::errc::no_space_on_device, "ディスクの空き容量がありません。"},
    {std::errc::no_such_file_or_directory, "フォルダがありません。"},
    {std::errc::not_a_directory, "フォルダがありません。"},
    {std::errc::is_a_directory, "同じ名前のフォルダがあります。"},
    {std::errc::file_too_large, "ファイルが大きすぎます。"},
    {std::errc::io_error, "ディスクの読み書きに失敗しました。"},
}};

std::string reasonText(const std::error_code& error) {
    for (const Reason& reason : reasons) {
        if (error == reason.code) {
            return reason.text;
        }
    }
    return error.message();
}

bool isOwnFolder(const fs::path& programFolder) {
    std::error_code error;
    return !fs::exists(programFolder / uninstallerName, error) && folderWritable(programFolder);
}

}  // namespace

fs::path programFolder(const fs::path& executableFolder) {
    const fs::path contents = executableFolder.parent_path();
    const fs::path bundle = contents.parent_path();
    if (executableFolder.filename() != "MacOS" || contents.filename() != "Contents" || bundle.extension() != ".app") {
        return executableFolder;
    }
    std::error_code error;
    const fs::path resources = contents / "Resources";
    return fs::exists(resources / settingsFileName, error) ? resources : bundle.parent_path();
}

SettingsPlace::SettingsPlace(const fs::path& programFolder, const fs::path& userFolder)
    : shipped_(programFolder / settingsFileName),
      saved_((isOwnFolder(programFolder) ? programFolder : userFolder) / settingsFileName) {}

fs::path SettingsPlace::toRead() const {
    std::error_code error;
    return fs::exists(saved_, error) ? saved_ : shipped_;
}

void readSettings(Machine& machine, const SettingsPlace& place) {
    clearBoardState(machine);
    machine.iniPath = textOfPath(place.saved());
    takeSettings(machine, readProfileFile(place.toRead()));
}

void takeSettings(Machine& machine, const ProfileFile& profile) {
    for (const Setting& setting : settings) {
        setting.variable(machine) = numberOf(setting, profile);
    }
    copyTransfer(machine);
}

void Mdef_Set(Machine& machine) {
    for (const Setting& setting : settings) {
        setting.variable(machine) = setting.makersValue;
    }
    copyTransfer(machine);
}

DialogValues loadDialog(const ProfileFile& profile) {
    DialogValues values{};
    for (std::size_t row = 0; row < settings.size(); ++row) {
        const Setting& setting = settings[row];
        if (!setting.control.empty()) {
            const std::int16_t number = numberOf(setting, profile);
            values[row] = setting.list.count != 0 ? number : static_cast<std::int16_t>(number > 0 ? 1 : 0);
        }
    }
    return values;
}

DialogValues setDialogMaker() {
    DialogValues values{};
    for (std::size_t row = 0; row < settings.size(); ++row) {
        values[row] = settings[row].makersValue;
    }
    return values;
}

void applyDialog(Machine& machine, const DialogValues& values) {
    for (std::size_t row = 0; row < settings.size(); ++row) {
        settings[row].variable(machine) = values[row];
    }
    machine.mode52 = 0;
    copyTransfer(machine);
}

std::optional<FileError> saveDialog(const SettingsPlace& place, const DialogValues& values, const SaveFault& fault) {
    ProfileFile profile;
    if (std::optional<FileError> error = readProfileFile(place.toRead(), profile)) {
        return error;  // what can't be read can't be kept
    }
    for (std::size_t row = 0; row < settings.size(); ++row) {
        if (!settings[row].control.empty()) {
            profile.setValue(settingsSection, settings[row].key, std::to_string(values[row]));
        }
    }
    return saveProfileFile(place.saved(), profile, fault);
}

Warning saveWarning(const FileError& error) {
    return {"設定をファイルに保存できませんでした。\n\nファイル： " + textOfPath(error.file) + "\n理由： " +
            reasonText(error.reason)};
}
