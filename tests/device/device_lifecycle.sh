#!/usr/bin/env bash
# Devices are made, wiped and taken away, and nothing that is not a device ever is.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

safeguard=/var/mobile/Library/Preferences/Tarnwick

fill_safeguard() {
    on_phone sh -c "mkdir -p $safeguard/TarnwickLibrary $safeguard/CydiaSources && cd $safeguard &&
        echo archive >'TarnwickLibrary/it is \"mine\".zip' && : >CydiaSources/empty &&
        chown mobile:staff CydiaSources/empty && chmod 2750 TarnwickLibrary && chmod 600 TarnwickLibrary/*.zip &&
        touch -d '2016-11-22 10:00:00.123456789' TarnwickLibrary/*.zip TarnwickLibrary CydiaSources ."
}

# What is where, whose and how it reads, with the times of files.
describe() {
    on_phone sh -c "find $1 \( -path $safeguard -o -path /etc/ld.so.preload -o -path /etc/alternatives \) -prune -o -printf '%p %M %u %g %l\n' \
        -type f -printf '%T@\n' -exec md5sum {} + | sort"
}

make_a_mess() {
    on_phone sh -c 'rm -rf /var/mobile/Library/SMS /var/lib/dpkg /etc/passwd /sbin/reboot /Applications/Cydia.app
        ln -s /var/tmp /var/mobile/Library/SMS; chmod 777 /var/mobile /var/mobile/Library; chown 0:0 /var/mobile/Library
        echo more >>/var/mobile/Library/Notes/notes.sqlite; touch /etc/left /var/left' || true
}

test_wipe() {
    local kept new
    device wipe "$phone"
    new=$(describe '/var /etc /Applications /sbin')
    fill_safeguard
    kept=$(on_phone find "$safeguard" -printf '%p %M %u %g %T@ %s\n' -type f -exec md5sum {} +)
    make_a_mess
    device wipe "$phone"
    same "a wipe keeps the safeguard folder" "$kept" \
        "$(on_phone find "$safeguard" -printf '%p %M %u %g %T@ %s\n' -type f -exec md5sum {} +)"
    same "everything else is as new" "$new" "$(describe '/var /etc /Applications /sbin')"
    same "wipes are on record" 2 "$(device log "$phone" | grep -c ' wipe$')"
}

refused() {
    same "refused: device $*" 2 "$(status_of device "$@")"
}

test_wrong_usage() {
    mkdir "$workspace/folder"
    touch "$workspace/folder/precious"
    for verb in boot wipe offer log delete; do
        refused "$verb"
        refused "$verb" "$workspace/missing"
        refused "$verb" "$workspace/folder"
    done
    check "a folder that is no device stays as it is" test -e "$workspace/folder/precious"
    refused
    refused fly
    refused new
    refused new "$workspace/folder"
    refused new "$workspace/another" --photos many
    refused new "$workspace/another" --photos
    refused new "$workspace/another" --model 'a b'
    refused new "$workspace/another" --colour red
    refused boot "$phone" --colour
    refused boot "$phone" --user nobody-of-that-name true
    refused wipe "$phone" "$workspace/folder"
    refused offer "$phone"
    refuse "nothing was made" test -e "$workspace/another"
}

# tar is called when files of several users are there already.
test_failure_leaves_nothing() {
    mkdir "$workspace/stubs"
    ln -s /bin/false "$workspace/stubs/tar"
    PATH=$workspace/stubs:$PATH refuse "new fails when a step of it fails" device new "$workspace/half"
    refuse "and leaves nothing" test -e "$workspace/half"
    "$repository/device/device" new "$workspace/half" --photos 200 2>/dev/null &
    wait_until test -e "$workspace/half/factory.tar"
    kill -TERM $!
    wait $! || true
    refuse "nor does it when it is told to stop" test -e "$workspace/half"
}

device new "$phone"
test_wipe
test_wrong_usage
test_failure_leaves_nothing
device delete "$phone"
refuse "a deleted device is gone" test -e "$phone"
