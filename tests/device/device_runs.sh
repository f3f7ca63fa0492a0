#!/usr/bin/env bash
# A run has the phone's applications and model around its command, and ends with it or with its caller.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

applications="Contacts Cydia MobileCal MobileCydia MobileNotes MobilePhone MobileSMS MobileSafari MobileSlideShow backboardd"

events() { device log "$phone" | cut -d' ' -f3- | sort; }

test_command() {
    local row
    for row in "7:exit 7" "143:kill \$\$" "127:exec no-such-command" "126:exec /etc/passwd"; do
        same "the status is a shell's: ${row#*:}" "${row%%:*}" "$(status_of on_phone sh -c "${row#*:}")"
    done
    same "input and output pass through" "$(seq 20000 | sha256sum)" "$(seq 20000 | on_phone cat | sha256sum)"
    same "errors stay apart from output" words "$(on_phone sh -c 'echo words >&2; echo output' 2>&1 >/dev/null)"
    same "or in order with it" "1 2 3 4" "$(on_phone sh -c 'echo 1; echo 2 >&2; echo 3; echo 4 >&2' 2>&1 | xargs)"
    on_phone head -c 3000000 /dev/zero >"$workspace/output"
    same "all output is there when the run ends" 3000000 "$(stat -c %s "$workspace/output")"
    # shellcheck disable=SC2016
    on_phone sh -c 'yes; echo $? >/var/status' | head -n 1 >/dev/null
    same "a writer whose reader has gone ends" 141 "$(on_phone cat /var/status)"
    same "output that cannot be written is a failure" 1 "$(on_phone echo words 2>/dev/null >/dev/full; echo $?)"
    same "closed streams are empty ones" 0 "$(on_phone cat <&- >&- 2>&-; echo $?)"
    same "the command gets three descriptors" "0 1 2" "$(on_phone ls /proc/self/fd 9</dev/null | sed '$d' | xargs)"
}

# Each one in a run of its own: the run ends at once, and the stop is logged all the same.
test_applications() {
    local name
    same "the applications are up before the command, as mobile" "$applications" \
        "$(on_phone ps -u mobile -o comm= | sort | xargs)"
    start_host_process MobileSMS
    for name in MobileSMS backboardd; do
        on_phone killall "$name"
    done
    same "every stop is logged" "respring stopped MobileSMS" "$(events | xargs)"
    check "the host's process of the same name goes on" kill -0 "${host_processes[0]}"
    # shellcheck disable=SC2016
    check "backboardd comes back as a new process" on_phone bash -c '
        before=$(pgrep -x backboardd); killall -9 backboardd
        until after=$(pgrep -x backboardd) && [[ $after != "$before" ]]; do :; done'
}

test_reboot() {
    same "a reboot ends the run and says so" "device: rebooted" \
        "$(on_phone sh -c 'killall Cydia; /sbin/reboot; echo returned' 2>&1)"
    same "it is logged after what was stopped before" "stopped Cydia reboot" \
        "$(device log "$phone" | tail -n 2 | cut -d' ' -f3- | xargs)"
    same "it is not a failure" 0 "$(status_of on_phone reboot)"
    refuse "mobile may not reboot" device boot "$phone" --user mobile reboot
    refuse "mobile may not write to the log" device boot "$phone" --user mobile sh -c 'echo >>/run/device/log'
}

test_model() {
    same "uname reports the model" iPhone8,2 "$(on_phone uname -m)"
    same "and the rest unchanged" "$(uname -srv)" "$(on_phone uname -srv)"
}

# ends_with FACT STATUS SIGNAL TARGET, which is - for the whole process group
ends_with() {
    local status=0 run while="sleep 600$$"
    : >"$workspace/output"
    # Background commands of a script ignore the interrupt, those of a terminal do not.
    setsid env --default-signal=INT "$repository/device/device" boot "$phone" sh -c "echo up; $while" \
        >"$workspace/output" &
    run=$!
    wait_until grep -q up "$workspace/output"
    kill -s "$3" -- "${4-}$run"
    wait "$run" 2>/dev/null || status=$?
    same "$1" "$2" "$status"
    wait_until status_is 1 pgrep -xf "$while"
}

status_is() { [[ $(status_of "${@:2}") == "$1" ]]; }

device new "$phone" --model iPhone8,2
test_command
test_applications
test_reboot
test_model
ends_with "an interrupt from the terminal ends the command" 130 INT -
ends_with "a request to end takes the device along" 143 TERM
ends_with "so does an end without warning" 137 KILL
same "the device starts again" up "$(on_phone echo up)"
