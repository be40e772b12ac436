// SPDX-License-Identifier: Apache-2.0
#include "aids/views/frmKAIROZU.h"

#include "aids/circuitDiagrams.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/pictureFile.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr QSize emptySize{480, 120};

}  // namespace

frmKAIROZU::frmKAIROZU(const Machine& machine, const std::filesystem::path& folder, QMdiArea& area)
    : AreaWindow(area), machine_(machine), folder_(folder / "Kairozu"), face_(new QWidget) {
    setObjectName("frmKAIROZU");
    face_->setWindowTitle("回路図");
    face_->setFixedSize(emptySize);
    face_->setFocusPolicy(Qt::StrongFocus);  // the keyboard has somewhere to be
    face_->installEventFilter(this);
    setContent(*face_);
}

void frmKAIROZU::load() {
    const Diagram diagram = diagramFor(machine_, kairozuIndex_);
    const auto picture = [this](const std::string& name, QString& reason) {
        const Picture file = loadPicture(folder_, textOf(name), devicePixelRatioF());
        reason = file.reason;
        return QPixmap::fromImage(file.image);
    };
    picKAIROZU_ = picture(diagram.picture, message_);
    picHalf_ = {};
    if (!diagram.overlay.empty() && !picKAIROZU_.isNull()) {
        QString ignored;  // without its overlay the diagram is still worth seeing
        picHalf_ = picture(diagram.overlay, ignored);
    }
    face_->setFixedSize(picKAIROZU_.isNull() ? emptySize : picKAIROZU_.deviceIndependentSize().toSize());
    fit();
    face_->setAccessibleName(textOf(diagram.picture));
    face_->update();
}

void frmKAIROZU::setKAIROZU(int index, QPoint place) {
    if (index >= 0 && index < diagramCount) {
        kairozuIndex_ = index;
        load();
    }
    placeAt(place);
    bringUp();
}

void frmKAIROZU::changeKAIROZU(int index, QPoint place) {
    if (isVisible() && index == kairozuIndex_) {
        setKAIROZU(index, place);
    }
}

bool frmKAIROZU::eventFilter(QObject* watched, QEvent* event) {
    if (watched == face_ && event->type() == QEvent::Paint) {
        paintFace();
    }
    return AreaWindow::eventFilter(watched, event);
}

void frmKAIROZU::paintFace() {
    QPainter painter(face_);
    painter.fillRect(face_->rect(), Qt::white);
    if (picKAIROZU_.isNull()) {
        painter.setFont(look::textFont(14));
        painter.setPen(QColor::fromRgb(look::secondInk));
        painter.drawText(face_->rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap, message_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);  // for screens between the two sizes of a picture
    painter.drawPixmap(0, 0, picKAIROZU_);
    painter.drawPixmap(0, 0, picHalf_);
}
