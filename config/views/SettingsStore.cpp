// SPDX-License-Identifier: Apache-2.0
#include "config/views/SettingsStore.h"

#include "platform/paths.h"
#include "platform/wholeFile.h"

#include <memory>
#include <utility>

namespace {

FileError errorAt(const std::filesystem::path& path, std::error_code reason, FileError::Access access) {
    return {textOfPath(path).toStdString(), reason, access};
}

// A missing file is an empty profile.
std::optional<FileError> readProfile(const SettingsPlace& place, ProfileFile& profile) {
    const std::filesystem::path path = place.toRead();
    std::string bytes;
    const std::error_code error = path.empty() ? std::error_code() : readWholeFile(path, largestSettingsFile, bytes);
    profile = ProfileFile(std::move(bytes));
    if (!error || error == std::errc::no_such_file_or_directory) {
        return std::nullopt;
    }
    return errorAt(path, error, FileError::Access::reading);
}

std::optional<FileError> saveProfile(const SettingsPlace& place, const DialogValues& values) {
    ProfileFile profile;
    if (std::optional<FileError> error = readProfile(place, profile)) {
        return error;  // what can't be read can't be kept
    }
    saveDialog(profile, values);
    const std::string bytes = profile.bytes();
    const std::filesystem::path path = place.saved();
    // One that is too large could not be read again.
    const std::error_code error =
        bytes.size() > largestSettingsFile ? std::make_error_code(std::errc::file_too_large) : saveWholeFile(path, bytes);
    return error ? std::optional(errorAt(path, error, FileError::Access::writing)) : std::nullopt;
}

}  // namespace

SettingsStore::SettingsStore(SettingsPlace place) : place_(std::move(place)) {
    place_.clearAway();
}

SettingsStore::Reading SettingsStore::read() const {
    Reading reading;
    if (const std::optional<FileError> error = readProfile(place_, reading.profile)) {
        reading.warning = readWarning(*error);
    }
    return reading;
}

DialogValues SettingsStore::dialogValues() {
    if (saving()) {
        return underWay_;
    }
    const Reading reading = read();
    if (reading.warning) {
        // Once the dialog stands on the screen, so that the warning stands over it.
        QMetaObject::invokeMethod(
            this, [this, warning = *reading.warning] { emit answered(warning); }, Qt::QueuedConnection);
    }
    return loadDialog(reading.profile);
}

void SettingsStore::save(const DialogValues& values) {
    underWay_ = values;
    const auto error = std::make_shared<std::optional<FileError>>();
    background_.run([error, place = place_, values] { *error = saveProfile(place, values); }, [this, error] { saved(*error); });
}

void SettingsStore::saved(const std::optional<FileError>& error) {
    if (error) {
        kept_ = false;
        emit answered(saveWarning(*error));
    }
    if (!saving()) {
        emit settled(std::exchange(kept_, true));
    }
}
