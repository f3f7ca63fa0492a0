#pragma once

#include <QColor>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// A determinate indicator: a horizontal bar in a capsule. Every change redraws it. Main thread.
class BarProgressView : public PaintedView {
    Q_OBJECT
    Q_PROPERTY(double progress READ progress WRITE setProgress)

public:
    explicit BarProgressView(QQuickItem* parent = nullptr);

    double progress() const { return progress_; }
    void setProgress(double progress) { change(progress_, progress); }  // 0.0 to 1.0
    void setLineColor(const QColor& color) { change(lineColor_, color); }
    void setProgressColor(const QColor& color) { change(progressColor_, color); }
    void setProgressRemainingColor(const QColor& color) { change(progressRemainingColor_, color); }

    void paint(QPainter* painter) override;

private:
    double progress_ = 0.0;
    QColor lineColor_ = Qt::white;
    QColor progressColor_ = Qt::white;
    QColor progressRemainingColor_ = Qt::transparent;
};

}  // namespace tarnwick
