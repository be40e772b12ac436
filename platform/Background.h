// SPDX-License-Identifier: Apache-2.0
// Work that waits for a disk, away from the interface thread: the simulation and the windows go on meanwhile. In a build without
// threads (a browser) it is done where it is asked for.

#pragma once

#include <QObject>

#include <functional>

#if QT_CONFIG(thread)
#include <QThreadPool>
#endif

class Background : public QObject {
    Q_OBJECT

public:
    Background();
    // Brings what was asked for to its end; what would follow it is no longer called.
    ~Background() override;

    // `work` is done once everything that was asked for before it is done. `then` follows on the interface thread, in a later
    // turn of its event loop.
    void run(std::function<void()> work, std::function<void()> then);

    // Whether a `then` is still to come.
    bool busy() const { return waiting_ > 0; }

private:
    int waiting_ = 0;
#if QT_CONFIG(thread)
    QThreadPool thread_;  // of one, which exists while there is work
#endif
};
