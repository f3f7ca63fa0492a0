#!/usr/bin/env bash
# Saves that are killed or signalled at random moments cost nothing: kills.sh [TIMES], 200 for the whole picture.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/../device/run_lib.sh"

export DEVICE_SHARE=$repository/tests/faults
device new "$phone"
on_phone bash /mnt/share/kills_on_phone.sh "${1:-12}" "$SRANDOM" </dev/null
