// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmNavigation.h"

#include "platform/labels.h"
#include "platform/look.h"
#include "platform/paths.h"
#include "platform/screen.h"
#include "platform/textFile.h"
#include "platform/twips.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <utility>

namespace {

// The window with its title is 1785 twips high; these leave 22 pixels for the title.
constexpr int leastWidth = twips(11205);
constexpr int faceHeight = twips(1785) - 22;
constexpr int sideMargin = twips(105);
constexpr int topMargin = 6;
constexpr int lineHeight = 25;
constexpr int buttonTop = topMargin + 2 * lineHeight + 6;
constexpr QSize buttonSize{96, 28};
constexpr int indexWidth = 44;
constexpr int edgeGap = twips(210);
constexpr int buttonGap = twips(100);
constexpr int nextGap = twips(200);
constexpr int textSize = 15;
constexpr int textInset = 6;
static_assert(NaviSign::size <= textInset + sideMargin);

// A look goes with every refresh; while time is stopped there is none, so the window also looks by itself.
constexpr int watchInterval = 100;

constexpr std::array<const char*, 4> captions{"Back", "Next", "to Menu List", "Navi 終了"};

// By TextColour.
constexpr std::array<QRgb, 3> colours{0xff000000, 0xff0000ff, 0xffff0000};

}  // namespace

// --- a line ------------------------------------------------------------------------------------------------------------------

NaviLine::NaviLine(QWidget* parent) : QWidget(parent) {
    setFont(look::textFont(textSize));
}

void NaviLine::drawMarkedText(std::string_view text) {
    runs_ = markedRuns(text);
    QString spoken;
    for (const TextRun& run : runs_) {
        spoken += textOf(run.text);
    }
    setAccessibleName(spoken);
    update();
}

int NaviLine::textWidth() const {
    int width = 2 * textInset;
    for (const TextRun& run : runs_) {
        width += fontMetrics().horizontalAdvance(textOf(run.text));
    }
    return width;
}

void NaviLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const int base = (height() + fontMetrics().ascent() - fontMetrics().descent()) / 2;
    int left = textInset;
    for (const TextRun& run : runs_) {
        const QString text = textOf(run.text);
        painter.setPen(QColor::fromRgb(colours[static_cast<std::size_t>(run.colour)]));
        painter.drawText(left, base, text);
        left += fontMetrics().horizontalAdvance(text);
    }
}

// --- the window --------------------------------------------------------------------------------------------------------------

frmNavigation::frmNavigation(std::filesystem::path naviPath, const Machine& machine, const SeenByLearner& seen, QWidget* owner)
    : QWidget(owner,
              Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint),
      naviPath_(std::move(naviPath)),
      machine_(machine),
      seen_(seen),
      picSign_(new NaviSign(this)),
      lblIndex_(new QLabel(this)) {
    setObjectName("frmNavigation");
    setWindowTitle("Navigation");
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    for (std::size_t row = 0; row < picNav_.size(); ++row) {
        picNav_[row] = new NaviLine(this);
        picNav_[row]->setObjectName(QStringLiteral("picNav%1").arg(row));
    }
    picSign_->setObjectName("picSign");
    picSign_->raise();  // over the line's end
    lblIndex_->setObjectName("lblIndex");
    lblIndex_->setAlignment(Qt::AlignCenter);
    lblIndex_->setFont(look::interfaceFont(13));
    for (const Action action : {actionBack, actionNext, actionMenu, actionEnd}) {
        auto* button = new QPushButton(captions[action], this);
        button->setObjectName(QStringLiteral("cmdAction%1").arg(action));
        button->setFont(action == actionEnd ? look::textFont(13) : look::interfaceFont(12));
        connect(button, &QPushButton::clicked, this, [this, action] { cmdAction_Click(action); });
        cmdAction_[action] = button;
    }
    cmdAction_[actionNext]->setDefault(true);
    timWatch_.setInterval(watchInterval);
    timWatch_.setEnabled(false);
    connect(&timWatch_, &Timer::timeout, this, [this] { watchFor(watchInterval); });
    setMinimumWidth(leastWidth);
    setFixedHeight(faceHeight);
    resize(leastWidth, faceHeight);
}

void frmNavigation::setNavigation(const std::string& fileName) {
    clearPages();
    fileName_ = fileName;
    watches_.clear();
    // Missing files don't come this far, but one may have gone since the index was read.
    const std::optional<std::string> text = readTextFile(fileInFolder(naviPath_, textOf(fileName)));
    tour_ = readTour(text.value_or(fileName + " を読めません。"));
    showPage();
    updateButtons();
    cmdAction_[actionNext]->setFocus();
}

