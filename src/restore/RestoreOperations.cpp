#include "restore/RestoreOperations.h"

#include <array>

#include "core/SafeguardPaths.h"
#include "core/TextLines.h"

namespace tarnwick {

namespace {

// The five steps are joined by pipes and so start all at once; the last one's status is the line's.
const std::string packagesCommand =
    "killall MobileCydia | killall Cydia | apt-get update | dpkg --set-selections < " +
    std::string(paths::savedPackages) + " | apt-get -y --allow-unauthenticated dselect-upgrade";

std::string withoutEvery(std::string text, std::string_view part) {
    for (auto found = text.find(part); found != std::string::npos; found = text.find(part, found))
        text.erase(found, part.size());
    return text;
}

std::string joined(const std::vector<std::string>& names) {
    return joinLines(Lines(names.begin(), names.end()));
}

}  // namespace

OfferWords wordsOf(Offer offer) {
    switch (offer) {
        case Offer::Respring:
            return {
                " Do you want to respring now ?", {"Respring now"}, RestoreOperations::RespringTag};
        case Offer::Reboot:
            return {" Do you want to reboot now ?", {"Reboot now"}, RestoreOperations::RebootTag};
        case Offer::None:
            break;
    }
    return {"", {}, RestoreOperations::NoTag};
}

RestoreOperations::RestoreOperations(const ItemCatalogue& catalogue, CommandRunner& runner,
                                     FileManager& files, Feedback& feedback, TaskQueues& queues)
    : catalogue_(catalogue), runner_(runner), files_(files), feedback_(feedback), queues_(queues) {}

void RestoreOperations::restoreSources() {
    showRestorationHud();
    if (files_.exists(paths::ownAptList))
        files_.remove(paths::ownAptList);
    if (files_.exists(paths::cydiaCacheList))
        writeUnknownSources();
    else
        replaceCydiaList();
    hideRestorationHud();
    showDone("Cydia Sources Restoration", Offer::None);
}

void RestoreOperations::writeUnknownSources() {
    const auto currentText = files_.readText(paths::cydiaCacheList);
    const auto savedText = files_.readText(
        files_.exists(paths::savedSourcesList) ? paths::savedSourcesList : paths::savedCydiaList);
    const Lines unknown = linesWithout(splitLines(savedText), splitLines(currentText));
    files_.createFile(paths::ownAptList);
    files_.writeText(paths::ownAptList, joinLines(unknown));
}

void RestoreOperations::replaceCydiaList() {
    // Removed whether or not there is a saved list to take its place.
    files_.remove(paths::cydiaAptList);
    files_.copy(paths::savedCydiaList, paths::cydiaAptList);
}

void RestoreOperations::restorePackages() {
    showRestorationHud();
    queues_.runInBackground([this] { doRestorePackages(); });
}

void RestoreOperations::doRestorePackages() {
    const std::string title = "Cydia Packages Restoration";
    if (!files_.exists(paths::savedPackages)) {
        // The HUD stays over the screen on this way out.
        showMissing(title, "You have no Cydia Packages backup, there is nothing to do !");
        return;
    }
    runner_.run(packagesCommand);
    hideRestorationHudOnMainThread();
    showDone(title, Offer::Respring);
}

void RestoreOperations::restore(const BackupItem& item) {
    showRestorationHud();
    queues_.runInBackground([this, &item] { doRestore(item); });
}

void RestoreOperations::doRestore(const BackupItem& item) {
    feedback_.working(item);
    // The application is stopped even when there turns out to be no backup.
    if (item.stopCommand)
        runner_.run(*item.stopCommand);
    const bool saved = files_.exists(item.archivePaths.front());
    if (saved)
        runAll(item.restoreCommands);
    hideRestorationHudOnMainThread();
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
    const std::string list = joined(safeguardContent().value_or(std::vector<std::string>{}));
    feedback_.show({.title = "All In One Restoration ",
                    .message = "You have all of these backup on your device : \n\n" + list +
                               "\n\n Do you want to restore all of them ?",
                    .cancelButtonTitle = "Cancel",
                    .otherButtonTitles = {"Yes"},
                    .tag = AllInOneConfirmationTag,
                    .kind = AlertKind::Question});
}

void RestoreOperations::doTheRestoreAllInOne() {
    for (const BackupItem& item : catalogue_) {
        if (!files_.exists(item.archivePaths.front()))
            continue;
        feedback_.working(item);
        if (item.stopCommand)
            runner_.run(*item.stopCommand);
        runAll(item.restoreCommands);
    }
    hideRestorationHudOnMainThread();
    // The run closes with the words of its last item, whatever was restored.
    showDone("Voicemails Restoration", Offer::Reboot);
}

void RestoreOperations::alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex) {
    using Action = AlertAction<RestoreOperations>;
    static constexpr std::array<Action, 3> table = {
        Action{RespringTag, 1, 1, &RestoreOperations::respring},
        Action{RebootTag, 1, 1, &RestoreOperations::reboot},
        Action{AllInOneConfirmationTag, 1, 1, &RestoreOperations::startRestoreAllInOne},
    };
    performAlertAction<RestoreOperations>(table, *this, alert, buttonIndex);
}

void RestoreOperations::respring(int) {
    runner_.run("/usr/bin/killall backboardd");
}

void RestoreOperations::reboot(int) {
    runner_.run("/sbin/reboot");
}

void RestoreOperations::startRestoreAllInOne(int) {
    showRestorationHud();
    queues_.runInBackground([this] { doTheRestoreAllInOne(); });
}

void RestoreOperations::showRestorationHud() {
    feedback_.showHud("Restoration in progress...");
}

void RestoreOperations::hideRestorationHud() {
    feedback_.hideHud();
}

void RestoreOperations::hideRestorationHudOnMainThread() {
    queues_.performOnMainThreadAndWait([this] { hideRestorationHud(); });
}

void RestoreOperations::runAll(const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        runner_.run(line);
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

std::vector<RestoreAction> restoreActions(const ItemCatalogue& catalogue) {
    std::vector<RestoreAction> actions = {
        {"restoreSources", &RestoreOperations::restoreSources},
        {"restorePackages", &RestoreOperations::restorePackages},
        {"restoreAllInOne", &RestoreOperations::restoreAllInOne},
    };
    for (const BackupItem& item : catalogue)
        actions.push_back({"restore" + item.key,
                           [&item](RestoreOperations& operations) { operations.restore(item); }});
    return actions;
}

}  // namespace tarnwick
