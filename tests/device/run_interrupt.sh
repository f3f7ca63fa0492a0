#!/usr/bin/env bash
# A save is interrupted, and a second run meets one under way. The lock on the unfinished archive, which zip waits for, holds the
# save up as long as a test wants.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

# Runs the script on the phone, with the save's number in $save, while zip waits to save the pictures until `flock -u 8`.
during_save() {
    on_phone bash -c '
        exec 8>"$1/DCIM.zip.unfinished"
        chmod 600 "$1/DCIM.zip.unfinished"
        flock 8
        tarnwick save photos >/dev/null 2>&1 8<&- & save=$!
        for ((attempt = 0; attempt < 2000; attempt++)); do
            ! killall -q -0 zip || break
            sleep 0.01
        done
        killall -q -0 zip || echo "zip never came"
        '"$1"'
        rm -f "$1/DCIM.zip.unfinished"' - "$library"
}

pictures() {
    on_phone sha256sum "$library/DCIM.zip"
}

device new "$phone"
on_phone tarnwick save photos >/dev/null
before=$(pictures)
for signal in INT TERM HUP; do
    same "$signal: the save ends as interrupted, with all its processes" "status 130" \
        "$(during_save "kill -$signal "'$save; wait $save; echo "status $?"; ps -C zip,cp,tarnwick -o comm=; true')"
    same "$signal: no staging copy is left" "" "$(not_archives)"
    same "$signal: the older archive is untouched" "$before" "$(pictures)"
done

same "a second run says so, looking goes on" "tarnwick: another run is under way
second 3
list 0
status 0" "$(during_save 'tarnwick save notes; echo "second $?"
    tarnwick list >/dev/null; echo "list $?"; flock -u 8; wait $save; echo "status $?"' 2>&1)"
same "the first one went on to its end" "DCIM.zip: good
PhotoData.zip: good" "$(on_phone tarnwick check --archives-only 2>/dev/null | grep -v 'missing$')"

# A job of an interactive shell, as only such a shell continues what it stopped.
suspended() {
    on_phone bash -c 'cat >/tmp/jobs <<"JOBS"
set -m
exec 8>'"$library"'/DCIM.zip.unfinished
chmod 600 '"$library"'/DCIM.zip.unfinished
flock 8
tarnwick save photos >/tmp/result 2>&1 8<&- &
until killall -q -0 zip; do sleep 0.01; done
kill -TSTP $!
until [[ $(ps -o stat= -C tarnwick,zip | grep -vc "^T") == 0 ]]; do sleep 0.01; done
echo "stopped"
flock -u 8
fg >/dev/null
echo "status $?"
JOBS
        TERM=xterm script -qec "bash --norc /tmp/jobs" /dev/null | tr -d "\r"; cat /tmp/result'
}

same "Ctrl-Z stops the command with what it started, and fg continues them" "stopped
status 0
Photos and Videos Backup: Backup done !" "$(suspended)"
