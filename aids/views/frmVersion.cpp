// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmVersion.h"

#include "aids/progressLine.h"
#include "platform/ImageList.h"
#include "platform/look.h"
#include "platform/screen.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int seconds = 3;
constexpr QSize panelSize{524, 476};
constexpr QRgb panelFace = 0xffdff5df;
constexpr int lineHeight = 22;
constexpr int progressFont = 14;
constexpr int progressWidth = progressFont * progressPlaces;

enum class Style { product, version, subtitle, text, alarm, warning, hint, pointer };

// The texts of the panel: control, text, top and centre or left edge.
struct TextRow {
    const char* name = nullptr;
    const char* text = nullptr;
    int top = 0;
    Style style = Style::text;
    int left = 0;  // 0: centered
};

constexpr std::array<TextRow, 14> textRows{{
    {"Label1_0", "VRB-TS", 112, Style::product},
    {"lblVer", "Ver,2.00", 130, Style::version, 356},
    {"Label2_0", "Varel Bus Network 体験シミュレーター", 156, Style::subtitle},
    {"Label2_1", "このシステムは、QDA60を搭載するボードをシミュレートし、　", 186, Style::text},
    {"Label2_2", "Varel Bus Network と QDA60,41,52,73 の機能を体験できます。", 208, Style::text},
    {"Label2_3", "（マウスを移動させてポインタに応じた操作ができます。）", 236, Style::text},
    {"Label2_4", "左クリックで操作できます。", 262, Style::pointer, 176},
    {"Label2_5", "左ダブルクリックで操作できます。", 290, Style::pointer, 176},
    {"Label2_6", "警告！", 324, Style::alarm, 40},
    {"Label2_7", "シミュレーションの実行マシンによって速度が異なります。", 320, Style::warning, 110},
    {"Label2_8", "実際のシステムは本シミュレータよりも格段に高速です。", 340, Style::warning, 110},
    {"Label2_9", "本シミュレータは、学習と疑似体験用に開発されたのもで、", 360, Style::warning, 110},
    {"Label3", "はじめての方、使い方を知りたい方は、", 394, Style::hint, 36},
    {"Label4", "右上の \"Navigator\" をダブルクリック ! ! ", 394, Style::hint, 262},
}};

QFont fontOf(Style style) {
    QFont font = look::textFont(14);
    switch (style) {
        case Style::product: font = look::interfaceFont(34); break;
        case Style::version: return look::interfaceFont(12);
        case Style::subtitle:
        case Style::alarm: font = look::textFont(18); break;
        default: return font;
    }
    font.setBold(true);
    return font;
}

QRgb inkOf(Style style) {
    switch (style) {
        case Style::product: return look::brandGreen;
        case Style::alarm: return 0xffc4251a;
        case Style::hint: return 0xff174a8c;
        default: return look::ink;
    }
}

}  // namespace

frmVersion::frmVersion(const Machine& machine) : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), machine_(machine) {
    setObjectName("frmVersion");
    setWindowTitle("VRB-TS");
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setFixedSize(panelSize);
    setFocusPolicy(Qt::StrongFocus);
    makeTexts();
    makeProgress();
    timTimer_.setEnabled(false);
    connect(&timTimer_, &Timer::timeout, this, &frmVersion::timTimer_Timer);
}

void frmVersion::makeTexts() {
    for (const TextRow& row : textRows) {
        auto* label = new QLabel(row.text, this);
        label->setObjectName(row.name);
        label->setFont(fontOf(row.style));
        look::setInk(*label, inkOf(row.style));
        label->setTextFormat(Qt::PlainText);
        label->resize(label->fontMetrics().size(0, row.text));  // the label's own hint lays the text out three times
        label->move(row.left != 0 ? row.left : (width() - label->width()) / 2, row.top);
    }
    const ImageList pointers("ilsMouse");
    for (int number = 1; number <= 2; ++number) {
        auto* picture = new QLabel(this);
        picture->setObjectName(QStringLiteral("Picture1_%1").arg(number - 1));
        picture->setPixmap(pointers.image(number, devicePixelRatioF()));
        picture->setGeometry(138, 256 + 28 * (number - 1), 32, 32);
    }
}

