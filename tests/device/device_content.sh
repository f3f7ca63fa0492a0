#!/usr/bin/env bash
# A sample device holds what a backup has to cope with.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

test_databases() {
    local report
    report=$(on_phone bash -s <<'SCRIPT'
find /var/mobile /var/wireless -type f | while read -r file; do
    [[ $(head -c 15 "$file" | tr -d '\0') == 'SQLite format 3' ]] || continue
    tables=$(sqlite3 "$file" "SELECT name FROM sqlite_master WHERE type = 'table'")
    rows=0
    for table in $tables; do
        rows=$((rows + $(sqlite3 "$file" "SELECT count(*) FROM $table")))
    done
    echo "${file##*/} $(sqlite3 "$file" 'PRAGMA integrity_check') $((rows > 0))"
done | sort
SCRIPT
)
    same "every database is sound and has rows" "$(printf '%s ok 1\n' Accounts3.sqlite AddressBook.sqlitedb Bookmarks.db \
        Calendar.sqlitedb Photos.sqlite call_history.db notes.sqlite sms.db voicemail.db)" "$report"
    same "no journal is left" "" "$(on_phone find /var -name '*-wal' -o -name '*-journal' -o -name '*-shm')"
}

test_awkward_files() {
    local like
    for like in '-name "* *"' "-name \"*'*\"" "-name '*\"*\"*'" '-name "*ä*"' '-name "-*"' '-type d -empty' '-type f -empty' \
        '-perm 600'; do
        check "there is a file like $like" on_phone sh -c "find /var/mobile/Library /var/mobile/Media $like | grep -q ."
    done
    same "all of them are files and folders" "" \
        "$(on_phone find /var/mobile /var/wireless ! -type f ! -type d)"
    same "everything is its owner's" "" "$(on_phone sh -c \
        'find /var/mobile ! -user mobile -o ! -group mobile; find /var/wireless ! -user _wireless -o ! -group _wireless')"
}

# A restore adds to what is there, so a wipe may leave nothing that the owner did not have.
test_wipe_leaves_a_subset() {
    local list='cd /var && find mobile/Library mobile/Media wireless | sort' owned
    owned=$(on_phone sh -c "$list")
    device wipe "$phone"
    same "what is left after a wipe was there before" "" "$(comm -13 <(echo "$owned") <(on_phone sh -c "$list"))"
    same "the messages are gone" 0 "$(on_phone sqlite3 /var/mobile/Library/SMS/sms.db 'SELECT count(*) FROM message')"
}

test_photos() {
    local photos=/var/mobile/Media/DCIM/101APPLE
    same "photos of two megabytes each make up the size asked for" "2000000 2000000 1000000" \
        "$(on_phone sh -c "stat --format %s $photos/* | xargs")"
    check "they do not get smaller" on_phone sh -c "test \$(cat $photos/* | gzip -1 | wc -c) -gt 4950000"
    same "they begin like pictures" ffd8ff "$(on_phone sh -c "head -qc 3 $photos/*1.JPG | od -An -tx1 | tr -d ' \n'")"
}

device new "$phone" --photos 5
test_databases
test_awkward_files
test_photos
test_wipe_leaves_a_subset
