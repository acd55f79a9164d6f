# SPDX-FileCopyrightText: 2026 The Kalvenor authors
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# For scripts that play the program on an X server of its own and take pictures. Source it from the project's folder:
#   stage SCRIPT ARG…      starts the script anew inside xvfb-run, with a window manager; $work is its temporary folder
#   demonstration LANG     makes the demonstration host there, in English or Deutsch; sets $program
#   play [TEMPLATE]        starts the program on it
#   await NAME             waits for a window whose title matches and makes it the one that keys go to
#   press KEY…, enter TEXT keys and text to that window
#   expect WHAT COMMAND…   waits until the command succeeds; ended: the program is gone
#   settled, shot FILE     waits until nothing moves any more; does so and saves the window as FILE with few colours
# What never comes ends the script with a message after $patience seconds.
# shellcheck disable=SC2034
kalvenor=$PWD/build/release/src/app/kalvenor
patience=20
colours=48
window=

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

stage() {
    local tool
    [ -x "$kalvenor" ] || fail "build/release has no kalvenor; call ./run first"
    for tool in xvfb-run openbox xdotool import convert pdftoppm; do
        command -v "$tool" >/dev/null || fail "$tool is missing: apt-get install xvfb xauth openbox xdotool imagemagick poppler-utils"
    done
    if [ -z "${KALVENOR_ON_STAGE:-}" ]; then
        export KALVENOR_ON_STAGE=1 LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
        exec xvfb-run -a -s '-screen 0 1400x900x24' "$@"
    fi
    work=$(mktemp -d)
    trap leave EXIT
    export XDG_RUNTIME_DIR=$work HOME=$work
    openbox >/dev/null 2>&1 &
    manager=$!
}

leave() {
    [ -z "${player:-}" ] || kill "$player" 2>/dev/null || true
    kill "$manager" 2>/dev/null || true
    wait
    rm -rf -- "$work"
}

demonstration() {
    rm -rf -- "$work/demo"
    "$kalvenor" demo "$work/demo" >/dev/null
    sed -i "s/^Sprache=[A-Za-z]*/Sprache=$1/" "$work/demo/QV/programm.ini"
    program=$work/demo/QV/Kalvenor
}

play() {
    "$kalvenor" --program "$program" "$@" &
    player=$!
}

expect() {
    local until=$((SECONDS + patience))
    until "${@:2}"; do
        [ "$SECONDS" -lt "$until" ] || fail "this did not come true: $1"
        sleep 0.1
    done
}

ended() {
    ! kill -0 "$player" 2>/dev/null
}

await() {
    local until=$((SECONDS + patience)) found
    until found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [ -n "$found" ]; do
        [ "$SECONDS" -lt "$until" ] || fail "there is no window \"$1\""
        sleep 0.1
    done
    window=$found
    xdotool windowactivate --sync "$window"
}

# At rest: the last six looks saw no more than two pictures, with a blinking cursor and without.
settled() {
    local until=$((SECONDS + patience)) looks=()
    until [ ${#looks[@]} -ge 6 ] && [ "$(printf '%s\n' "${looks[@]: -6}" | sort -u | wc -l)" -le 2 ]; do
        [ "$SECONDS" -lt "$until" ] || fail "the window \"$(xdotool getwindowname "$window")\" does not come to rest"
        sleep 0.1
        looks+=("$(import -silent -window "$window" rgb:- | cksum)")
    done
}

press() {
    xdotool key --clearmodifiers --delay 40 "$@"
}

enter() {
    xdotool type --clearmodifiers --delay 25 "$1"
}

shot() {
    settled
    import -silent -window "$window" png:- | few_colours >"$1"
}

few_colours() {
    convert png:- +dither -colors "$colours" -strip -define png:compression-level=9 png8:-
}
