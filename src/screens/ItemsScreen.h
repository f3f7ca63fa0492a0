#pragma once

#include "screens/OperationsScreen.h"
#include "screens/ScreenStyle.h"

namespace tarnwick {

// What the Backup and the Restore screen share: two buttons for the package manager's sources and
// packages, one for all data sets in one, and one for each of them.
template <class ScreenOperations>
class ItemsScreen : public OperationsScreen<ScreenOperations> {
public:
    using OperationsScreen<ScreenOperations>::OperationsScreen;

    StyledOutlet cydiaAndPackagesTitle{this, "cydiaAndPackagesTitle", styleHeading};
    StyledOutlet sourcesButton{this, "sourcesButton", styleButton};
    StyledOutlet packagesButton{this, "packagesButton", styleButton};
    StyledOutlet stockApplicationsTitle{this, "stockApplicationsTitle", styleHeading};
    StyledOutlet allInOneButton{this, "allInOneButton", styleButton};
    StyledOutlet tweaksPrefButton{this, "tweaksPrefButton", styleButton};
    StyledOutlet accountsButton{this, "accountsButton", styleButton};
    StyledOutlet calendarEventsButton{this, "calendarEventsButton", styleButton};
    StyledOutlet callHistoryButton{this, "callHistoryButton", styleButton};
    StyledOutlet contactsButton{this, "contactsButton", styleButton};
    StyledOutlet messageButton{this, "messageButton", styleButton};
    StyledOutlet notesButton{this, "notesButton", styleButton};
    StyledOutlet photosButton{this, "photosButton", styleButton};
    StyledOutlet safariBookmarksButton{this, "safariBookmarksButton", styleButton};
    StyledOutlet springboardButton{this, "springboardButton", styleButton};
    StyledOutlet voicemailsButton{this, "voicemailsButton", styleButton};
};

}  // namespace tarnwick
