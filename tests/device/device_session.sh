#!/usr/bin/env bash
# A program on a device gets from its caller the sockets of the desktop and a few settings, and nothing else.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

runtime=$workspace/runtime
display=$((20000 + $$ % 10000))
x_socket=/tmp/.X11-unix/X$display

# The sockets of a desktop's servers.
listen() {
    perl -MIO::Socket::UNIX -e 'push @sockets, IO::Socket::UNIX->new(Local => $_, Listen => 5) for @ARGV; sleep' "$@" &
    host_processes+=("$!")
    disown "$!"
    wait_until test -S "${!#}"
}

names_of_environment() {
    "$@" "$repository/device/device" boot "$phone" env | cut -d= -f1 | sort | xargs
}

start_desktop() {
    mkdir -p "$runtime/at-spi"
    if mkdir -m 1777 /tmp/.X11-unix 2>/dev/null; then made_x_folder=yes; fi
    echo cookie >"$workspace/authority"
    chmod 600 "$workspace/authority"
    listen "$x_socket" "$runtime/wayland-7" "$runtime/session" "$runtime/at-spi/bus_7" "$runtime/reader"
}

stop_desktop() {
    rm -f "$x_socket"
    [[ -z ${made_x_folder-} ]] || rmdir /tmp/.X11-unix 2>/dev/null || true
    clean_up
}

test_sockets() {
    # shellcheck disable=SC2016
    same "the environment names them" \
        ":$display cookie wayland-0 unix:path=/run/user/0/bus unix:path=/run/user/0/accessibility-bus" \
        "$("${caller[@]}" "$repository/device/device" boot "$phone" sh -c 'echo $DISPLAY $(cat $XAUTHORITY) $WAYLAND_DISPLAY \
            $DBUS_SESSION_BUS_ADDRESS $AT_SPI_BUS_ADDRESS')"
    refuse "the device cannot take a socket away" "${caller[@]}" "$repository/device/device" boot "$phone" rm "$x_socket"
}

# A process with the terminal open could type into it, and the host's shell would run that.
test_terminal() {
    local typing='for (split //, "typed\n") { ioctl STDIN, 0x5412, $_ }'
    # shellcheck disable=SC2016
    same "no stream of a device is the caller's terminal" "pipe pipe pipe" "$(
        DEVICE="$repository/device/device boot $phone" script --quiet --return --command '
            $DEVICE readlink /proc/self/fd/0 /proc/self/fd/2 | cat; $DEVICE readlink /proc/self/fd/1 </dev/null 2>/dev/null' \
            /dev/null </dev/null | grep -o '^[a-z]*' | xargs)"
    same "nothing on the device can type into the caller's terminal" "[]" "$(
        TYPING=$typing DEVICE="$repository/device/device boot $phone" setsid script --quiet --return --command '
            $DEVICE perl -e "$TYPING" >/dev/null; $DEVICE perl -e "$TYPING" >/dev/null 2>&1
            read -r -t 0.2 line; echo "[$line]"' /dev/null < <(sleep 5) | tr -d "\r" | tail -n 1)"
}

[[ ! -e $x_socket ]] || skip "display $display is taken"
trap stop_desktop EXIT
start_desktop
device new "$phone"
caller=(env XDG_RUNTIME_DIR="$runtime" DISPLAY=":$display.0" XAUTHORITY="$workspace/authority" WAYLAND_DISPLAY=wayland-7
    DBUS_SESSION_BUS_ADDRESS="unix:abstract=/gone;unix:path=$runtime/session,guid=0" NO_COLOR=1 SECRET=1
    AT_SPI_BUS_ADDRESS="unix:path=$runtime/reader")
plain="HOME LANG LOGNAME PATH SHELL TERM USER XDG_RUNTIME_DIR"
test_sockets
test_terminal
same "no other variable of the caller's comes along" \
    "AT_SPI_BUS_ADDRESS DBUS_SESSION_BUS_ADDRESS DISPLAY HOME LANG LOGNAME NO_COLOR PATH SHELL TERM USER WAYLAND_DISPLAY XAUTHORITY XDG_RUNTIME_DIR" \
    "$(names_of_environment "${caller[@]}")"
same "a caller whose desktop is gone passes none on" "$plain" "$(names_of_environment env -i PATH="$PATH" DISPLAY=:19999 \
    WAYLAND_DISPLAY=gone XDG_RUNTIME_DIR=/gone DBUS_SESSION_BUS_ADDRESS=unix:abstract=/gone)"
