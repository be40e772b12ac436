// The settings dialog as a set of its own: opened, hidden, and forgotten by its close box.

#pragma once

#include "config/settings.h"
#include "core/answer.h"
#include "platform/OnDemand.h"

#include <QObject>

class frmDefault;

class SettingsWindows : public QObject {
    Q_OBJECT

public:
    // The dialog reads and saves the settings at `place`, and belongs to `owner`, the main window.
    SettingsWindows(SettingsPlace place, QWidget& owner);
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
    // What a gesture has to say, beside the form that it speaks of.
    void said(const Answer& answer, const QWidget* form);

private:
    frmDefault* makeDialog();

    SettingsPlace place_;
    QWidget& owner_;
    OnDemand<frmDefault> frmDefault_;
};
