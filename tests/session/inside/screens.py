"""Waits for a screen of the program: screens.py TITLE."""

import sys

sys.path.insert(0, "/mnt/share/window")
from window import Window, ok

Window(sys.argv[1])
ok(f"the screen {sys.argv[1]} is in front")
