#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace tarnwick {

// A determinate indicator: a pie, or a ring. Every change redraws it. Main thread.
class RoundProgressView : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double progress READ progress WRITE setProgress)

public:
    explicit RoundProgressView(QQuickItem* parent = nullptr);

    double progress() const { return progress_; }
    void setProgress(double progress);  // 0.0 to 1.0
    void setProgressTintColor(const QColor& color);
    void setBackgroundTintColor(const QColor& color);
    bool isAnnular() const { return annular_; }
    void setAnnular(bool annular);

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
