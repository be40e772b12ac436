// The chooser of the memory windows: five buttons under the tool label "Memory Window". Any of them puts it away again.

#pragma once

#include <QFrame>

#include <array>

class QPushButton;

class frmDumpSel : public QFrame {
    Q_OBJECT

public:
    enum Choice { controlDoDi, c1ToC7, drc, memoryRead, closeAll };

    explicit frmDumpSel(QWidget* area);

    void open(QPoint place);
    QPushButton& cmdAREA(int index) { return *cmdAREA_[static_cast<std::size_t>(index)]; }

signals:
    void chosen(int choice);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::array<QPushButton*, 5> cmdAREA_{};
};
