// SPDX-License-Identifier: Apache-2.0
#include "config/settings.h"

#include <limits>

namespace {

using Limits = std::numeric_limits<std::int16_t>;

// The number that the file gives a setting.
std::int16_t numberOf(const Setting& setting, const ProfileFile& profile) {
    const std::int32_t number = profile.readProfileValue(settingsSection, setting.key);
    const int least = setting.list.count != 0 ? 0 : Limits::min();
    const int most = setting.list.count != 0 ? setting.list.count - 1 : Limits::max();
    return number < least || number > most ? std::int16_t{0} : static_cast<std::int16_t>(number);
}

// One setting rules the duplex of all boards.
void copyTransfer(Machine& machine) {
    machine.transferDefault.fill(machine.transferDefault[0]);
}

struct Reason {
    std::errc code;
    const char* reading;
    const char* writing;
};

constexpr const char* notAllowedToRead = "読み取りが許可されていません。";
constexpr const char* notAllowedToWrite = "書き込みが許可されていません。";
constexpr const char* noFolder = "フォルダがありません。";
constexpr const char* isAFolder = "同じ名前のフォルダがあります。";
constexpr const char* tooLarge = "ファイルが大きすぎます。";
constexpr const char* diskFailed = "ディスクの読み書きに失敗しました。";
constexpr const char* noPlainFile = "普通のファイルではありません。";

constexpr std::array<Reason, 12> reasons{{
    {std::errc::permission_denied, notAllowedToRead, notAllowedToWrite},
    {std::errc::operation_not_permitted, notAllowedToRead, notAllowedToWrite},
    {std::errc::read_only_file_system, diskFailed, "書き込み禁止のディスクです。"},
    {std::errc::no_space_on_device, diskFailed, "ディスクの空き容量がありません。"},
    {std::errc::no_such_file_or_directory, noFolder, noFolder},
    {std::errc::not_a_directory, noFolder, noFolder},
    {std::errc::is_a_directory, isAFolder, isAFolder},
    {std::errc::file_too_large, tooLarge, tooLarge},
    {std::errc::io_error, diskFailed, diskFailed},
    {std::errc::invalid_argument, noPlainFile, noPlainFile},
    {std::errc::filename_too_long, "ファイル名が長すぎます。", "ファイル名が長すぎます。"},
    {std::errc::too_many_symbolic_link_levels, "リンクの先をたどれません。", "リンクの先をたどれません。"},
}};

// In Japanese for everything that befalls a learner; the system's own words for what is left.
std::string textOf(const FileError& error) {
    for (const Reason& reason : reasons) {
        if (error.reason == reason.code) {
            return error.access == FileError::Access::reading ? reason.reading : reason.writing;
        }
    }
    return error.reason.message();
}

std::string fileAndReason(const FileError& error) {
    return "\n\nファイル： " + error.file + "\n理由： " + textOf(error);
}

}  // namespace

void readSettings(Machine& machine, const ProfileFile& profile) {
    clearBoardState(machine);
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

void saveDialog(ProfileFile& profile, const DialogValues& values) {
    for (std::size_t row = 0; row < settings.size(); ++row) {
        if (!settings[row].control.empty()) {
            profile.writeProfileValue(settingsSection, settings[row].key, std::to_string(values[row]));
        }
    }
}

Warning readWarning(const FileError& error) {
    return {"設定ファイルを読み込めないため、設定なしで動作します。\nファイルには手を付けていません。" + fileAndReason(error)};
}

Warning saveWarning(const FileError& error) {
    return {"設定をファイルに保存できませんでした。" + fileAndReason(error)};
}
