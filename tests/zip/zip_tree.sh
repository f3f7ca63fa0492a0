#!/usr/bin/env bash
# A tree that is hard on archivers gives what the system's zip gives, and every tool can read it.
# shellcheck source=tests/zip/zip_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/zip_lib.sh"

make_tree() {
    local deep=tree/deep level
    mkdir -p tree/empty "tree/ leading and trailing "
    printf 'a' >$'tree/two\nlines'
    printf 'b' >"tree/quotes ' \" and \\ *[x]?"
    printf 'c' >tree/-r
    printf 'd' >$'tree/not UTF-8 \xff\xfe'
    printf 'e' >"tree/übung 日本 🎂"
    : >tree/nothing
    for ((level = 0; level < 200; level++)); do deep+=/d; done
    mkdir -p "$deep"
    seq 1 5000 >"$deep/bottom"
    head -c 3000000 /dev/urandom >tree/picture
    { seq 1 300000 && head -c 2000000 /dev/urandom; } >tree/mixed
    ln -s picture tree/link
    ln -s deep tree/linked
    ln -s nowhere tree/broken
    ln -s itself tree/itself
    mkfifo tree/pipe
    install -m 4755 /dev/null tree/set-user-ID
    install -m 400 /dev/null tree/read-only
    touch -d '1975-03-04 05:06:07' tree/read-only
    touch -d '2050-01-01 01:01:01' tree/set-user-ID
    mkdir tree/many
    (cd tree/many && seq -f 'file %g' 20000 | xargs -d '\n' touch -d '2020-02-29 12:34:57')
}

readable_by_all() {
    python3 -c 'import sys, zipfile; sys.exit(zipfile.ZipFile(sys.argv[1]).testzip() is not None)' "$1" &&
        bsdtar -tf "$1" >names && 7z t -bd "$1" >/dev/null && unzip -tqq "$1"
}

make_tree
zip -r theirs.zip tree/ >/dev/null
"$ours" -r ours.zip tree/ >output
same "the words are those that scripts know" "  adding: tree/picture (stored 0%)" "$(grep picture output)"
check "what cannot be saved is named" grep -q "zip warning: name not matched: tree/broken" output
unpacked theirs.zip theirs
LC_ALL=C unpacked ours.zip ours
same "names, kinds, modes, times and contents are the same" "$(listing theirs)" "$(listing ours)"
check "every tool can read it" readable_by_all ours.zip

# Later than the format can tell: the system's zip wraps such a time to 1983.
touch -d '2120-01-01' tree/picture
ln -s .. tree/linked/back
"$ours" -r ours.zip tree/ >output
check "a folder that leads back into itself is left out" grep -q "leads back into itself: tree/deep/back" output
check "a time that is too late becomes the last one" grep -q "21071231.235958 tree/picture" <(zipinfo -T ours.zip)
rm tree/linked/back

# Over an archive of the system's zip, with what was removed since.
rm -r tree/many/file\ 1?
echo changed >tree/nothing
echo new >tree/new
"$ours" -rq theirs.zip tree/
rm -r theirs
unpacked theirs.zip theirs
same "what is new is in, and nothing is lost" "changed new 20000" \
    "$(cat theirs/tree/nothing theirs/tree/new | tr '\n' ' ')$(find theirs/tree/many -type f | wc -l)"
check "every tool can read the update" readable_by_all theirs.zip

if ((EUID != 0)); then
    chmod 000 tree/new
    same "an unreadable file is left out" 18 "$(status_of "$ours" -r ours.zip tree/)"
    chmod 644 tree/new
fi
same "nothing to do" 12 "$(status_of "$ours" -r none.zip nowhere/)"
mkdir taken.zip
same "a folder in the archive's place is an error" 11 "$(status_of "$ours" -r taken.zip tree/)"
"$ours" -j -0 handed-on.zip tree/nothing >/dev/null
same "other uses are the system's zip's" "nothing" "$(unzip -Z1 handed-on.zip)"
"$ours" -r reader.zip tree/ | head -n 1 >/dev/null
check "a reader that is gone does no harm" unzip -tqq reader.zip
"$ours" -r reader.zip tree/ >/dev/full
check "nor does a full one" unzip -tqq reader.zip
echo garbage >damaged.zip
"$ours" -r damaged.zip tree/ >output
check "a damaged archive is named" grep -q "damaged.zip.damaged" output
same "and set aside" garbage "$(<damaged.zip.damaged)"
check "and there is a good one" unzip -tqq damaged.zip

# More than a 32-bit size can hold.
mkdir large
truncate -s 5G large/file
"$ours" -rq large.zip large/
same "a large file keeps its size" 5368709120 "$(unzip -l large.zip large/file | awk '$4 == "large/file" { print $1 }')"
check "and its contents" unzip -tqq large.zip
/usr/bin/time -f %M "$ours" -rq large.zip large/ 2>memory
check "within bounded memory" test "$(<memory)" -lt 150000
