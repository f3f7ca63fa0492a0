# shellcheck shell=bash
# A device on which one thing is broken at a time.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/../device/run_lib.sh"

((EUID == 0)) || skip "only root can mount a small file system for the device"
has_overlays || skip "without overlays the device's programs cannot be broken"

failures=0
cases=0
export DEVICE_SHARE=$repository/tests/faults

# The device's data is on a file system of its own, its programs are copies: of the command alone, as every case makes new ones.
make_device() {
    mkdir -p "$workspace/build/bin"
    cp -a "$DEVICE_BUILD/bin/tarnwick" "$workspace/build/bin"
    cp -a "$DEVICE_BUILD"/{lib,libexec} "$workspace/build"
    cp -a "$workspace/build" "$workspace/good-build"
    export DEVICE_BUILD=$workspace/build
    device new "$phone"
    on_phone bash -c 'source /mnt/share/on_phone.sh; make_good' >/dev/null
    cp -a "$phone/var" "$workspace/good-var"
    cp -a "$phone/etc" "$workspace/good-etc"
    mount -t tmpfs -o size=24m,nr_inodes=60000 faults "$phone/var"
    trap 'umount "$phone/var"; clean_up' EXIT
    chmod --reference="$workspace/good-var" "$phone/var"
    mend_all
}

mend_all() {
    mount -o remount,rw,nr_inodes=60000 "$phone/var"
    rm -rf "${phone:?}"/{var,etc,usr}/{.[!.],}* "$workspace/build"
    cp -a "$workspace/good-var/." "$phone/var"
    cp -a "$workspace/good-etc/." "$phone/etc"
    cp -a "$workspace/good-build" "$workspace/build"
}

# tool NAME missing|failing|hanging: once, as what ends a run may need it again.
tool() {
    local path=$phone/usr/bin/$1
    case $1 in
        zip) rm -f "$workspace/build/libexec/tarnwick/bin/zip" ;;
        sendmail) path=$phone/usr/sbin/sendmail ;;
    esac
    mkdir -p "${path%/*}"
    case $2 in
        missing) mknod "$path" c 0 0 ;; # how an overlay notes that a file is gone
        failing) printf '#!/bin/sh\necho "%s: broken" >&2\nexit 9\n' "$1" >"$path" ;;
        hanging) printf '#!/bin/sh\n[ -e /run/hanging ] || { : >/run/hanging; exec sleep infinity; }\n' >"$path" ;;
    esac
    [[ $2 == missing ]] || chmod +x "$path"
}

leave_no_inode() { mount -o "remount,nr_inodes=$(df --output=iused "$phone/var" | tail -n 1 | tr -d ' ')" "$phone/var"; }
make_read_only() { mount -o remount,ro "$phone/var"; }

# fault NAME BREAK VERB STATUS TOLD KEPT: after the command BREAK, `tarnwick VERB` ends with the status and says a line with TOLD;
# KEPT holds afterwards. BREAK and KEPT are run on the device, see on_phone.sh. VERB may have redirections. A sixth argument is what
# runs the command. A device that hangs is ended.
fault() {
    local output
    cases=$((cases + 1))
    output=$(timeout 30 "$repository/device/device" boot "$phone" bash -c 'source /mnt/share/on_phone.sh; run_case "$@"' - "${@:2}" </dev/null 2>&1) ||
        failures=$((failures + 1))
    case $output in
        *'not ok'*) printf 'not ok: %s\n%s\n' "$1" "$output" ;;
        ok) printf 'ok: %s\n' "$1" ;;
        *) printf 'not ok: %s: the case itself failed\n%s\n' "$1" "$output" ;;
    esac
    mend_all
}

end_table() {
    printf '%s cases, %s not ok\n' "$cases" "$failures"
    ((failures == 0))
}
