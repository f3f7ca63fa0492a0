#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// Centred text, painted at the screen's resolution; its line breaks are kept. It is visible unless
// it is empty. Main thread.
class LabelView : public PaintedView {
    Q_OBJECT

public:
    explicit LabelView(QQuickItem* parent);

    enum class Lines { Unwrapped, Wrapped };
    // A line that is not wrapped is elided where it does not fit.
    void setLines(Lines lines) { change(lines_, lines); }
    const QString& text() const { return text_; }
    void setText(const QString& text);
    void setFont(const QFont& font) { change(font_, font); }
    void setColor(const QColor& color) { change(color_, color); }

    // The size within the limit, in whole points and whole lines; the last line is elided where
    // there is no room for all. Zero if the text is empty or there is no room for a line.
    QSizeF sizeWithin(const QSizeF& limit) const;

    void paint(QPainter* painter) override;

private:
    QStringList linesWithin(const QSizeF& limit) const;

    Lines lines_ = Lines::Wrapped;
    QString text_;
    QFont font_;
    QColor color_ = Qt::black;
};

}  // namespace tarnwick
