#pragma once

#include <QColor>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// A determinate indicator: a pie, or a ring. Every change redraws it. Main thread.
class RoundProgressView : public PaintedView {
    Q_OBJECT
    Q_PROPERTY(double progress READ progress WRITE setProgress)

public:
    // Of 37 points each way.
    explicit RoundProgressView(QQuickItem* parent = nullptr);
    explicit RoundProgressView(const QRectF& frame, QQuickItem* parent = nullptr);

    double progress() const { return progress_; }
    void setProgress(double progress) { change(progress_, progress); }  // 0.0 to 1.0
    const QColor& progressTintColor() const { return progressTintColor_; }
    void setProgressTintColor(const QColor& color) { change(progressTintColor_, color); }
    const QColor& backgroundTintColor() const { return backgroundTintColor_; }
    void setBackgroundTintColor(const QColor& color) { change(backgroundTintColor_, color); }
    bool isAnnular() const { return annular_; }
    void setAnnular(bool annular) { change(annular_, annular); }

    void paint(QPainter* painter) override;

private:
    void paintRing(QPainter& painter) const;
    void paintPie(QPainter& painter) const;

    double progress_ = 0.0;
    QColor progressTintColor_ = Qt::white;
    QColor backgroundTintColor_ = QColor::fromRgbF(1, 1, 1, 0.1F);
    bool annular_ = false;
};

}  // namespace tarnwick
