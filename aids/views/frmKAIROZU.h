// SPDX-License-Identifier: Apache-2.0
// The window of the circuit diagrams: shows the diagram of one board and follows the settings that the diagram shows.

#pragma once

#include "core/mduMain.h"
#include "platform/AreaWindow.h"

#include <QPixmap>

#include <filesystem>

class frmKAIROZU : public AreaWindow {
    Q_OBJECT

public:
    // `folder` is the program's; the pictures lie in its folder Kairozu.
    frmKAIROZU(const Machine& machine, const std::filesystem::path& folder, QMdiArea& area);

    // Shows diagram 0 to 4 with the frame at `place` in the area. Any other number opens the window on what it held.
    void setKAIROZU(int index, QPoint place);
    // Loads the diagram anew, and goes back to its place, if it is the one on show.
    void changeKAIROZU(int index, QPoint place);

    int index() const { return kairozuIndex_; }
    const QPixmap& picKAIROZU() const { return picKAIROZU_; }
    // Null without an overlay.
    const QPixmap& picHalf() const { return picHalf_; }
    // What stands in place of a picture that could not be shown.
    QString message() const { return message_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void load();
    void paintFace();

    const Machine& machine_;
    std::filesystem::path folder_;
    QWidget* face_;
    int kairozuIndex_ = -1;
    QPixmap picKAIROZU_;
    QPixmap picHalf_;
    QString message_;
};
