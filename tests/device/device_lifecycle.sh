#!/usr/bin/env bash
# Devices are made, wiped and deleted, and nothing that is not a device ever is.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

safeguard=/var/mobile/Library/Preferences/Tarnwick

# What a backup has to cope with.
test_content() {
    same "every database is sound" ok "$(on_phone sh -c 'find /var/mobile /var/wireless \( -name "*.sqlite*" -o -name "*.db" \) \
        -exec sqlite3 {} "PRAGMA integrity_check" \; | sort -u')"
    same "everything is its owner's" "" "$(on_phone sh -c \
        'find /var/mobile ! -user mobile -o ! -group mobile; find /var/wireless ! -user _wireless -o ! -group _wireless')"
}

fill_safeguard() {
    on_phone sh -c "mkdir -p $safeguard/TarnwickLibrary $safeguard/CydiaSources && cd $safeguard &&
        echo archive >'TarnwickLibrary/it is \"mine\".zip' && : >CydiaSources/empty &&
        chown mobile:staff CydiaSources/empty && chmod 2750 TarnwickLibrary && chmod 600 TarnwickLibrary/*.zip &&
        touch -d '2016-11-22 10:00:00.123456789' TarnwickLibrary/*.zip TarnwickLibrary CydiaSources ."
}

describe_safeguard() { on_phone find "$safeguard" -printf '%p %M %u %g %T@ %s\n' -type f -exec md5sum {} +; }

describe_rest() {
    on_phone sh -c "find /var /etc /Applications /sbin \( -path $safeguard -o -path /etc/ld.so.preload -o -path /etc/alternatives \) -prune \
        -o -printf '%p %M %u %g %l\n' -type f -printf '%T@\n' -exec md5sum {} + | sort"
}

test_wipe() {
    local list='cd /var && find mobile/Library mobile/Media wireless | sort' owned kept new
    owned=$(on_phone sh -c "$list")
    device wipe "$phone"
    new=$(describe_rest)
    # A restore adds to what exists, so a wipe may leave nothing that the owner did not have.
    same "what a wipe leaves existed before" "" "$(comm -13 <(echo "$owned") <(on_phone sh -c "$list"))"
    fill_safeguard
    kept=$(describe_safeguard)
    on_phone sh -c 'rm -rf /var/mobile/Library/SMS /var/lib/dpkg /etc/passwd /sbin/reboot /Applications/Cydia.app
        ln -s /var/tmp /var/mobile/Library/SMS; chmod 777 /var/mobile /var/mobile/Library; chown 0:0 /var/mobile/Library
        echo more >>/var/mobile/Library/Notes/notes.sqlite; touch /etc/left /var/left' || true
    device wipe "$phone"
    same "a wipe keeps the safeguard folder" "$kept" "$(describe_safeguard)"
    same "everything else is as new" "$new" "$(describe_rest)"
}

test_locks() {
    local run
    coproc "$repository/device/device" boot "$phone" sh -c 'echo up; cat'
    run=$!
    read -r <&"${COPROC[0]}"
    same "a device is not wiped while it runs" "device: $phone is in use: end its runs first" "$(device wipe "$phone" 2>&1)"
    refuse "nor deleted" device delete "$phone"
    check "but several runs are possible" on_phone true
    kill "$run"
    check "one that was told to end is waited for" device wipe "$phone"
    same "none begins during a wipe" "device: $phone is being made, wiped or deleted" \
        "$(flock "$phone" "$repository/device/device" boot "$phone" true 2>&1)"
}

test_wrong_usage() {
    local words
    mkdir "$workspace/folder"
    touch "$workspace/folder/precious"
    while read -r -a words; do
        same "refused: device ${words[*]}" 2 "$(cd "$workspace" && status_of device "${words[@]}" </dev/null)"
    done <<'WORDS'

fly
boot
wipe missing
offer folder
log folder
delete folder
new folder
new another --photos many
new another --photos
new another --model a/b
new another --colour red
boot phone --colour
boot phone --user nobody-of-that-name true
wipe phone folder
offer phone
WORDS
    check "a folder that is not a device is unchanged" test -e "$workspace/folder/precious"
    refuse "nothing was made" test -e "$workspace/another"
}

test_failure_leaves_nothing() {
    mkdir "$workspace/stubs"
    ln -s /bin/false "$workspace/stubs/tar"
    PATH=$workspace/stubs:$PATH refuse "new fails when a step of it fails" device new "$workspace/half"
    refuse "and leaves nothing" test -e "$workspace/half"
}

device new "$phone" --photos 5
test_content
test_wipe
test_locks
test_wrong_usage
test_failure_leaves_nothing
device delete "$phone"
refuse "a deleted device is gone" test -e "$phone"
