#!/usr/bin/env bash
# What is broken, what is run, how it ends, what it says, and what is on the disk then.
# shellcheck source=tests/faults/faults_lib.sh disable=SC2016
source "$(dirname "${BASH_SOURCE[0]}")/faults_lib.sh"
# shellcheck source=tests/faults/on_phone.sh
source "$(dirname "${BASH_SOURCE[0]}")/on_phone.sh"

make_device

# Tools.
while IFS='|' read -r name verb kept <&3; do
    for state in missing failing; do
        tool "$name" "$state"
        fault "$name is $state: $verb" : "$verb" 1 "$name" "$kept"
    done
    tool "$name" hanging
    fault "$name hangs: $verb" : "$verb" 130 interrupted "$kept" until_it_hangs
done 3<<'TOOLS'
cp|save notes|untouched
rm|save tweaks-prefs|kept
zip|save notes|untouched
unzip|restore notes|untouched && same_notes
cp|restore notes|untouched && same_notes
chown|restore notes|untouched && same_notes
killall|restore notes|untouched && same_notes
dpkg|save packages|untouched
apt-get|restore packages|untouched
sendmail|mail --to somebody@example.org|untouched
TOOLS
tool rm failing
fault "rm is failing: restore" : "restore notes" 1 "rm" same_notes
tool sh missing
fault "there is no shell" : "save notes packages" 1 "status 127" untouched
rm "$workspace/build/libexec/tarnwick/bin/zip"
fault "the system's zip takes over" 'touch $notes/new' "save notes" 0 "done" 'kept && unzip -l $archives/Notes.zip | grep new'
tool zip hanging
fault "zip hangs: size" 'rm $archives/Notes.zip' "size notes" 130 interrupted no_strays until_it_hangs
tool unzip hanging
fault "unzip hangs: check" : check 130 interrupted untouched until_it_hangs
tool killall missing
fault "killall is missing: respring" : "respring --yes" 1 killall untouched
fault "reboot is missing" 'rm /sbin/reboot' "reboot --yes" 1 reboot untouched

# Space. The earlier archives and lists stay, and what a restore cannot unpack it leaves alone.
for left in 0 40 400 1200 2600; do
    fault "$left KB are left: save" "head -c 2M /dev/urandom >$notes/big; fill $left" "save sources packages all --yes" 1 "no space left" kept
    fault "$left KB are left: nobody says to go on" "head -c 2M /dev/urandom >$notes/big; fill $left" "save sources packages all" 2 \
        "this may take up to" untouched
    fault "$left KB are left: restore" "head -c 3M /dev/urandom >$notes/big; tarnwick save notes; cp $notes/big /run; fill $left" \
        "restore notes --yes" 1 "no space left on /var" 'cmp /run/big $notes/big && no_strays'
    fault "$left KB are left: nobody says to restore" "head -c 3M /dev/urandom >$notes/big; tarnwick save notes; fill $left" \
        "restore notes" 2 "this may take up to" no_strays
done
fault "nothing is left, and no earlier list" 'rm $sources $packages; echo deb >$apt/TWKSources.list; seq 9999 >$cache; fill 0' \
    "save sources packages" 1 "no space left" '[[ ! -e $sources && ! -e $packages ]]'
fault "part of a copy is taken away again, which makes room" 'seq 9999 >$home/Preferences/a.plist
    touch -d yesterday $home/Preferences/a.plist; tarnwick save tweaks-prefs; head -c 1M /dev/urandom >$archives/Voicemail.zip; fill 900' \
    "save tweaks-prefs --yes" 1 "no space left" 'unzip -p $archives/Preferences.zip "*/a.plist" | cmp $home/Preferences/a.plist'
fault "500 KB are left: size" 'rm $archives/Notes.zip; head -c 2M /dev/urandom >$notes/big; fill 500' "size notes" 1 \
    "no space left" no_strays
