#include "aids/views/frmHint.h"

#include "platform/labels.h"
#include "platform/look.h"
#include "platform/pictureFile.h"
#include "platform/textFile.h"

#include <QButtonGroup>
#include <QCloseEvent>
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

frmHint::frmHint(const std::filesystem::path& folder, QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      hintPath_(folder / "HintData"),
      tabHint_(new QButtonGroup(this)) {
    setObjectName("frmHint");
    setWindowTitle("Register Hint");
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    connect(tabHint_, &QButtonGroup::idToggled, this, [this](int page, bool chosen) {
        if (chosen) {
            showPage(page);
        }
    });
    initHint();
}

void frmHint::initHint() {
    pages_ = readHintList(readTextFile(fileInFolder(hintPath_, "RegsterHint.TXT")).value_or(std::string()));
    if (pages_.empty()) {
        reason_ = QStringLiteral("HintData に RegsterHint.TXT が見つかりません。");
    }
    makeTabs();
    showPage(0);
}

void frmHint::makeTabs() {
    const int tabs = std::max(pageCount(), 1);  // without a list one empty tab
    for (int page = 0; page < tabs; ++page) {
        const QString caption = pages_.empty() ? QString() : textOf(pages_[static_cast<std::size_t>(page)].caption);
        auto* tab = new QPushButton(caption, this);
        tab->setObjectName(QStringLiteral("tabHint%1").arg(page));
        tab->setProperty("viewButton", true);
        tab->setFont(look::textFont(12));
        tab->setCheckable(true);
        tab->setGeometry(
            QRect(QPoint(inset + page % tabsInARow * tabPitch.width(), inset + page / tabsInARow * tabPitch.height()), tabSize));
        tabHint_->addButton(tab, page);
    }
    tabHint_->button(0)->setChecked(true);
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
    const auto page = pageFor(pages_, name.toStdString());
    if (isVisible() && page) {
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
    setFixedSize(std::max(size.width(), tabsWidth) + 2 * inset, size.height() + tabsHeight(pageCount()) + 3 * inset);
    update();
}

void frmHint::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
    emit closed();
}

void frmHint::keyPressEvent(QKeyEvent* event) {
    const int pages = std::max(pageCount(), 1);
    switch (event->key()) {
        case Qt::Key_Escape: close(); break;
        case Qt::Key_PageDown: turnTo(static_cast<std::size_t>((page() + 1) % pages)); break;
        case Qt::Key_PageUp: turnTo(static_cast<std::size_t>((page() + pages - 1) % pages)); break;
        default: QWidget::keyPressEvent(event);
    }
}

void frmHint::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::windowFace));
    const QPoint corner(inset, tabsHeight(pageCount()) + 2 * inset);
    if (!picture_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);  // for screens between the two sizes of a picture
        painter.drawPixmap(corner, picture_);
        return;
    }
    const QRect place(corner, QSize(width() - 2 * inset, height() - corner.y() - inset));
    painter.fillRect(place, Qt::white);
    painter.setFont(look::textFont(14));
    painter.setPen(QColor::fromRgb(look::secondInk));
    painter.drawText(place.adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, reason_);
}
