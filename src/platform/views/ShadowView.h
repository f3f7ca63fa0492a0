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
    double radius = 3.0;  // how far it is blurred: the standard deviation

    bool operator==(const Shadow&) const = default;
};

// How far on either side of the rectangle's edges the shadow is between nothing and its whole
// strength.
double shadowExtent(const Shadow& shadow);

// The shadow of a rectangle of twice the extent each way, in the middle of a picture of four times
// the extent: every larger rectangle's shadow is made of its patches.
QImage shadowPicture(const Shadow& shadow, double devicePixelRatio);

// Draws the shadow of its own bounds, around them. Made of eight patches, so that it costs little
// whatever the size.
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
