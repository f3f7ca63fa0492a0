# shellcheck shell=bash
# On the device: TIMES SEED.
# shellcheck source=tests/faults/on_phone.sh
source /mnt/share/on_phone.sh

times=$1
RANDOM=$2
signals=(TERM INT HUP QUIT PIPE USR1 USR2 ALRM)

microseconds() { echo "${EPOCHREALTIME/[.,]/}"; }

# Every save has something to write.
change_data() {
    seq "$RANDOM" >"$notes/diary"
    seq "$RANDOM" >"$home/Preferences/diary.plist"
    : >"$home/SMS/Drafts/$RANDOM"
}

# The process and what it has started, and what that has.
tree_of() {
    local child
    echo "$1"
    for child in $(pgrep -P "$1"); do
        tree_of "$child"
    done
}

has_ended() { ! ps -C tarnwick,zip,cp,rm,dpkg >/dev/null; }

kill_all() { tree_of "$1" | xargs kill -KILL; }
signal_one() { kill -"${signals[RANDOM % ${#signals[@]}]}" "$(tree_of "$1" | shuf -n 1 --random-source=<(yes "$RANDOM"))"; }

# Adds what is missing now to the counts of the row.
look() {
    local archive list
    for archive in "$good"/TarnwickLibrary/*.zip; do
        if [[ ! -e $archives/${archive##*/} ]]; then
            ((lost += 1))
        elif ! unzip -tqq "$archives/${archive##*/}" >/dev/null 2>&1; then
            ((spoilt += 1))
        fi
    done
    # One that was caught while it was written stands beside it until the next run.
    for list in "$sources" "$packages"; do
        [[ -s $list || -s $list.previous ]] || ((emptied += 1))
    done
}

# row NAME ACTION: with the action on a save under way, each time.
row() {
    local run lost=0 spoilt=0 emptied=0 failed=0 strays=0 time
    for ((time = 0; time < times; time++)); do
        change_data
        tarnwick save sources packages all >/dev/null 2>&1 & run=$!
        sleep "$(printf '%d.%06d' 0 "$((RANDOM * duration / 32768))")"
        "$2" "$run" 2>/dev/null
        wait "$run" 2>/dev/null
        until has_ended; do sleep 0.01; done
        look
        tarnwick save sources packages all >/dev/null 2>&1 && kept >/dev/null && [[ ! -e $sources.previous ]] || ((failed += 1))
        no_strays >/dev/null || ((strays += 1))
    done
    printf '%-16s %5d %5d %7d %14d %20d %7d\n' "$1" "$times" "$lost" "$spoilt" "$emptied" "$failed" "$strays"
    ((lost + spoilt + emptied + failed + strays == 0))
}

# The same, of imports of two copies in turns: whenever it ends, one of the two is in place.
safeguard_sum() { (cd "$safe" && find . -type f -exec sha256sum {} + | sort | sha256sum); }
import_row() {
    local run mixed=0 failed=0 strays=0 time
    for ((time = 0; time < times; time++)); do
        tarnwick import "/run/copy$((time % 2))" >/dev/null 2>&1 & run=$!
        sleep "$(printf '%d.%06d' 0 "$((RANDOM * duration / 32768))")"
        "$2" "$run" 2>/dev/null
        wait "$run" 2>/dev/null
        until has_ended; do sleep 0.01; done
        [[ ${sums[*]} == *"$(safeguard_sum)"* ]] || ((mixed += 1))
        tarnwick import "/run/copy$((time % 2))" >/dev/null 2>&1 && [[ $(safeguard_sum) == "${sums[time % 2]}" ]] ||
            ((failed += 1))
        [[ ! -e $home/Tarnwick.unfinished ]] || ((strays += 1))
    done
    printf '%-16s %5d %5d %20d %7d\n' "$1" "$times" "$mixed" "$failed" "$strays"
    ((mixed + failed + strays == 0))
}

make_good >/dev/null
begin=$(microseconds)
change_data
tarnwick save sources packages all >/dev/null
duration=$(($(microseconds) - begin))
printf 'a save takes %d ms, seed %d\n' "$((duration / 1000))" "$2"
printf '%-16s %5s %5s %7s %14s %20s %7s\n' '' times lost spoilt 'lists emptied' 'next run not good' strays
row "kill of all" kill_all
killed=$?
row "other signals" signal_one
signalled=$?

tarnwick export /run/copy0
change_data
tarnwick save all >/dev/null
tarnwick export /run/copy1
sums=("" "$(safeguard_sum)")
begin=$(microseconds)
tarnwick import /run/copy0 >/dev/null
duration=$(($(microseconds) - begin))
sums[0]=$(safeguard_sum)
printf 'an import takes %d ms\n%-16s %5s %5s %20s %7s\n' "$((duration / 1000))" '' times mixed 'next run not good' strays
import_row "kill of all" kill_all
killed=$((killed + $?))
import_row "other signals" signal_one
exit "$((killed + signalled + $?))"
