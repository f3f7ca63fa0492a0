# shellcheck shell=bash
# Shared by the tests of the installed package: a phone whose own apt has installed it, and sessions of the phone's user.
# Everything of a session, display and buses included, runs on the phone.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/../device/device_lib.sh"

# install_on_phone PHONE [OPTION...]: makes the phone, with the package from the phone's own source.
install_on_phone() {
    local package
    package=$(compgen -G "$repository/build/package/tarnwick_*.deb") || skip "there is no package: packaging/build-package"
    device new "$@"
    device offer "$1" "$package"
    device boot "$1" sh -c 'apt-get -qq update && apt-get -qq --yes install tarnwick' >"$workspace/installation" 2>&1 || {
        cat "$workspace/installation"
        exit 1
    }
}

# on_session PHONE SCRIPT [ARGUMENT...]: runs one of the scripts of inside/ as the phone's root. It prints its own facts.
on_session() {
    DEVICE_SHARE=$repository/tests device boot "$1" bash "/mnt/share/session/inside/$2" "${@:3}"
}
