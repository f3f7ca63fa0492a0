#pragma once

#include <QColor>
#include <QQuickItem>

#include "platform/views/ShadowView.h"

namespace tarnwick {

// What is drawn behind a view's own content: fill, border, rounded corners, shadow. It follows the
// view's size and goes with the view. Lengths in points. Main thread.
class Layer : public QObject {
    Q_OBJECT

public:
    // The view's layer; created, with nothing to see, on the first call.
    static Layer& of(QQuickItem* view);

    explicit Layer(QQuickItem* view);

    void setBorderWidth(double width);
    void setBorderColor(const QColor& color);
    void setCornerRadius(double radius);
    void setBackgroundColor(const QColor& color);
    // Whether the view clips its content.
    void setMasksToBounds(bool masks);

    // Drawn around the layer's rectangle; below it only as far as it is shifted from there.
    void setShadow(const Shadow& shadow);

private:
    QQuickItem* view_;
    QQuickItem* rectangle_;
    ShadowView* shadow_ = nullptr;  // null until one is set
};

}  // namespace tarnwick
