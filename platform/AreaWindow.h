// SPDX-License-Identifier: Apache-2.0
// A window inside the main window's area, around one widget of a fixed size, which it takes. Its title menu and box close it by
// hiding; it keeps its size, stays inside the area, and comes back from an icon when it is asked for.

#pragma once

#include <QMdiSubWindow>

class QMdiArea;

class AreaWindow : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit AreaWindow(QMdiArea& area);

    // Gives the window its content; the window's title is the content's.
    void setContent(QWidget& content);
    // Hands the content back; the window is then empty.
    void releaseContent();
    // Takes the content's size again, after it has changed.
    void fit();
    // Moves the window's frame to a place in the area, kept inside as far as it fits.
    void placeAt(QPoint place);
    // Shows the window in front of the others, with the keyboard; out of its icon, too.
    void bringUp();

    // A window that was at work gives the work back to the one before it.
    void setVisible(bool visible) override;

signals:
    // The window became the one at work.
    void activated();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void workGoesBack(QMdiArea& area);
    // To the content, where it was there, and not with a ring to the first button in it.
    static void giveKeyboardTo(QMdiSubWindow& window);
};
