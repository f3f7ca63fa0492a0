# shellcheck shell=bash
# Shared by the tests of the device: a place to work in, and devices.

set -euo pipefail

repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
# shellcheck source=tests/facts.sh
source "$repository/tests/facts.sh"
workspace=$(mktemp -d)
phone=$workspace/phone
host_processes=()
user_namespace=()
export DEVICE_BUILD=${DEVICE_BUILD:-$repository/build/release}

device() { "$repository/device/device" "$@"; }
on_phone() { device boot "$phone" "$@"; }

clean_up() {
    local marker
    ((${#host_processes[@]} == 0)) || kill -9 "${host_processes[@]}" 2>/dev/null || true
    for marker in "$workspace"/*/device; do
        [[ ! -f $marker ]] || device delete "${marker%/device}"
    done
    rm -rf "$workspace"
}
trap clean_up EXIT

# Where the machine cannot run a device at all, there is nothing to test.
skip_without_namespaces() {
    if ((EUID != 0)); then
        command -v newuidmap >/dev/null || skip "newuidmap is missing, from the package uidmap"
        user_namespace=(--user --map-root-user --map-auto)
    fi
    unshare "${user_namespace[@]}" --mount --pid --fork true 2>/dev/null ||
        skip "this machine gives this user no namespaces, or lends no ids in /etc/subuid"
}

# Where they are missing, as in a folder that is on an overlay itself, a device has the workstation's programs only.
has_overlays() {
    mkdir -p "$workspace"/overlay/{upper,work}
    unshare "${user_namespace[@]}" --mount env --chdir="$workspace/overlay" \
        mount -t overlay -o lowerdir=/usr,upperdir=upper,workdir=work,userxattr none /mnt 2>/dev/null
}

# A process of the host that a careless killall on the device would hit.
start_host_process() {
    cp /usr/bin/sleep "$workspace/$1"
    "$workspace/$1" 600 &
    host_processes+=("$!")
    disown "$!"
}

skip_without_namespaces
