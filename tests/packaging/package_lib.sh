# shellcheck shell=bash
# Shared by the tests of the package: a place to work in, and facts that are checked and printed.

set -euo pipefail

repository=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
workspace=$(mktemp -d)
trap 'rm -rf "$workspace"' EXIT
# Whose documents and programs are looked at.
# shellcheck disable=SC2034
build=${TARNWICK_BUILD:-$repository/build/release}
# shellcheck disable=SC2034
id=com.fenlow.tarnwick2

need() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null && continue
        printf 'skipped: %s is missing\n' "$program"
        exit 77
    done
}

# check FACT COMMAND...: the fact holds when the command succeeds.
check() {
    local fact=$1 output
    shift
    if output=$("$@" 2>&1); then
        printf 'ok: %s\n' "$fact"
    else
        printf 'not ok: %s\n  %s\n%s\n' "$fact" "$*" "$output"
        exit 1
    fi
}

# same FACT EXPECTED ACTUAL
same() {
    if [[ $2 == "$3" ]]; then
        printf 'ok: %s\n' "$1"
    else
        printf 'not ok: %s\n' "$1"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") || true
        exit 1
    fi
}
