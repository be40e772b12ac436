// SPDX-License-Identifier: Apache-2.0
// The register hints: a book of pictures with tabs, three to a row, that turns to what the learner is looking at. The close
// box hides it; the page stays open.

#pragma once

#include "aids/hintPages.h"
#include "platform/AreaWindow.h"

#include <QPixmap>

#include <filesystem>

class QButtonGroup;

class frmHint : public AreaWindow {
    Q_OBJECT

public:
    // Reads the list of the pages from the folder HintData in `folder`, the program's; a missing one leaves one empty tab. A
    // page's picture is read when the learner turns to it: a book of large ones would fill the memory.
    frmHint(const std::filesystem::path& folder, QMdiArea& area);

    int page() const;
    // The page's picture anew: another one lies in its place.
    void reload() { showPage(page()); }
    int pageCount() const { return static_cast<int>(pages_.size()); }
    // Turns to a page, as a click on its tab does. A number without a page is ignored.
    void turnTo(std::size_t page);
    // Turns to the page whose caption has the name.
    void showHintFor(const QString& name);
    const QPixmap& picHint() const { return picture_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void initHint();
    void makeTabs();
    void showPage(int page);
    void paintFace();

    std::filesystem::path hintPath_;
    std::vector<HintPage> pages_;
    QString reason_;  // why the page has no picture
    QWidget* face_;   // tabs and page
    QButtonGroup* tabHint_;
    QPixmap picture_;
};
