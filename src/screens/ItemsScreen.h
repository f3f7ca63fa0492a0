#pragma once

#include "screens/TaskScreen.h"

namespace tarnwick {

// What the Backup and the Restore screen share: two buttons for the package manager's sources and
// packages, one for all data sets in one, and one for each of them.
class ItemsScreen : public TaskScreen {
    Q_OBJECT

public:
    using TaskScreen::TaskScreen;

    Outlet<QQuickItem> cydiaAndPackagesTitle{this, "cydiaAndPackagesTitle"};
    Outlet<QQuickItem> sourcesButton{this, "sourcesButton"};
    Outlet<QQuickItem> packagesButton{this, "packagesButton"};
    Outlet<QQuickItem> stockApplicationsTitle{this, "stockApplicationsTitle"};
    Outlet<QQuickItem> allInOneButton{this, "allInOneButton"};
    Outlet<QQuickItem> tweaksPrefButton{this, "tweaksPrefButton"};
    Outlet<QQuickItem> accountsButton{this, "accountsButton"};
    Outlet<QQuickItem> calendarEventsButton{this, "calendarEventsButton"};
    Outlet<QQuickItem> callHistoryButton{this, "callHistoryButton"};
    Outlet<QQuickItem> contactsButton{this, "contactsButton"};
    Outlet<QQuickItem> messageButton{this, "messageButton"};
    Outlet<QQuickItem> notesButton{this, "notesButton"};
    Outlet<QQuickItem> photosButton{this, "photosButton"};
    Outlet<QQuickItem> safariBookmarksButton{this, "safariBookmarksButton"};
    Outlet<QQuickItem> springboardButton{this, "springboardButton"};
    Outlet<QQuickItem> voicemailsButton{this, "voicemailsButton"};

protected:
    // Headings and buttons, from top to bottom.
    void styleElements();
};

}  // namespace tarnwick
