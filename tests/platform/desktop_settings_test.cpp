#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPalette>

#include "platform/controllers/Look.h"
#include "platform/desktop/DesktopSettings.h"
#include "support/SessionDaemon.h"

namespace tarnwick::testing {
namespace {

using Settings = QMap<QString, QVariantMap>;

// The session's service, which tells whoever asks what the desktop is set to.
class Portal : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        ++calls;
        return bus.send(message.createReply(QVariant::fromValue(settings)));
    }
    Settings settings;
    int calls = 0;
};

class DesktopSettingsTest : public ::testing::Test {
protected:
    DesktopSettingsTest() {
        qDBusRegisterMetaType<Settings>();
        EXPECT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
        bus.registerVirtualObject("/org/freedesktop/portal/desktop", &portal);
    }
    ~DesktopSettingsTest() override {
        QDBusConnection::disconnectFromBus("desktop");
        QGuiApplication::setFont(font);
        QGuiApplication::setPalette(palette);
    }

    static void await(const std::function<bool()>& condition) {
        QElapsedTimer sinceNow;
        for (sinceNow.start(); !condition() && sinceNow.elapsed() < 10000;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        EXPECT_TRUE(condition());
    }
    void change(const QString& group, const QString& key, const QVariant& value) {
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus.send(signal);
    }

    const QFont font = QGuiApplication::font();
    const QPalette palette = QGuiApplication::palette();
    Portal portal;
    QDBusConnection bus = QDBusConnection::connectToBus(sessionDaemon(), "desktop");
};

TEST_F(DesktopSettingsTest, BecomeTheApplicationsOwnAndFollowChanges) {
    portal.settings = {{"org.freedesktop.appearance", {{"color-scheme", 1U}}},
                       {"org.gnome.desktop.interface",
                        {{"font-name", "DejaVu Serif 12"}, {"text-scaling-factor", 1.25}}}};
    const DesktopSettings settings;
    await([] { return Look::isDark(); });
    EXPECT_EQ(QGuiApplication::font().family(), "DejaVu Serif");
    EXPECT_EQ(QGuiApplication::font().pixelSize(), 20);
    change("org.gnome.desktop.interface", "text-scaling-factor", 1.5);
    await([] { return QGuiApplication::font().pixelSize() == 24; });
    change("org.freedesktop.appearance", "color-scheme", 0U);
    await([] { return !Look::isDark(); });
}

TEST_F(DesktopSettingsTest, WhatCannotBeUnderstoodChangesNothing) {
    const Settings rows[] = {{},
                             {{"org.freedesktop.appearance", {{"color-scheme", "dark"}}}},
                             {{"org.gnome.desktop.interface", {{"font-name", "Cantarell"}}}},
                             {{"org.gnome.desktop.interface", {{"font-name", "Cantarell 5000"}}}},
                             {{"org.gnome.desktop.interface",
                               {{"font-name", "Cantarell 11"}, {"text-scaling-factor", "inf"}}}},
                             {{"org.kde.kdeglobals.General", {{"font", "one, two"}}}}};
    for (const Settings& row : rows) {
        portal.settings = row;
        const int callsBefore = portal.calls;
        const DesktopSettings settings;
        await([&] { return portal.calls > callsBefore; });
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        EXPECT_EQ(QGuiApplication::font(), font);
        EXPECT_FALSE(Look::isDark());
    }
    portal.settings = {
        {"org.kde.kdeglobals.General", {{"font", "DejaVu Sans Mono,15,-1,5,50,0,0,0,0,0"}}}};
    const DesktopSettings settings;
    await([] { return QGuiApplication::font().pixelSize() == 20; });
}

}  // namespace
}  // namespace tarnwick::testing
