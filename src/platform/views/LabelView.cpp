#include "platform/views/LabelView.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/views/Accessibility.h"

namespace tarnwick {

namespace {

constexpr int wrapping = Qt::AlignCenter | Qt::TextWordWrap;

QSizeF wholePoints(const QSizeF& size) {
    return {std::ceil(size.width()), std::ceil(size.height())};
}

}  // namespace

LabelView::LabelView(QQuickItem* parent) : PaintedView(parent) {
    setVisible(false);
}

void LabelView::setText(const QString& text) {
    if (!change(text_, text))
        return;
    setVisible(!text.isEmpty());
    describe(this, QAccessible::StaticText, text);
}

QSizeF LabelView::sizeOnOneLine() const {
    if (text_.isEmpty())
        return {0, 0};
    const QFontMetricsF metrics(font_);
    return wholePoints({metrics.horizontalAdvance(text_), metrics.height()});
}

QSizeF LabelView::sizeWithin(const QSizeF& limit) const {
    if (text_.isEmpty())
        return {0, 0};
    const QRectF space(0, 0, std::max(limit.width(), 0.0), std::max(limit.height(), 0.0));
    const QSizeF wanted = QFontMetricsF(font_).boundingRect(space, wrapping, text_).size();
    return wholePoints(wanted.boundedTo(space.size()));
}

void LabelView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::TextAntialiasing);
    painter->setFont(font_);
    painter->setPen(color_);
    if (lines_ == Lines::Wrapped) {
        painter->drawText(boundingRect(), wrapping, text_);
        return;
    }
    const QString line = QFontMetricsF(font_).elidedText(text_, Qt::ElideRight, width());
    painter->drawText(boundingRect(), Qt::AlignCenter | Qt::TextSingleLine, line);
}

}  // namespace tarnwick
