#include <unistd.h>

#include <QGuiApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>

#include "app/BusIdentity.h"
#include "app/Program.h"
#include "app/QuickActions.h"
#include "app/StartOptions.h"
#include "core/CommandEnvironment.h"
#include "platform/desktop/SessionApplication.h"

using namespace tarnwick;

namespace {

enum ExitStatus { Done = 0, Unavailable = 1, WrongUsage = 2 };

// Not checked: without the rights, each command fails in its own way.
void becomeRoot() {
    [[maybe_unused]] const int user = ::setuid(0);
    [[maybe_unused]] const int group = ::setgid(0);
}

// Without a display the toolkit aborts.
bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void prepareToolkit() {
    // The scenes need no graphics card, and start faster without one.
    qputenv("QT_QUICK_BACKEND", "software");
    // The scenes are compiled in: nothing needs a cache in root's home.
    qputenv("QML_DISK_CACHE", "aot");
    // No graphics driver is loaded with root's rights; the toolkit would warn about it.
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    QLoggingCategory::setFilterRules("qt.qpa.wayland.warning=false");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM",
                qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "xcb" : "wayland;xcb");
    QGuiApplication::setApplicationName("Tarnwick");
    QGuiApplication::setApplicationDisplayName("Tarnwick");
    QGuiApplication::setDesktopFileName(applicationId);
}

QIcon windowIcon() {
    QIcon icon;
    for (const char* file : {":/icon/64.png", ":/icon/256.png"})
        icon.addFile(file);
    return icon;
}

int handOver(const SessionApplication& session, const StartOptions& options) {
    if (options.isService)
        return Done;
    const auto action =
        options.action ? std::optional(QString::fromStdString(*options.action)) : std::nullopt;
    switch (session.handOver(action)) {
        case SessionApplication::Answer::Done:
            return Done;
        case SessionApplication::Answer::Finishing:
            std::cerr << "RootTarnwick2: it was closed and finishes its work; try again then\n";
            return Unavailable;
        case SessionApplication::Answer::None:
            break;
    }
    std::cerr << "RootTarnwick2: it is running already, and does not answer\n";
    return Unavailable;
}

// A service that is not called quits.
void waitForFirstCall(const Program& program) {
    using namespace std::chrono_literals;
    QTimer::singleShot(10s, [&program] {
        if (!program.isLaunched())
            QCoreApplication::quit();
    });
}

int run(const StartOptions& options, SessionApplication& session) {
    Program program;
    const QObject listener;  // destroyed before the program
    QObject::connect(&session, &SessionApplication::activated, &listener,
                     [&program] { program.activate(); });
    QObject::connect(&session, &SessionApplication::actionActivated, &listener,
                     [&program](const QString& name) { program.activateAction(name); });
    if (options.isService)
        waitForFirstCall(program);
    else if (options.action)
        program.activateAction(QString::fromStdString(*options.action));
    else
        program.activate();
    return QGuiApplication::exec();
}

int start(const StartOptions& options, uid_t starter) {
    if (!hasDisplay()) {
        std::cerr << "RootTarnwick2: there is no display; over SSH use tarnwick\n";
        return Unavailable;
    }
    prepareForCommands();
    prepareToolkit();
    talkToBusesAs(starter);
    // The toolkit gets none of the caller's arguments.
    int count = 1;
    char name[] = "RootTarnwick2";
    char* words[] = {name, nullptr};
    const QGuiApplication application(count, words);
    QGuiApplication::setWindowIcon(windowIcon());
    SessionApplication session(applicationId, starter);
    if (session.isRunningElsewhere())
        return handOver(session, options);
    return run(options, session);
}

}  // namespace

int main(int count, char** values) {
    const uid_t starter = ::getuid();
    becomeRoot();
    const auto options = parseStartOptions({values + std::min(count, 1), values + count});
    if (!options) {
        std::cerr << startHelp;
        return WrongUsage;
    }
    switch (options->purpose) {
        case StartOptions::Purpose::PrintHelp:
            std::cout << startHelp;
            return Done;
        case StartOptions::Purpose::PrintVersion:
            std::cout << "RootTarnwick2 " TARNWICK_VERSION "\n";
            return Done;
        case StartOptions::Purpose::Run:
            break;
    }
    return start(*options, starter);
}
