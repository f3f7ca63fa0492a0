#pragma once

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QSizeF>

namespace tarnwick {

// A rectangle's soft shadow. Lengths in points.
struct Shadow {
    QColor color = Qt::black;
    double opacity = 0.0;
    QSizeF offset = {0, 0};
    double radius = 3.0;  // of the blur: its standard deviation; at 0 the edges are sharp

    bool operator==(const Shadow&) const = default;
};

// How far the shadow extends to either side of the rectangle's edges, from nothing to its full
// strength.
double shadowExtent(const Shadow& shadow);

// The shadow of a square with sides of twice the extent, in the middle of an image of four times
// the extent. Patches of it make the shadow of any larger rectangle.
QImage shadowPicture(const Shadow& shadow, double devicePixelRatio);

// Draws a shadow around its own bounds from patches, so that the cost does not grow with the size;
// a shadow that is shifted from below the bounds has a middle too. Main thread.
class ShadowView : public QQuickItem {
    Q_OBJECT

public:
    explicit ShadowView(QQuickItem* parent);

    void setShadow(const Shadow& shadow);

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    Shadow shadow_;
    bool changed_ = true;
};

}  // namespace tarnwick
