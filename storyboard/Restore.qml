import QtQuick

Page {
    Tagline { objectName: "mainRestore" }

    SectionHeading { objectName: "cydiaAndPackagesTitle"; text: "Cydia and Packages" }
    ScreenButton { objectName: "sourcesButton"; text: "Cydia Sources"; actionName: "restoreSources" }
    ScreenButton { objectName: "packagesButton"; text: "Cydia Packages"; actionName: "restorePackages" }

    SectionHeading { objectName: "stockApplicationsTitle"; text: "Stock Applications" }
    ScreenButton { objectName: "allInOneButton"; text: "All In One"; actionName: "restoreAllInOne" }
    ScreenButton { objectName: "tweaksPrefButton"; text: "Tweaks' Preferences"; actionName: "restoreTweaksPrefs" }
    ScreenButton { objectName: "accountsButton"; text: "Accounts"; actionName: "restoreAccounts" }
    ScreenButton { objectName: "calendarEventsButton"; text: "Calendar"; actionName: "restoreCalendar" }
    ScreenButton { objectName: "callHistoryButton"; text: "Call History"; actionName: "restoreCallHistory" }
    ScreenButton { objectName: "contactsButton"; text: "Contacts"; actionName: "restoreContacts" }
    ScreenButton { objectName: "messageButton"; text: "Messages/iMessages"; actionName: "restoreMessages" }
    ScreenButton { objectName: "notesButton"; text: "Notes"; actionName: "restoreNotes" }
    ScreenButton { objectName: "photosButton"; text: "Photos"; actionName: "restorePhotos" }
    ScreenButton { objectName: "safariBookmarksButton"; text: "Safari Bookmarks"; actionName: "restoreSafari" }
    ScreenButton { objectName: "springboardButton"; text: "SpringBoard"; actionName: "restoreSpringboard" }
    ScreenButton { objectName: "voicemailsButton"; text: "Voicemails"; actionName: "restoreVoicemails" }
}
