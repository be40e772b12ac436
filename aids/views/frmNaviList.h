// SPDX-License-Identifier: Apache-2.0
// The list of tours: the learner picks one and starts it. Modal, so that nobody works on a bench that is about to be restarted.

#pragma once

#include "aids/navigation.h"

#include <QDialog>
#include <QPointer>

class QListWidget;
class QMessageBox;
class QPushButton;

class frmNaviList : public QDialog {
    Q_OBJECT

public:
    // `naviIndex` as readNaviIndex gives it.
    frmNaviList(const std::vector<NaviRecord>& naviIndex, QWidget* owner);

    // Shows the list at the bottom right of the screen, or brings it to the front.
    void openList();

    // Marks the tours of this file as finished, until the program ends.
    void markFinished(const std::string& fileName);

    // Says that the chosen tour's file is missing; the list stays open.
    void tellMissing();

    QListWidget& lstTitle() { return *lstTitle_; }
    QPushButton& cmdStart() { return *cmdStart_; }
    QPushButton& cmdCancel() { return *cmdCancel_; }

signals:
    // The tour with this number, from 1, was chosen, or 0 from an empty list. The list is still open.
    void startWanted(std::size_t number);

private:
    void cmdStart_Click();

    std::vector<std::string> fileNames_;  // by row
    QListWidget* lstTitle_;
    QPushButton* cmdStart_;
    QPushButton* cmdCancel_;
    QPointer<QMessageBox> notice_;
};
