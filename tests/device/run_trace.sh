#!/usr/bin/env bash
# Each verb starts the lines and makes the changes of the table, and no other.
# shellcheck source=tests/device/run_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/run_lib.sh"

scenes() {
    sed -n 's/^\[\(.*\)\]$/\1/p' "$table" | grep -v ',' | grep -vx questions
    sed -n 's/^\[save \(.*\)\]$/size \1/p' "$table" | grep -v ',\|packages'
    printf '%s\n' "save all" "restore all"
}

lines_of() {
    sed -n "/^\[$1\]\$/,/^\$/p" "$table" | grep -E '^(run|remove|create folder): ' || true
}

# A size is taken as an item is saved, in the folder for temporary files.
lines_of_size() {
    lines_of "save $1" | sed "s| /\?${library#/}| /var/tmp|g" | tee "$workspace/lines"
    sed -n 's|^run: zip -r \([^ ]*\) .*|remove: \1|p' "$workspace/lines"
}

# What the scene starts and changes according to the table. "all" is every item, with the one line that differs.
expected() {
    local verb=${1% *} item own
    case $1 in
        *\ all) own=$(lines_of "$verb, all in one") ;;
        size\ *) lines_of_size "${1#size }"; return ;;
        *) lines_of "$1"; return ;;
    esac
    for item in $(scenes | sed -n "s/^$verb //p" | grep -vx 'packages\|all'); do
        lines_of "$verb $item"
    done | sed "s|^${own% *} .*|$own|"
}

# From a trace of system calls: each line given to a shell, and each change by a process that started no other program.
# A removal tries the path as a file first and then as a folder. Claims of scratch places, the log of a restore and the look at what
# its archives unpack to are not the verb's.
changes_in() {
    awk '
        function quoted(text) { sub(/^[^"]*"/, "", text); sub(/".*/, "", text); return text }
        NR == FNR { if (/execve\(/ && !/\/tarnwick"/) started[$1] = 1; next }
        /execve\("\/bin\/sh", \["sh", "-c", ("--", )?"/ { line = $0; sub(/.*"-c", ("--", )?"/, "", line); sub(/"\].*/, "", line)
            if (line !~ /unzip -Zt/) print "run: " line; next }
        started[$1] || !/\) += 0$/ || /mkdir\("\/var\/tmp\// || /"\/var\/lib\/tarnwick/ { next }
        /(rmdir|unlink)\("\// { print "remove: " quoted($0) }
        /mkdir\("\// { print "create folder: " quoted($0) }
    ' "$1" "$1"
}

# The trace is read in a run of its own, as a reboot ends the traced one.
trace() {
    local options=()
    case $1 in
        restore) options=(--yes --then nothing) ;;
        remove | respring | reboot) options=(--yes) ;;
    esac
    on_phone strace -f -qq -s 4096 -e trace=execve,unlink,rmdir,mkdir -o /var/root/trace \
        tarnwick "$@" "${options[@]}" >/dev/null 2>&1
    on_phone cat /var/root/trace >"$workspace/trace"
    changes_in "$workspace/trace"
}

prepare_for() {
    case $1 in
        restore\ * | remove\ sources-list)
            on_phone bash -c 'test -e "$1/Voicemail.zip" || tarnwick save all packages >/dev/null
                echo "deb" >/etc/apt/sources.list.d/TWKSources.list' - "$library" ;;
        size\ *) on_phone tarnwick remove backups --yes >/dev/null ;;
        folders*) on_phone rm -rf /var/mobile/Library/Preferences/Tarnwick ;;
    esac
}

# Making a folder makes its parents, which the trace shows too.
as_made() {
    case $1 in
        folders\ Tarnwick | folders) cat ;;
        folders*) printf 'create folder: %s\n' /var/mobile/Library/Preferences/Tarnwick; cat ;;
        *) cat ;;
    esac
}

device new "$phone"
on_phone tarnwick folders >/dev/null
while read -r -a words <&3; do
    verb="${words[*]}"
    prepare_for "$verb"
    same "$verb: the run starts them and no other" "$(expected "$verb" | as_made "$verb")" "$(trace "${words[@]}")"
done 3< <(scenes)

# These work with files alone, or look.
for verb in "save sources" "restore sources" list storage faq; do
    read -r -a words <<<"$verb"
    same "$verb: the run starts no shell" "" "$(trace "${words[@]}" | grep '^run: ')"
done
