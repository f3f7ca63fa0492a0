#!/usr/bin/env bash
# The applications of a device run under their names, are missed when they end, and end with it.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

applications="Contacts Cydia MobileCal MobileCydia MobileNotes MobilePhone MobileSMS MobileSafari MobileSlideShow backboardd"

events() {
    device log "$phone" | cut -d' ' -f3- | sort
}

# Each one is stopped in a run of its own: the run ends at once, and the stop is on record all the same.
test_every_application_can_be_stopped() {
    local name
    same "the applications are up before the command, as mobile" "$applications" \
        "$(on_phone ps -u mobile -o comm= | sort | xargs)"
    for name in $applications; do
        on_phone killall "$name"
    done
    same "every stop is on record" \
        "$(for name in $applications; do echo "stopped $name"; done | sed 's/.*backboardd/respring/' | sort)" "$(events)"
}

test_respring() {
    # shellcheck disable=SC2016
    check "backboardd comes back as a new process" on_phone bash -c '
        before=$(pgrep -x backboardd); killall -9 backboardd
        until after=$(pgrep -x backboardd) && [[ $after != "$before" ]]; do :; done'
    same "a respring stops nothing else" 2 "$(events | grep -c respring)"
    check "an application can be stopped together with a respring" on_phone killall MobileSMS backboardd
    same "both are on record" "3 2" "$(events | grep -c respring) $(events | grep -c 'stopped MobileSMS')"
}

test_host_process_of_the_same_name() {
    start_host_process MobileSMS
    on_phone killall MobileSMS
    check "the host's process of the same name goes on" kill -0 "${host_processes[0]}"
}

test_reboot() {
    local output
    output=$(on_phone sh -c 'killall Cydia; /sbin/reboot; echo returned' 2>&1)
    same "a reboot ends the run and says so" "device: rebooted" "$output"
    same "it is on record after what was stopped before" "stopped Cydia reboot" \
        "$(device log "$phone" | tail -n 2 | cut -d' ' -f3- | xargs)"
    same "a reboot is no failure" 0 "$(status_of on_phone reboot)"
    same "the device starts again" up "$(on_phone echo up)"
    refuse "mobile may not reboot" device boot "$phone" --user mobile reboot
    refuse "mobile may not write what is on record" device boot "$phone" --user mobile sh -c 'echo >>/run/device/log'
}

device new "$phone"
test_every_application_can_be_stopped
test_respring
test_host_process_of_the_same_name
test_reboot
