// SPDX-License-Identifier: Apache-2.0
#include "boards/views/frmEditSerial.h"

#include "boards/serialInput.h"
#include "platform/ImageList.h"
#include "platform/OvertypeField.h"
#include "platform/labels.h"
#include "platform/look.h"
#include "platform/screen.h"
#include "platform/twips.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int margin = 12;
constexpr int circuitTop = 50;
constexpr int circuitHeight = 142;
constexpr int boardWidth = 38;
constexpr int generatorLeft = 37;
constexpr int generatorWidth = 479;
constexpr int waveLeftAtRest = twips(120);
constexpr int coverWidth = waveLeftAtRest + waveWidth;
constexpr int coverLeft = generatorLeft + 5;
constexpr int coverTop = circuitTop + 17;
constexpr int shiftStep = 15;
constexpr int shiftInterval = 100;
// As narrow as the waveform lets it be: beside the circuit that it feeds, also for the cascade card on a screen of 1280.
constexpr QSize dialogSize{generatorLeft + generatorWidth, circuitTop + circuitHeight + margin / 2};

// One of the two drawings around the waveform.
class CircuitPicture : public QWidget {
public:
    CircuitPicture(const char* drawing, QWidget* parent) : QWidget(parent), drawing_(drawing) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), ImageList(drawing_).image(1, devicePixelRatioF()));
    }

private:
    const char* drawing_;
};

// What the waveform lies on.
class WaveCover : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        look::paintPanel(painter, rect(), 0xffffffff, 0xff8fa098, 3);
    }
};

}  // namespace

// The waveform; empty before the first word.
class SerialWave : public QWidget {
public:
    explicit SerialWave(QWidget* parent) : QWidget(parent) { setFixedSize(waveWidth, waveHeight); }

    void draw(unsigned word) {
        for (std::size_t row = 0; row < lines_.size(); ++row) {
            lines_[row].clear();
            for (const WavePoint& point : serialWave(row, word)) {
                lines_[row] << QPointF(point.x, point.y);
            }
        }
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (lines_[0].isEmpty()) {
            return;
        }
        constexpr int labelPixels = 11;  // 8 points
        constexpr int labelTop = 2;
        QPainter painter(this);
        painter.setFont(look::interfaceFont(labelPixels));
        painter.setPen(Qt::black);
        for (int bit = serialBits - 1; bit >= 0; --bit) {
            painter.drawText(QRectF(waveLeftOfBit(bit), labelTop, 26, 14), Qt::AlignLeft | Qt::AlignTop,
                             QStringLiteral("D%1").arg(bit));
        }
        painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        for (const QPolygonF& line : lines_) {
            painter.drawPolyline(line);
        }
    }

private:
    std::array<QPolygonF, waveRows.size()> lines_;
};

frmEditSerial::frmEditSerial(QWidget* owner) : QDialog(owner) {
    setObjectName("frmEditSerial");
    setWindowTitle("Serial Data Generator");
    setWindowModality(Qt::ApplicationModal);
    setFixedSize(dialogSize);
    makeEntry();
    makeCircuit();
    connect(&timEnter_, &Timer::timeout, this, &frmEditSerial::timEnter_Timer);
}

void frmEditSerial::makeEntry() {
    makeLabel(this, "Label1", "Sattelite No", look::interfaceFont(), {margin, margin, 80, 28});
    lblAdr_ = makeLabel(this, "lblAdr", {}, look::hexFont(14), {margin + 84, margin, 24, 28});
    txtWriteData_ = new OvertypeField(OvertypeField::Case::asTyped, this);
    txtWriteData_->setObjectName("txtWriteData");
    txtWriteData_->setAccessibleName("Serial Data");
    txtWriteData_->setFont(look::hexFont(16));
    txtWriteData_->setMaxLength(4);
    txtWriteData_->setText("0000");
    txtWriteData_->setAlignment(Qt::AlignCenter);
    txtWriteData_->setGeometry(130, margin, 72, 28);
    makeLabel(this, "Label3", "H", look::hexFont(14), {208, margin, 16, 28});

    // From the left: Set, Start, Cancel.
    struct ButtonRow {
        Action action;
        const char* caption;
        int left;
    };
    constexpr int wide = 84;
    constexpr int pitch = 92;
    constexpr int firstLeft = dialogSize.width() - margin - 2 * pitch - wide;
    for (const ButtonRow& button : {ButtonRow{actionSet, "Set", firstLeft}, ButtonRow{actionStart, "Start", firstLeft + pitch},
                                    ButtonRow{actionCancel, "Cancel", firstLeft + 2 * pitch}}) {
        auto* made = new QPushButton(button.caption, this);
        made->setObjectName(QStringLiteral("cmdAction%1").arg(button.action));
        made->setAutoDefault(false);
        made->setGeometry(button.left, margin, wide, 28);
        cmdAction_[button.action] = made;
    }
    connect(cmdAction_[actionSet], &QPushButton::clicked, this, &frmEditSerial::setWave);
    connect(cmdAction_[actionStart], &QPushButton::clicked, this, &frmEditSerial::startShift);
    connect(cmdAction_[actionCancel], &QPushButton::clicked, this, &QDialog::reject);
}

