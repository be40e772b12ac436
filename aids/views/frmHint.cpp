// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmHint.h"

#include "platform/HouseStyle.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int tabsInARow = 3;
constexpr QSize tabSize{206, 17};
constexpr QSize tabPitch{207, 18};
constexpr int inset = 4;
constexpr QSize emptyPage{620, 460};

int tabsHeight(int pages) {
    return (std::max(pages, 1) + tabsInARow - 1) / tabsInARow * tabPitch.height();
}

}  // namespace

frmHint::frmHint(const std::filesystem::path& folder, QMdiArea& area)
    : AreaWindow(area), hintPath_(folder / "HintData"), face_(new QWidget), tabHint_(new QButtonGroup(this)) {
    setObjectName("frmHint");
    face_->setWindowTitle("Register Hint");
    face_->setFocusPolicy(Qt::StrongFocus);
    face_->installEventFilter(this);
    connect(tabHint_, &QButtonGroup::idToggled, this, [this](int page, bool chosen) {
        if (chosen) {
            showPage(page);
        }
    });
    initHint();
    setContent(*face_);
}

void frmHint::initHint() {
    pages_ = readHintList(readTextFile(fileInFolder(hintPath_, "RegsterHint.TXT")).value_or(std::string()));
    if (pages_.empty()) {
        reason_ = QStringLiteral("HintData に RegsterHint.TXT が見つかりません。");
    }
    makeTabs();
    turnTo(0);
}

void frmHint::makeTabs() {
    const int tabs = std::max(pageCount(), 1);  // without a list one empty tab
    for (int page = 0; page < tabs; ++page) {
        const QString caption = pages_.empty() ? QString() : textOf(pages_[static_cast<std::size_t>(page)].caption);
        auto* tab = new QPushButton(face_);
        tab->setObjectName(QStringLiteral("tabHint%1").arg(page));
        setButtonUse(*tab, ButtonUse::view);
        tab->setFont(look::textFont(12));
        // A teacher's long caption is read whole in its tool tip.
        constexpr int tabMargin = 8;
        tab->setText(tab->fontMetrics().elidedText(caption, Qt::ElideRight, tabSize.width() - 2 * tabMargin));
        tab->setToolTip(tab->text() == caption ? QString() : caption);
        tab->setAccessibleName(caption);
        tab->setCheckable(true);
        tab->setFocusPolicy(Qt::TabFocus);
        tab->setGeometry(
            QRect(QPoint(inset + page % tabsInARow * tabPitch.width(), inset + page / tabsInARow * tabPitch.height()), tabSize));
        tabHint_->addButton(tab, page);
    }
}

int frmHint::page() const {
    return tabHint_->checkedId();
}

void frmHint::turnTo(std::size_t page) {
    if (QAbstractButton* tab = tabHint_->button(static_cast<int>(page))) {
        tab->setChecked(true);
    }
}

void frmHint::showHintFor(const QString& name) {
    if (const auto page = pageFor(pages_, name.toStdString())) {
        turnTo(*page);
    }
}

void frmHint::showPage(int page) {
    const auto index = static_cast<std::size_t>(page);
    if (index < pages_.size()) {
        const Picture picture = loadPicture(hintPath_, textOf(pages_[index].picture), devicePixelRatioF());
        picture_ = QPixmap::fromImage(picture.image);
        reason_ = picture.reason;
    }
    const QSize size = picture_.isNull() ? emptyPage : picture_.deviceIndependentSize().toSize();
    const int tabsWidth = tabsInARow * tabPitch.width() - (tabPitch.width() - tabSize.width());
    face_->setFixedSize(std::max(size.width(), tabsWidth) + 2 * inset, size.height() + tabsHeight(pageCount()) + 3 * inset);
    if (widget() != nullptr) {
        fit();
    }
    face_->update();
}

void frmHint::keyPressEvent(QKeyEvent* event) {
    const int pages = std::max(pageCount(), 1);
    switch (event->key()) {
        case Qt::Key_PageDown: turnTo(static_cast<std::size_t>((page() + 1) % pages)); break;
        case Qt::Key_PageUp: turnTo(static_cast<std::size_t>((page() + pages - 1) % pages)); break;
        default: AreaWindow::keyPressEvent(event);
    }
}

bool frmHint::eventFilter(QObject* watched, QEvent* event) {
    if (watched == face_ && event->type() == QEvent::Paint) {
        paintFace();
    }
    return AreaWindow::eventFilter(watched, event);
}

void frmHint::paintFace() {
    QPainter painter(face_);
    painter.fillRect(face_->rect(), QColor::fromRgb(look::windowFace));
    const QPoint corner(inset, tabsHeight(pageCount()) + 2 * inset);
    if (!picture_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);  // for screens between the two sizes of a picture
        painter.drawPixmap(corner, picture_);
        return;
    }
    const QRect place(corner, QSize(face_->width() - 2 * inset, face_->height() - corner.y() - inset));
    painter.fillRect(place, Qt::white);
    painter.setFont(look::textFont(14));
    painter.setPen(QColor::fromRgb(look::secondInk));
    painter.drawText(place.adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, reason_);
}