leave_no_inode
fault "no inode is left: save" : "save sources packages all" 1 "no inodes left" untouched
leave_no_inode
fault "no inode is left: restore" : "restore notes" 1 "" 'untouched && same_notes'
for verb in "save sources" "save packages" "save notes" "restore notes" "remove backups --yes" "export /var/copy"; do
    make_read_only
    fault "/var is read-only: $verb" : "$verb" 1 "read-only" 'untouched && same_notes'
done
for verb in list check compare storage "save all --dry-run" "export /run/copy"; do
    make_read_only
    fault "/var is read-only: $verb" : "$verb" 0 "" untouched
done

# Copies of the safeguard folder.
for left in 0 40 200; do
    fault "$left KB are left: import" "tarnwick export /run/copy; fill $left" "import /run/copy" 1 "no space left" untouched
done
fault "500 KB are left, and a copy needs more" 'tarnwick export /run/copy; fill 500; ulimit -f 20' "import /run/copy" 1 "too large" untouched
fault "there is no room for a copy" 'fill 100' "export /var/copy" 1 "no space left" 'untouched && [[ ! -e /var/copy ]]'
for broken in 'truncate -s 200K' 'damage' ': >'; do
    fault "a copy is broken by $broken" "tarnwick export /run/copy; $broken /run/copy" "import /run/copy" 1 "nothing has changed" untouched
done
fault "a copy over a pipe" 'tarnwick export /run/copy; rm -r $safe' "import - </run/copy" 0 "imported" \
    'untouched'
fault "a safeguard folder that is a file" 'tarnwick export /run/copy; rm -r $safe; touch $safe' "import /run/copy" 1 "no folder" '[[ -f $safe ]]'
fault "mobile planted links in the way of a copy" 'tarnwick export /run/copy; for name in unfinished previous; do as mobile ln -s /etc $home/Tarnwick.$name; done' \
    "import /run/copy" 0 "imported" 'rm -r $home/Tarnwick.previous; untouched'
fault "a link as a list" 'rm $packages; ln -s /etc/shadow $packages' "export /run/copy" 1 "it is a link" \
    '! grep root: /run/copy'
fault "not root: export" 'tarnwick() { as mobile tarnwick "$@"; }' "export /run/copy" 4 "root" untouched

# What stands among the data.
fault "a dangling link" 'ln -s /nowhere $notes/link' "save notes" 0 "done" kept
fault "a loop of links" 'ln -s loop $notes/loop' "save notes" 0 "done" kept
fault "a link to a folder" 'ln -s /var/wireless $notes/link' "save notes" 0 "done" kept
fault "a pipe" 'mkfifo $notes/pipe' "save notes" 0 "done" kept
fault "a socket" 'perl -MIO::Socket::UNIX -e "IO::Socket::UNIX->new(Local => shift, Listen => 1)" $notes/socket' "save notes" 0 "done" kept
fault "a sparse file" 'truncate -s 300M $notes/sparse' "save notes" 0 "done" kept
fault "20,000 files" '(cd $notes && seq 20000 | xargs touch)' "save notes" 0 "done" \
    'kept && (($(unzip -l $archives/Notes.zip | wc -l) > 20000))'
fault "hostile names" '(cd $notes && touch -- -rf $'"'"'new\nline'"'"' "\$(reboot)" "; reboot" $'"'"'\xff\xfe'"'"' "$(printf %0255d 0)")' \
    "save notes" 0 "done" kept
fault "odd names come back" '(cd $notes && touch -- -rf -@ "\$(reboot)" "; reboot" "a\\b" "[x]" "*" é "$(printf %0255d 0)")
    cp -a $notes /run; tarnwick save notes; rm -r $notes' "restore notes" 0 "done" 'diff -r /run/Notes $notes'
for kind in touch mkfifo 'ln -s /nowhere'; do
    fault "$kind for a folder" "rm -r $notes; $kind $notes" "save notes" 1 "Nothing to do" kept
