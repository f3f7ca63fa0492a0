#include "platform/desktop/DesktopSettings.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <cmath>
#include <optional>

#include "platform/desktop/SessionBus.h"

namespace tarnwick {

namespace {

constexpr char service[] = "org.freedesktop.portal.Desktop";
constexpr char path[] = "/org/freedesktop/portal/desktop";
constexpr char interface[] = "org.freedesktop.portal.Settings";

// Groups of settings: what all desktops have, and where each kind keeps its font.
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString kdeGroup = QStringLiteral("org.kde.kdeglobals.General");
const QString colorScheme = QStringLiteral("color-scheme");

using Settings = QMap<QString, QVariantMap>;

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

// Null if it is no size of a text.
std::optional<QFont> fontOf(const QString& family, double typographicPoints) {
    constexpr double smallest = 4.0;
    constexpr double largest = 100.0;
    constexpr double pixelsOfPoint = 96.0 / 72.0;
    if (!(typographicPoints >= smallest && typographicPoints <= largest))
        return {};
    QFont font(family);
    font.setPixelSize(static_cast<int>(std::lround(typographicPoints * pixelsOfPoint)));
    return font;
}

// "Noto Sans,10,-1,5,50,0,0,0,0,0".
std::optional<QFont> kdeFont(const QVariantMap& group) {
    const QStringList parts = group.value("font").toString().split(',');
    return parts.size() < 2 ? std::nullopt : fontOf(parts[0], parts[1].toDouble());
}

// "Cantarell 11", to be multiplied by a factor.
std::optional<QFont> gnomeFont(const QVariantMap& group) {
    const QString name = group.value("font-name").toString();
    const auto blank = name.lastIndexOf(' ');
    if (blank < 1)
        return {};
    const double factor = group.value("text-scaling-factor", 1.0).toDouble();
    return fontOf(name.left(blank), name.mid(blank).toDouble() * factor);
}

std::optional<QFont> fontIn(const Settings& settings) {
    const auto font = kdeFont(settings.value(kdeGroup));
    return font ? font : gnomeFont(settings.value(gnomeGroup));
}

bool prefersDark(const Settings& settings, bool otherwise) {
    enum Preference : unsigned { None = 0, Dark = 1, Light = 2 };
    const auto preference = settings.value(appearanceGroup).value(colorScheme).toUInt();
    return preference == Dark || (preference != Light && otherwise);
}

void setPaletteDark(bool dark) {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
    palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

}  // namespace

DesktopSettings::DesktopSettings()
    : bus_(sessionBus()), isDarkOtherwise_(isDark(QGuiApplication::palette())) {
    if (!bus_.isConnected())
        return;
    auto call = QDBusMessage::createMethodCall(service, path, interface, "ReadAll");
    call << QStringList{appearanceGroup, gnomeGroup, kdeGroup};
    answer_ = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(answer_, &QDBusPendingCallWatcher::finished, this, &DesktopSettings::takeAnswer);
}

void DesktopSettings::takeAnswer() {
    if (!answer_ || !answer_->isFinished())
        return;
    const QDBusMessage answer = answer_->reply();
    answer_->deleteLater();
    answer_.clear();
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{sa{sv}}")
        return;
    settings_ = qdbus_cast<Settings>(answer.arguments().first());
    bus_.connect(service, path, interface, "SettingChanged", this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    apply();
}

void DesktopSettings::settingChanged(const QString& group, const QString& key,
                                     const QDBusVariant& value) {
    settings_[group][key] = value.variant();
    apply();
}

void DesktopSettings::apply() const {
    if (const auto font = fontIn(settings_))
        QGuiApplication::setFont(*font);
    const bool dark = prefersDark(settings_, isDarkOtherwise_);
    if (dark != isDark(QGuiApplication::palette()))
        setPaletteDark(dark);
}

}  // namespace tarnwick
