// SPDX-License-Identifier: Apache-2.0
#include "boards/views/benchAccess.h"

#include "boards/views/BenchPart.h"
#include "boards/views/BenchView.h"

#include <QAccessibleWidget>

#include <algorithm>

namespace {

BenchView* viewOf(const BenchPart& part) {
    return part.scene() != nullptr && !part.scene()->views().isEmpty() ? qobject_cast<BenchView*>(part.scene()->views().first())
                                                                       : nullptr;
}

class PartAccess : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit PartAccess(BenchPart* part) : QAccessibleObject(part) {}

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(viewOf(part())); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name: return part().spokenName();
            case QAccessible::Value: return part().spokenState();
            default: return {};
        }
    }
    QAccessible::Role role() const override { return part().reactions().any() ? QAccessible::Button : QAccessible::Graphic; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !part().isVisible();
        state.focusable = part().reactions().any();
        state.focused = part().hasFocus();
        state.pressed = part().isHeld();
        return state;
    }
    QRect rect() const override {
        const BenchView* view = viewOf(part());
        if (view == nullptr) {
            return {};
        }
        const QRect place = view->mapFromScene(part().sceneBoundingRect()).boundingRect();
        return {view->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override {
        return part().reactions().any() ? QStringList{pressAction(), setFocusAction()} : QStringList{};
    }
    void doAction(const QString& name) override {
        part().setFocus(Qt::TabFocusReason);
        if (name == pressAction()) {
            part().actByKey();
        }
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    BenchPart& part() const { return *qobject_cast<BenchPart*>(object()); }
};

class ViewAccess : public QAccessibleWidget {
public:
    explicit ViewAccess(BenchView* view) : QAccessibleWidget(view, QAccessible::Pane, QStringLiteral("HardWare")) {}

    int childCount() const override { return QAccessibleWidget::childCount() + static_cast<int>(view().parts().size()); }
    QAccessibleInterface* child(int index) const override {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) {
            return QAccessibleWidget::child(index);
        }
        const auto part = static_cast<std::size_t>(index - widgets);
        return part < view().parts().size() ? QAccessible::queryAccessibleInterface(view().parts()[part]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto& parts = view().parts();
        const auto found = std::find(parts.begin(), parts.end(), child->object());
        return found != parts.end() ? QAccessibleWidget::childCount() + static_cast<int>(found - parts.begin())
                                    : QAccessibleWidget::indexOfChild(child);
    }
    QAccessibleInterface* focusChild() const override {
        auto* part = dynamic_cast<BenchPart*>(view().scene() != nullptr ? view().scene()->focusItem() : nullptr);
        return part != nullptr ? QAccessible::queryAccessibleInterface(part) : QAccessibleWidget::focusChild();
    }

private:
    BenchView& view() const { return *qobject_cast<BenchView*>(object()); }
};

QAccessibleInterface* makeAccess(const QString& /*className*/, QObject* object) {
    if (auto* part = qobject_cast<BenchPart*>(object)) {
        return new PartAccess(part);
    }
    if (auto* view = qobject_cast<BenchView*>(object)) {
        return new ViewAccess(view);
    }
    return nullptr;
}

}  // namespace

void makeBenchAccessible() {
    static const bool once = [] {
        QAccessible::installFactory(makeAccess);
        return true;
    }();
    static_cast<void>(once);
}
