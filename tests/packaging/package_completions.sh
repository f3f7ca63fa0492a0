#!/usr/bin/env bash
# Each shell completes a line as the tables of the command say.
# shellcheck source=tests/packaging/package_lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/package_lib.sh"
require_programs fish zsh

completions=$build/packaging/completions

# Bash makes "=" a word of its own.
bash_offers() {
    bash --norc -c '
        source "$1/${2%% *}.bash"
        read -ra COMP_WORDS <<<"${2//=/ = }"
        [[ $2 != *" " ]] || COMP_WORDS+=("")
        COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        "_${COMP_WORDS[0]}"
        printf "%s\n" "${COMPREPLY[@]}"' - "$completions" "$1"
}

fish_offers() {
    HOME=$workspace fish --no-config -c '
        source $argv[1]/(string split -f 1 " " $argv[2]).fish
        complete -C $argv[2]' "$completions" "$1" | cut -f 1
}

# offers LINE WORD...: at the end of the line each shell offers these words, in the order of the alphabet.
offers() {
    local line=$1 shell
    shift
    for shell in bash fish; do
        same "$shell: $line" "$*" "$("${shell}_offers" "$line" | sed 's/=$//; s/^--[a-z]*=//' | sort | xargs)"
    done
}

# Zsh offers only within its line editor.
for name in tarnwick RootTarnwick2; do
    check "zsh reads the completions of $name" zsh -n "$completions/_$name"
done
offers "tarnwick s" save size storage
offers "tarnwick save no" notes
offers "tarnwick save notes p" packages photos
offers "tarnwick save photos pho"
offers "tarnwick size --verbose ca" calendar call-history
offers "tarnwick size notes ph" photos
offers "tarnwick help re" reboot remove respring restore
offers "tarnwick list "
touch "$workspace/phone.tarnwick"
offers "tarnwick import $workspace/ph" "$workspace/phone.tarnwick"
offers "tarnwick export --verify $workspace/ph" "$workspace/phone.tarnwick"
offers "tarnwick export copy "
offers "tarnwick folders C" CydiaPackages CydiaSources
offers "tarnwick remove " backups sources-list
offers "tarnwick restore all --then " nothing reboot respring
offers "tarnwick restore all --then=re" reboot respring
offers "tarnwick --then reboot res" respring restore
offers "tarnwick mail --to owner@example.org --t" --to
offers "tarnwick restore notes --t" --then
offers "tarnwick list --j" --json
refuse "fish: tarnwick list --d" grep -q dry <<<"$(fish_offers "tarnwick list --d")"
offers "RootTarnwick2 --action s" save save-all
