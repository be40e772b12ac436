// SPDX-License-Identifier: Apache-2.0
#include "platform/Background.h"

#include <utility>

Background::Background() {
#if QT_CONFIG(thread)
    thread_.setMaxThreadCount(1);
#endif
}

Background::~Background() {
#if QT_CONFIG(thread)
    thread_.waitForDone();
#endif
}

void Background::run(std::function<void()> work, std::function<void()> then) {
    ++waiting_;
    const auto both = [this, work = std::move(work), then = std::move(then)] {
        work();
        QMetaObject::invokeMethod(
            this,
            [this, then] {
                --waiting_;
                then();
            },
            Qt::QueuedConnection);
    };
#if QT_CONFIG(thread)
    thread_.start(both);
#else
    both();
#endif
}
