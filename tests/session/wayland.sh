#!/usr/bin/env bash
# The installed program under Wayland.
# shellcheck source=tests/session/session_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/session_lib.sh"

require_programs sway swaymsg grim dbus-daemon
install_on_phone "$phone"
on_session "$phone" wayland
