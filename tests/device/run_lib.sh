# shellcheck shell=bash
# Shared by the tests of the command on a device.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

library=/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary

# shellcheck disable=SC2034
table=$repository/tests/events/events.txt

# Staging copies and other leftovers.
not_archives() {
    on_phone find /var/tmp "$library" -mindepth 1 ! -name '*.zip'
}

not_good() {
    on_phone tarnwick check --archives-only 2>&1 | grep -v ': good$' || true
}

times_logged() {
    device log "$phone" | grep -c "$1"
}
