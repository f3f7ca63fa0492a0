#include "app/AppDelegate.h"

#include "platform/IdleTimer.h"
#include "platform/Look.h"
#include "platform/NavigationBar.h"

namespace tarnwick {

namespace {

constexpr int titleSize = 21;  // points

QFont titleFont() {
    QFont font("Helvetica");
    font.setWeight(QFont::Light);
    font.setPixelSize(titleSize);
    return font;
}

void setNavigationBarLook() {
    NavigationBarLook& look = NavigationBarLook::ofApplication();
    look.barTint = Look::blue();
    look.itemTint = Qt::white;
    look.titleColor = Qt::white;
    look.titleShadowColor = QColor::fromRgbF(0, 0, 0, 0.8F);
    look.titleShadowOffset = {0, 0};
    look.titleFont = titleFont();
}

}  // namespace

bool AppDelegate::applicationDidFinishLaunching() {
    setIdleTimerDisabled(&window_);
    setNavigationBarLook();
    return true;
}

void AppDelegate::applicationDidEnterBackground() {
    runner_.run("/usr/bin/killall RootTarnwick2");
}

}  // namespace tarnwick
