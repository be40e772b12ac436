#include "aids/views/frmKAIROZU.h"

#include "aids/circuitDiagrams.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/pictureFile.h"
#include "platform/screen.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QSize emptySize{480, 120};

}  // namespace

frmKAIROZU::frmKAIROZU(const Machine& machine, const std::filesystem::path& folder, QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      machine_(machine),
      folder_(folder / "Kairozu") {
    setObjectName("frmKAIROZU");
    setWindowTitle("回路図");
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setFixedSize(emptySize);
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
    setFixedSize(picKAIROZU_.isNull() ? emptySize : picKAIROZU_.deviceIndependentSize().toSize());
    setAccessibleName(textOf(diagram.picture));
    update();
}

void frmKAIROZU::setKAIROZU(int index, QPoint place) {
    if (index >= 0 && index < diagramCount) {
        kairozuIndex_ = index;
        load();
    }
    placeWindow(*this, place);
    show();
    raise();
}

void frmKAIROZU::changeKAIROZU(int index, QPoint place) {
    if (isVisible() && index == kairozuIndex_) {
        setKAIROZU(index, place);
    }
}

bool frmKAIROZU::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        emit activated();
    }
    return QWidget::event(event);
}

void frmKAIROZU::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void frmKAIROZU::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (picKAIROZU_.isNull()) {
        painter.setFont(look::textFont(14));
        painter.setPen(QColor::fromRgb(look::secondInk));
        painter.drawText(rect().adjusted(12, 0, -12, 0), Qt::AlignCenter | Qt::TextWordWrap, message_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);  // for screens between the two sizes of a picture
    painter.drawPixmap(0, 0, picKAIROZU_);
    painter.drawPixmap(0, 0, picHalf_);
}
