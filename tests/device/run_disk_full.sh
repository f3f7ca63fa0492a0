#!/usr/bin/env bash
# On a full partition nothing hangs and the item's error is reported; once there is space, saving works again.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

((EUID == 0)) || skip "only root can mount a small file system for the device"

device new "$phone"
cp -a "$phone/var" "$workspace/var"
mount -t tmpfs -o size=8m tmpfs "$phone/var"
trap 'umount "$phone/var"; clean_up' EXIT
cp -a "$workspace/var/." "$phone/var/"
chmod --reference="$workspace/var" "$phone/var"

on_phone tarnwick save notes >/dev/null
on_phone bash -c 'head -c 20M /dev/zero >/var/mobile/Media/DCIM/full; true' 2>/dev/null
same "an older archive counts as a success, a missing one is told" "Notes Backup: Backup done !
Accounts Backup Error: There was an error during the Accounts backup. Nothing has been done. Please try again !
status 1" "$(on_phone bash -c 'tarnwick save notes accounts 2>&1; echo "status $?"')"
same "the older archive is whole" "Notes.zip: good" "$(on_phone tarnwick check)"
device wipe "$phone"
same "after a wipe the next save works" "All in One Backup: Backup done !" "$(on_phone tarnwick save all)"
same "and every archive is good" "" "$(not_good)"
