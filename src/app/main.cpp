#include <unistd.h>

#include <QGuiApplication>

#include "app/AppDelegate.h"
#include "app/MainInterface.h"
#include "core/CommandSurroundings.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"
#include "core/SystemLog.h"
#include "mail/ComposerMailer.h"
#include "platform/PlatformQueues.h"
#include "platform/Window.h"

using namespace tarnwick;

namespace {

// Without the rights, each command fails in its own way.
void becomeRoot() {
    static_cast<void>(::setuid(0));
    static_cast<void>(::setgid(0));
}

}  // namespace

int main(int count, char** values) {
    becomeRoot();
    prepareForCommands();
    // What is drawn needs no graphics card, and starts faster without one.
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(count, values);
    QGuiApplication::setApplicationName("Tarnwick");
    QGuiApplication::setApplicationDisplayName("Tarnwick");

    const ItemCatalogue catalogue;
    SystemCommandRunner runner;
    SystemFileManager files;
    Window window;
    PlatformQueues queues;
    SystemLog log;
    ComposerMailer mailer(queues);
    const ScreenServices services = {catalogue,       runner, files, queues,
                                     window.alerts(), mailer, log};
    AppDelegate delegate(window, runner);
    const LifeCycle lifeCycle(window, delegate);
    delegate.applicationDidFinishLaunching();
    window.setRootViewController(loadMainStoryboard(services)->instantiateInitialViewController());
    window.setTitle(QGuiApplication::applicationDisplayName());
    window.resize(375, 667);
    window.show();
    const int status = QGuiApplication::exec();
    // Screens go before what they work with.
    window.setRootViewController(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return status;
}
