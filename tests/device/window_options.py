"""All of Options and every choice in its alerts, with nothing saved and with everything saved."""

import shutil

from window_lib import ITEMS, LIBRARY, SAFEGUARD, StandIns, fail, ok, session

run = session()
window = run.window
run.trace.expect("the first screen makes the folders and nothing else", run.table.changes("folders"))

FOLDERS = run.table.question("Create Application Folders")
FOLDER = run.table.question("Create Application Folders", 1)
REMOVAL = run.table.question("Remove Backup Folders")
SOURCES = run.table.question("Remove TWKSources")
SIZE = run.table.question("Backup Size")
OWN_LIST = run.file("/etc/apt/sources.list.d/TWKSources.list")


def remove_safeguard():
    """As somebody does who cleans up too much."""
    shutil.rmtree(run.file(SAFEGUARD))


def cancel_everything():
    title = "Create Application Folders"
    run.nothing_follows("creating folders can be cancelled", title, (FOLDERS, "Cancel"))
    run.nothing_follows("and so can the choice of a folder", title, (FOLDERS, "Partially"), (FOLDER, "Cancel"))
    for question, choice in (REMOVAL, "Cancel"), (SOURCES, "Cancel"), (SIZE, "Nothing"):
        run.nothing_follows(f"{question.title} can be cancelled", question.title, (question, choice))
    for title in "Respring", "Reboot":
        run.nothing_follows(f"{title} can be cancelled", title, (run.table.question(title), "Cancel"))


def create_folders():
    remove_safeguard()
    run.task("folders", "Create Application Folders", (FOLDERS, "All Folders"))
    remove_safeguard()
    for name in "Tarnwick", "CydiaSources", "CydiaPackages", "TarnwickLibrary":
        button = "Parent Folder: Tarnwick" if name == "Tarnwick" else name
        run.task(f"folders {name}", "Create Application Folders", (FOLDERS, "Partially"), (FOLDER, button))


def remove_sources():
    OWN_LIST.touch()
    run.task("remove sources-list", "Remove TWKSources", (SOURCES, "Delete it"))
    run.task("remove sources-list, nothing there", "Remove TWKSources", (SOURCES, "Delete it"))


def sizes(circumstance=""):
    for verb, _, _, choice in ITEMS:
        run.task(f"size {verb}{circumstance}", "Backup Size", (SIZE, choice))


def hud_of_size_check():
    """It is up for as long as its task works."""
    zip_stand_in = StandIns(run.phone, zip="/usr/bin/zip")
    zip_stand_in.tell("hold")
    run.ask("Backup Size", (SIZE, "Notes"))
    window.hud("Calculating Backup Size...")
    zip_stand_in.untell("hold")
    run.finish("size notes")
    ok("while a size is found out its HUD is up")


def save_all():
    window.go_to("Backup")
    run.task("save all", "All in One")
    window.go_to("Options")


def respring():
    run.ask("Respring", (run.table.question("Respring"), "Respring"))
    window.wait_until_free()
    run.trace.expect("respring: the line is started", run.table.changes("respring"))


def reboot():
    window.press("Reboot")
    window.answer_for_the_last_time(run.table.question("Reboot"), "Reboot")
    run.trace.expect("reboot: the line is started", run.table.changes("reboot"))


window.go_to("Options")
cancel_everything()
create_folders()
remove_sources()
sizes()
hud_of_size_check()
save_all()
sizes(", saved")
run.task("remove backups", "Remove Backup Folders", (REMOVAL, "Yes"))
if list(run.file(LIBRARY).iterdir()):
    fail("no archive is left")
respring()
reboot()
