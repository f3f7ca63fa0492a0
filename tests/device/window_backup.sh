#!/usr/bin/env bash
# Every button of Backup in the window, and the end of the program when its window is minimised.
# shellcheck source=tests/device/window_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/window_lib.sh"

last_command_line() {
    grep -o '"sh", "-c", ".*"\]' "$phone/var/root/trace" | tail -n 1
}

require_programs 9wm xdotool
start_surroundings
surround 9wm
device new "$phone"
drive window_backup.py
same "all archives are good" 12 "$(on_phone tarnwick check | grep -c ': good')"
xdotool search --onlyvisible --class Tarnwick windowminimize
window_ends "minimising the window ends the program by a signal" 143
same "which its own command line sent" '"sh", "-c", "/usr/bin/killall RootTarnwick2"]' "$(last_command_line)"
