#!/usr/bin/env bash
# A device with a model's name reports it to every program, those with the rights of another user included.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

[[ -e $DEVICE_BUILD/lib/device-model.so ]] || skip "the target device-model is not built in DEVICE_BUILD"

test_with_model() {
    same "uname reports the model" iPhone8,2 "$(on_phone uname -m)"
    same "and the rest as it is" "$(uname -srv)" "$(on_phone uname -srv)"
    on_phone sh -c 'cp /usr/bin/uname /usr/bin/id /var/db; chmod 4755 /var/db/uname /var/db/id'
    same "a set-user-ID program really has root's rights" 0 "$(device boot "$phone" --user mobile /var/db/id -u)"
    same "and sees the model too" iPhone8,2 "$(device boot "$phone" --user mobile /var/db/uname -m)"
    device wipe "$phone"
    same "a wipe does not change the hardware" iPhone8,2 "$(on_phone uname -m)"
    DEVICE_BUILD=$workspace refuse "without the library such a device does not start" on_phone true
}

device new "$phone" --model iPhone8,2
test_with_model
device new "$workspace/plain"
same "a device without a model reports the machine" "$(uname -m)" "$(device boot "$workspace/plain" uname -m)"
