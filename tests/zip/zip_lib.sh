# shellcheck shell=bash
# Shared by the tests of the program `zip`: a folder of its own, the program, and the system's zip to compare with.
set -euo pipefail
# shellcheck source=tests/facts.sh
source "$(dirname "${BASH_SOURCE[0]}")/../facts.sh"

place=$(mktemp -d)
trap 'chmod -R u+rwX "$place"; rm -rf "$place"' EXIT
cd "$place"
ours=$DEVICE_BUILD/libexec/tarnwick/bin/zip
unset ZIP ZIPOPT UNZIP UNZIPOPT

# unpacked ARCHIVE FOLDER: what unzip makes of an archive.
unpacked() {
    unzip -qq -o -d "$2" "$1"
}

# Everything below a folder: kind, mode, time in seconds, size or target, name, with a digest of the contents.
listing() {
    (cd "$1" && find . -mindepth 1 -printf '%y %m %Ts %s %p\0' -type f -exec sha256sum --zero {} + | sed -z 's/^d \([0-9]*\) \([0-9]*\) [0-9]* /d \1 \2 - /' |
        LC_ALL=C sort -z | tr '\n\0' '?\n')
}
