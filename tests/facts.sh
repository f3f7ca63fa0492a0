# shellcheck shell=bash
# Shared by all tests that are scripts: facts that are checked and printed, waiting, and leaving a test out.

skip() {
    printf 'skipped: %s\n' "$1"
    exit 77
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

refuse() {
    local fact=$1 output
    shift
    if output=$("$@" 2>&1); then
        printf 'not ok: %s\n  %s succeeded\n%s\n' "$fact" "$*" "$output"
        exit 1
    fi
    printf 'ok: %s\n' "$fact"
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

status_of() {
    local status=0
    "$@" >/dev/null 2>&1 || status=$?
    printf '%s\n' "$status"
}

# Ten seconds are far more than anything here takes.
wait_until() {
    local attempt
    for ((attempt = 0; attempt < 500; attempt++)); do
        ! "$@" || return 0
        sleep 0.02
    done
    printf 'not ok: never came true: %s\n' "$*"
    exit 1
}

require_programs() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null || skip "$program is missing"
    done
}