done
fault "a data set that is a link" 'mv $notes /var/moved; ln -s /var/moved $notes; touch $notes/new' "save notes" 0 "done" \
    'kept && unzip -l $archives/Notes.zip | grep -q new && [[ -L $notes && -e /var/moved/new ]]'
fault "tweak preferences that are a link" 'mv $home/Preferences /var/moved; ln -s /var/moved $home/Preferences' "save tweaks-prefs" 1 \
    "cannot overwrite" kept
fault "a folder that is missing" 'rm -r $notes' "save notes" 1 "cannot stat" untouched

# Plain files in the way. One hides no other.
fault "\$safe is a file: folders" 'rm -r $safe; touch $safe' folders 1 "cannot be made: Not a directory" '[[ -f $safe ]]'
for folder in '${sources%/*}' '${packages%/*}' '$archives'; do
    fault "$folder is a file: folders" "rm -r $safe/*; touch $folder" folders 1 "cannot be made" \
        '(($(find $safe -mindepth 1 -type d | wc -l) == 2))'
done
for folder in '$safe' '${sources%/*}' '${packages%/*}' '$archives'; do
    fault "$folder is a file: list" "rm -r $folder; touch $folder" list 1 "cannot be read: Not a directory" harmless
    fault "$folder is a file: save" "rm -r $folder; touch $folder" "save sources packages notes" 1 "" harmless
done
fault "a staging copy is a file" 'touch $archives/Notes' "save notes" 0 "done" kept
fault "the unpacked tree is a file" 'touch /var/tmp/var' "restore notes" 0 "done" 'kept && same_notes'

# Archives.
damages=('truncate -s 900 $zip' ': >$zip' 'seq 999 >$zip' 'truncate -s -20 $zip' 'ln -sf Notes.zip $zip'
    'rm $zip; mkdir $zip')
for damage in "${damages[@]}"; do
    fault "$damage: check" "zip=$archives/Notes.zip; $damage" check 1 "Notes.zip" true
    fault "$damage: restore" "zip=$archives/Notes.zip; $damage" "restore notes" 1 "" same_notes
done
fault "damaged data: check" 'damage $archives/Notes.zip' check 1 "Notes.zip: damaged" true
fault "damaged data: restore" 'damage $archives/Notes.zip' "restore notes" 1 "bad CRC" no_strays
fault "archives are missing" 'rm $archives/{SMS,Notes}.zip' check 1 $'SMS.zip: missing\nNotes.zip: missing' true
fault "garbage: save" 'seq 999 >$archives/Notes.zip' "save notes" 0 "done" 'whole_backup && cmp <(seq 999) $archives/Notes.zip.damaged'
tool unzip missing
fault "nothing can test archives" : check 1 "cannot be tested" untouched
rm "$workspace/build/libexec/tarnwick/tarnwick"
fault "the program for archives is missing" : check 1 "cannot be started" untouched
tool unzip missing
fault "nor before they are exported" : "export /run/copy" 1 "cannot be tested" untouched
fault "one archive spoilt, another restored" ': >$archives/SMS.zip' "restore messages notes" 1 "Notes Restoration: Restoration done !" same_notes

# Scratch, stale or planted.
fault "an unpacked tree is stale" 'mkdir -p /var/tmp/var$notes; touch /var/tmp/var$notes/stale' "restore notes" 0 "done" 'kept && same_notes'
fault "a staging copy is stale" 'mkdir /var/tmp/Preferences; touch /var/tmp/Preferences/stale' "save tweaks-prefs" 0 "done" \
    'kept && ! unzip -l $archives/Preferences.zip | grep stale'
fault "nobody planted a staging copy" 'as nobody mkdir /var/tmp/Preferences
    as nobody ln -s /etc/shadow /var/tmp/Preferences/com.apple.mobilephone.plist' "save tweaks-prefs" 0 "done" kept
