"""All of Backup, with a zip that makes nothing and with one that works."""

from window_lib import ITEMS, SAFEGUARD, Alert, StandIns, fail, session

run = session()
zip_stand_in = StandIns(run.phone, zip="/usr/bin/zip")
run.trace.expect("the first screen makes the folders and nothing else", run.table.changes("folders"))

zip_stand_in.tell("refuse")
for verb, button, _, _ in ITEMS:
    run.task(f"save {verb}, nothing zipped", button)
run.task("save all, nothing zipped", "All in One")
zip_stand_in.untell("refuse")

run.nothing_follows("saving the sources starts nothing", "Cydia Sources",
                    (Alert("Cydia Sources Backup", "Backup done !", ["Close"]), "Close"))
if not run.file(SAFEGUARD + "/CydiaSources/sources.list").exists():
    fail("the sources are saved")
run.task("save packages", "Cydia Packages")
for verb, button, _, _ in ITEMS:
    run.task(f"save {verb}", button)
run.task("save all", "All in One")
