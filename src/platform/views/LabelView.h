#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// Centred text, painted at the screen's resolution. It is visible unless it is empty. Main thread.
class LabelView : public PaintedView {
    Q_OBJECT

public:
    explicit LabelView(QQuickItem* parent);

    enum class Lines { One, Wrapped };
    // A single line is elided where it does not fit.
    void setLines(Lines lines) { change(lines_, lines); }
    const QString& text() const { return text_; }
    void setText(const QString& text);
    void setFont(const QFont& font) { change(font_, font); }
    void setColor(const QColor& color) { change(color_, color); }

    // The size on one line, in whole points; zero if the text is empty.
    QSizeF sizeOnOneLine() const;
    // The size when wrapped to the width and cut at the height, in whole points.
    QSizeF sizeWithin(const QSizeF& limit) const;

    void paint(QPainter* painter) override;

private:
    Lines lines_ = Lines::Wrapped;
    QString text_;
    QFont font_;
    QColor color_ = Qt::black;
};

}  // namespace tarnwick
