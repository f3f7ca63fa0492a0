# shellcheck shell=bash
# The workstation's programs in another root. Used by power_on and enclose.

# The folders of the host's root with programs and libraries, unless they are links into /usr.
program_folders() {
    local folder
    for folder in /usr /bin /lib /lib32 /lib64 /libx32; do
        [[ ! -d $folder || -L $folder ]] || printf '%s\n' "$folder"
    done
}

# Into the current folder.
bind_programs() {
    local folder
    for folder in /bin /lib /lib32 /lib64 /libx32; do
        [[ ! -L $folder ]] || cp -P "$folder" .
    done
    for folder in $(program_folders); do
        mkdir -p ".$folder"
        mount --rbind "$folder" ".$folder"
    done
}

# Submounts need the change one by one, and inside a user namespace the flags that they had must be named again.
make_read_only() {
    local mount_point options
    while read -r _ _ _ _ mount_point options _; do
        printf -v mount_point %b "$mount_point"
        [[ $mount_point == "$1" || $mount_point == "$1"/* ]] || continue
        mount --internal-only -o "remount,bind,${options/#rw/ro}" "$mount_point"
    done </proc/self/mountinfo
}
