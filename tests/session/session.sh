#!/usr/bin/env bash
# The installed program in a session of the phone's user, used by the script of that name in inside/: session.sh NAME.
# shellcheck source=tests/session/session_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/session_lib.sh"

case $1 in
    wayland) require_programs sway swaymsg grim dbus-daemon ;;
    *) require_programs Xvfb dbus-daemon gdbus 9wm xdotool ;;
esac
install_on_phone "$phone" --model iPhone8,1
on_session "$phone" "$1"
