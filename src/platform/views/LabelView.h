#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// Centred text, painted at the screen's own resolution. Main thread.
class LabelView : public PaintedView {
    Q_OBJECT

public:
    explicit LabelView(QQuickItem* parent);

    enum class Lines { One, Wrapped };
    // One line is cut with dots where it does not fit.
    void setLines(Lines lines) { change(lines_, lines); }
    const QString& text() const { return text_; }
    void setText(const QString& text);
    void setFont(const QFont& font) { change(font_, font); }
    void setColor(const QColor& color) { change(color_, color); }

    // Whole points that the text takes on one line; nothing if it is empty.
    QSizeF sizeOnOneLine() const;
    // Whole points that the text takes when it is wrapped to the width, cut at the height.
    QSizeF sizeWithin(const QSizeF& limit) const;

    void paint(QPainter* painter) override;

private:
    Lines lines_ = Lines::Wrapped;
    QString text_;
    QFont font_;
    QColor color_ = Qt::black;
};

}  // namespace tarnwick
