"""What assistive technology finds in the window: role, name and description, in the order in which it is offered."""

from window_lib import StandIns, session

FRAME = ["frame Tarnwick Tarnwick"]

MENU = """\
heading Tarnwick
push button Backup
push button Restore
push button Cloud
push button Options
push button Help""".splitlines()

BACKUP = """\
label Backup your Cydia's sources and Tweaks, and other data such as your P...
heading Cydia and Packages
push button Cydia Sources
push button Cydia Packages
heading Stock Applications
push button All in One
push button Tweaks' Preferences
push button Accounts
push button Calendar
push button Call History
push button Contacts
push button Messages/iMessages
push button Notes
push button Photos and Videos
push button Safari Bookmarks
push button SpringBoard
push button Voicemails""".splitlines()

RESTORE = """\
label Restore your Cydia's sources and Tweaks, and other data such as your ...
heading Cydia and Packages
push button Cydia Sources
push button Cydia Packages
heading Stock Applications
push button All In One
push button Tweaks' Preferences
push button Accounts
push button Calendar
push button Call History
push button Contacts
push button Messages/iMessages
push button Notes
push button Photos
push button Safari Bookmarks
push button SpringBoard
push button Voicemails""".splitlines()

OPTIONS = """\
label Use these options to clean your backup folder or to help you applying...
heading Application Files and Folders
push button Create Application Folders
push button Remove Backup Folders
push button Remove TWKSources
heading Apply Changes
push button Respring
push button Reboot
heading Miscellaneous
label Total Space SIZE
label Free Space SIZE
push button Backup Size""".splitlines()

HELP = """\
label Here you cand find some Help about Tarnwick in general. This is a FAQ...
heading How can I do if I want to restore my packages and if I've changed m...
label If, for example, you've upgraded your device to iOS 9.0.2 from iOS 8....
heading Can I safely restore my apps/tweaks when I update my iOS device to ...
label It depends on the iOS version(s) supported by the developpers. When y...
heading How much time it take to do an All in one backup ?
label It depends on how much files you have. For example, on an iPhone 5S, ...
heading With Cydia 1.1.19 and above, I had to change the Sources restoratio...
label Cydia 1.1.19 has changed Sources file location. To ensure compatibili...""".splitlines()

run = session()
window = run.window


def bar(title):
    return ["push button Menu", f"heading {title}"]


def check_screen(title, expected):
    window.wait_for_screen(title)
    window.expect_description(f"{title}: all has a role and a name", FRAME + expected + bar(title))


def check_menu():
    window.open_menu()
    window.expect_description("the menu: its rows stand before the screen", FRAME + MENU + BACKUP + bar("Backup"))
    window.press("Menu")


def check_hud_and_alert():
    zip_stand_in = StandIns(run.phone, zip="/usr/bin/zip")
    zip_stand_in.tell("hold")
    window.press("Notes")
    window.hud("Backup in progress...")
    zip_stand_in.untell("hold")
    alert = run.table.alerts("save notes")[0]
    window.alert(alert)
    window.expect_description("under an alert nothing of the screen is offered",
                              FRAME + [f"alert {alert.title} {alert.message}", "push button Close"])
    window.answer(alert)
    window.wait_until_free()
    window.expect_description("afterwards everything is", FRAME + BACKUP + bar("Backup"))


check_screen("Backup", BACKUP)
check_menu()
check_screen("Backup", BACKUP)
check_hud_and_alert()
for title, expected in ("Restore", RESTORE), ("Options", OPTIONS), ("Help", HELP):
    window.go_to(title)
    check_screen(title, expected)