fault "nobody planted a link as a staging copy" 'as nobody ln -s /etc /var/tmp/Preferences' "save tweaks-prefs" 0 "done" kept
fault "nobody planted an unpacked tree" 'as nobody mkdir -p /var/tmp/var/mobile/Library
    as nobody ln -s /etc/shadow /var/tmp/var/mobile/Library/sms.db' "restore messages --then nothing" 0 "done" \
    'kept && cmp $good/sms.db $home/SMS/sms.db'
fault "nobody planted a link as an unpacked tree" 'as nobody ln -s /etc /var/tmp/var' "restore notes" 0 "done" 'kept && same_notes'
for kind in mkfifo touch 'ln -s /dev/zero'; do
    fault "nobody planted scratch: $kind" "as nobody $kind /var/tmp/var; as nobody $kind /var/tmp/Preferences" \
        "restore notes tweaks-prefs" 0 "done" 'kept && same_notes'
    fault "nobody planted an archive: $kind" "rm \$archives/Notes.zip; as nobody $kind /var/tmp/Notes.zip" "size notes" 0 "size" \
        no_strays
done
fault "mobile planted a link in the way of a restore" 'as mobile ln -sf /etc/shadow $notes/notes.sqlite' "restore notes" 0 "done" \
    'kept && same_notes'
fault "mobile planted links for folders" 'rm -r $notes; as mobile ln -s /etc $notes' "restore notes" 1 "cannot overwrite" untouched

fault "mobile planted a hard link in the way, where the kernel lets it" 'ln -f $good/shadow $notes/notes.sqlite' "restore notes" 0 "done" \
    'kept && same_notes'
for planted in '${sources%/*}' '${packages%/*}' '$archives' '$safe' '$home'; do
    fault "mobile planted a link for $planted" "chown mobile \$safe; mv $planted /var/moved; as mobile ln -s /etc/apt $planted; cp -a /etc/apt /run" \
        "save sources packages notes" 1 "is not followed" 'diff -r /run/apt /etc/apt'
done
fault "mobile made up an archive, for a link of nobody" 'mkdir -p /run/x/links /run/x/var; touch /run/x/links/new /run/x/var/new; rm $archives/Notes.zip
    (cd /run/x && /usr/bin/zip -qr $archives/Notes.zip .); as nobody ln -s /etc /var/tmp/links' "restore notes" 1 \
    "no save has put" '[[ ! -e /etc/new ]] && same_notes'
fault "mobile has the folder elsewhere" 'mv $safe /var/mobile; chown mobile /var/mobile/Tarnwick; as mobile ln -s /var/mobile/Tarnwick $safe' \
    "save sources notes" 0 "done" kept

# Lists.
fault "a cache with somebody's rights" 'setid_program $cache' "save sources" 0 "done" harmless
fault "a saved list with somebody's rights" 'rm $cache; list=${sources%/*}/cydia.list; echo deb >$list; chown mobile $list; chmod 6755 $list' "restore sources" 0 "done" \
    '! find $apt -perm /7000 | grep .'
