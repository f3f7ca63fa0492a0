#!/usr/bin/env bash
# Every button of Options in the window, and every choice in its alerts; the reboot ends the run.
# shellcheck source=tests/device/window_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/window_lib.sh"

start_surroundings
device new "$phone"
drive window_options.py
window_ends "the reboot ends the run" 0
same "the respring and then the reboot are on record" "respring
reboot" "$(last_logged 2)"
