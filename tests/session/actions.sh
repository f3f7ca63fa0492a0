#!/usr/bin/env bash
# The quick actions of the installed program, over the session bus of the phone's user.
# shellcheck source=tests/session/session_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/session_lib.sh"

require_programs Xvfb dbus-daemon gdbus 9wm xdotool
install_on_phone "$phone" --model iPhone8,1
on_session "$phone" actions
