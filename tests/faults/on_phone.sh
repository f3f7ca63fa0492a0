# shellcheck shell=bash disable=SC2034,SC2317
set -o pipefail
shopt -s nocasematch
# Sourced on the device: what to break there, and what to look at then.

home=/var/mobile/Library
notes=$home/Notes
safe=$home/Preferences/Tarnwick
archives=$safe/TarnwickLibrary
sources=$safe/CydiaSources/sources.list
packages=$safe/CydiaPackages/installed-packages.txt
cache=$home/Caches/com.saurik.Cydia/sources.list
apt=/etc/apt/sources.list.d
good=/var/good

# A device after a save of everything, and what that was.
make_good() {
    sources_of_cydia
    tarnwick save sources packages all
    mkdir -m 700 "$good"
    cp -a "$archives" "$safe"/Cydia*/* "$home/SMS/sms.db" "$notes" /etc/shadow "$good"
}
sources_of_cydia() { mkdir -p "${cache%/*}"; [[ -s $cache ]] || echo 'deb file:/srv/repository ./' >"$cache"; }

# The archives are whole and the lists are there.
whole_backup() {
    local archive
    for archive in "$good"/TarnwickLibrary/*.zip; do
        whole "$archives/${archive##*/}" || return
    done
    [[ -s $sources && -s $packages ]]
}
kept() { whole_backup && no_strays; }
whole() { unzip -tqq "$1" >/dev/null 2>&1 || { echo "spoilt: $1"; return 1; }; }
untouched() { diff -r "$good/TarnwickLibrary" "$archives" && same_lists && no_strays; }
same_lists() { cmp "$good/sources.list" "$sources" && cmp "$good/installed-packages.txt" "$packages"; }
same_notes() { diff -r "$good/Notes" "$notes"; }
has_pictures() { [[ -n $(find /var/mobile/Media/DCIM -type f) ]]; }
no_strays() {
    local strays
    strays=$(find /var/tmp "$archives" -mindepth 1 ! -name '*.zip'; find "$safe" -name '*.previous' -o -name '*.unfinished'
        find "$home" -maxdepth 1 -name 'Tarnwick.*')
    [[ -z $strays ]] || { echo "strays: $strays"; return 1; }
}
# Nobody got what is root's.
harmless() {
    local gifts
    cmp /etc/shadow "$good/shadow" || return
    gifts=$(find /var -xdev -user root -perm /7000 ! -path /var/tmp)
    [[ -z $gifts ]] || { echo "set-user-ID: $gifts"; return 1; }
}

# fill KILOBYTES: leaves that much.
fill() {
    head -c "$(($(df --output=avail -k /var | tail -n 1) - $1))K" /dev/zero >/var/full
}
as() { setpriv --reuid "$1" --regid "$(id -g "$1")" --clear-groups -- "${@:2}"; }
setid_program() { install -m 6755 -o mobile /bin/true "$1"; }
damage() { printf 'XXXXXXXX' | dd of="$1" bs=1 seek="$(($(stat -c %s "$1") / 2))" conv=notrunc status=none; }
# Runs a command until a tool hangs, and ends it as a person would.
until_it_hangs() {
    "$@" & local run=$!
    until [[ -e /run/hanging ]]; do sleep 0.01; done
    while kill -INT "$run" 2>/dev/null; do sleep 0.1; done
    wait "$run"
}

# run_case BREAK VERB STATUS TOLD KEPT [WITH]
run_case() {
    local output status=0
    eval "$1" >/dev/null || { echo "could not be broken: $1"; return 1; }
    output=$(eval "${6:-} tarnwick $2" 2>&1) || status=$?
    if [[ $status != "$3" || $output != *"$4"* ]]; then
        printf 'not ok: status %s, wanted %s with "%s"\n%s\n' "$status" "$3" "$4" "$output"
    elif ! output=$(eval "$5" && harmless 2>&1); then
        printf 'not ok: %s\n%s\n' "$5" "$output"
    else
        echo ok
        return
    fi
    return 1
}
