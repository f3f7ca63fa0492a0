"""The window on a device, whose folder is given: what only the real program on a real bus can show."""

import pathlib
import re
import subprocess
import sys

from window import BUTTON, HEADING, Alert, Window, ok, same

phone = pathlib.Path(sys.argv[1])
scenes = pathlib.Path(__file__).parents[2] / "storyboard"
window = Window()


def check_screen(title, before=()):
    """The scene's headings and buttons follow those of the bar."""
    captions = re.findall(r'(?:SectionHeading|[A-Z][a-z]+Button) \{.* text: "([^"]*)"', (scenes / f"{title}.qml").read_text())
    window.wait_for("it is complete", lambda: window.names(HEADING, BUTTON) == ["Menu", title, *before, *captions])
    same(f"{title}: everything has a name", [], window.nameless())


def check_save():
    """With a cp that waits for as long as it is told to: the program brings a zip of its own."""
    hold = phone / "var/root/hold"
    hold.touch()
    stand_in = phone / "sbin/cp"
    stand_in.write_text('#!/bin/bash\nwhile test -e /var/root/hold; do sleep 0.02; done\nexec /usr/bin/cp "$@"\n')
    stand_in.chmod(0o755)
    window.press("Notes")
    window.hud("Backup in progress...")
    hold.unlink()
    done = Alert("Notes Backup", "Backup done !", ["Close"])
    window.alert(done)
    same("under an alert only its button is offered", ["Close"], window.names(HEADING, BUTTON))
    window.answer(done)
    window.wait_until_free()


def use_keyboard(*words):
    subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "Tarnwick", "windowfocus", "--sync", *words], check=True)


def check_escape():
    window.press("Respring")
    window.alert(Alert("Respring", "Do you really want to Respring your device ?", ["Cancel", "Respring"]))
    use_keyboard("key", "Escape")
    window.wait_until_free()
    ok("Escape cancels a question")


def write_mail():
    window.go_to("Cloud")
    window.press("Send Backup")
    window.wait_for("the sheet", lambda: any(each.get_name() == "To" for each in window.objects()))
    use_keyboard("type", "me@example.org")
    window.wait_for("it can be sent", lambda: any(
        each.get_name() == "Send" and not each.get_description() for each in window.objects()))


check_screen("Backup")
check_save()
for screen, before in ("Restore", []), ("Cloud", ["Keep a copy elsewhere"]), ("Options", []):
    window.go_to(screen)
    check_screen(screen, before)
check_escape()
window.go_to("Help")
write_mail()
