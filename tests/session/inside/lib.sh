# shellcheck shell=bash
# On the phone, as its root: a session of the user mobile with a bus, a display and whatever starts there.

set -euo pipefail
# shellcheck source=tests/facts.sh
source /mnt/share/facts.sh

session=/tmp/session
# The output of the session's programs and their log lines, which go to a terminal too, as a phone has no system log.
said=$session/said

# The output explains a failure.
end_session() {
    local status=$?
    jobs -p | xargs --no-run-if-empty kill 2>/dev/null || true
    ((status == 0)) || cat "$said" 2>/dev/null || true
}
trap end_session EXIT

# With the environment of a login.
as() {
    local user=$1
    shift
    setpriv --reuid "$user" --regid "$user" --init-groups -- env -i PATH=/usr/bin:/bin:/usr/games HOME="/var/$user" \
        LANG=C.UTF-8 XDG_RUNTIME_DIR="$session" DBUS_SESSION_BUS_ADDRESS="unix:path=$session/bus" ${display:+"$display"} \
        "$@"
}

at_terminal() {
    as mobile script --quiet --flush --command "$*" --append "$said" </dev/null >/dev/null 2>&1 &
}

# A bus that lets other users in, so that the program itself has to refuse them.
start_bus() {
    cat >"$session/bus.conf" <<'SETTINGS'
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <include>/usr/share/dbus-1/session.conf</include>
  <policy context="mandatory"><allow user="*"/></policy>
</busconfig>
SETTINGS
    at_terminal "dbus-daemon --nofork --nopidfile --config-file $session/bus.conf --address unix:path=$session/bus"
    wait_until test -S "$session/bus"
    chmod 711 "$session"
}

start_session() {
    install -d -m 700 -o mobile -g mobile "$session"
    display=
    start_bus
}

start_display() {
    : >"$session/display"
    chown mobile "$session/display"
    as mobile bash -c "exec Xvfb -displayfd 3 -screen 0 800x700x24 -nolisten tcp -noreset 3>$session/display" \
        >/dev/null 2>&1 &
    wait_until test -s "$session/display"
    display=DISPLAY=:$(<"$session/display")
    as mobile dbus-update-activation-environment "$display"
    as mobile 9wm >/dev/null 2>&1 &
}

use_assistive_technology() {
    as mobile gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus \
        --method org.freedesktop.DBus.Properties.Set org.a11y.Status IsEnabled "<true>" >/dev/null
}

program() { pgrep -x RootTarnwick2; }

minimise() {
    as mobile xdotool search --sync --onlyvisible --class Tarnwick windowminimize
    wait_until has_ended
}

# is_on_bus NAME: without having the bus start it.
is_on_bus() {
    as mobile gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
        --method org.freedesktop.DBus.NameHasOwner "$1" | grep -q true
}

has_ended() { ! program >/dev/null; }

# drive SCRIPT [ARGUMENT...]: one that uses the program as a person with a screen reader does.
drive() {
    as mobile PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 "/mnt/share/session/inside/$1" "${@:2}"
}

# call USER METHOD [ARGUMENT...]: of the program's interface. Prints the answer, or the kind of the error.
call() {
    { as "$1" gdbus call --session --dest com.fenlow.tarnwick2 --object-path /com/fenlow/tarnwick2 \
        --method "org.freedesktop.Application.$2" "${@:3}" 2>&1 || true; } |
        sed -En '1s/.*(org\.freedesktop\.DBus\.Error\.[A-Za-z]+).*/\1/; 1p'
}

act() { call mobile ActivateAction "$1" '[]' '{}'; }
