#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/TaskOperations.h"

namespace tarnwick {

// The tasks of the Restore screen, and what the buttons of their alerts do. A missing backup is the
// only failure that is reported.
class RestoreOperations : public TaskOperations {
public:
    // Tags of the alerts. Unscoped, as an alert carries its tag as a number.
    enum Tag : int { NoTag = 0, RespringTag = 1, RebootTag = 2, AllInOneConfirmationTag = 3 };

    using TaskOperations::TaskOperations;

    // One for each button. The operations must outlive them.
    NamedActions actions();

    // Main thread, which it blocks. Always reports success.
    void restoreSources();

    // Main thread; the work goes to a background thread of its own.
    void restorePackages();
    void restore(const BackupItem& item);
    // Asks first; the work starts when the answer is "Yes".
    void restoreAllInOne();

    // The work of the above, for a background thread. Without a packages backup the HUD stays up.
    void doRestorePackages();
    void doRestore(const BackupItem& item);
    void doTheRestoreAllInOne();

    // The names in the archive folder, each without every ".zip" in it; null if the folder cannot
    // be listed.
    std::optional<std::vector<std::string>> safeguardContent() const;

    // Main thread. The cancel button, index 0, does nothing in any alert.
    void alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex);

    // Does what the button of the offer does. Main thread.
    void accept(Offer offer);

private:
    void showRestorationHud();
    void writeUnknownSources();
    void replaceCydiaList();
    void showDone(const std::string& title, Offer offer);
    void showMissing(const std::string& title, const std::string& message);
    void startRestoreAllInOne();
};

// How an alert presents an offer: the end of the message, the button if there is an offer, and the
// tag.
struct OfferWords {
    std::string question = {};
    std::vector<std::string> buttons = {};
    RestoreOperations::Tag tag = RestoreOperations::NoTag;
};
OfferWords wordsOf(Offer offer);

}  // namespace tarnwick