void frmEditSerial::makeCircuit() {
    const auto place = [this](const char* name, const char* drawing, int left, int width) {
        auto* picture = new CircuitPicture(drawing, this);
        picture->setObjectName(name);
        picture->setGeometry(left, circuitTop, width, circuitHeight);
    };
    place("Picture1", "picSerialBoard", 0, boardWidth);
    place("Picture2", "picSerialGenerator", generatorLeft, generatorWidth);
    for (std::size_t row = 0; row < waveRows.size(); ++row) {
        // In the print of the card's edge.
        constexpr int captionHeight = 14;
        constexpr int captionWidth = 22;
        auto* caption = makeLabel(this, QStringLiteral("Label2%1").arg(row), textOf(waveRows[row].name), look::printFont(9),
                                  {0, coverTop + waveRows[row].low - captionHeight / 2, captionWidth, captionHeight});
        caption->setAlignment(Qt::AlignCenter);
        look::setInk(*caption, 0xfff3f7f1);
    }
    auto* cover = new WaveCover(this);
    cover->setObjectName("picDREQ_Cover");
    cover->setGeometry(coverLeft, coverTop, coverWidth, waveHeight);
    picDREQ_Data_ = new SerialWave(cover);
    picDREQ_Data_->setObjectName("picDREQ_Data");
}

QWidget& frmEditSerial::picDREQ_Data() {
    return *picDREQ_Data_;
}

void frmEditSerial::openFor(int index, QPoint place) {
    index_ = index;
    sentText_.clear();
    lblAdr_->setText(QString::number(index + 1));
    picDREQ_Data_->move(waveLeftAtRest, 0);
    cmdAction_[actionSet]->setEnabled(true);
    cmdAction_[actionCancel]->setEnabled(true);
    cmdAction_[actionStart]->setEnabled(false);
    cmdAction_[actionSet]->setDefault(true);
    placeWindow(*this, place);
    show();
    activateWindow();
    txtWriteData_->setValue(txtWriteData_->text());
    txtWriteData_->setFocus();
}

void frmEditSerial::setWave() {
    picDREQ_Data_->draw(txtWriteData_->text().toUInt(nullptr, 16));
    cmdAction_[actionStart]->setEnabled(true);
    cmdAction_[actionStart]->setDefault(true);
    txtWriteData_->setFocus();
}

void frmEditSerial::startShift() {
    sentText_ = txtWriteData_->text();
    for (QPushButton* button : cmdAction_) {
        button->setEnabled(false);
    }
    cmdAction_[actionSet]->setDefault(true);
    timEnter_.setInterval(shiftInterval);
    emit started(index_);
}

void frmEditSerial::timEnter_Timer() {
    picDREQ_Data_->move(picDREQ_Data_->x() - shiftStep, 0);
    if (picDREQ_Data_->x() < -waveWidth - twips(15)) {
        done(Accepted);
    }
}

// The word has gone out; or Cancel, Escape and the close box, which take it back.
void frmEditSerial::done(int result) {
    const bool wasOpen = isVisible();
    timEnter_.setInterval(0);
    if (result != Accepted) {
        sentText_.clear();
    }
    QDialog::done(result);
    if (wasOpen) {
        emit closed(index_, sentText_);
    }
}
