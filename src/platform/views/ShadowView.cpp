#include "platform/views/ShadowView.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace tarnwick {

namespace {

constexpr int patchesInARow = 3;
constexpr std::size_t patchCount = patchesInARow * patchesInARow;

constexpr double sharpest = 0.01;  // the radius of an edge without blur, in pixels

// The strength of a blurred edge at a distance inside it, in standard deviations.
double edgeStrength(double deviations) {
    return 0.5 * (1.0 + std::erf(deviations / std::sqrt(2.0)));
}

// The shadow's strength at a position along a length whose middle half casts it.
double strengthAt(double place, double length, double radius) {
    const double fromNearerEnd = std::min(place, length - place);
    return edgeStrength((fromNearerEnd - length / 4) / radius);
}

// The edges of a row of three patches: corner, stretched middle, corner.
struct Cuts {
    std::array<double, patchesInARow + 1> at;

    static Cuts of(double from, double length, double corner) {
        return {{from, from + corner, from + length - corner, from + length}};
    }
    QRectF patch(const Cuts& rows, std::size_t column, std::size_t row) const {
        return {QPointF(at[column], rows.at[row]), QPointF(at[column + 1], rows.at[row + 1])};
    }
};

class ShadowNode : public QSGNode {
public:
    ShadowNode(QQuickWindow* window, const Shadow& shadow) : extent_(shadowExtent(shadow)) {
        const QImage picture = shadowPicture(shadow, window->effectiveDevicePixelRatio());
        texture_.reset(
            window->createTextureFromImage(picture, QQuickWindow::TextureHasAlphaChannel));
        const bool hasMiddle = reachesBeyond(shadow);
        for (std::size_t place = 0; place < patches_.size(); ++place) {
            if (place == patches_.size() / 2 && !hasMiddle)
                continue;
            patches_[place] = window->createImageNode();
            patches_[place]->setTexture(texture_.get());
            patches_[place]->setOwnsTexture(false);
            appendChildNode(patches_[place]);
        }
    }

    void place(const QRectF& rectangle) {
        const QRectF outer = rectangle.adjusted(-extent_, -extent_, extent_, extent_);
        const Cuts columns = Cuts::of(outer.x(), outer.width(), 2 * extent_);
        const Cuts rows = Cuts::of(outer.y(), outer.height(), 2 * extent_);
        const double side = texture_->textureSize().width();
        // A single pixel is stretched between the corners.
        const Cuts source = {{0, side / 2, side / 2 + 1, side}};
        for (std::size_t place = 0; place < patches_.size(); ++place) {
            if (patches_[place] == nullptr)
                continue;
            const std::size_t row = place / patchesInARow;
            const std::size_t column = place % patchesInARow;
            patches_[place]->setRect(columns.patch(rows, column, row));
            patches_[place]->setSourceRect(source.patch(source, column, row));
        }
    }

private:
    // Whether the middle of the shadow is seen beside the rectangle that casts it.
    bool reachesBeyond(const Shadow& shadow) const {
        return std::abs(shadow.offset.width()) > extent_ ||
               std::abs(shadow.offset.height()) > extent_;
    }

    const double extent_;
    std::unique_ptr<QSGTexture> texture_;
    std::array<QSGImageNode*, patchCount> patches_ = {};  // by rows; null: below the rectangle
};

}  // namespace

double shadowExtent(const Shadow& shadow) {
    return std::max(1.0, std::ceil(3.0 * shadow.radius));
}

QImage shadowPicture(const Shadow& shadow, double devicePixelRatio) {
    const int side = static_cast<int>(std::lround(4 * shadowExtent(shadow) * devicePixelRatio));
    const double opacity = std::min(shadow.opacity, 1.0);
    const double radius = std::max(sharpest, shadow.radius * devicePixelRatio);
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double strength =
                strengthAt(x + 0.5, side, radius) * strengthAt(y + 0.5, side, radius);
            QColor color = shadow.color;
            color.setAlphaF(static_cast<float>(color.alphaF() * opacity * strength));
            picture.setPixelColor(x, y, color);
        }
    }
    return picture;
}

ShadowView::ShadowView(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void ShadowView::setShadow(const Shadow& shadow) {
    if (shadow == shadow_)
        return;
    shadow_ = shadow;
    changed_ = true;
    update();
}

QSGNode* ShadowView::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    if (changed_ || shadow_.opacity <= 0 || size().isEmpty()) {
        delete old;
        old = nullptr;
        changed_ = false;
    }
    if (shadow_.opacity <= 0 || size().isEmpty())
        return nullptr;
    auto* node = static_cast<ShadowNode*>(old);
    if (node == nullptr)
        node = new ShadowNode(window(), shadow_);
    node->place(boundingRect().translated(shadow_.offset.width(), shadow_.offset.height()));
    return node;
}

void ShadowView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

}  // namespace tarnwick
