#!/usr/bin/env bash
# The package is installed from the phone's own source, used by quick actions and purged. What was saved stays.
# shellcheck source=tests/session/session_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/session_lib.sh"

safeguard=/var/mobile/Library/Preferences/Tarnwick

saved() { on_phone find "$safeguard" -type f -exec sha256sum {} +; }

# Everything named after the program, except the safeguard folder and what apt knows of packages.
traces() {
    on_phone find /usr /etc /var /Applications /sbin -xdev \( -path "$safeguard" -o -path /var/lib/apt -o -path /var/cache/apt \) -prune -o \
        -iname '*tarnwick*' -print
}

require_programs Xvfb dbus-daemon gdbus 9wm xdotool
install_on_phone "$phone" --model iPhone8,1
on_session "$phone" actions
check "the package is installed" on_phone dpkg --verify tarnwick
# The first entry's second column: the version that libzip names, or the system's zip.
maker() { on_phone zipinfo "$safeguard/TarnwickLibrary/$1.zip" | awk 'NR == 3 { print $2 }'; }
same "the window's quick action used its own zip" 6.3 "$(maker SMS)"
check "its command saves" on_phone /usr/bin/tarnwick save sources packages notes
same "with the same zip" 6.3 "$(maker Notes)"
was=$(saved)
listed=$(on_phone /usr/bin/tarnwick list)
check "it is purged" on_phone apt-get -qq --yes purge tarnwick
same "what was saved is as it was" "$was" "$(saved)"
same "nothing else is left" "" "$(traces)"
check "it is installed again" on_phone apt-get -qq --yes install tarnwick
same "and finds what was saved" "$listed" "$(on_phone /usr/bin/tarnwick list)"
