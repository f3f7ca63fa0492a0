#!/usr/bin/env bash
# Every button of Restore in the window, and what it offers afterwards.
# shellcheck source=tests/device/window_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/window_lib.sh"

start_surroundings
device new "$phone"
drive window_restore.py
window_ends "the offered reboot ends the run" 0
same "two resprings and the reboot are on record, the reboot last" "2 reboot" \
    "$(device log "$phone" | grep -c ' respring$') $(last_logged 1)"
