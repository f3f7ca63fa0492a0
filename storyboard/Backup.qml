import QtQuick

Page {
    mostColumns: 2

    component BackupButton: ItemButton { symbol: "backup" }

    Steps { current: "backup" }
    Tagline { objectName: "mainBackup" }

    SectionHeading { label: "cydiaAndPackagesTitle"; text: "Cydia and Packages" }
    BackupButton { objectName: "sourcesButton"; text: "Cydia Sources"; actionName: "saveSources" }
    BackupButton { objectName: "packagesButton"; text: "Cydia Packages"; actionName: "savePackages" }

    SectionHeading { label: "stockApplicationsTitle"; text: "Stock Applications" }
    BackupButton { objectName: "allInOneButton"; text: "All in One"; actionName: "saveAllInOne" }
    BackupButton { objectName: "tweaksPrefButton"; text: "Tweaks' Preferences"; actionName: "saveTweaksPrefs" }
    BackupButton { objectName: "accountsButton"; text: "Accounts"; actionName: "saveAccounts" }
    BackupButton { objectName: "calendarEventsButton"; text: "Calendar"; actionName: "saveCalendar" }
    BackupButton { objectName: "callHistoryButton"; text: "Call History"; actionName: "saveCallHistory" }
    BackupButton { objectName: "contactsButton"; text: "Contacts"; actionName: "saveContacts" }
    BackupButton { objectName: "messageButton"; text: "Messages/iMessages"; actionName: "saveMessages" }
    BackupButton { objectName: "notesButton"; text: "Notes"; actionName: "saveNotes" }
    BackupButton { objectName: "photosButton"; text: "Photos and Videos"; actionName: "savePhotos" }
    BackupButton { objectName: "safariBookmarksButton"; text: "Safari Bookmarks"; actionName: "saveSafari" }
    BackupButton { objectName: "springboardButton"; text: "SpringBoard"; actionName: "saveSpringboard" }
    BackupButton { objectName: "voicemailsButton"; text: "Voicemails"; actionName: "saveVoicemails" }
}
