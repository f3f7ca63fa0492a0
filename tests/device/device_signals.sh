#!/usr/bin/env bash
# A run ends with its command, and with whatever ends the caller.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

descendants() {
    local child
    for child in $(pgrep -P "$1"); do
        echo "$child"
        descendants "$child"
    done
}

# A process that nobody has collected yet does nothing any more.
all_gone() {
    local process
    for process in "$@"; do
        [[ ! -e /proc/$process || $(ps -o stat= -p "$process") == Z* ]] || return 1
    done
}

processes=()

# Starts a run in a process group of its own; sets `run` and, once its command is up, `processes`.
start_run() {
    : >"$workspace/output"
    # Commands in the background of a script ignore the interrupt, those of a terminal do not.
    setsid env --default-signal=INT "$repository/device/device" boot "$phone" sh -c 'echo up; sleep 600' \
        >"$workspace/output" &
    run=$!
    wait_until grep -q up "$workspace/output"
    read -ra processes -d '' < <(descendants "$run") || true
}

# ends_with FACT STATUS SIGNAL TARGET, which is - for the whole process group
ends_with() {
    local status=0
    start_run
    kill -s "$3" -- "${4-}$run"
    wait "$run" 2>/dev/null || status=$?
    same "$1" "$2" "$status"
    wait_until all_gone "${processes[@]}"
    ((${#processes[@]} > 12)) || { echo "not ok: the run had too few processes: ${processes[*]}"; exit 1; }
    echo "ok: none of its ${#processes[@]} processes is left"
}

test_statuses() {
    same "the command's status is passed on" 7 "$(status_of on_phone sh -c 'exit 7')"
    same "a command ended by a signal is told as a shell tells it" 143 "$(status_of on_phone sh -c 'kill $$')"
    same "an unknown command is told as a shell tells it" 127 "$(status_of on_phone no-such-command)"
    same "what is no program is told as a shell tells it" 126 "$(status_of on_phone /etc/passwd)"
}

test_streams() {
    same "input and output pass through" "$(seq 20000 | sha256sum)" "$(seq 20000 | on_phone cat | sha256sum)"
    same "errors stay apart from output" words "$(on_phone sh -c 'echo words >&2; echo output' 2>&1 >/dev/null)"
    same "the command gets three descriptors" "0 1 2" "$(on_phone ls /proc/self/fd 9</dev/null | sed '$d' | xargs)"
}

device new "$phone"
test_statuses
test_streams
ends_with "an interrupt from the terminal ends the command" 130 INT -
ends_with "a request to end takes the device along" 143 TERM
ends_with "so does an end without warning" 137 KILL
same "the device starts again" up "$(on_phone echo up)"
