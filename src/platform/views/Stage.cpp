#include "platform/views/Stage.h"

#include <QAccessibleObject>
#include <QQuickWindow>

#include "platform/views/Accessibility.h"

namespace tarnwick {

namespace {

bool isIgnored(const QQuickItem* item) {
    for (const QObject* child : item->children())
        if (child->inherits("QQuickAccessibleAttached"))
            return child->property("ignored").toBool();
    return false;
}

// The nearest items below that are offered: one that was never described is looked through.
void collectOffered(const QQuickItem* item, QList<QAccessibleInterface*>& offered) {
    for (QQuickItem* child : item->childItems()) {
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(child);
        if (interface == nullptr || isIgnored(child))
            collectOffered(child, offered);
        else
            offered.append(interface);
    }
}

// Qt hides an item from assistive technology only if it is invisible on the screen as well; this
// also hides what is covered.
class StageInterface : public QAccessibleObject {
public:
    explicit StageInterface(Stage* stage) : QAccessibleObject(stage) {}

    QAccessibleInterface* parent() const override {
        for (QQuickItem* item = stage()->parentItem(); item != nullptr; item = item->parentItem())
            if (QAccessibleInterface* offered = QAccessible::queryAccessibleInterface(item))
                return offered;
        return QAccessible::queryAccessibleInterface(stage()->window());
    }

    QAccessibleInterface* child(int index) const override { return children().value(index); }
    int childCount() const override { return static_cast<int>(children().size()); }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(children().indexOf(child));
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const auto offered = children();
        for (auto child = offered.crbegin(); child != offered.crend(); ++child) {
            if ((*child)->state().invisible)
                continue;
            if (QAccessibleInterface* deeper = (*child)->childAt(x, y))
                return deeper;
            if ((*child)->rect().contains(x, y))
                return *child;
        }
        return nullptr;
    }

    QRect rect() const override {
        return QRectF(stage()->mapToGlobal(QPointF(0, 0)), stage()->size()).toRect();
    }

    QString text(QAccessible::Text) const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Grouping; }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = stage()->isCovered() || !stage()->isVisible();
        return state;
    }

private:
    Stage* stage() const { return static_cast<Stage*>(object()); }

    QList<QAccessibleInterface*> children() const {
        QList<QAccessibleInterface*> offered;
        if (!stage()->isCovered())
            collectOffered(stage(), offered);
        return offered;
    }
};

// Asked with the name of each class of the object, from its own up.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (className != QLatin1String(Stage::staticMetaObject.className()))
        return nullptr;
    return new StageInterface(static_cast<Stage*>(object));
}

}  // namespace

Stage::Stage(QQuickItem* parent) : QQuickItem(parent) {
    // The item in it that had the keyboard has it again when the stage gets it back.
    setFlag(ItemIsFocusScope);
    QAccessible::installFactory(makeInterface);
    describe(this, QAccessible::Grouping, {});
}

void Stage::cover() {
    if (covers_++ == 0)
        coverChanged();
}

void Stage::uncover() {
    Q_ASSERT(covers_ > 0);
    if (--covers_ == 0)
        coverChanged();
}

void Stage::coverChanged() {
    inputCover_ = isCovered() ? std::make_unique<Cover>(QList<QQuickItem*>{this}) : nullptr;
    emit coveredChanged();
    QAccessibleEvent event(this, isCovered() ? QAccessible::ObjectHide : QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

}  // namespace tarnwick
