#!/usr/bin/env bash
# Packages with programs: offered, installed among the workstation's own, used and taken away, on the device alone.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

package=$workspace/sample.deb
files="/usr/bin/sample-greet /usr/libexec/sample-grep /usr/share/sample/words /usr/share/man/man1/sample-greet.1"

make_package() {
    local tree=$workspace/tree file
    mkdir "$tree"
    for file in $files; do
        mkdir -p "$tree${file%/*}"
        echo words >"$tree$file"
    done
    printf '#!/bin/sh\necho hello\n' >"$tree/usr/bin/sample-greet"
    chmod 755 "$tree/usr/bin/sample-greet"
    cp /usr/bin/grep "$tree/usr/libexec/sample-grep"
    chmod 4755 "$tree/usr/libexec/sample-grep"
    mkdir "$tree/DEBIAN"
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

install_sample() {
    on_phone sh -c 'apt-get update && apt-get --yes install sample'
}

# Prints those of the package's files that are there. The command before it tells where.
sample_files() {
    # shellcheck disable=SC2016,SC2086
    "$@" sh -c 'for file; do test ! -e "$file" || echo "$file"; done' - $files | xargs
}

program_folder() {
    (cd "$phone/usr" && find . | sort)
}

test_offer() {
    local before
    before=$(<"$phone/repository/Packages")
    echo text >"$workspace/text.deb"
    refuse "what is no package cannot be offered" device offer "$phone" "$package" "$workspace/text.deb"
    refuse "nor what is missing" device offer "$phone" "$workspace/missing.deb"
    same "and nothing has changed" "$before" "$(<"$phone/repository/Packages")"
    check "a package can be offered" device offer "$phone" "$package"
    check "and again" device offer "$phone" "$package"
}

test_install() {
    check "it can be installed with what it needs of the workstation" install_sample
    same "its files are there" "$files" "$(sample_files on_phone)"
    same "its program runs" hello "$(on_phone sample-greet)"
    same "its set-user-ID program has the rights of the device's root" "$(on_phone grep CapEff /proc/self/status)" \
        "$(device boot "$phone" --user mobile /usr/libexec/sample-grep CapEff /proc/self/status)"
    same "what it needs of the workstation has no files" /. "$(on_phone dpkg --listfiles zip)"
    same "the workstation has none of it" "" "$(sample_files env)"
}

test_second_run() {
    coproc first { on_phone sh -c 'echo up; read -r _'; }
    read -r _ <&"${first[0]}"
    same "a second run at the same time has the program" hello "$(on_phone sample-greet)"
    refuse "but cannot change it" on_phone touch /usr/bin/sample-greet
    echo >&"${first[1]}"
    # shellcheck disable=SC2154  # set by coproc
    wait "$first_PID"
    check "the next one can" on_phone touch /usr/bin/sample-greet
}

test_removal() {
    check "the package can be removed" on_phone apt-get --yes purge sample
    same "its files are gone" "" "$(sample_files on_phone)"
}

test_wipe() {
    local new=$1
    on_phone apt-get --yes install sample >/dev/null
    on_phone rm /usr/bin/zip
    device wipe "$phone"
    same "after a wipe the programs are as new" "$new" "$(program_folder)"
    check "the workstation's are back" on_phone test -e /usr/bin/zip
    check "the package is offered still" install_sample
}

test_older_device() {
    mv "$phone/usr" "$phone/gone"
    check "a device from before it could have programs gets a place for them" \
        on_phone apt-get --yes --reinstall install sample
}

# An overlay is no place for the upper folder of another one.
test_without_overlay() {
    ((EUID == 0)) || return 0
    mkdir "$workspace/merged"
    mount -t overlay -o "lowerdir=/usr,upperdir=$workspace/overlay/upper,workdir=$workspace/overlay/work" none \
        "$workspace/merged"
    trap 'umount "$workspace/merged"; clean_up' EXIT
    phone=$workspace/merged/phone
    device new "$phone"
    same "where the host has no overlays the device starts without a word" up "$(on_phone echo up 2>&1)"
    refuse "its programs are the workstation's alone" on_phone touch /usr/bin/sample-greet
    device delete "$phone"
}

has_overlays || skip "there are no overlays here"
make_package
device new "$phone"
test_offer
as_new=$(program_folder)
test_install
test_second_run
test_removal
test_wipe "$as_new"
test_older_device
test_without_overlay
