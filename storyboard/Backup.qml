import QtQuick

Page {
    Tagline { objectName: "mainBackup" }

    SectionHeading { objectName: "cydiaAndPackagesTitle"; text: "Cydia and Packages" }
    ScreenButton { objectName: "sourcesButton"; text: "Cydia Sources"; actionName: "saveSources" }
    ScreenButton { objectName: "packagesButton"; text: "Cydia Packages"; actionName: "savePackages" }

    SectionHeading { objectName: "stockApplicationsTitle"; text: "Stock Applications" }
    ScreenButton { objectName: "allInOneButton"; text: "All in One"; actionName: "saveAllInOne" }
    ScreenButton { objectName: "tweaksPrefButton"; text: "Tweaks' Preferences"; actionName: "saveTweaksPrefs" }
    ScreenButton { objectName: "accountsButton"; text: "Accounts"; actionName: "saveAccounts" }
    ScreenButton { objectName: "calendarEventsButton"; text: "Calendar"; actionName: "saveCalendar" }
    ScreenButton { objectName: "callHistoryButton"; text: "Call History"; actionName: "saveCallHistory" }
    ScreenButton { objectName: "contactsButton"; text: "Contacts"; actionName: "saveContacts" }
    ScreenButton { objectName: "messageButton"; text: "Messages/iMessages"; actionName: "saveMessages" }
    ScreenButton { objectName: "notesButton"; text: "Notes"; actionName: "saveNotes" }
    ScreenButton { objectName: "photosButton"; text: "Photos and Videos"; actionName: "savePhotos" }
    ScreenButton { objectName: "safariBookmarksButton"; text: "Safari Bookmarks"; actionName: "saveSafari" }
    ScreenButton { objectName: "springboardButton"; text: "SpringBoard"; actionName: "saveSpringboard" }
    ScreenButton { objectName: "voicemailsButton"; text: "Voicemails"; actionName: "saveVoicemails" }
}
