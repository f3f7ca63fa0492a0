#!/usr/bin/env bash
# What the owner of the sample device added to it.
#   owner.sh MEGABYTES    the size of the photos, besides a few small ones
set -euo pipefail
# shellcheck source=device/content/layer.sh
source /mnt/share/layer.sh

camera_roll=/var/mobile/Media/DCIM

# Files with the magic number of their kind followed by noise, which does not compress.
make_jpeg() {
    {
        printf '\xff\xd8\xff\xe0\x00\x10JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00'
        head -c "$(($2 - 22))" /dev/urandom
        printf '\xff\xd9'
    } >"$1"
}

make_png() {
    {
        printf '\x89PNG\r\n\x1a\n\x00\x00\x00\rIHDR\x00\x00\x00\x01\x00\x00\x00\x01\x08\x02\x00\x00\x00\x90wS\xde'
        head -c "$2" /dev/urandom
    } >"$1"
}

make_voice() {
    {
        printf '#!AMR\n'
        head -c "$2" /dev/urandom
    } >"$1"
}

make_pictures() {
    make_jpeg "$camera_roll/100APPLE/IMG_0001.JPG" 48000
    make_jpeg "$camera_roll/100APPLE/IMG_0002.JPG" 61000
    make_png "$camera_roll/100APPLE/IMG_0003.PNG" 20000
    make_jpeg "$camera_roll/100APPLE/Fähre bei Larkham.JPG" 30000
    make_jpeg /var/mobile/Media/PhotoData/Thumbnails/IMG_0001.JPG 4000
    make_jpeg "/var/mobile/Media/PhotoData/Thumbnails/Orla's \"blue\" door.JPG" 4000
}

make_voicemails() {
    make_voice /var/mobile/Library/Voicemail/1.amr 19000
    make_voice /var/mobile/Library/Voicemail/2.amr 72000
    make_voice "/var/mobile/Library/Voicemail/Greetings/Grüße aus Tromsø.amr" 9000
}

# Names that a careless command line trips over.
make_awkward_files() {
    local library=/var/mobile/Library
    mkdir -p "$library/SMS/Attachments/0a/10" "$library/Notes/attachments of mine" "$library/AddressBook/Images/空"
    echo 'Larkham, pier 2' >"$library/SMS/Attachments/0a/10/where we meet.txt"
    echo 'plum jam' >"$library/Notes/attachments of mine/Mum's \"best\" recipe.txt"
    echo 'torch = on' >"$library/Preferences/it's \$HOME * here; & there.plist"
    echo 'dash' >"$library/Preferences/-n.plist"
    : >"$library/Preferences/empty.plist"
    make_png "$library/AddressBook/Images/Jürgen Groß.png" 2000
}

# make_photos MEGABYTES: pictures of two megabytes each; for an odd number the last one has one.
make_photos() {
    local size number=0 megabytes=$1
    mkdir -p "$camera_roll/101APPLE"
    while ((megabytes > 0)); do
        size=$((megabytes < 2 ? megabytes : 2))
        number=$((number + 1))
        make_jpeg "$camera_roll/101APPLE/$(printf 'IMG_%05d.JPG' "$number")" "$((size * 1000000))"
        megabytes=$((megabytes - size))
    done
}

# Before the sources that a device without a network cannot reach.
install_packages org.example.{lantern,dockclock,tidepool,ringtones}
lay_down owner
make_pictures
make_voicemails
make_awkward_files
[[ $1 == 0 ]] || make_photos "$1"
give_to_owners
