#pragma once

#include <QColor>
#include <QQuickItem>

#include "platform/views/ShadowView.h"

namespace tarnwick {

// What is drawn behind a view's own content: fill, border, rounded corners, shadow. As large as the
// view, whatever its size becomes. Lengths in points. Main thread.
class Layer {
public:
    // The view's layer; made, with nothing to see, on the first call. It goes with the view.
    static Layer of(QQuickItem* view);

    void setBorderWidth(double width);
    void setBorderColor(const QColor& color);
    void setCornerRadius(double radius);
    void setBackgroundColor(const QColor& color);
    // Whether what the view holds is cut at its bounds.
    void setMasksToBounds(bool masks);

    // The shadow of the layer's rectangle: drawn around it, not under it.
    void setShadow(const Shadow& shadow);

private:
    explicit Layer(QQuickItem* view) : view_(view) {}

    QQuickItem* rectangle() const;
    ShadowView* shadowView() const;

    QQuickItem* view_;
};

}  // namespace tarnwick
