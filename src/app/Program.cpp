#include "app/Program.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/MainInterface.h"
#include "app/QuickActions.h"

namespace tarnwick {

namespace {

// In points.
constexpr QSize phoneSize(375, 667);
constexpr QSize smallestSize(320, 480);

}  // namespace

Program::~Program() {
    // Screens must go before what they work with.
    window_.setRootViewController(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Program::activate() {
    if (!isLaunched())
        return launch({});
    deferredClose_->cancel();
    window_.makeKeyAndVisible();
}

void Program::activateAction(const QString& name) {
    if (isLaunched())
        delegate_.applicationPerformActionForShortcutItem(shortcutItem(name), [](bool) {});
    else
        launch({.shortcutItem = shortcutItem(name)});
}

void Program::launch(const LaunchOptions& options) {
    lifeCycle_ = std::make_unique<LifeCycle>(window_, delegate_);
    // Asked first, as it came last.
    deferredClose_ = std::make_unique<DeferredClose>(window_, gate_.tasks());
    window_.setTitle(QGuiApplication::applicationDisplayName());
    const QSize room = window_.screen()->availableSize();
    window_.setMinimumSize(smallestSize.boundedTo(room));
    window_.resize(phoneSize.boundedTo(room));
    delegate_.applicationDidFinishLaunchingWithOptions(options);
    if (!window_.rootViewController())
        window_.setRootViewController(
            loadMainStoryboard(services_)->instantiateInitialViewController());
    settings_.takeAnswer();
    window_.makeKeyAndVisible();
    tellOfLeftRun();
}

void Program::tellOfLeftRun() {
    const std::string text = textOf(run_.takeLeft());
    if (!text.empty())
        window_.alerts().show({.title = "Tarnwick", .message = text});
}

}  // namespace tarnwick
