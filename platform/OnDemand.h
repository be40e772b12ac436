// SPDX-License-Identifier: Apache-2.0
// The life of a window: made at its first use, shown and hidden, and forgotten when it is over. One mechanism for all windows of
// the program, safe at any moment: a window that nobody has asked for costs nothing, and one that is forgotten twice in the same
// batch of events, or by a gesture of its own, is gone once. One that goes while it is at work gives the keyboard back to the
// window that had it before: desktops would give it to the owner.

#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>

// What needs no knowledge of the window's class.
class WindowLife : public QObject {
public:
    using TellShown = std::function<void(bool shown)>;

    // `set` is the receiver of the window's signals; `tellShown` hears when the window comes up and when it goes, whoever did it.
    WindowLife(QObject& set, TellShown tellShown) : set_(set), tellShown_(std::move(tellShown)) {}
    ~WindowLife() override;

    bool visible() const { return window_ != nullptr && window_->isVisible(); }
    void hide();
    // Hides the window and deletes it when the events under way are over. What it still has to say reaches nobody.
    void forget();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keep(QWidget* window);
    QWidget* kept() const { return window_.data(); }

private:
    QObject& set_;
    TellShown tellShown_;
    void giveWorkBack();

    QPointer<QWidget> window_;
    QPointer<QWidget> before_;  // the window at work when this one came up
};

template <class Window>
class OnDemand : public WindowLife {
public:
    // `make` makes the window and wires its signals to `set`, the object that this is a member of.
    OnDemand(QObject& set, std::function<Window*()> make, TellShown tellShown = {})
        : WindowLife(set, std::move(tellShown)), make_(std::move(make)) {}

    // The window, made if need be.
    Window& made() {
        if (kept() == nullptr) {
            keep(make_());
        }
        return *get();
    }
    Window* operator->() { return &made(); }
    // The window as far as there is one.
    Window* get() const { return static_cast<Window*>(kept()); }

private:
    std::function<Window*()> make_;
};
