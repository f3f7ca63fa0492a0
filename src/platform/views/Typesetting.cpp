#include "platform/views/Typesetting.h"

#include <QRegularExpression>
#include <QTextLayout>
#include <cmath>
#include <optional>

namespace tarnwick {

namespace {

// Invisible: where a line must not break, and where it may.
const QString noBreak = QStringLiteral("\u2060");
const QString mayBreak = QStringLiteral("\u200B");
const QString wideNoBreak = QStringLiteral("\u00A0");

QString withPathsBrokenBeforeSlashes(QString text) {
    static const QRegularExpression path("(?<![^\\s(])/[^\\s/)]+/[^\\s)]+",
                                         QRegularExpression::UseUnicodePropertiesOption);
    auto matches = path.globalMatch(text);
    qsizetype growth = 0;
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QString broken = match.captured().replace("/", mayBreak + "/" + noBreak);
        // It begins with two names.
        broken.remove(0, mayBreak.size());
        broken.remove(broken.indexOf(mayBreak), mayBreak.size());
        text.replace(match.capturedStart() + growth, match.capturedLength(), broken);
        growth += broken.size() - match.capturedLength();
    }
    return text;
}

// Null if a word is wider.
std::optional<int> linesWithin(double width, const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    bool fits = true;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        fits = fits && line.naturalTextWidth() <= width;
    }
    layout.endLayout();
    return fits ? std::optional(layout.lineCount()) : std::nullopt;
}

}  // namespace

QString Typesetting::prepared(const QString& text) {
    static const QRegularExpression blanksAtEnds("^ +| +$", QRegularExpression::MultilineOption);
    static const QRegularExpression blankBeforeMark(" (?=[?!]|\\.\\.\\.)");
    static const QRegularExpression slashAfterShortWord("(?<![^\\s(])(\\w{1,5}/)");
    static const QRegularExpression lastBlank("^(.* \\S+ \\S+) (\\S+)$",
                                              QRegularExpression::MultilineOption);
    QString drawn = text;
    drawn.remove(blanksAtEnds);
    drawn.replace(blankBeforeMark, wideNoBreak);
    drawn.replace(slashAfterShortWord, "\\1" + noBreak);
    drawn.replace(lastBlank, "\\1" + wideNoBreak + "\\2");
    return withPathsBrokenBeforeSlashes(drawn);
}

double Typesetting::balancedWidth(const QString& text, const QFont& font, double width) {
    const QString drawn = QString(text).replace('\n', QChar::LineSeparator);
    const auto lines = linesWithin(width, drawn, font);
    const bool isBalanced = !lines || *lines == 1;
    double tooNarrow = isBalanced ? width : 0;
    double enough = width;
    while (enough - tooNarrow > 1) {
        const double middle = (tooNarrow + enough) / 2;
        (linesWithin(middle, drawn, font) == lines ? enough : tooNarrow) = middle;
    }
    return std::ceil(enough);
}

}  // namespace tarnwick
