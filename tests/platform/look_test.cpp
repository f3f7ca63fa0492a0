#include "platform/controllers/Look.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPalette>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "platform/views/QmlEngine.h"
#include "platform/views/Typesetting.h"

namespace tarnwick::testing {
namespace {

// Of WCAG 2.
double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(LookTest, WhatIsReadHasContrastOnWhatItStandsOn) {
    const QPalette usual = QGuiApplication::palette();
    for (const bool isDark : {false, true}) {
        QPalette palette = usual;
        palette.setColor(QPalette::Window, isDark ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        for (const char* const tint : {"#007aff", "#ffcc00", "#102030"}) {
            Look::setTint(QColor(tint));
            EXPECT_EQ(Look::isDark(), isDark);
            for (const QColor& ground : {Look::screen(), Look::sheet(), Look::panel()}) {
                for (const QColor& text :
                     {Look::text(), Look::quietText(), Look::link(), Look::destructive()})
                    EXPECT_GE(contrast(text, ground), 4.5)
                        << text.name().toStdString() << " on " << ground.name().toStdString();
                EXPECT_GE(contrast(Look::mark(), ground), 3.0);
            }
        }
    }
    QGuiApplication::setPalette(usual);
}

TEST(LookTest, WhatIsOnTheScreenFollowsTheFont) {
    const QFont usual = QGuiApplication::font();
    QQuickItem parent;
    QQuickItem* button = createQmlItem("PushButton", &parent, {{"text", "Restore everything"}});
    const QSizeF before(button->implicitWidth(), button->implicitHeight());
    QFont font("DejaVu Serif");
    font.setPixelSize(30);
    QGuiApplication::setFont(font);
    EXPECT_EQ(button->property("font").value<QFont>().family(), "DejaVu Serif");
    EXPECT_GT(button->implicitWidth(), 1.5 * before.width());
    EXPECT_GT(button->implicitHeight(), before.height());
    QGuiApplication::setFont(usual);
    EXPECT_EQ(QSizeF(button->implicitWidth(), button->implicitHeight()), before);
}

TEST(TypesettingTest, LinesBreakWhereATypographerWouldBreakThem) {
    // ~ joins, | joins without a blank, ^ lets a line end.
    const auto shown = [](QString text) {
        return text.replace(QChar(0xA0), '~')
            .replace(QChar(0x2060), '|')
            .replace(QChar(0x200B), '^');
    };
    const std::pair<const char*, const char*> rows[] = {
        {"Backup done !", "Backup done~!"},
        {"All in One ", "All in One"},
        {"Do you want it ? Say so now !", "Do you want it~? Say so~now~!"},
        {"First of all paragraphs\nsecond", "First of all~paragraphs\nsecond"},
        {"such as SMS, etc ...", "such as SMS,~etc~..."},
        {"It lies in /var/mobile/Library now", "It lies in /|var/|mobile^/|Library~now"},
        {"The folder is /var/mobile", "The folder is~/|var/|mobile"},
        {"see /etc/apt/ (one/two) and/or", "see /|etc/|apt^/| (one/|two)~and/|or"}};
    for (const auto& [text, prepared] : rows)
        EXPECT_EQ(shown(Typesetting::prepared(text)).toStdString(), prepared);
}

TEST(TypesettingTest, ABalancedTextIsAsHighAndNarrower) {
    QQuickItem parent;
    const QString text = "Use these options to clean your backup folder or to help you applying";
    QQuickItem* block = createQmlItem("WrappedText", &parent, {{"text", text}, {"width", 343}});
    const double height = block->height();
    EXPECT_LT(Typesetting::balancedWidth(text, block->property("font").value<QFont>(), 343), 330);
    block->setProperty("horizontalAlignment", Qt::AlignHCenter);
    EXPECT_EQ(block->height(), height);
    block->setWidth(5000);
    EXPECT_LT(block->height(), height);
}

}  // namespace
}  // namespace tarnwick::testing
