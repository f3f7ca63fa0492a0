#include "restore/RestoreOperations.h"

#include <array>

#include "core/JoinedText.h"
#include "core/SafeguardPaths.h"
#include "core/TextLines.h"

namespace tarnwick {

namespace {

// Joined by pipes, the five steps start at the same time.
const std::string packagesCommand =
    "killall MobileCydia | killall Cydia | apt-get update | dpkg --set-selections < " +
    std::string(paths::savedPackages) + " | apt-get -y --allow-unauthenticated dselect-upgrade";

std::string withoutEvery(std::string text, std::string_view part) {
    for (auto found = text.find(part); found != std::string::npos; found = text.find(part, found))
        text.erase(found, part.size());
    return text;
}

}  // namespace

OfferWords wordsOf(Offer offer) {
    switch (offer) {
        case Offer::Respring:
            return {.question = " Do you want to respring now ?",
                    .buttons = {"Respring now"},
                    .tag = RestoreOperations::RespringTag};
        case Offer::Reboot:
            return {.question = " Do you want to reboot now ?",
                    .buttons = {"Reboot now"},
                    .tag = RestoreOperations::RebootTag};
        case Offer::None:
            break;
    }
    return {};
}

NamedActions RestoreOperations::actions() {
    NamedActions actions = {
        {"restoreSources", [this] { restoreSources(); }},
        {"restorePackages", [this] { restorePackages(); }},
        {"restoreAllInOne", [this] { restoreAllInOne(); }},
    };
    for (const BackupItem& item : catalogue_)
        actions["restore" + item.key] = [this, &item] { restore(item); };
    return actions;
}

void RestoreOperations::restoreSources() {
    showRestorationHud();
    if (files_.exists(paths::ownAptList))
        changes_.remove(paths::ownAptList);
    if (files_.exists(paths::cydiaCacheList))
        writeUnknownSources();
    else
        replaceCydiaList();
    feedback_.hideHud();
    showDone("Cydia Sources Restoration", Offer::None);
}

void RestoreOperations::writeUnknownSources() {
    const auto currentText = files_.readText(paths::cydiaCacheList);
    const auto savedText = files_.readText(
        files_.exists(paths::savedSourcesList) ? paths::savedSourcesList : paths::savedCydiaList);
    const Lines unknown = linesWithout(splitLines(savedText), splitLines(currentText));
    changes_.createFile(paths::ownAptList);
    changes_.writeText(paths::ownAptList, joinLines(unknown));
}

void RestoreOperations::replaceCydiaList() {
    // Removed even if there is no saved list to replace it.
    changes_.remove(paths::cydiaAptList);
    changes_.copy(paths::savedCydiaList, paths::cydiaAptList);
}

void RestoreOperations::restorePackages() {
    showRestorationHud();
    queues_.runInBackground([this] { doRestorePackages(); });
}

void RestoreOperations::doRestorePackages() {
    const std::string title = "Cydia Packages Restoration";
    if (!files_.exists(paths::savedPackages)) {
        // The HUD stays over the screen in this case.
        showMissing(title, "You have no Cydia Packages backup, there is nothing to do !");
        return;
    }
    runner_.run(packagesCommand);
    hideHudOnMainThread();
    showDone(title, Offer::Respring);
}

void RestoreOperations::restore(const BackupItem& item) {
    showRestorationHud();
    queues_.runInBackground([this, &item] { doRestore(item); });
}

void RestoreOperations::doRestore(const BackupItem& item) {
    feedback_.working(item);
    // The application is stopped even if there is no backup.
    if (item.stopCommand)
        runner_.run(*item.stopCommand);
    const bool saved = files_.exists(item.firstArchivePath());
    if (saved)
        runAll(item.restoreCommands);
    hideHudOnMainThread();
    if (saved)
        showDone(item.restoreTitle, item.offer);
    else
        showMissing(item.restoreTitle, item.missingBackupMessage);
}

std::optional<std::vector<std::string>> RestoreOperations::safeguardContent() const {
    auto names = files_.list(paths::archiveFolder);
    if (names)
        for (std::string& name : *names)
            name = withoutEvery(name, ".zip");
    return names;
}

void RestoreOperations::restoreAllInOne() {
    const auto names = safeguardContent().value_or(std::vector<std::string>{});
    feedback_.show({.title = "All In One Restoration ",
                    .message = "You have all of these backup on your device : \n\n" +
                               joined(names, "\n") + "\n\n Do you want to restore all of them ?",
                    .cancelButtonTitle = "Cancel",
                    .otherButtonTitles = {"Yes"},
                    .tag = AllInOneConfirmationTag,
                    .kind = AlertKind::Question,
                    .destructiveButton = 1});
}

void RestoreOperations::doTheRestoreAllInOne() {
    for (const BackupItem& item : catalogue_) {
        if (!files_.exists(item.firstArchivePath()))
            continue;
        feedback_.working(item);
        if (item.stopCommand)
            runner_.run(*item.stopCommand);
        runAll(item.restoreCommands);
    }
    hideHudOnMainThread();
    // The whole run is reported under the last item's title, whatever was restored.
    showDone(catalogue_.back().restoreTitle, Offer::Reboot);
}

void RestoreOperations::alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex) {
    using Self = RestoreOperations;
    static constexpr std::array<AlertAction<Self>, 3> table = {{
        {RespringTag, 1, [](Self& self, int) { self.accept(Offer::Respring); }},
        {RebootTag, 1, [](Self& self, int) { self.accept(Offer::Reboot); }},
        {AllInOneConfirmationTag, 1, [](Self& self, int) { self.startRestoreAllInOne(); }},
    }};
    performAlertAction<Self>(table, *this, alert, buttonIndex);
}

void RestoreOperations::accept(Offer offer) {
    if (offer == Offer::Respring)
        runner_.run("/usr/bin/killall backboardd");
    if (offer == Offer::Reboot)
        runner_.run("/sbin/reboot");
}

void RestoreOperations::startRestoreAllInOne() {
    showRestorationHud();
    queues_.runInBackground([this] { doTheRestoreAllInOne(); });
}

void RestoreOperations::showRestorationHud() {
    feedback_.showHud("Restoration in progress...");
}

void RestoreOperations::showDone(const std::string& title, Offer offer) {
    const OfferWords words = wordsOf(offer);
    feedback_.show({.title = title,
                    .message = "Restoration done !" + words.question,
                    .otherButtonTitles = words.buttons,
                    .tag = words.tag});
}

void RestoreOperations::showMissing(const std::string& title, const std::string& message) {
    feedback_.show({.title = title, .message = message, .kind = AlertKind::Problem});
}

}  // namespace tarnwick
