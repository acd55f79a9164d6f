# SPDX-FileCopyrightText: 2026 The Kalvenor authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Completion of kalvenor in bash. Commands, options and their choices come from the program's own help.

_kalvenor() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local program=${COMP_WORDS[0]/#\~\//$HOME/} commands=() help word value
    COMPREPLY=()

    help=$("$program" --help 2>/dev/null)
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        # What is no command of those before it is an option or a value.
        if [[ $word =~ ^[a-z]+$ ]] && sed -n '/^Subcommands:/,$p' <<<"$help" | grep -q "^  $word "; then
            commands+=("$word")
            help=$("$program" "${commands[@]}" --help 2>/dev/null)
        fi
    done

    # "--sex m|w|mw" names its choices, "--program DIR" a folder; with anything else bash offers files.
    if [[ $before == --* ]]; then
        value=$(sed -nE "s/^  (-[a-z],)?$before ([^ ]+) .*/\2/p" <<<"$help")
        case $value in
        F.*) return ;;
        *'|'*) mapfile -t COMPREPLY < <(compgen -W "${value//|/ }" -- "$current") ;;
        DIR) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
        esac
        [ -z "$value" ] || return
    fi
    case $current in
    -*) value=$(grep -oE '^  (-[a-z],)?--[a-z-]+' <<<"$help" | grep -oE -- '--[a-z-]+') ;;
    *) value=$(sed -n '/^Subcommands:/,$s/^  \([a-z]*\) .*/\1/p' <<<"$help") ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$value" -- "$current")
}
complete -o bashdefault -o default -F _kalvenor kalvenor
