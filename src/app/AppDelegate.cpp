#include "app/AppDelegate.h"

#include <sys/utsname.h>

#include "app/DeviceModel.h"
#include "platform/controllers/Look.h"
#include "platform/controllers/NavigationBar.h"
#include "platform/desktop/IdleTimer.h"
#include "platform/windows/Window.h"

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

bool AppDelegate::applicationDidFinishLaunchingWithOptions(const LaunchOptions& options) {
    setIdleTimerDisabled(&window_);
    setNavigationBarLook();
    routeLaunch(options);
    return true;
}

void AppDelegate::applicationDidEnterBackground() {
    services_.runner.run("/usr/bin/killall RootTarnwick2");
}

std::optional<std::string> AppDelegate::platformType() const {
    utsname system = {};
    return ::uname(&system) == 0 ? platformTypeOf(system.machine) : std::nullopt;
}

}  // namespace tarnwick
