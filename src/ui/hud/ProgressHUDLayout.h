#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <algorithm>
#include <functional>

namespace tarnwick {

// What a HUD has to place. All lengths in points.
struct HUDContents {
    QSizeF bounds;              // of the HUD itself
    QSizeF indicator = {0, 0};  // nothing if there is none
    QSizeF label = {0, 0};      // on one line
    // The size of the second text within a limit.
    std::function<QSizeF(const QSizeF& limit)> details = [](const QSizeF&) { return QSizeF(0, 0); };
    double margin = 20.0;
    QPointF offset;
    bool square = false;
    QSizeF minSize = {0, 0};
};

// Where the parts stand in the HUD, and its box.
struct HUDLayout {
    QRectF indicator;
    QRectF label;
    QRectF details;
    QRectF box;
};

HUDLayout layOut(const HUDContents& contents);

// The nearest number from 0 to 1; 0 for what is no number.
inline double shareOf(double value) {
    return value > 0 ? std::min(value, 1.0) : 0.0;
}

}  // namespace tarnwick
