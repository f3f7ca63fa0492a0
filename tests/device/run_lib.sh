# shellcheck shell=bash
# Shared by the tests of the command on a device.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

library=/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary

# What is directly in the archive folder and is no archive.
not_archives() {
    on_phone find /var/tmp "$library" -mindepth 1 ! -name '*.zip'
}

good_archives() {
    on_phone tarnwick check | grep -c ': good'
}

times_logged() {
    device log "$phone" | grep -c "$1"
}
