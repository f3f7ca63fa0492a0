#!/usr/bin/env bash
# The real dpkg and apt-get work on a device's own packages, without a network, and on the device alone.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

package=$workspace/sample.deb
program=/usr/bin/sample-greet

installed() { on_phone dpkg-query --show --showformat '${Package}\n' | sort | xargs; }

test_selections_after_a_wipe() {
    local selections
    same "the owner's packages are installed, the host's are not" \
        "org.example.base org.example.dockclock org.example.lantern org.example.ringtones org.example.substrate org.example.tidepool" \
        "$(installed)"
    selections=$(on_phone dpkg --get-selections)
    device wipe "$phone"
    same "a wipe leaves the packages of the jailbreak" "org.example.base org.example.substrate" "$(installed)"
    on_phone dpkg --set-selections <<<"$selections"
    check "the selected packages come back" on_phone apt-get -y dselect-upgrade
    same "the selections are as before" "$selections" "$(on_phone dpkg --get-selections)"
    check "the database is sound" on_phone sh -c 'test -z "$(dpkg --audit)"'
}

make_package() {
    local tree=$workspace/tree
    mkdir -p "$tree"/{DEBIAN,usr/bin}
    printf '#!/bin/sh\necho hello\n' >"$tree$program"
    chmod 755 "$tree$program"
    cat >"$tree/DEBIAN/control" <<CONTROL
Package: sample
Version: 1:1.0-1
Architecture: $(dpkg --print-architecture)
Maintainer: Sample Repository <packages@example.org>
Pre-Depends: dpkg (>= 1.15)
Depends: zip (>= 3), nothing-of-the-kind | bash (>= 4), awk,
 libc6
Description: greets
CONTROL
    dpkg-deb --root-owner-group --build "$tree" "$package" >/dev/null
}

install_sample() { on_phone sh -c 'apt-get update && apt-get --yes install sample'; }

program_folder() { (cd "$phone/usr" && find . | sort); }

test_offer_and_install() {
    local before
    before=$(<"$phone/repository/Packages")
    echo text >"$workspace/text.deb"
    refuse "a file that is not a package cannot be offered" device offer "$phone" "$package" "$workspace/text.deb"
    same "and then none is" "$before" "$(<"$phone/repository/Packages")"
    device offer "$phone" "$package"
    check "a package can be offered again" device offer "$phone" "$package"
    check "it is installed with what it needs of the workstation" install_sample
    same "its program runs" hello "$(on_phone sample-greet)"
    refuse "the workstation does not have it" test -e "$program"
}

test_removal_and_wipe() {
    check "the package can be purged" on_phone apt-get --yes purge sample
    refuse "its program is gone" on_phone test -e "$program"
    on_phone apt-get --yes install sample >/dev/null
    on_phone rm /usr/bin/zip
    device wipe "$phone"
    same "after a wipe the programs are as new" "$as_new" "$(program_folder)"
    check "the workstation's are back" on_phone test -e /usr/bin/zip
    check "the package is still offered" install_sample
}

device new "$phone"
test_selections_after_a_wipe
has_overlays || skip "the rest, as there are no overlays here"
make_package
as_new=$(program_folder)
test_offer_and_install
test_removal_and_wipe
