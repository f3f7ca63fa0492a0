#!/usr/bin/env bash
# The command under odd conditions: without root, without streams, at a terminal, with damaged archives.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

# What a person at a terminal sees, who types the answer as soon as the question is there.
at_terminal() {
    on_phone bash -c 'answer=$1; shift; trap "" PIPE; mkfifo /tmp/keys
        TERM=xterm script -qefc "$*" /tmp/screen </tmp/keys >/dev/null & command=$!
        exec 3>/tmp/keys
        until grep -q "y/N" /tmp/screen 2>/dev/null || ! kill -0 $command 2>/dev/null; do sleep 0.01; done
        echo "$answer" >&3 2>/dev/null
        wait $command
        tr -d "\r" </tmp/screen' - "$@"
}

device new "$phone"
on_phone tarnwick save notes springboard >/dev/null

same "it says that it needs root" "tarnwick: save needs root
status 4" "$(device boot "$phone" --user mobile bash -c 'tarnwick save notes 2>&1; echo "status $?"')"
same "but anybody may look" "SpringBoard.zip: good" \
    "$(device boot "$phone" --user mobile tarnwick check --archives-only springboard)"
same "it works without any stream" 0 "$(on_phone bash -c 'tarnwick save notes <&- >&- 2>&-; echo $?')"
same "and with a reader that went away" 0 \
    "$(on_phone bash -c 'tarnwick save all calendar | true; echo "${PIPESTATUS[0]}"')"
same "but not with results that nobody gets" "tarnwick: the results cannot be written
status 1" "$(on_phone bash -c 'tarnwick list 2>&1 >/dev/full; echo "status $?"')"
same "and from any folder" "SpringBoard Backup: Backup done !" \
    "$(on_phone bash -c 'cd /usr; rm "$1/SpringBoard.zip"; tarnwick save springboard' - "$library")"
same "options for zip in the environment do not count" "SpringBoard.zip: good" \
    "$(on_phone env ZIPOPT=-e ZIP="-x *" UNZIP=-Z UNZIPOPT=-Z bash -c 'tarnwick save springboard >/dev/null; tarnwick check --archives-only springboard')"
same "what the commands print is shown on demand" 1 "$(on_phone tarnwick save notes --verbose 2>&1 | grep -c notes.sqlite)"

same "a no at the terminal changes nothing" "SpringBoard.zip: good" \
    "$(at_terminal n tarnwick remove backups >/dev/null; on_phone tarnwick check --archives-only springboard)"
at_terminal y tarnwick restore springboard >/dev/null
same "a yes to the offer resprings" 1 "$(times_logged respring)"
check "the running item is shown" grep -q 'messages (1/1) 0:0' <<<"$(at_terminal - tarnwick save messages)"

on_phone bash -c 'cd "$1"; head -c 300 Notes.zip >half; mv half Notes.zip; : >SMS.zip' - "$library"
same "damaged archives are named" "SMS.zip: damaged
Notes.zip: damaged
status 1" "$(on_phone bash -c 'tarnwick check --archives-only 2>&1 >/dev/null; echo "status $?"')"
at_terminal y tarnwick remove backups >/dev/null
same "a yes removes the archives" "" "$(on_phone ls "$library")"
