#!/usr/bin/env bash
# The whole way of a wipe: a device is saved, checked and exported over a pipe, and comes back on a new one of another model.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

old=$workspace/old new=$workspace/new copy=$workspace/phone.tarnwick
note=/var/mobile/Library/Notes/notes.sqlite
safeguard=/var/mobile/Library/Preferences/Tarnwick
library=/var/mobile/Library
readarray -t data_sets < <(sed -n 's|^run: cp -R /\(var/[^ ]*\) .*|\1|p' "$table" | sort -u | grep -vx var/wireless/Library/CallHistory)

# Runs the command on a device; prints all that it says, and how it ends.
tarnwick() {
    local phone=$1
    shift
    on_phone bash -c 'tarnwick "$@" 2>&1; echo "status $?"' - "$@"
}
last_lines() { tail -n "$1"; }
# Kinds, names and checksums of everything in the folders, without the safeguard folder.
contents() {
    local phone=$1
    shift
    on_phone bash -c 'cd /
        find "$@" -path "*/Preferences/Tarnwick" -prune -o -printf "%y %p\n" | sort
        find "$@" -path "*/Preferences/Tarnwick" -prune -o -type f -print0 | sort -z | xargs -0 sha256sum' - "$@"
}
archives() { device boot "$1" bash -c 'cd "$1" && find . -type f -printf "%p %m %u %TY-%Tm-%Td\n" -exec sha256sum {} + | sort' - "$safeguard"; }

device new "$old" --model iPhone8,1
tarnwick "$old" save sources packages all >/dev/null
device boot "$old" sqlite3 "$note" "CREATE TABLE later (text TEXT); INSERT INTO later VALUES ('milk');"
same "a check says what is out of date" "not ready for a wipe:
notes: out of date: 1 changed
to be run: tarnwick save notes
status 1" "$(tarnwick "$old" check | last_lines 4)"
tarnwick "$old" save notes >/dev/null
same "and that all is ready" "ready for a wipe
status 0" "$(tarnwick "$old" check | last_lines 2)"
before=$(contents "$old" "${data_sets[@]}")
saved=$(archives "$old")
sources=$(device boot "$old" cat "$library/Caches/com.saurik.Cydia/sources.list")
packages=$(device boot "$old" dpkg --get-selections)

device boot "$old" tarnwick export | cat >"$copy"
same "anything lists the copy" "Tarnwick/manifest.json 15" "$(tar --list --file "$copy" | head -n 1) $(tar --list --file "$copy" | wc -l)"
same "the workstation can verify it" 0 "$("$DEVICE_BUILD/bin/tarnwick" export --verify "$copy" >/dev/null; echo $?)"
check "and sees which device it is of" grep -q "on iPhone8,1 " <<<"$("$DEVICE_BUILD/bin/tarnwick" export --verify "$copy")"
device delete "$old"

device new "$new" --model iPad4,2
tarnwick "$new" save notes >/dev/null
head -c 200000 "$copy" >"$workspace/half"
same "half a copy changes nothing" "$(archives "$new")" "$(device boot "$new" tarnwick import <"$workspace/half" >/dev/null 2>&1 || true; archives "$new")"
same "the whole one is taken" "TarnwickLibrary/Notes.zip: replaced" \
    "$(device boot "$new" tarnwick import <"$copy" | grep replaced)"
same "with what a save had made" "$saved" "$(archives "$new")"
same "what was there before is kept" Notes.zip "$(device boot "$new" ls "$library/Tarnwick.previous/TarnwickLibrary")"
tarnwick "$new" restore sources >/dev/null
for ((attempt = 0; attempt < 20; attempt++)); do
    tarnwick "$new" restore packages >/dev/null
    [[ $(device boot "$new" dpkg --get-selections) != "$packages" ]] || break
done
same "the packages are back" "$packages" "$(device boot "$new" dpkg --get-selections)"
same "everything is restored" "status 0" "$(tarnwick "$new" restore all --yes --then nothing | last_lines 1)"
same "bit for bit" "$before" "$(contents "$new" "${data_sets[@]}")"
same "the note is there" milk "$(device boot "$new" sqlite3 "$note" "SELECT text FROM later")"
same "the databases open" ok "$(device boot "$new" bash -c 'find /var/mobile \( -name "*.sqlite*" -o -name "*.db" \) -print0 |
    xargs -0 -I {} sqlite3 {} "PRAGMA integrity_check" | sort -u')"
same "the sources are those from before" "$(sort <<<"$sources")" "$(device boot "$new" bash -c '
    sort /var/mobile/Library/Caches/com.saurik.Cydia/sources.list <(cat /etc/apt/sources.list.d/TWKSources.list; echo)' | grep . | sort -u)"

# At a terminal, and over pipes that break.
phone=$new
same "a terminal gets no copy" 2 "$(on_phone bash -c 'script -qec "tarnwick export" /dev/null >/dev/null; echo $?' </dev/null)"
same "a reader that goes away is told" 1 "$(on_phone bash -c 'tarnwick export 2>/dev/null | true; echo "${PIPESTATUS[0]}"')"
same "a full disk too" 1 "$(on_phone bash -c 'tarnwick export >/dev/full 2>/dev/null; echo $?')"
on_phone bash -c 'cd /tmp && tarnwick export copy && tarnwick export --verify copy' >/dev/null
same "a file gets the whole copy, for its owner's eyes" "600 copy" "$(on_phone bash -c 'cd /tmp; tarnwick export copy; stat -c "%a %n" *copy*')"