for list in '$cache|save sources' '$sources|restore sources' '$packages|restore packages' '$packages|save packages'; do
    for kind in 'ln -s /dev/zero' 'ln -s /etc/shadow' mkfifo 'truncate -s 65M'; do
        path=${list%|*} verb=${list#*|} status=1
        [[ $verb != "save packages" ]] || status=0
        fault "$kind $path: $verb" "rm $path; $kind $path" "$verb" "$status" "" '! grep -r root: $safe $apt'
    done
done
for kind in 'ln -s /dev/zero' 'ln -s /etc/shadow' mkfifo 'truncate -s 65M'; do
    fault "$kind cydia.list" 'rm $cache; '"$kind"' ${sources%/*}/cydia.list' "restore sources --yes" 1 "cannot be read" \
        '! grep -r root: $safe $apt'
done

# Limits, streams and readers.
for limit in '-n 8' '-n 12' '-n 16' '-f 40'; do
    fault "ulimit $limit" "touch $notes/*; ulimit $limit" "save sources packages all" 1 "" whole_backup
done
fault "ulimit -n 12: restore" 'ulimit -n 12' "restore all --yes" 1 "" 'whole_backup && same_notes'
for closed in '<&-' '>&-' '2>&-' '<&- >&- 2>&-'; do
    fault "$closed" : "save sources packages all $closed" 0 "" kept
done
for reader in '2>&1 | true' '--verbose 2>&1 | true' '--verbose 2>&1 | head -n 1'; do
    fault "save all $reader" 'rm $archives/*' "save all $reader" 0 "" kept
    fault "restore all $reader" : "restore all --yes --then nothing $reader" 0 "" 'kept && same_notes'
done
while read -r verb <&3; do
    fault "/dev/full: $verb" : "$verb >/dev/full" 1 "" kept
done 3<<'VERBS'
save sources packages all
restore sources
restore notes
restore packages
restore all --yes
save all --dry-run
list
list --json
check
check --json
compare --json
export
size notes
storage
folders
remove sources-list --yes
faq
--help
--version
VERBS

# Nothing to do it with.
fault "no package can be saved" 'rm -r ${packages%/*}; touch ${packages%/*}' "save packages" 1 "" true
fault "there is no source" 'rm $cache; rm -f $apt/*' "save sources" 1 "" 'same_lists && no_strays'
fault "there is no archive" 'rm $archives/*' "restore all --yes" 1 "there is no archive to restore" true
fault "neither backup nor cache" 'rm $cache ${sources%/*}/*' "restore sources --yes" 1 "no saved list of sources" true
fault "a package cannot be installed" 'echo "org.example.gone install" >>$packages' "restore packages" 1 "not installed: org.example.gone" true
fault "another run is under way" 'exec 7<>/var/lib/tarnwick.lock; flock 7' "save notes" 3 "another run" untouched
for kind in mkdir 'ln -s /etc/shadow'; do
    fault "the lock: $kind" "rm /var/lib/tarnwick.lock; $kind /var/lib/tarnwick.lock" "save notes" 1 \
        "cannot tell whether another run" untouched
done
fault "the run before was killed" 'printf "%-255s\n" "-save photos" >/var/lib/tarnwick.lock' "list" 0 "cut off: save photos" untouched
fault "not root" 'tarnwick() { as mobile tarnwick "$@"; }' "save notes" 4 "root" untouched

# Whatever is in the way, a run ends.
fault "a pipe in the way of a restore" 'rm $notes/notes.sqlite; as mobile mkfifo $notes/notes.sqlite' "restore notes" 0 "done" same_notes
for verb in check "restore notes --then nothing"; do
    fault "an archive is a pipe: $verb" 'rm $archives/Notes.zip; mkfifo $archives/Notes.zip' "$verb" 1 "" true
done
fault "no file may be written" 'ulimit -f 0' "save sources packages notes" 1 "sources.list cannot be written: File too large" untouched

# What a person has stays.
for verb in "save notes" "save photos" "restore sources"; do
    fault "the archives lie among the pictures: $verb" 'rm -r $archives; ln -s /var/mobile/Media $archives' "$verb; true" 0 "" \
        has_pictures
done
fault "a folder where the list is kept" 'mkdir $packages.previous; ln -s /bin/false /usr/local/bin/dpkg' "save packages" 1 "" \
    same_lists
for saved in : 'mkfifo $sources'; do
    fault "the own sources, and of the saved $saved" "echo deb >\$apt/TWKSources.list; rm \$sources; $saved" "restore sources" 2 "confirmation" \
        'grep deb $apt/TWKSources.list'
done
fault "the sources, but no list that can be read" 'rm $cache; echo deb >$apt/cydia.list; mkfifo ${sources%/*}/cydia.list' "restore sources" 2 \
    "confirmation" 'grep deb $apt/cydia.list'
fault "a good archive of another user" 'chmod 600 $archives/Notes.zip' "check notes" 1 "cannot be tested" true "as mobile"
end_table
