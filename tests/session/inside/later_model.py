"""The action that started the program is not done: its first screen is there, and its menu."""

import os
import sys

sys.path.insert(0, "/mnt/share/window")
from window import SAFEGUARD, Window, same

window = Window("Backup")
window.open_menu()
window.press("Backup")
window.wait_for_screen("Backup")
same("nothing was saved", [], os.listdir(SAFEGUARD + "/CydiaPackages"))
