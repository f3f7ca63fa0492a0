#!/usr/bin/env bash
# The pages of the manual are set without a warning, and tell of every command.
# shellcheck source=tests/packaging/package_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/package_lib.sh"
require_programs man mandoc

warnings() {
    { MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings --local-file "$1" >/dev/null; } 2>&1
    # Lines may be as long as everywhere here.
    mandoc -T lint -W warning "$1" || true
}

for page in tarnwick RootTarnwick2 tarnwick-zip; do
    same "$page(1) is set without a warning" "" "$(warnings "$build/packaging/man/$page.1")"
done
# What the help lists, the page lists too.
page=$(MANWIDTH=500 LC_ALL=C.UTF-8 man --local-file "$build/packaging/man/tarnwick.1" | tr -s ' ')
missing() {
    "$build/bin/tarnwick" --help | sed -n 's/^  \(.*[^ ]\)  *.*/\1/p' | while read -r entry _; do
        grep -qF -- "${entry%,}" <<<"$page" || echo "$entry"
    done
}
same "tarnwick(1) leaves nothing out" "" "$(missing)"
