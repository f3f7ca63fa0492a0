#!/usr/bin/env bash
# The installed program is started by a hostile caller.
# shellcheck source=tests/session/session_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/session_lib.sh"

require_programs Xvfb dbus-daemon gdbus 9wm xdotool
install_on_phone "$phone"
on_session "$phone" rights
