// Pictures of the program's screens with menu, HUD and alerts. No command is run.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPalette>
#include <QTemporaryDir>
#include <QTextStream>
#include <filesystem>

#include "app/AppDelegate.h"
#include "app/MainInterface.h"
#include "core/SafeguardPaths.h"
#include "core/SystemFileManager.h"
#include "core/SystemLog.h"
#include "mail/ComposerMailer.h"
#include "platform/controllers/NavigationController.h"
#include "platform/threads/PlatformQueues.h"
#include "shots/Shots.h"
#include "ui/hud/ProgressHUD.h"
#include "ui/reveal/RevealViewController.h"

using namespace tarnwick;

namespace {

constexpr QSize phone(375, 667);
constexpr QSize smallPhone(320, 480);
constexpr QSize phoneOnItsSide(667, 375);
constexpr QSize tablet(768, 1024);
constexpr QSize desktop(1280, 800);

// What the person has chosen for the system.
struct Preferences {
    int textSize = 15;  // pixels
    bool isDark = false;
};
constexpr Preferences largeText = {.textSize = 23};
constexpr Preferences dark = {.isDark = true};

void prefer(const Preferences& preferences) {
    QFont font;
    font.setPixelSize(preferences.textSize);
    QGuiApplication::setFont(font);
    QPalette palette;
    palette.setColor(QPalette::Window, preferences.isDark ? Qt::black : Qt::white);
    palette.setColor(QPalette::WindowText, preferences.isDark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

class NothingRuns : public CommandRunner {
public:
    int run(const std::string&) override { return 0; }
};

// The program on a temporary folder, with one screen in front.
class StagedScreen : public Window {
public:
    StagedScreen(const QString& scene, const Preferences& preferences)
        : files_(folder_.path().toStdString()) {
        prefer(preferences);
        files_.createDirectory("/private/var");  // Options shows its size
        AppDelegate(*this, services_).applicationDidFinishLaunchingWithOptions({});
        const auto storyboard = loadMainStoryboard(services_);
        reveal_ = std::static_pointer_cast<RevealViewController>(
            storyboard->instantiateInitialViewController());
        setRootViewController(reveal_);
        reveal_->setFrontViewController(storyboard->instantiateViewController(scene + "NC"));
    }

    // What is presented goes while there is what it works with.
    ~StagedScreen() override { setRootViewController(nullptr); }

    RevealViewController& reveal() { return *reveal_; }
    SystemFileManager& files() { return files_; }
    ViewController& screen() {
        auto& navigation = static_cast<NavigationController&>(*reveal_->frontViewController());
        return *navigation.rootViewController();
    }

    // As if everything had been saved.
    void putArchives() {
        files_.createDirectory(paths::archiveFolder);
        std::uintmax_t size = 90'000;
        for (const BackupItem& item : catalogue_)
            for (const std::string& path : item.archivePaths()) {
                files_.writeText(path, "");
                std::filesystem::resize_file(folder_.path().toStdString() + path, size *= 2);
            }
        beginTask();
        task_.reset();
    }
    void beginTask() { task_ = gate_.tasks().begin("backup", nullptr); }
    // Presses a button of the screen and waits for the alert.
    void press(const char* button) {
        QMetaObject::invokeMethod(screen().view()->findChild<QQuickItem*>(button), "clicked");
        constexpr int patience = 2000;  // milliseconds
        QElapsedTimer waited;
        for (waited.start(); alerts().numberShown() == 0 && !waited.hasExpired(patience);)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

private:
    QTemporaryDir folder_;
    NothingRuns runner_;
    SystemFileManager files_;
    ItemCatalogue catalogue_;
    Guard guard_{catalogue_, runner_, files_};
    SharedRun run_{guard_, folder_.filePath("lock").toStdString()};
    TaskGate gate_{run_};
    TasksUnderWay::Ticket task_;
    PlatformQueues queues_;
    ComposerMailer mailer_{queues_};
    SystemLog log_;
    ScreenServices services_ = {.catalogue = catalogue_,
                                .runner = runner_,
                                .files = files_,
                                .queues = queues_,
                                .gate = gate_,
                                .alerts = alerts(),
                                .mailer = mailer_,
                                .log = log_};
    std::shared_ptr<RevealViewController> reveal_;
};

using Staging = std::function<void(StagedScreen& staged)>;

Shot shotOf(
    const QString& name, const QString& scene, const QSize& size,
    const Staging& staging = [](StagedScreen&) {}, const Preferences& preferences = {}) {
    return {name, size,
            [scene, preferences] { return std::make_unique<StagedScreen>(scene, preferences); },
            [staging](Window& window) { staging(static_cast<StagedScreen&>(window)); }};
}

Staging pressing(const char* button) {
    return [button](StagedScreen& staged) { staged.press(button); };
}

// With an archive of the accounts, so that there is something to restore.
Staging pressingWithArchive(const char* button) {
    return [button](StagedScreen& staged) {
        staged.files().createDirectory(paths::archiveFolder);
        staged.files().writeText(std::string(paths::archiveFolder) + "/Accounts.zip", "");
        staged.press(button);
    };
}

void openMenu(StagedScreen& staged) {
    staged.reveal().setFrontViewPosition(FrontPositionSlidRight);
}

void openMenuDuringTask(StagedScreen& staged) {
    staged.beginTask();
    openMenu(staged);
}

void openMenuByKeys(StagedScreen& staged) {
    auto* bar = staged.reveal().frontViewController()->view()->childItems().first();
    bar->nextItemInFocusChain()->forceActiveFocus(Qt::TabFocusReason);
    openMenu(staged);
}

void writeMail(StagedScreen& staged) {
    QMetaObject::invokeMethod(staged.screen().view()->findChild<QQuickItem*>("sendBackupButton"),
                              "clicked");
}

Staging focusing(const char* button) {
    return [button](StagedScreen& staged) {
        staged.screen().view()->findChild<QQuickItem*>(button)->forceActiveFocus(
            Qt::TabFocusReason);
    };
}

void showHud(StagedScreen& staged) {
    ProgressHUD* hud = ProgressHUD::showHUDAddedTo(staged.screen().view(), Animated::No);
    hud->setLabelText("Restoration in progress...");
}

std::vector<Shot> shots() {
    std::vector<Shot> shots;
    const std::pair<const char*, QSize> sizes[] = {{"small", smallPhone},
                                                   {"phone", phone},
                                                   {"side", phoneOnItsSide},
                                                   {"tablet", tablet},
                                                   {"desktop", desktop}};
    for (const char* scene : {"backup", "restore", "cloud", "options", "help"})
        for (const auto& [suffix, size] : sizes)
            shots.push_back(shotOf(QString("%1-%2").arg(scene, suffix), scene, size));
    for (const auto& [suffix, size] : sizes)
        shots.push_back(shotOf(QString("menu-%1").arg(suffix), "backup", size, openMenu));
    const std::pair<const char*, Staging> large[] = {{"backup", [](StagedScreen&) {}},
                                                     {"options", [](StagedScreen&) {}},
                                                     {"cloud", openMenu},
                                                     {"help", showHud},
                                                     {"restore", pressing("accountsButton")}};
    for (const auto& [scene, staging] : large)
        shots.push_back(
            shotOf(QString("large-%1").arg(scene), scene, smallPhone, staging, largeText));
    shots.push_back(
        shotOf("large-size", "options", smallPhone, pressing("backupSizeButton"), largeText));
    shots.push_back(shotOf("large-mail", "cloud", smallPhone, writeMail, largeText));
    for (const auto& [scene, staging] : large)
        shots.push_back(shotOf(QString("dark-%1").arg(scene), scene, phone, staging, dark));
    shots.push_back(
        shotOf("dark-remove", "options", phone, pressing("removeSafeguardButton"), dark));
    shots.push_back(shotOf("dark-mail", "cloud", phone, writeMail, dark));
    shots.push_back(shotOf("mail", "cloud", phone, writeMail));
    shots.push_back(shotOf("keys-screen", "backup", phone, focusing("packagesButton")));
    shots.push_back(shotOf("keys-menu", "backup", phone, openMenuByKeys));
    for (const char* scene : {"backup", "restore"})
        shots.push_back(
            shotOf(QString("%1-saved").arg(scene), scene, phone, &StagedScreen::putArchives));
    shots.push_back(shotOf("dark-saved", "restore", phone, &StagedScreen::putArchives, dark));
    shots.push_back(shotOf("menu-busy", "help", phone, openMenuDuringTask));
    shots.push_back(shotOf("hud", "backup", phone, showHud));
    shots.push_back(shotOf("alert-problem", "backup", phone, pressing("accountsButton")));
    shots.push_back(shotOf("alert-missing", "restore", phone, pressing("accountsButton")));
    shots.push_back(shotOf("alert-offer", "restore", phone, pressingWithArchive("accountsButton")));
    shots.push_back(
        shotOf("alert-confirmation", "restore", phone, pressingWithArchive("allInOneButton")));
    shots.push_back(
        shotOf("alert-three", "options", phone, pressing("recreateApplicationFoldersButton")));
    for (const auto& [suffix, size] : sizes)
        shots.push_back(shotOf(QString("alert-size-%1").arg(suffix), "options", size,
                               pressing("backupSizeButton")));
    return shots;
}

}  // namespace

int main(int count, char** values) {
    qputenv("QT_QUICK_BACKEND", "software");
    if (isToTakeShots(count, values))
        return takeShots(count, values, shots);
    QTextStream(stderr) << "Usage: tarnwick-shots --shots FOLDER\n";
    return 2;
}
