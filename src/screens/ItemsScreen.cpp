#include "screens/ItemsScreen.h"

#include "screens/ScreenStyle.h"

namespace tarnwick {

void ItemsScreen::styleElements() {
    styleHeading(cydiaAndPackagesTitle.get());
    styleButton(sourcesButton.get());
    styleButton(packagesButton.get());
    styleHeading(stockApplicationsTitle.get());
    for (const auto* button :
         {&allInOneButton, &tweaksPrefButton, &accountsButton, &calendarEventsButton,
          &callHistoryButton, &contactsButton, &messageButton, &notesButton, &photosButton,
          &safariBookmarksButton, &springboardButton, &voicemailsButton})
        styleButton(button->get());
}

}  // namespace tarnwick
