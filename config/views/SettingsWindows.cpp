#include "config/views/SettingsWindows.h"

#include "config/views/frmDefault.h"

#include <utility>

SettingsWindows::SettingsWindows(SettingsPlace place, QWidget& owner)
    : place_(std::move(place)),
      owner_(owner),
      frmDefault_(
          *this, [this] { return makeDialog(); }, [this](bool open) { emit shown(open); }) {}

SettingsWindows::~SettingsWindows() = default;

frmDefault* SettingsWindows::dialog() const {
    return frmDefault_.get();
}

frmDefault* SettingsWindows::makeDialog() {
    auto* dialog = new frmDefault(place_, &owner_);
    connect(dialog, &frmDefault::applied, this, &SettingsWindows::applied);
    connect(dialog, &frmDefault::unloaded, this, [this] { frmDefault_.forget(); });
    connect(dialog, &frmDefault::answered, this, [this, dialog](const Answer& answer) { emit said(answer, dialog); });
    return dialog;
}

void SettingsWindows::open() {
    frmDefault_->openAt(owner_.frameGeometry().topLeft() + frmDefault::placeInMain);
}
