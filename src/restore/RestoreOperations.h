#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/Feedback.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"
#include "core/TaskQueues.h"

namespace tarnwick {

// The tasks of the Restore screen, and what the buttons of their alerts do. A missing backup is the
// only failure that is told. Must outlive the tasks that it started.
class RestoreOperations {
public:
    // Tags of the alerts. An unscoped enumeration, as an alert carries its tag as a number.
    enum Tag : int { NoTag = 0, RespringTag = 1, RebootTag = 2, AllInOneConfirmationTag = 3 };

    RestoreOperations(const ItemCatalogue& catalogue, CommandRunner& runner, FileManager& files,
                      Feedback& feedback, TaskQueues& queues);

    // Main thread, which it blocks. Always tells success.
    void restoreSources();

    // Main thread; the work goes to a background thread of its own.
    void restorePackages();
    void restore(const BackupItem& item);
    // Asks first; the work starts when the question is answered with "Yes".
    void restoreAllInOne();

    // The work of the above, for a background thread. Without a packages backup the HUD stays up.
    void doRestorePackages();
    void doRestore(const BackupItem& item);
    void doTheRestoreAllInOne();

    // The names in the archive folder, each without every ".zip" in it; none if the folder cannot
    // be listed.
    std::optional<std::vector<std::string>> safeguardContent() const;

    // Main thread. The cancel button, index 0, does nothing in any alert.
    void alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex);

private:
    void showRestorationHud();
    void hideRestorationHud();
    void hideRestorationHudOnMainThread();
    void writeUnknownSources();
    void replaceCydiaList();
    void runAll(const std::vector<std::string>& lines);
    void showDone(const std::string& title, Offer offer);
    void showMissing(const std::string& title, const std::string& message);
    void respring(int buttonIndex);
    void reboot(int buttonIndex);
    void startRestoreAllInOne(int buttonIndex);

    const ItemCatalogue& catalogue_;
    CommandRunner& runner_;
    FileManager& files_;
    Feedback& feedback_;
    TaskQueues& queues_;
};

// How an offer is put: the end of the message, the button (none for no offer), and the tag of its
// alert.
struct OfferWords {
    std::string question;
    std::vector<std::string> buttons;
    RestoreOperations::Tag tag;
};
OfferWords wordsOf(Offer offer);

// A button of the Restore screen calls its action by name.
struct RestoreAction {
    std::string name;  // such as "restoreNotes"
    std::function<void(RestoreOperations&)> run;
};

// In the order of the buttons: sources, packages, all in one, then one for each item. The catalogue
// must outlive the actions.
std::vector<RestoreAction> restoreActions(const ItemCatalogue& catalogue);

}  // namespace tarnwick
