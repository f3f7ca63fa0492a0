#!/usr/bin/env bash
# A device is saved, wiped and brought back by the real programs.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

preferences=var/mobile/Library/Preferences
calls=var/wireless/Library/CallHistory
# What comes back with its owner: all that is copied, but for these two.
readarray -t data_sets < <(sed -n 's|^run: cp -R /\(var/[^ ]*\) .*|\1|p' "$table" | sort -u | grep -vx "$preferences\|$calls")

# Kinds, names and checksums of everything in the folders, without the safeguard folder.
contents() {
    on_phone bash -c 'cd /
        find "$@" -path "*/Preferences/Tarnwick" -prune -o -printf "%y %p\n" | sort
        find "$@" -path "*/Preferences/Tarnwick" -prune -o -type f -print0 | sort -z | xargs -0 sha256sum' - "$@"
}

owners() {
    on_phone bash -c 'cd / && find "$@" -printf "%u:%g %p\n" | sort' - "$@"
}

device new "$phone"
before=$(contents "$preferences" "${data_sets[@]}")
owners_before=$(owners "${data_sets[@]}")
calls_before=$(contents "$calls")
sources_before=$(on_phone cat /var/mobile/Library/Caches/com.saurik.Cydia/sources.list)
packages_before=$(on_phone dpkg --get-selections)

# In the C locale too, names must come back as they were.
saved=$(on_phone env LC_ALL=C tarnwick save all)
same "saving everything tells one success" "All in One Backup: Backup done !" "${saved%%$'\n'*}"
same "and each item's size" 11 "$(grep -c ': saved ([0-9.]* [KM]*B)$' <<<"$saved")"
same "with the zip of this build" 6.3 "$(on_phone zipinfo "$library/Notes.zip" | awk 'NR == 3 { print $2 }')"
same "and leaves no staging copy" "" "$(not_archives)"
on_phone tarnwick save sources packages >/dev/null

device wipe "$phone"
calls_as_new=$(contents "$calls")
refuse "a wipe takes the data away" test "$(contents "$preferences" "${data_sets[@]}")" = "$before"
refuse "and the calls" test "$calls_as_new" = "$calls_before"
same "every archive survived the wipe" "" "$(not_good)"

restored=$(on_phone env LC_ALL=C tarnwick restore all --yes --then nothing)
same "the restore has its last item's title" "Voicemails Restoration: Restoration done ! Do you want to reboot now ?" \
    "${restored%%$'\n'*}"
same "and tells of each item" "10 call-history: not restored (its archive does not have var/wireless/Library/CallHistory)" \
    "$(grep -c ': restored$' <<<"$restored") $(grep 'not restored' <<<"$restored")"
same "every data set is back bit for bit" "$before" "$(contents "$preferences" "${data_sets[@]}")"
same "with its owner" "$owners_before" "$(owners "${data_sets[@]}")"
same "preferences that the wipe had taken come back as root's" root \
    "$(on_phone stat -c %U "/$preferences/org.example.lantern.plist")"
same "the call history is not brought back" "$calls_as_new" "$(contents "$calls")"
same "no unpacked tree is left" "" "$(not_archives)"
same "the databases open" ok "$(on_phone bash -c 'find /var/mobile \( -name "*.sqlite*" -o -name "*.db" \) -print0 |
    xargs -0 -I {} sqlite3 {} "PRAGMA integrity_check" | sort -u')"
same "the applications were stopped" 7 "$(times_logged stopped)"

on_phone tarnwick restore sources >/dev/null
same "Cydia's sources and the own list are those from before" "$(sort <<<"$sources_before")" \
    "$(on_phone bash -c 'sort /var/mobile/Library/Caches/com.saurik.Cydia/sources.list <(
        cat /etc/apt/sources.list.d/TWKSources.list; echo)' | grep .)"
# The steps of the line start at the same time, so apt-get may read the selections too early.
for ((attempt = 0; attempt < 20; attempt++)); do
    on_phone tarnwick restore packages >/dev/null
    [[ $(on_phone dpkg --get-selections) != "$packages_before" ]] || break
done
same "the packages are back" "$packages_before" "$(on_phone dpkg --get-selections)"

on_phone tarnwick restore springboard --then respring >/dev/null
same "an offered respring is made" 1 "$(times_logged respring)"
on_phone tarnwick restore accounts --then reboot >/dev/null 2>&1
same "and an offered reboot" 1 "$(times_logged reboot)"
