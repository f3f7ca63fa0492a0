"""All of Restore, with nothing saved and with everything saved."""

import os

from window_lib import ITEMS, LIBRARY, Alert, StandIns, fail, ok, session

run = session()
window = run.window
run.trace.expect("the first screen makes the folders and nothing else", run.table.changes("folders"))
SOURCES_DONE = Alert("Cydia Sources Restoration", "Restoration done !", ["Close"])
OWN_LIST = run.file("/etc/apt/sources.list.d/TWKSources.list")


def all_in_one():
    """The question names what is there, in the folder's own order."""
    question = run.table.question("All In One Restoration ")
    names = [name.replace(".zip", "") for name in os.listdir(run.file(LIBRARY))]
    return question._replace(message=question.message.replace("Notes", "\n".join(names)))


def restore_sources():
    run.nothing_follows("restoring the sources starts nothing", "Cydia Sources", (SOURCES_DONE, "Close"))
    if not OWN_LIST.exists():
        fail("a list of sources is written")
    OWN_LIST.unlink()


def restore_packages_with_nothing_saved():
    """The HUD stays over the screen, and the menu leads out."""
    window.press("Cydia Packages")
    window.answer(run.table.alerts("restore packages, nothing saved")[0])
    window.wait_until_alerts_are_gone()
    window.hud("Restoration in progress...")
    window.press("Notes")
    window.go_to("Help")
    window.go_to("Restore")
    run.trace.expect("restore packages, nothing saved: only an alert, and nothing under the HUD can be pressed", [])


def restore_nothing():
    restore_sources()
    restore_packages_with_nothing_saved()
    run.nothing_follows("all in one can be cancelled", "All In One", (all_in_one(), "Cancel"))
    run.task("restore all, nothing saved", "All In One", (all_in_one(), "Yes"))
    for verb, _, button, _ in ITEMS:
        run.task(f"restore {verb}, nothing saved", button)


def save_all():
    window.go_to("Backup")
    for button, scene in ("Cydia Packages", "save packages"), ("All in One", "save all"):
        run.task(scene, button)


def hud_of_restoring():
    """It is up for as long as its task works."""
    chown = StandIns(run.phone, chown="/usr/bin/chown")
    chown.tell("hold")
    window.press("Contacts")
    window.hud("Restoration in progress...")
    chown.untell("hold")
    run.finish("restore contacts")
    ok("while a restore works its HUD is up")


def restore_everything():
    restore_sources()
    run.task("restore packages", "Cydia Packages")
    run.task("restore all", "All In One", (all_in_one(), "Yes"))
    for verb, _, button, _ in ITEMS:
        run.task(f"restore {verb}", button)


def follow_offers():
    """The last one ends the run."""
    respring = ["run: /usr/bin/killall backboardd"]
    run.task("restore springboard", "SpringBoard", choice="Respring now", then=respring)
    run.task("restore packages", "Cydia Packages", choice="Respring now", then=respring)
    window.press("Accounts")
    window.answer_for_the_last_time(run.table.alerts("restore accounts")[0], "Reboot now")
    run.trace.expect("an offered reboot is started", run.table.changes("restore accounts") + ["run: /sbin/reboot"])


window.go_to("Restore")
restore_nothing()
save_all()
window.go_to("Restore")
restore_everything()
hud_of_restoring()
follow_offers()
