#!/usr/bin/env bash
# The window comes up quickly and without a word, with a session bus, without one, and with one that turns it away: the
# root of an ordinary user's device is another user to a bus outside.
# shellcheck source=tests/device/window_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/window_lib.sh"

# The display's picture is a file: how many of its pixels have the colour of the bar and the buttons?
blue_pixels() {
    perl -0777 -ne 'print scalar(() = /\xff\x7a\x00/g)' "$workspace/Xvfb_screen0"
}

has_many_blue_pixels() { (($(blue_pixels) > 50000)); }
has_no_blue_pixel() { (($(blue_pixels) == 0)); }

test_start() {
    has_no_blue_pixel
    open_window RootTarnwick2
    wait_until has_many_blue_pixels
    same "$1: the window has its size" "Geometry: 375x667" \
        "$(xdotool search --onlyvisible --class Tarnwick getwindowgeometry | sed -n 's/^ *\(Geometry\)/\1/p')"
    kill "$window"
    window_ends "$1: it ends when its device is switched off" 143
    same "$1: nothing is complained about" "" "$(<"$workspace/output")"
    wait_until has_no_blue_pixel
}

require_programs xdotool
start_display
device new "$phone"
test_start "without a bus"
start_buses
test_start "with a bus"
