// SPDX-License-Identifier: Apache-2.0
// A timer with an interval in milliseconds, where 0 means off. It keeps its schedule: a late firing is not added up.

#pragma once

#include <QTimer>

class Timer : public QObject {
    Q_OBJECT

public:
    explicit Timer(QObject* parent = nullptr) : QObject(parent) {
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, &Timer::timeout);
    }

    // Starts the interval anew, or stops at 0.
    void setInterval(int milliseconds) {
        interval_ = milliseconds;
        apply();
    }
    void setEnabled(bool enabled) {
        enabled_ = enabled;
        apply();
    }
    // Stands still while held, whatever else is asked of it.
    void hold(bool held) {
        held_ = held;
        apply();
    }

    int interval() const { return interval_; }
    bool running() const { return timer_.isActive(); }

    // Fires at once, for those who don't want to wait.
    void fire() { emit timeout(); }

signals:
    void timeout();

private:
    void apply() {
        if (enabled_ && !held_ && interval_ > 0) {
            timer_.start(interval_);
        } else {
            timer_.stop();
        }
    }

    QTimer timer_;
    int interval_ = 0;
    bool enabled_ = true;
    bool held_ = false;
};
