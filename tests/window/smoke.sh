#!/usr/bin/env bash
# The real window on a device: it opens with and without buses, is toured by smoke.py, and ends when it is minimised.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/../device/device_lib.sh"

servers=()
export XDG_RUNTIME_DIR=$workspace/runtime QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS

# They remove their sockets and locks when they are asked to end.
end_servers() {
    ((${#servers[@]} == 0)) || kill "${servers[@]}" 2>/dev/null || true
    wait
    clean_up
}
trap end_servers EXIT

serve() {
    "$@" >>"$workspace/served" 2>&1 &
    servers+=("$!")
}

start_display() {
    serve Xvfb -displayfd 3 -screen 0 1024x768x24 -fbdir "$workspace" -nolisten tcp -noreset 3>"$workspace/display"
    wait_until test -s "$workspace/display"
    DISPLAY=:$(<"$workspace/display")
    export DISPLAY
    serve 9wm
}

start_buses() {
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    printf '<busconfig><type>session</type><listen>unix:path=%s</listen><policy context="default">
        <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>' \
        "$workspace/bus" >"$workspace/bus.conf"
    serve dbus-daemon --config-file "$workspace/bus.conf" --nofork --nopidfile
    wait_until test -S "$workspace/bus"
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$workspace/bus
    serve env GSETTINGS_BACKEND=memory /usr/libexec/at-spi-bus-launcher --launch-immediately
    wait_until compgen -G "$XDG_RUNTIME_DIR/at-spi/bus*" >/dev/null
}

# Sets $window to the run's process here.
open_window() {
    "$repository/device/device" boot "$phone" RootTarnwick2 >"$workspace/output" 2>&1 &
    window=$!
    servers+=("$window")
}

window_ends() {
    local status=0
    wait "$window" || status=$?
    same "$1" 143 "$status"
    # An object may be gone by the time that the bus asks for it.
    same "no library complains" "" "$(grep -E '^(qrc:|file:|qt\.|Q[A-Za-z]+[: ])' "$workspace/output" |
        grep -v 'Could not find accessible' || true)"
}

# The display's picture is a file: how many of its pixels have the colour of the bar and the buttons?
has_many_blue_pixels() { (($(perl -0777 -ne 'print scalar(() = /\xff\x7a\x00/g)' "$workspace/Xvfb_screen0") > 50000)); }

require_programs Xvfb dbus-daemon 9wm xdotool /usr/libexec/at-spi-bus-launcher /usr/bin/python3
start_display
device new "$phone"
open_window
wait_until has_many_blue_pixels
same "the window has its size" "Geometry: 375x667" \
    "$(xdotool search --onlyvisible --class Tarnwick getwindowgeometry | sed -n 's/^ *\(Geometry\)/\1/p')"
kill "$window"
window_ends "without a bus: it ends when its device is switched off"

((EUID == 0)) || {
    echo "left out: the tour, as a bus lets only the device of the host's root in"
    exit 0
}
export PYTHONDONTWRITEBYTECODE=1
/usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null ||
    skip "python3-gi or gir1.2-atspi-2.0 is missing"
start_buses
open_window
/usr/bin/python3 "$repository/tests/window/smoke.py" "$phone" || { cat "$workspace/output"; exit 1; }
same "the archive is good" "Notes.zip: good" "$(on_phone tarnwick check --archives-only notes)"
xdotool search --onlyvisible --class Tarnwick windowminimize
window_ends "minimising the window ends the program by a signal"
check "the mail that was being written is kept" grep -q '^To: me@example.org' -r "$phone/var/mobile/Library/Mail/Drafts/cur"
