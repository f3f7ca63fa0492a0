#pragma once

#include <QQuickPaintedItem>

namespace tarnwick {

// A painted item that redraws itself when one of its values changes. Main thread.
class PaintedView : public QQuickPaintedItem {
public:
    using QQuickPaintedItem::QQuickPaintedItem;

protected:
    // Stores the value and has it drawn; false if it was the same before.
    template <class Value>
    bool change(Value& stored, const Value& value) {
        if (stored == value)
            return false;
        stored = value;
        update();
        return true;
    }
};

}  // namespace tarnwick
