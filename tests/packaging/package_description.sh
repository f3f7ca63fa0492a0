#!/usr/bin/env bash
# Desktops and software centres accept the entry and the description of the application.
# shellcheck source=tests/packaging/package_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/package_lib.sh"
require_programs desktop-file-validate appstreamcli

cd "$repository/packaging"
same "the entry is valid, without a hint" "" "$(desktop-file-validate "$id.desktop")"
described=$workspace/$id.metainfo.xml
sed 's,PICTURES/,https://example.org/pictures/,' "$id.metainfo.xml.in" >"$described"
# There is no home page, and version 0.16 does not know the tag of the developer.
issues() {
    { appstreamcli validate --no-net "$1" || true; } | grep '^[EWI]: ' | grep -v ': url-homepage-missing\|: unknown-tag developer' || true
}
same "the description is valid with pictures" "" "$(issues "$described")"
same "and without" "" "$(issues "$build/packaging/$id.metainfo.xml")"
check "the pictures are taken" "$build/bin/tarnwick-shots" --shots-at 2 "$workspace"
readarray -t pictures < <(grep -o '[^/]*\.png' "$described")
for picture in "${pictures[@]}"; do
    check "$picture is one of them" test -s "$workspace/$picture"
done

# The program reads the names as settings, in which these characters are syntax.
same "the names of the actions are plain" "" "$(grep '^Name=' "$id.desktop" | grep '[,;\\"]')"
for action in save save-all restore options; do
    same "the action $action starts itself, with its own icon" "Icon=$id-$action-symbolic
Exec=RootTarnwick2 --action $action" \
        "$(sed -n "/^\[Desktop Action $action\]/,/^\$/p" "$id.desktop" | grep -v '^\[\|^Name\|^$')"
done

release() {
    sed -n "s/$1.*/\1 \2/p" "$2" | head -n 1
}
newest=$(release '^## \[\([0-9.]*\)\] - \([0-9-]*\)' ../CHANGELOG.md)
same "the newest release is that of the changelog" "$newest" \
    "$(release '.*<release version="\([0-9.]*\)" date="\([0-9-]*\)"' "$id.metainfo.xml.in")"
same "and is built" "tarnwick ${newest% *}" "$("$build/bin/tarnwick" --version)"
same "Debian's changelog has every release" "$(grep -c '^## \[[0-9]' ../CHANGELOG.md)" \
    "$(./debian-changelog | dpkg-parsechangelog --file - --all --format rfc822 2>&1 | grep -c '^Version: ')"
