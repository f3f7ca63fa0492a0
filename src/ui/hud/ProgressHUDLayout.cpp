#include "ui/hud/ProgressHUDLayout.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr double gap = 4.0;

QSizeF capped(const QSizeF& size, double width) {
    return {std::min(size.width(), width), size.height()};
}

// What stands above the second text, with the gap between.
double heightAbove(const QSizeF& indicator, const QSizeF& label) {
    const bool both = indicator.height() > 0 && label.height() > 0;
    return indicator.height() + label.height() + (both ? gap : 0);
}

QRectF centred(const QSizeF& size, double y, const HUDContents& contents) {
    const double x = std::round((contents.bounds.width() - size.width()) / 2);
    return {{x + contents.offset.x(), y}, size};
}

// Makes the box square where it fits into the bounds, each way for itself.
QSizeF squared(const QSizeF& size, const HUDContents& contents, double margin) {
    const double side = std::max(size.width(), size.height());
    const double space = 2 * margin;
    return {side <= contents.bounds.width() - space ? side : size.width(),
            side <= contents.bounds.height() - space ? side : size.height()};
}

}  // namespace

HUDLayout layOut(const HUDContents& contents) {
    const double margin = std::max(contents.margin, 0.0);
    const double margins = 4 * margin;
    const double widest = std::max(contents.bounds.width() - margins, 0.0);
    const QSizeF indicator = capped(contents.indicator, widest);
    const QSizeF label = capped(contents.label, widest);
    const double above = heightAbove(indicator, label);
    const QSizeF details =
        contents.details({widest, contents.bounds.height() - above - gap - margins});
    const double detailsGap = details.height() > 0 && above > 0 ? gap : 0;

    QSizeF size(std::max({indicator.width(), label.width(), details.width()}),
                above + detailsGap + details.height());
    size += QSizeF(2 * margin, 2 * margin);

    HUDLayout layout;
    double y =
        std::round((contents.bounds.height() - size.height()) / 2) + margin + contents.offset.y();
    layout.indicator = centred(indicator, y, contents);
    layout.label = centred(label, y + above - label.height(), contents);
    layout.details = centred(details, y + above + detailsGap, contents);

    if (contents.square)
        size = squared(size, contents, margin);
    // A parent may be narrower than the margins alone.
    size = size.boundedTo(contents.bounds).expandedTo(contents.minSize);
    y = std::round((contents.bounds.height() - size.height()) / 2) + contents.offset.y();
    layout.box = centred(size, y, contents);
    return layout;
}

}  // namespace tarnwick
