# shellcheck shell=bash
# shellcheck disable=SC2034  # what is set here is for the scripts
# Sourced by the scripts of this folder.
set -euo pipefail
repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=tools/set-up.sh
source "$repository/tools/set-up.sh"
device=$repository/device/device
place=$repository/build/bench

prepare() {
    install_missing bench
    build release
    mkdir -p "$place"
}

# Microseconds that the command takes.
time_of() {
    local start=${EPOCHREALTIME/./}
    "$@" >/dev/null
    echo $((${EPOCHREALTIME/./} - start))
}

# Reads numbers; prints minimum, median and maximum.
spread() {
    sort -n | awk '{ v[NR] = $1 } END { print v[1], v[int((NR + 1) / 2)], v[NR] }'
}
