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
    // The view's layer; made, with nothing to see, on the first call.
    static Layer& of(QQuickItem* view);

    explicit Layer(QQuickItem* view);

    void setBorderWidth(double width);
    void setBorderColor(const QColor& color);
    void setCornerRadius(double radius);
    void setBackgroundColor(const QColor& color);
    // Whether what the view holds is cut at its bounds.
    void setMasksToBounds(bool masks);

    // The shadow of the layer's rectangle: drawn around it, not under it.
    void setShadow(const Shadow& shadow);

private:
    QQuickItem* view_;
    QQuickItem* rectangle_;
    ShadowView* shadow_ = nullptr;  // made when there is one to see
};

}  // namespace tarnwick