void frmVersion::makeProgress() {
    picProgress_ = new QWidget(this);
    picProgress_->setObjectName("picProgress");
    picProgress_->setGeometry((width() - progressWidth) / 2, 430, progressWidth, lineHeight + 2);
    look::setGround(*picProgress_, panelFace);  // so that the panel behind it is not painted with every step
    const std::array<std::pair<QRgb, QRgb>, 2> groundAndInk{{{0xffffffcc, 0xff000000}, {0xff1c4fc0, 0xffffffff}}};
    for (std::size_t index = 0; index < groundAndInk.size(); ++index) {
        lblProcess_[index] = new QLabel(picProgress_);
        lblProcess_[index]->setObjectName(QStringLiteral("lblProcess%1").arg(index));
        lblProcess_[index]->setFont(look::textFont(progressFont));
        look::setGround(*lblProcess_[index], groundAndInk[index].first);
        look::setInk(*lblProcess_[index], groundAndInk[index].second);
        lblProcess_[index]->setGeometry(0, 0, progressWidth, lineHeight);
        lblProcess_[index]->hide();
    }
    lblProcess_[0]->setText("実システムと、速度や詳細動作において異なる場合があります。");
}

void frmVersion::showProcess() {
    lblProcess_[1]->resize(0, lineHeight);
    lblProcess_[0]->show();
    lblProcess_[1]->show();
}

void frmVersion::showProgress(const QString& text) {
    const QString line = QString::fromStdU16String(progressLine(text.toStdU16String()));
    // The blanks bring a text of full places to the middle, the indent what a proportional one lacks.
    const QFontMetrics metrics = lblProcess_[0]->fontMetrics();
    const int missing = progressWidth - 2 * metrics.horizontalAdvance(line) + metrics.horizontalAdvance(text);
    for (QLabel* label : lblProcess_) {
        label->setText(line);
        label->setIndent(std::max(0, missing / 2));
    }
    progressStep_ = nextProgressStep(progressStep_);
    lblProcess_[1]->resize(progressBarWidth(lblProcess_[0]->width(), progressStep_), lineHeight);
    // At once, and no more than has changed: the next step of the start holds up the event loop.
    picProgress_->repaint();
}

void frmVersion::open() {
    move(usableScreen(QPoint()).center() - QPoint(width() / 2, height() / 2));
    show();
    raise();
    activateWindow();
    startSeconds();  // where the desktop doesn't activate a panel, the showing counts
}

void frmVersion::startSeconds() {
    versionSeconds_ = seconds;
    timTimer_.setInterval(1000);
    timTimer_.setEnabled(true);
    if (machine_.startupDone) {
        picProgress_->hide();
    }
}

bool frmVersion::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        startSeconds();
    }
    return QWidget::event(event);
}

void frmVersion::timTimer_Timer() {
    if (--versionSeconds_ < 1) {
        hideVersion();
    }
}

void frmVersion::hideVersion() {
    if (!machine_.startupDone) {
        timTimer_.setInterval(500);  // look again soon
        return;
    }
    picProgress_->hide();
    timTimer_.setEnabled(false);
    hide();
    emit closed();
}

// The desktop's own way of closing is a click like any other: it waits for the end of the start-up.
void frmVersion::closeEvent(QCloseEvent* event) {
    event->ignore();
    hideVersion();
}

void frmVersion::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        hideVersion();
    }
}

void frmVersion::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Space) {
        hideVersion();
    }
}

void frmVersion::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(panelFace));
    painter.fillRect(0, 0, width(), 8, QColor::fromRgb(look::brandGreen));
    const QPixmap logo = ImageList("picLogo").image(1, devicePixelRatioF());
    const QSizeF logoSize = logo.deviceIndependentSize();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QPointF((width() - logoSize.width()) / 2, 14), logo);
    painter.setPen(QColor(0xd9, 0xa7, 0x2b));
    painter.setBrush(QColor(0xff, 0xf8, 0xdc));
    painter.drawRoundedRect(QRectF(24.5, 315.5, width() - 49, 68), 4, 4);
    painter.setPen(QColor::fromRgb(look::brandGreen));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
