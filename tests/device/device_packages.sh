#!/usr/bin/env bash
# The real dpkg and apt-get work on a device's own packages, without a network.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

installed() { on_phone dpkg-query --show --showformat '${Package}\n' | sort | xargs; }

test_install_and_remove() {
    check "a package and what it needs can be installed" on_phone apt-get -y install org.example.weatherbar
    check "its files are there" on_phone test -f /etc/substrate/weatherbar.conf
    check "it can be removed" on_phone apt-get -y purge org.example.weatherbar
    refuse "its files are gone" on_phone test -e /etc/substrate/weatherbar.conf
    check "the database is sound" on_phone sh -c 'test -z "$(dpkg --audit)"'
}

test_selections_after_a_wipe() {
    local selections
    selections=$(on_phone dpkg --get-selections)
    device wipe "$phone"
    same "a wipe leaves the packages of the jailbreak" "org.example.base org.example.substrate" "$(installed)"
    on_phone dpkg --set-selections <<<"$selections"
    check "the selected packages come back" on_phone apt-get -y dselect-upgrade
    same "the selections are as before" "$selections" "$(on_phone dpkg --get-selections)"
}

device new "$phone"
same "the owner's packages are installed, the host's are not" \
    "org.example.base org.example.dockclock org.example.lantern org.example.ringtones org.example.substrate org.example.tidepool" \
    "$(installed)"
test_install_and_remove
test_selections_after_a_wipe
