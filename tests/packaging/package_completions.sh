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

# The line once every match has been put into it, in a terminal of its own.
cat >"$workspace/.zshrc" <<'ZSH'
fpath=($COMPLETIONS $fpath)
autoload -Uz compinit && compinit -u -D
every_match() { _main_complete; compstate[insert]=all }
zle -C every-match complete-word every_match
zle-line-init() {
    BUFFER=$LINE
    CURSOR=$#BUFFER
    zle every-match
    print -r -- $BUFFER >$ANSWER
    exit
}
zle -N zle-line-init
ZSH
zsh_line() {
    ZDOTDIR=$workspace COMPLETIONS=$completions LINE=$1 ANSWER=$workspace/answer zsh -f -c '
        zmodload zsh/zpty
        zpty shell zsh --no-globalrcs --interactive
        while zpty -r shell; do :; done' >/dev/null
    cat "$workspace/answer"
}

zsh_offers() {
    local line
    line=$(zsh_line "$1")
    [[ $line == "$1" ]] || tr ' ' '\n' <<<"${line#"${1% *} "}"
}

# offers LINE WORD...: at the end of the line each shell offers these words, in the order of the alphabet.
offers() {
    local line=$1 shell
    shift
    for shell in bash fish zsh; do
        same "$shell: $line" "$*" "$("${shell}_offers" "$line" | sed 's/=$//; s/^--[a-z]*=//' | sort | xargs)"
    done
}

offers "tarnwick s" save size storage
offers "tarnwick save no" notes
offers "tarnwick save notes p" packages photos
offers "tarnwick save photos pho"
offers "tarnwick size --yes ca" calendar call-history
offers "tarnwick size notes "
offers "tarnwick list "
offers "tarnwick folders C" CydiaPackages CydiaSources
offers "tarnwick remove " backups sources-list
offers "tarnwick restore all --then " nothing reboot respring
offers "tarnwick restore all --then=re" reboot respring
offers "tarnwick --then reboot res" respring restore
offers "tarnwick mail --to owner@example.org --t" --then --to
offers "RootTarnwick2 --action s" save save-all
