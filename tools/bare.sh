# shellcheck shell=bash
# Sourced after set-up.sh: a bare Debian in a folder of its own, and running commands in it. Needs root.

# make_bare SUITE FOLDER: unless it is there.
make_bare() {
    local suite=$1 bare=$2
    [ -d "$bare" ] && return
    rm -rf "$bare.unfinished"
    mkdir -p "$(dirname "$bare")"
    debootstrap --variant=minbase "$suite" "$bare.unfinished"
    # As in an image that ships without package lists.
    rm -rf "$bare.unfinished"/var/lib/apt/lists/* "$bare.unfinished"/var/cache/apt/archives/*.deb
    mv "$bare.unfinished" "$bare"
}

# run_inside FOLDER CHECKOUT PLACE COMMAND...: does not return. The command starts in the checkout, which is at the place there.
# The root is changed by pivot_root, as a process in a chroot may not make user namespaces, which devices need.
run_inside() {
    cp /etc/resolv.conf /etc/hosts "$1/etc"
    exec unshare --mount --pid --fork --kill-child bash -euc '
        mount --make-rprivate /
        mount --bind "$1" "$1"
        cd "$1"
        mount --rbind /dev dev
        mount --rbind /sys sys
        mount -t proc proc proc
        mount -t tmpfs -o mode=1777 tmpfs tmp
        mkdir -p ".$3" .host
        mount --bind "$2" ".$3"
        pivot_root . .host
        umount --lazy /.host
        cd "$3"
        shift 3
        exec env --ignore-environment HOME=/root TERM="${TERM-dumb}" \
            PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "$@"' - "$@"
}
