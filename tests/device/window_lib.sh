# shellcheck shell=bash
# Shared by the tests of the window: a display and the buses of the test's own, all on sockets, and the window on a
# device.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

surroundings=()
export XDG_RUNTIME_DIR=$workspace/runtime QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset DISPLAY WAYLAND_DISPLAY XAUTHORITY DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS

# Asked to, and waited for: the display takes its socket and its lock away, the launcher its bus. What does not listen
# to the request loses its display.
end_surroundings() {
    ((${#surroundings[@]} == 0)) || kill "${surroundings[@]}" 2>/dev/null || true
    wait
    clean_up
}
trap end_surroundings EXIT

# surround COMMAND...: it goes on until the test ends.
surround() {
    "$@" >>"$workspace/surroundings" 2>&1 &
    surroundings+=("$!")
}

start_display() {
    require_programs Xvfb
    surround Xvfb -displayfd 3 -screen 0 1024x768x24 -fbdir "$workspace" -nolisten tcp -noreset 3>"$workspace/display"
    wait_until test -s "$workspace/display"
    DISPLAY=:$(<"$workspace/display")
    export DISPLAY
}

# A session bus that starts no service by itself.
write_bus_settings() {
    cat >"$workspace/bus.conf" <<SETTINGS
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=$workspace/bus</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
SETTINGS
}

accessibility_bus_is_up() {
    compgen -G "$XDG_RUNTIME_DIR/at-spi/bus*" >/dev/null
}

start_buses() {
    local launcher=/usr/libexec/at-spi-bus-launcher
    require_programs dbus-daemon "$launcher"
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    write_bus_settings
    surround dbus-daemon --config-file "$workspace/bus.conf" --nofork --nopidfile
    wait_until test -S "$workspace/bus"
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$workspace/bus
    surround env GSETTINGS_BACKEND=memory "$launcher" --launch-immediately
    wait_until accessibility_bus_is_up
}

# A user namespace's root is another user to a bus outside, which turns it away.
start_surroundings() {
    ((EUID == 0)) || skip "the accessibility bus lets only the device of the host's root in"
    require_programs strace /usr/bin/python3
    /usr/bin/python3 -c 'import gi; gi.require_version("Atspi", "2.0"); from gi.repository import Atspi' 2>/dev/null ||
        skip "python3-gi or gir1.2-atspi-2.0 is missing"
    start_display
    start_buses
}

# open_window COMMAND...: starts it on the phone; $window is its process here.
open_window() {
    "$repository/device/device" boot "$phone" "$@" >"$workspace/output" 2>&1 &
    window=$!
    surroundings+=("$window")
}

# drive SCRIPT: runs the driver against a traced window, which goes on when the driver is done.
drive() {
    open_window strace -f -qq -s 4096 --seccomp-bpf -e trace=execve,unlink,rmdir,mkdir -e signal=none \
        -o /var/root/trace RootTarnwick2
    PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 "$repository/tests/device/$1" "$phone" || {
        tail -n 20 "$workspace/output"
        exit 1
    }
    same "no library complains" "" "$(grep -E '^(qrc:|file:|qt\.|Q[A-Za-z]+[: ])' "$workspace/output" || true)"
}

# window_ends FACT STATUS: it does so by itself.
window_ends() {
    local status=0
    wait "$window" || status=$?
    same "$1" "$2" "$status"
}

last_logged() {
    device log "$phone" | tail -n "$1" | cut -d' ' -f3-
}
