#!/usr/bin/env bash
# Whatever root does on a device, the host does not notice.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

# What an ordinary user may not look into is left out. The time of the last change to an inode cannot be set back, so
# this sees every write, chmod and chown.
describe_host() {
    {
        find -H /usr /etc /sbin /var/lib/dpkg /dev/null /dev/zero /dev/tty "$repository/device" "$workspace/build" \
            -xdev -printf '%p %m %U %G %s %C@\n' 2>/dev/null || true
    } | sort >"$workspace/$1"
}

make_host() {
    export DEVICE_BUILD=$workspace/build
    mkdir -p "$workspace/build/bin"
    printf '#!/bin/sh\necho from the build\n' >"$workspace/build/bin/greet"
    chmod +x "$workspace/build/bin/greet"
    echo secret >"$workspace/secret"
    start_host_process MobileSMS
    start_host_process sleep
}

try_on_phone() {
    refuse "root on the device cannot: $*" on_phone "$@"
}

# Nothing destructive is tried before it is known that the device has a root of its own.
test_boundaries() {
    refuse "the host's folders are out of sight" on_phone test -e "$workspace/secret"
    same "the build's programs are on the path" "from the build" "$(on_phone greet)"
    try_on_phone mount -o remount,bind,rw /usr
    try_on_phone mount -o remount,rw /usr
    try_on_phone umount /etc/ld.so.cache
    try_on_phone mount -t tmpfs none /mnt
    try_on_phone mknod /var/disk b 8 0
    try_on_phone chmod 600 /dev/null
    try_on_phone touch /usr/touched
    try_on_phone sh -c 'echo >>/opt/tarnwick/bin/greet'
    try_on_phone sh -c ': >/proc/sysrq-trigger'
    try_on_phone sh -c ': >/proc/sys/kernel/panic'
    try_on_phone hostname another
    try_on_phone sh -c 'echo >>/proc/1/exe'
}

test_escapes() {
    refuse "a second chroot does not lead out" on_phone perl -e '
        mkdir "/var/jail"; chroot "/var/jail" or die; chdir ".." for 1 .. 64; chroot "."; exit !-e $ARGV[0]' \
        "$workspace/secret"
    refuse "a folder that the caller has open stays outside" on_phone test -e /proc/self/fd/300/secret 300<"$workspace"
    # shellcheck disable=SC2016
    on_phone sh -c 'for name in mount.tmpfs mount.devpts setpriv env perl mkdir; do
        printf "#!/bin/sh\necho \$0 >>/var/planted\n" >/sbin/$name; chmod +x /sbin/$name; done'
    refuse "programs planted on the device have no part in its start" on_phone test -e /var/planted
}

test_destruction() {
    on_phone sh -c 'apt-get -y install org.example.greyscale; killall -9 sleep MobileSMS; kill -9 -1' >/dev/null 2>&1 || true
    check "a package could be installed" on_phone test -e /var/lib/themes/greyscale/theme.conf
    on_phone sh -c 'chmod -R 777 /dev /usr /opt; rm -rf --no-preserve-root /' >/dev/null 2>&1 || true
    refuse "the device lost its data" on_phone test -e /var/mobile
    device wipe "$phone"
    on_phone reboot 2>/dev/null
    check "after a wipe the device is usable again" on_phone test -e /var/mobile/Library/SMS/sms.db
}

test_host_is_unharmed() {
    local process
    describe_host after
    check "the host's files are as before" diff "$workspace/before" "$workspace/after"
    for process in "${host_processes[@]}"; do
        check "the host's process $(cat "/proc/$process/comm") is alive" kill -0 "$process"
    done
}

make_host
describe_host before
device new "$phone"
test_boundaries
test_escapes
test_destruction
test_host_is_unharmed
