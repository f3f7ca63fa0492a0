#pragma once

#include "screens/OperationsScreen.h"
#include "screens/SavedTexts.h"
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

protected:
    void viewDidLoad() override {
        OperationsScreen<ScreenOperations>::viewDidLoad();
        QObject::connect(&this->services().gate.tasks(), &TasksUnderWay::ended, this,
                         [this] { readSavedTexts(); });
        readSavedTexts();
    }

private:
    // Reads them off the main thread, which goes on.
    void readSavedTexts() {
        const auto self = this->weak_from_this();
        this->services().queues.dispatchToGlobalQueue([this, self, &services = this->services()] {
            const auto texts = savedTexts(services.catalogue, services.files);
            services.queues.dispatchToMainQueue([this, self, texts] {
                if (const auto screen = self.lock())
                    showSavedTexts(texts);
            });
        });
    }

    void showSavedTexts(const std::map<QString, QString>& texts) {
        for (QQuickItem* button : this->view()->template findChildren<QQuickItem*>())
            for (const auto& [name, text] : texts)
                if (button->property("actionName").toString().endsWith(name))
                    button->setProperty("detail", text);
    }
};

}  // namespace tarnwick
