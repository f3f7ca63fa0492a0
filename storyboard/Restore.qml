import QtQuick

Page {
    mostColumns: 2

    component RestoreButton: ItemButton { symbol: "restore" }

    Steps { current: "restore" }
    Tagline { objectName: "mainRestore" }

    SectionHeading { label: "cydiaAndPackagesTitle"; text: "Cydia and Packages" }
    RestoreButton { objectName: "sourcesButton"; text: "Cydia Sources"; actionName: "restoreSources" }
    RestoreButton { objectName: "packagesButton"; text: "Cydia Packages"; actionName: "restorePackages" }

    SectionHeading { label: "stockApplicationsTitle"; text: "Stock Applications" }
    RestoreButton { objectName: "allInOneButton"; text: "All in One"; actionName: "restoreAllInOne" }
    RestoreButton { objectName: "tweaksPrefButton"; text: "Tweaks' Preferences"; actionName: "restoreTweaksPrefs" }
    RestoreButton { objectName: "accountsButton"; text: "Accounts"; actionName: "restoreAccounts" }
    RestoreButton { objectName: "calendarEventsButton"; text: "Calendar"; actionName: "restoreCalendar" }
    RestoreButton { objectName: "callHistoryButton"; text: "Call History"; actionName: "restoreCallHistory" }
    RestoreButton { objectName: "contactsButton"; text: "Contacts"; actionName: "restoreContacts" }
    RestoreButton { objectName: "messageButton"; text: "Messages/iMessages"; actionName: "restoreMessages" }
    RestoreButton { objectName: "notesButton"; text: "Notes"; actionName: "restoreNotes" }
    RestoreButton { objectName: "photosButton"; text: "Photos and Videos"; actionName: "restorePhotos" }
    RestoreButton { objectName: "safariBookmarksButton"; text: "Safari Bookmarks"; actionName: "restoreSafari" }
    RestoreButton { objectName: "springboardButton"; text: "SpringBoard"; actionName: "restoreSpringboard" }
    RestoreButton { objectName: "voicemailsButton"; text: "Voicemails"; actionName: "restoreVoicemails" }
}