void frmNavigation::showPage() {
    lblIndex_->setText(QStringLiteral("%1/%2").arg(tour_.naviPage).arg(tour_.naviPages));
    for (std::size_t row = 0; row < picNav_.size(); ++row) {
        picNav_[row]->drawMarkedText(shownLine(tour_, row));
    }
    if (TourWatch& page = watches_[tour_.naviPage]; page.sign == TourSign::open || page.promises.empty()) {
        page = watchPage(shownLine(tour_, linesShown), machine_, seen_);
    }
    showSign();
    if (tour_.naviPages > 0 && !hasPageBehind(tour_)) {
        emit finished(fileName_);
    }
}

// --- the watch ---------------------------------------------------------------------------------------------------------------

void frmNavigation::watchFor(int milliseconds) {
    if (picSign_->sign() != TourSign::open || !isVisible()) {
        return;
    }
    lookAgain(watches_[tour_.naviPage], machine_, seen_, milliseconds);
    showSign();
}

void frmNavigation::hear(const QString& text) {
    if (isVisible()) {
        watch();
        ::hear(watches_[tour_.naviPage], text.toStdString());
        showSign();
    }
}

void frmNavigation::showSign() {
    const TourSign sign = watches_[tour_.naviPage].sign;
    timWatch_.setEnabled(sign == TourSign::open && isVisible());
    // A line that is cut off has taken that room.
    picSign_->setVisible(sign != TourSign::none && picNav_[1]->textWidth() <= picNav_[1]->width());
    if (picSign_->sign() != sign) {
        picSign_->setSign(sign);
        cmdAction_[actionNext]->setAccessibleDescription(picSign_->accessibleName());  // where the keyboard stands
    }
}

// --- pages and buttons -------------------------------------------------------------------------------------------------------

void frmNavigation::updateButtons() {
    cmdAction_[actionBack]->setEnabled(hasPageBefore(tour_));
    cmdAction_[actionNext]->setEnabled(hasPageBehind(tour_));
}

void frmNavigation::clearPages() {
    for (NaviLine* line : picNav_) {
        line->clear();
    }
    lblIndex_->clear();
}

QString frmNavigation::lblIndex() const {
    return lblIndex_->text();
}

void frmNavigation::cmdAction_Click(Action action) {
    if (!isVisible()) {
        return;  // the second click of a hasty pair
    }
    switch (action) {
        case actionBack:
        case actionNext:
            turnPage(tour_, action == actionNext ? 1 : -1);
            showPage();
            updateButtons();
            break;
        case actionMenu:
            hide();
            emit menuWanted();
            break;
        case actionEnd: emit ended(); break;
    }
}

void frmNavigation::layOut() {
    for (std::size_t row = 0; row < picNav_.size(); ++row) {
        picNav_[row]->setGeometry(sideMargin, topMargin + static_cast<int>(row) * lineHeight, width() - 2 * sideMargin,
                                  lineHeight);
    }
    // The sign needs no room of the text: it stands on the line's inset and the window's margin.
    picSign_->setGeometry(width() - NaviSign::size, picNav_[1]->y(), NaviSign::size, lineHeight);
    int right = width() - edgeGap;
    const auto placeLeftOf = [&right](QWidget& part, int partWidth) {
        part.setGeometry(right - partWidth, buttonTop, partWidth, buttonSize.height());
        right -= partWidth + buttonGap;
    };
    placeLeftOf(*cmdAction_[actionEnd], buttonSize.width());
    placeLeftOf(*cmdAction_[actionMenu], buttonSize.width());
    placeLeftOf(*lblIndex_, indexWidth);
    cmdAction_[actionBack]->setGeometry(sideMargin, buttonTop, buttonSize.width(), buttonSize.height());
    const int nextLeft = sideMargin + buttonSize.width() + buttonGap;
    cmdAction_[actionNext]->setGeometry(nextLeft, buttonTop, lblIndex_->x() - nextGap - nextLeft, buttonSize.height());
}

void frmNavigation::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
    showSign();
    if (isVisible()) {
        placeBottomRight(*this);
    }
}

// The place comes first: a window that is moved while the desktop still makes its frame ends up beside its place.
void frmNavigation::setVisible(bool visible) {
    if (visible && !isVisible()) {
        placeBottomRight(*this);
    }
    QWidget::setVisible(visible);
    showSign();
}

void frmNavigation::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    timWatch_.setEnabled(false);
}

bool frmNavigation::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        raise();
    }
    return QWidget::event(event);
}

void frmNavigation::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit ended();
}

void frmNavigation::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_PageDown: cmdAction_[actionNext]->click(); break;
        case Qt::Key_PageUp: cmdAction_[actionBack]->click(); break;
        default: QWidget::keyPressEvent(event);
    }
}
