// SPDX-License-Identifier: Apache-2.0
// Between the settings file on its disk and those who read and save the settings. A save goes on in the background: gestures and
// the scan don't wait for the disk, and what came of it is told by a signal.

#pragma once

#include "config/settings.h"
#include "core/answer.h"
#include "platform/Background.h"
#include "platform/settingsFile.h"

#include <QObject>

#include <optional>

class SettingsStore : public QObject {
    Q_OBJECT

public:
    // Clears away what killed saves left.
    explicit SettingsStore(SettingsPlace place);

    struct Reading {
        ProfileFile profile;             // empty when the file is missing or can't be read
        std::optional<Warning> warning;  // of a file that can't be read; a missing one is nothing to tell of
    };
    Reading read() const;

    // What the dialog shows when it is made: the file's values, or those that are on their way into it.
    DialogValues dialogValues();

    // Puts the values into the file; all else in it stays. A file that can't be read is not replaced. Saves follow one another
    // in the order of the calls, and the last one's values stay.
    void save(const DialogValues& values);
    // Whether a save is under way. One that is comes to its end before the store goes.
    bool saving() const { return background_.busy(); }

signals:
    // What the learner is to read: the file can't be read, or a save failed.
    void answered(const Answer& answer);
    // No save is under way any longer; `kept`: none of them failed.
    void settled(bool kept);

private:
    void saved(const std::optional<FileError>& error);

    SettingsPlace place_;
    DialogValues underWay_{};  // of the last save, while there is one
    bool kept_ = true;
    Background background_;  // goes first
};
