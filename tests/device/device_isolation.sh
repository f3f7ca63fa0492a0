#!/usr/bin/env bash
# Whatever root does on a device, the host is unaffected.
# shellcheck source=tests/device/device_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/device_lib.sh"

# The time of an inode's last change cannot be set back, so this shows every write, chmod and chown.
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

# Nothing destructive is tried before it is known that the device has a root of its own.
test_boundaries() {
    refuse "the host's folders are out of sight" on_phone test -e "$workspace/secret"
    same "the build's programs are on the path" "from the build" "$(on_phone greet)"
    local attempt
    while read -r attempt; do
        refuse "root on the device cannot: $attempt" on_phone sh -c "$attempt" </dev/null
    done <<'ATTEMPTS'
mount -o remount,bind,rw /usr
mount -o remount,rw /usr
umount /etc/ld.so.cache
mount -t tmpfs none /mnt
mknod /var/disk b 8 0
chmod 600 /dev/null
echo >>/opt/tarnwick/bin/greet
: >/proc/sysrq-trigger
: >/proc/sys/kernel/panic
hostname another
echo >>/proc/1/exe
ATTEMPTS
}

test_escapes() {
    refuse "a second chroot does not lead out" on_phone perl -e '
        mkdir "/var/jail"; chroot "/var/jail" or die; chdir ".." for 1 .. 64; chroot "."; exit !-e $ARGV[0]' \
        "$workspace/secret"
    refuse "a folder that the caller has open stays outside" on_phone test -e /proc/self/fd/300/secret 300<"$workspace"
    same "a folder cannot be a stream" "device: standard input is a folder, which would lead out of the device" \
        "$(on_phone touch /proc/self/fd/0/planted 2>&1 <"$workspace")"
    on_phone sh -c 'for stream in 0 1 2; do chmod 777 /dev/fd/$stream; : >/dev/fd/$stream; done; echo added' \
        <"$workspace/secret" 2>/dev/null >"$workspace/output"
    same "a file as a stream can only be read, or written on" "secret 644 added 644" \
        "$(cd "$workspace"; for file in secret output; do cat $file; stat -c %a $file; done | xargs)"
    same "nothing gets into a pipe that is read" "" "$(: | { on_phone sh -c 'echo rm >/dev/fd/0'; cat; })"
}

# The programs that build the device are the host's, whatever root does to the device's own.
test_planted_programs() {
    # shellcheck disable=SC2016
    on_phone sh -c 'printf "#!/bin/sh\necho planted >/var/planted\n" >/usr/bin/planted && chmod +x /usr/bin/planted
        for folder in /sbin /usr/sbin /usr/bin; do
            for name in bash cp env mkdir mount mount.overlay pivot_root rm setpriv umount unshare; do
                ln -f /usr/bin/planted "$folder/$name" 2>/dev/null || ln -fs /usr/bin/planted "$folder/$name"
            done
        done'
    on_phone mount
    check "a planted program runs on the device" on_phone sh -c 'test -s /var/planted && : >/var/planted'
    refuse "none has a part in its start" on_phone test -s /var/planted
    device wipe "$phone"
}

# What a device left where the host prepares folders for its packages.
test_planted_links() {
    mkdir "$workspace/outside"
    (cd "$phone/usr" && rm -rf share lib)
    ln -s "$workspace/outside" "$phone/usr/share"
    ln -s ../../outside "$phone/usr/lib"
    device offer "$phone" "$phone/repository/org.example.base.deb"
    device wipe "$phone"
    same "links planted on the device lead no preparation astray" "" "$(ls "$workspace/outside")"
}

# shellcheck source=device/namespaces.sh disable=SC2030,SC2031
test_enclosure() (
    here=$repository/device
    source "$here/namespaces.sh"
    check "what wipes a device sees its folders" enclosed "$phone" test -d var/mobile
    refuse "but not the host's" enclosed "$phone" test -e "$workspace/secret"
    refuse "and cannot change the host's programs" enclosed "$phone" touch /usr/planted
)

# As under a kernel that has none.
test_keyrings() {
    check "the kernel's keyrings are out of reach" on_phone perl -e '
        require "syscall.ph"; $! = 0;
        exit grep { syscall($_, 0, -3, 0, 0, 0) != -1 || !$!{ENOSYS} } &SYS_add_key, &SYS_request_key, &SYS_keyctl'
}

# Below 4096 there is room for the processes that a device has anyway.
test_limits() {
    same "what runs away on the device goes first, and cannot help it" "1000 4096" \
        "$(on_phone bash -c 'echo 0 >/proc/self/oom_score_adj; cat /proc/self/oom_score_adj; ulimit -u' 2>/dev/null | xargs)"
    if ((EUID == 0)) && [[ ! -e /sys/fs/cgroup/tarnwick-devices && ! -e /sys/fs/cgroup/pids/tarnwick-devices ]]; then
        echo "left out: root's number of processes, as there are no control groups here"
    else
        check "nor does it start any number of processes" on_phone perl -e '
            $SIG{TERM} = "IGNORE"; my $count = 0;
            while ($count < 5000 && defined(my $process = fork)) { $process or sleep, exit; $count++ }
            exit($count < 3000 || $count > 4096)'
    fi
}

test_destruction() {
    on_phone sh -c 'apt-get -y install org.example.greyscale; killall -9 sleep MobileSMS; kill -9 -1' >/dev/null 2>&1 || true
    check "a package could be installed" on_phone test -e /var/lib/themes/greyscale/theme.conf
    # All of /usr would take long: of each file that goes, the overlay keeps a note.
    on_phone sh -c 'chmod -R 777 /dev /opt; chmod 777 /usr/bin; rm -rf /[!u]* /usr/bin /usr/sbin' >/dev/null 2>&1 || true
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
test_enclosure
test_keyrings
test_limits
if has_overlays; then
    test_planted_programs
    test_planted_links
else
    echo "left out: programs planted on the device, as there are no overlays here"
fi
test_destruction
test_host_is_unharmed
