// SPDX-License-Identifier: Apache-2.0
// The settings dialog as a set of its own: opened, hidden, and forgotten by its close box.

#pragma once

#include "config/settings.h"
#include "platform/OnDemand.h"

#include <QObject>

class SettingsStore;
class frmDefault;

class SettingsWindows : public QObject {
    Q_OBJECT

public:
    // The dialog reads and saves the settings of `store`, and belongs to `owner`, the main window.
    SettingsWindows(SettingsStore& store, QWidget& owner);
    ~SettingsWindows() override;

    void open();
    void hide() { frmDefault_.hide(); }
    bool isOpen() const { return frmDefault_.visible(); }

    // Null until it is first asked for, and again after its close box.
    frmDefault* dialog() const;

signals:
    void shown(bool open);
    // "Apply at once": these values, and a restart.
    void applied(const DialogValues& values);

private:
    frmDefault* makeDialog();

    SettingsStore& store_;
    QWidget& owner_;
    OnDemand<frmDefault> frmDefault_;
};
