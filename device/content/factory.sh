#!/usr/bin/env bash
# What a wipe and a new jailbreak leave: empty databases, default settings and the packages of the jailbreak itself.
set -euo pipefail
# shellcheck source=device/content/layer.sh
source /mnt/share/layer.sh

make_system_folders() {
    mkdir -p /etc/apt/preferences.d /var/{root,db,Keychains} /var/log/apt /var/lib/apt/lists/partial /var/cache/apt/archives/partial
    mkdir -p /var/lib/dpkg/{info,updates,triggers,alternatives,parts}
    touch /var/lib/dpkg/{status,available}
    mkdir -m 1777 /var/tmp
    chmod 700 /var/root /var/Keychains
    ln -s /run /var/run
}

# Stand-ins for the applications that a restore stops: they do nothing but run under their names.
make_applications() {
    local name
    for name in MobileCal MobilePhone Contacts MobileSMS MobileNotes MobileSlideShow MobileSafari MobileCydia Cydia \
        backboardd; do
        mkdir "/Applications/$name.app"
        cp /usr/bin/sleep "/Applications/$name.app/$name"
    done
}

make_data_folders() {
    mkdir -p /var/mobile/Media/DCIM/100APPLE /var/mobile/Media/PhotoData/Thumbnails \
        /var/mobile/Library/Voicemail/Greetings /var/mobile/Library/SMS/Attachments /var/mobile/Library/SMS/Drafts
}

make_system_folders
make_applications
make_data_folders
lay_down factory
give_to_owners
update_package_lists
install_packages org.example.base org.example.substrate
