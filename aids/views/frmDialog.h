// SPDX-License-Identifier: Apache-2.0
// The message dialog: what must be read. It is modal to the program while the scan goes on behind it; what follows its
// answer is handed in. A warning that comes while one is up waits for its turn.

#pragma once

#include "core/answer.h"

#include <QDialog>

#include <array>
#include <deque>
#include <functional>

class QLabel;
class QPushButton;

class frmDialog : public QDialog {
    Q_OBJECT

public:
    enum Result { resultOk = 1, resultCancel = 2 };
    using Continuation = std::function<void(Result)>;

    explicit frmDialog(QWidget* owner);

    // Takes down what is up and forgets what waits, unanswered.
    void dismiss();

    void warningDialog(const Warning& warning, Continuation next = {});

signals:
    // A dialog comes up and says this.
    void appeared(const QString& text);

public slots:
    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showFirst();
    void answer(Result dialogResult);

    struct Waiting {
        Warning warning;
        Continuation next;
    };
    std::deque<Waiting> waiting_;  // the first one is up
    QLabel* lblDialogTitle_;
    QLabel* lblMessage_;
    QLabel* sign_;
    std::array<QPushButton*, 2> cmdAction_{};  // 0 OK, 1 Cancel
};
