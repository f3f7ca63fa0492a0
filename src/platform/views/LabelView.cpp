#include "platform/views/LabelView.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/views/Accessibility.h"

namespace tarnwick {

namespace {

constexpr QChar ellipsis(0x2026);

// A line of a text, and what of its paragraph starts with it.
struct Line {
    QString text;
    QString rest;
};

// The height of so many lines.
double heightOf(const QFontMetricsF& metrics, qsizetype lines) {
    return static_cast<double>(lines) * metrics.lineSpacing() - metrics.leading();
}

// How many whole lines the height has room for.
std::size_t linesIn(const QFontMetricsF& metrics, double height) {
    constexpr double many = 1e6;
    const double lines = std::floor((height + metrics.leading()) / metrics.lineSpacing());
    return static_cast<std::size_t>(std::clamp(lines, 0.0, many));
}

// A word that is wider than a line is broken too.
void appendWrapped(std::vector<Line>& lines, const QString& paragraph, const QFont& font,
                   double width) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back({.text = paragraph.mid(line.textStart(), line.textLength()).trimmed(),
                         .rest = paragraph.mid(line.textStart())});
    }
    layout.endLayout();
}

QString elided(const QString& text, const QFontMetricsF& metrics, double width) {
    return metrics.horizontalAdvance(text) <= width
               ? text
               : metrics.elidedText(text, Qt::ElideRight, width);
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

QStringList LabelView::linesWithin(const QSizeF& limit) const {
    if (text_.isEmpty() || limit.width() <= 0)
        return {};
    std::vector<Line> lines;
    for (const QString& paragraph : text_.split('\n'))
        if (lines_ == Lines::Wrapped)
            appendWrapped(lines, paragraph, font_, limit.width());
        else
            lines.push_back({.text = paragraph, .rest = paragraph});
    const QFontMetricsF metrics(font_);
    if (const std::size_t most = linesIn(metrics, limit.height()); lines.size() > most) {
        lines.resize(most);
        if (most > 0)
            lines.back().text = lines.back().rest + ellipsis;
    }
    QStringList texts;
    for (const Line& line : lines)
        texts.append(elided(line.text, metrics, limit.width()));
    return texts;
}

QSizeF LabelView::sizeWithin(const QSizeF& limit) const {
    const QStringList lines = linesWithin(limit);
    if (lines.isEmpty())
        return {0, 0};
    const QFontMetricsF metrics(font_);
    double width = 0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    return {std::ceil(width), std::ceil(heightOf(metrics, lines.size()))};
}

void LabelView::paint(QPainter* painter) {
    const QFontMetricsF metrics(font_);
    const QStringList lines = linesWithin(size());
    painter->setRenderHint(QPainter::TextAntialiasing);
    painter->setFont(font_);
    painter->setPen(color_);
    double y = (height() - heightOf(metrics, lines.size())) / 2;
    for (const QString& line : lines) {
        painter->drawText(QRectF(0, y, width(), metrics.height()),
                          Qt::AlignCenter | Qt::TextSingleLine, line);
        y += metrics.lineSpacing();
    }
}

}  // namespace tarnwick
