# shellcheck shell=bash
# Root on a device: root itself, or for an ordinary user a user namespace in which the user is root and the other users of
# the device are ids from /etc/subuid and /etc/subgid, so that chown is real there too.

# Prints the options for unshare, one a line; nothing for root.
user_namespace() {
    ((EUID != 0)) || return 0
    command -v newuidmap >/dev/null ||
        fail "an ordinary user needs newuidmap to run a device: install the package uidmap"
    local file
    for file in /etc/subuid /etc/subgid; do
        grep -qsE "^($EUID|$(id -un)):" "$file" ||
            fail "an ordinary user needs an entry in $file to run a device: see usermod --add-subuids, --add-subgids"
    done
    printf '%s\n' --user --map-root-user --map-auto
}

# enclosed DIRECTORY COMMAND...: runs it in the device's folders, out of which no link leads.
enclosed() {
    local options
    readarray -t options < <(user_namespace)
    # shellcheck disable=SC2154  # set by device
    unshare "${options[@]}" --mount --propagation private -- bash "$here/enclose" "$@"
}

# Runs a command that may read, chown and delete the files of the device's users.
as_device_root() {
    local options
    options=$(user_namespace)
    if [[ -z $options ]]; then
        "$@"
    else
        # shellcheck disable=SC2086  # words, not one word
        unshare $options -- "$@"
    fi
}
