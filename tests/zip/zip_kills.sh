#!/usr/bin/env bash
# Whatever ends the program during an update, the old or the new archive stands under its name.
# shellcheck source=tests/zip/zip_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/zip_lib.sh"

mkdir tree
seq 1 400000 >tree/text
head -c 8000000 /dev/urandom >tree/picture
echo 0 >tree/generation
"$ours" -rq archive.zip tree/
cp archive.zip before.zip

whole() {
    unzip -tqq archive.zip && [[ $(unzip -p archive.zip tree/generation) =~ ^[0-9]+$ ]]
}

# end_after SECONDS SIGNAL
end_after() {
    "$ours" -r archive.zip tree/ >/dev/null 2>&1 &
    local process=$!
    sleep "$1"
    kill -s "$2" "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null
}

cut=0
for ((round = 1; round <= 200; round++)); do
    echo "$round" >tree/generation
    end_after "0.0$((round % 9))$((round % 10))" KILL || true
    [[ ! -e archive.zip.unfinished ]] || ((cut += 1))
    whole || check "round $round: old or new, never neither" false
done
check "200 kills, many of them in the middle: old or new, never neither" test "$cut" -gt 20

cp before.zip archive.zip
for signal in INT TERM HUP; do
    status=0
    end_after 0.02 "$signal" || status=$?
    [[ $status == 9 || $status == 0 ]] || same "the status after $signal" 9 "$status"
    check "after $signal the archive is whole" whole
    refuse "and there is no stray" test -e archive.zip.unfinished
done

for ((number = 0; number < 4; number++)); do
    "$ours" -rq archive.zip tree/ &
done
wait
check "several at a time wait for each other" whole

echo stray >other.zip.unfinished
"$ours" -rq archive.zip tree/
refuse "what a killed run left is removed by the next one" test -e other.zip.unfinished
