"""The quick actions of a running program, seen by a person with a screen reader."""

import os
import subprocess
import sys

sys.path.insert(0, "/mnt/share/window")
from window import SAFEGUARD, Alert, Window, ok, same

LIBRARY = SAFEGUARD + "/TarnwickLibrary"


def act(name):
    subprocess.run(["gdbus", "call", "--session", "--dest", "com.fenlow.tarnwick2", "--object-path",
                    "/com/fenlow/tarnwick2", "--method", "org.freedesktop.Application.ActivateAction", name, "[]", "{}"],
                   check=True, stdout=subprocess.DEVNULL)


def saves(window, name, title, file):
    act(name)
    window.answer(Alert(title, "Backup done !", ["Close"]))
    window.wait_until_free()
    window.wait_for_screen("Backup")
    if not os.path.exists(file):
        sys.exit(f"not ok: {file} is missing")
    ok(f"{name} saves and reports it")


window = Window("Restore")
same("nothing was saved for a screen", [], os.listdir(LIBRARY) if os.path.exists(LIBRARY) else [])
saves(window, "save", "Cydia Backup", SAFEGUARD + "/CydiaPackages/installed-packages.txt")
same("nothing else was", [], os.listdir(LIBRARY))
saves(window, "save-all", "All in One Backup", LIBRARY + "/Voicemail.zip")
window.press("Menu")
same("outside of the container there is no menu", [False], [window.is_offered("Cloud")])
act("restore")
window.wait_for_screen("Restore")
