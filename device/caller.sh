# shellcheck shell=bash
# What a device gets from its caller's environment: the sockets of the display, the session bus and the accessibility bus,
# and a few settings by name. Everything else stays outside. Used by power_on, which plans the mounts.

environment=()
declare -A caller=()

# Records a socket or folder of the host by its real path, which no link can redirect after the pivot.
remember() {
    [[ -e $2 ]] || return 0
    caller[$1]=$(realpath "$2")
}

# The path in a D-Bus address; empty for other kinds, as the device has no network, which includes abstract sockets.
bus_path() {
    [[ $1 =~ (^|;)unix:path=([^,;]+) ]] || return 0
    printf '%s\n' "${BASH_REMATCH[2]}"
}

find_display() {
    [[ ${DISPLAY-} =~ ^(unix)?:([0-9]+)(\.[0-9]+)?$ ]] || return 0
    remember display "/tmp/.X11-unix/X${BASH_REMATCH[2]}"
    [[ -v caller[display] ]] || return 0
    remember authority "${XAUTHORITY:-${HOME-}/.Xauthority}"
}

find_wayland() {
    case ${WAYLAND_DISPLAY-} in
        '') ;;
        /*) remember wayland "$WAYLAND_DISPLAY" ;;
        *) remember wayland "${XDG_RUNTIME_DIR-}/$WAYLAND_DISPLAY" ;;
    esac
}

find_caller_sockets() {
    find_display
    find_wayland
    remember bus "$(bus_path "${DBUS_SESSION_BUS_ADDRESS-}")"
    remember accessibility_bus "$(bus_path "${AT_SPI_BUS_ADDRESS-}")"
    [[ -z ${XDG_RUNTIME_DIR-} ]] || remember accessibility_folder "$XDG_RUNTIME_DIR/at-spi"
}

# Sets user_id, group_id, home and shell from the device's list of users.
read_user() {
    local name
    while IFS=: read -r name _ user_id group_id _ home shell; do
        [[ $name != "$1" ]] || return 0
    done <"$2"
    printf 'device: no user of the device is named %s\n' "$1" >&2
    exit 2
}

plan_socket() {
    : >"$2"
    plan_read_only "${caller[$1]}" "$2"
}

# The name of the display's host is part of an X authority entry, so the device keeps the host's name. The file itself
# is copied, as only its owner may read it.
plan_display() {
    local socket=/tmp/.X11-unix/X${caller[display]##*/X}
    mkdir -m 1777 /tmp/.X11-unix
    plan_socket display "$socket"
    environment+=("DISPLAY=:${socket##*/X}")
    [[ -v caller[authority] ]] || return 0
    # shellcheck disable=SC2154  # set by power_on
    install -m 600 -o "$user_id" -g "$group_id" "$host${caller[authority]}" "$runtime/Xauthority"
    environment+=("XAUTHORITY=$runtime/Xauthority")
}

# At the same path as outside, as the session bus announces it.
plan_accessibility_folder() {
    local folder=${caller[accessibility_folder]}
    [[ $folder == /run/* || $folder == /tmp/* ]] || return 0
    mkdir -p "$folder"
    plan_read_only "$folder" "$folder"
}

plan_buses() {
    if [[ -v caller[bus] ]]; then
        plan_socket bus "$runtime/bus"
        environment+=("DBUS_SESSION_BUS_ADDRESS=unix:path=$runtime/bus")
    fi
    if [[ -v caller[accessibility_bus] ]]; then
        plan_socket accessibility_bus "$runtime/accessibility-bus"
        environment+=("AT_SPI_BUS_ADDRESS=unix:path=$runtime/accessibility-bus")
    fi
    [[ ! -v caller[accessibility_folder] ]] || plan_accessibility_folder
}

plan_caller_sockets() {
    local runtime=/run/user/$user_id
    mkdir -p "$runtime"
    chmod 700 "$runtime"
    chown "$user_id:$group_id" "$runtime"
    environment+=("XDG_RUNTIME_DIR=$runtime")
    [[ ! -v caller[display] ]] || plan_display
    if [[ -v caller[wayland] ]]; then
        plan_socket wayland "$runtime/wayland-0"
        environment+=(WAYLAND_DISPLAY=wayland-0)
    fi
    plan_buses
}

# The device gets no other variable of the caller.
collect_environment() {
    local name
    environment=(
        PATH=/opt/tarnwick/bin:/sbin:/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/bin
        "HOME=$home" "USER=$1" "LOGNAME=$1" "SHELL=$shell" "TERM=${TERM:-dumb}" LANG=C.UTF-8
    )
    for name in QT_QUICK_BACKEND QT_QPA_PLATFORM QT_LINUX_ACCESSIBILITY_ALWAYS_ON QT_SCALE_FACTOR NO_COLOR; do
        [[ ! -v $name ]] || environment+=("$name=${!name}")
    done
}
