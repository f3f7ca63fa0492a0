# shellcheck shell=bash
# Making, wiping and deleting devices. A device is a folder:
#   device                        marks the folder as a device
#   var etc Applications sbin     what the device sees under these names
#   usr                           the device's own programs under /usr; the rest are the workstation's
#   work                          the overlay's work folder; usr is its upper folder
#   log                           what happened on it; a wipe keeps it
#   model                         the name of its model, if it has one
#   repository                    the packages that its sources offer
#   factory.tar                   var, etc, Applications, sbin and usr as a wipe and a new jailbreak leave them
#   root                          where its file system is assembled

device_folders=(var etc Applications sbin usr)
safeguard=var/mobile/Library/Preferences/Tarnwick

# After a failure the folder may hold files of other users, which an ordinary user cannot remove directly.
remove_device() {
    as_device_root rm -rf --one-file-system -- "$1"
}

# lock_device DIRECTORY shared|exclusive: runs share a device. The lock lasts until this process and all that it started have
# ended. Whoever was told to end a moment ago is waited for.
lock_device() {
    local -A reasons=([shared]="is being made, wiped or deleted" [exclusive]="is in use: end its runs first")
    exec 8<"$1"
    flock "--$2" --timeout 2 8 || fail "$1 ${reasons[$2]}"
}

write_log() {
    printf '%s %s\n' "$(date --utc '+%F %T')" "$2" >>"$1/log"
}

lay_out() {
    local directory=$1
    # Set-user-ID programs of the device would be so for the host's other users as well.
    chmod 700 "$directory"
    echo 'Tarnwick sample device' >"$directory/device"
    : >"$directory/log"
    mkdir "$directory"/{root,repository} "${device_folders[@]/#/"$directory/"}"
    # shellcheck disable=SC2154  # set by device
    cp -R --no-preserve=mode,ownership "$here/content/system/." "$directory"
    chmod 755 "$directory"/sbin/*
    chmod 600 "$directory/etc/shadow"
}

# The root of an ordinary user's device may add nothing to folders of the workstation's root. So each folder in which
# several packages of the workstation have files, or one that the device is offered, becomes the device's own. The list of
# fonts goes by the time of their folders. Behind the chroot, links on the device cannot lead to folders of the host.
make_program_folders() {
    mkdir -p "$1/usr"
    ((EUID != 0)) || return 0
    {
        find /var/lib/dpkg/info -name '*.list' -exec cat {} +
        list_offered_folders "$1/repository"
    } | as_device_root perl -lne '
        BEGIN { $programs = shift }
        $offered = s{^\.(/.*)/$}{$1};
        s{^/(?=bin/|lib)}{/usr/};
        $shared = ++$times{$_} == 2 && !m{^/usr/share/fonts\b};
        push @folders, $1 if m{^/usr(/.+)} && ($offered || $shared) && -d && !-l;
        END { chdir $programs and chroot "." or die "$programs: $!\n"; mkdir for @folders }' "$1/usr"
}

list_offered_folders() {
    local package
    for package in "$1"/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar --list | sed -n '/\/$/p'
    done
}

# Older devices lack the folder of their own programs.
complete_device() {
    [[ -d $1/usr ]] || make_program_folders "$1"
}

# In the background, as only a wait is ended by a signal at once.
run_layer() {
    DEVICE_SHARE=$here/content run_device "$1" root bash "/mnt/share/$2.sh" "${@:3}" </dev/null &
    wait "$!"
}

fill_device() {
    local directory=$1
    lay_out "$directory"
    build_repository "$directory/repository"
    make_program_folders "$directory"
    run_layer "$directory" factory
    as_device_root tar -C "$directory" -cf "$directory/factory.tar" --numeric-owner "${device_folders[@]}"
    run_layer "$directory" owner "$2"
    [[ -z $3 ]] || printf '%s\n' "$3" >"$directory/model"
}

abandon_device() {
    local layer
    layer=$(jobs -pr)
    [[ -z $layer ]] || kill "$layer"
    wait
    remove_device "$1"
}

# new_device DIRECTORY MEGABYTES MODEL: leaves nothing if it fails.
new_device() {
    local directory
    mkdir -- "$1" || fail "$1 cannot be made"
    directory=$(cd "$1" && pwd -P)
    # shellcheck disable=SC2064  # the folder's name as it is now
    trap "abandon_device $(printf %q "$directory")" EXIT
    trap "exit 130" INT
    trap "exit 143" TERM
    lock_device "$directory" exclusive
    fill_device "$directory" "$2" "$3"
    trap - EXIT INT TERM
}

# The safeguard folder is never moved, so an interrupted wipe cannot lose it.
empty_device() {
    enclosed "$1" find "${device_folders[@]}" -mindepth 1 \
        ! -path "$safeguard" ! -path "$safeguard/*" \
        ! \( -type d \( -path var/mobile -o -path var/mobile/Library -o -path var/mobile/Library/Preferences \) \) \
        -delete
}

wipe_device() {
    [[ -r $1/factory.tar ]] || fail "$1/factory.tar is missing, without which nothing would be left"
    empty_device "$1"
    enclosed "$1" tar -xpf - --numeric-owner <"$1/factory.tar"
    make_program_folders "$1"
    write_log "$1" wipe
}
