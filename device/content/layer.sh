# shellcheck shell=bash
# What both layers of a sample device do, on the device itself, where this folder is /mnt/share.

umask 022

# Copies a tree over the device. A file NAME.sql in it is applied to the database NAME.
lay_down() {
    local script
    cp -R --no-preserve=mode "/mnt/share/$1/." /
    while IFS= read -r script; do
        sqlite3 "/${script%.sql}" <"/$script"
        rm "/$script"
    done < <(cd "/mnt/share/$1" && find . -name '*.sql')
}

give_to_owners() {
    chown -R mobile:mobile /var/mobile
    chown -R _wireless:_wireless /var/wireless
    chmod 600 /var/mobile/Library/Accounts/*
}

# dpkg accepts a selection only for a package that it knows.
update_package_lists() {
    apt-get --quiet=2 update
    apt-cache dumpavail | dpkg --merge-avail >/dev/null
}

install_packages() {
    apt-get --quiet=2 --yes install "$@" </dev/null >/dev/null
}
