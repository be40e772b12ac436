// SPDX-License-Identifier: Apache-2.0
#include "config/views/SettingsWindows.h"

#include "config/views/frmDefault.h"

SettingsWindows::SettingsWindows(SettingsStore& store, QWidget& owner)
    : store_(store),
      owner_(owner),
      frmDefault_(
          *this, [this] { return makeDialog(); }, [this](bool open) { emit shown(open); }) {}

SettingsWindows::~SettingsWindows() = default;

frmDefault* SettingsWindows::dialog() const {
    return frmDefault_.get();
}

frmDefault* SettingsWindows::makeDialog() {
    auto* dialog = new frmDefault(store_, &owner_);
    connect(dialog, &frmDefault::applied, this, &SettingsWindows::applied);
    connect(dialog, &frmDefault::unloaded, this, [this] { frmDefault_.forget(); });
    return dialog;
}

void SettingsWindows::open() {
    frmDefault_->openAt(owner_.frameGeometry().topLeft() + frmDefault::placeInMain);
}
