#pragma once

#include <QColor>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// A determinate indicator: a horizontal bar in a capsule. Every change redraws it. Main thread.
class BarProgressView : public PaintedView {
    Q_OBJECT
    Q_PROPERTY(double progress READ progress WRITE setProgress)

public:
    // Of 120 by 20 points.
    explicit BarProgressView(QQuickItem* parent = nullptr);
    explicit BarProgressView(const QRectF& frame, QQuickItem* parent = nullptr);

    double progress() const { return progress_; }
    void setProgress(double progress) { change(progress_, progress); }  // 0.0 to 1.0
    const QColor& lineColor() const { return lineColor_; }
    void setLineColor(const QColor& color) { change(lineColor_, color); }
    const QColor& progressColor() const { return progressColor_; }
    void setProgressColor(const QColor& color) { change(progressColor_, color); }
    const QColor& progressRemainingColor() const { return progressRemainingColor_; }
    void setProgressRemainingColor(const QColor& color) { change(progressRemainingColor_, color); }

    void paint(QPainter* painter) override;

private:
    double progress_ = 0.0;
    QColor lineColor_ = Qt::white;
    QColor progressColor_ = Qt::white;
    QColor progressRemainingColor_ = Qt::transparent;
};

}  // namespace tarnwick
