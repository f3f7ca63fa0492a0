# shellcheck shell=bash
# Making devices, wiping them and taking them away. A device is a folder:
#   device                        marks the folder as a device
#   var etc Applications sbin     what the device sees under these names
#   log                           what happened on it; no wipe loses it
#   model                         the name of its model, where it has one
#   repository                    the packages that its sources offer, as a server would
#   factory.tar                   var, etc, Applications and sbin as a wipe and a new jailbreak leave them
#   root                          where its file system is put together

device_folders=(var etc Applications sbin)
safeguard=var/mobile/Library/Preferences/Tarnwick

# What is in the folder when anything fails belongs to users whose files an ordinary user cannot remove.
remove_device() {
    as_device_root rm -rf --one-file-system -- "$1"
}

write_log() {
    printf '%s %s\n' "$(date --utc '+%F %T')" "$2" >>"$1/log"
}

lay_out() {
    local directory=$1
    # What is set-user-ID on the device is so for the host's other users as well.
    chmod 700 "$directory"
    echo 'Tarnwick sample device' >"$directory/device"
    : >"$directory/log"
    mkdir "$directory"/{root,repository} "${device_folders[@]/#/"$directory/"}"
    # shellcheck disable=SC2154  # set by device
    cp -R --no-preserve=mode,ownership "$here/content/system/." "$directory"
    chmod 755 "$directory"/sbin/*
    chmod 600 "$directory/etc/shadow"
}

# The mode of a checkout's files depends on who made it; a package's must not.
build_package() {
    local name=${1##*/} staging=$2/staging
    cp -R --no-preserve=mode,ownership "$1" "$staging"
    dpkg-deb --root-owner-group -Znone --build "$staging" "$2/$name.deb" >/dev/null
    rm -rf "$staging"
}

# Prints a package's entry in the list of a repository.
describe_package() {
    local digest
    digest=$(sha256sum <"$1")
    dpkg-deb --field "$1"
    printf 'Filename: ./%s\nSize: %s\nSHA256: %s\n\n' "${1##*/}" "$(stat --format %s "$1")" "${digest%% *}"
}

build_repository() {
    local package
    for package in "$here"/content/packages/*; do
        build_package "$package" "$1"
    done
    for package in "$1"/*.deb; do
        describe_package "$package"
    done >"$1/Packages"
}

run_layer() {
    DEVICE_SHARE=$here/content run_device "$1" root bash "/mnt/share/$2.sh" "${@:3}" </dev/null
}

fill_device() {
    local directory=$1
    lay_out "$directory"
    build_repository "$directory/repository"
    run_layer "$directory" factory
    as_device_root tar -C "$directory" -cf "$directory/factory.tar" --numeric-owner "${device_folders[@]}"
    run_layer "$directory" owner "$2"
    [[ -z $3 ]] || printf '%s\n' "$3" >"$directory/model"
}

# new_device DIRECTORY MEGABYTES MODEL: leaves nothing when it fails.
new_device() {
    local directory
    mkdir -- "$1" || fail "$1 cannot be made"
    directory=$(cd "$1" && pwd -P)
    # shellcheck disable=SC2064  # the folder's name as it is now
    trap "remove_device $(printf %q "$directory")" EXIT
    trap "exit 130" INT
    trap "exit 143" TERM
    fill_device "$directory" "$2" "$3"
    trap - EXIT INT TERM
}

# The safeguard folder is not moved meanwhile: whatever interrupts a wipe, it is where it was.
empty_device() {
    as_device_root env --chdir="$1" find "${device_folders[@]}" -mindepth 1 \
        ! -path "$safeguard" ! -path "$safeguard/*" \
        ! \( -type d \( -path var/mobile -o -path var/mobile/Library -o -path var/mobile/Library/Preferences \) \) \
        -delete
}

wipe_device() {
    [[ -r $1/factory.tar ]] || fail "$1/factory.tar is missing, without which nothing would be left"
    empty_device "$1"
    as_device_root tar -C "$1" -xpf "$1/factory.tar" --numeric-owner
    write_log "$1" wipe
}

delete_device() {
    remove_device "$1"
}
