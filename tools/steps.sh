# Steps with a name, a time and a sign of life, and an end for all that they
# start. Sourced by check, demo and the programs beside this file.
#
# From here on the script owns what it starts: at its end, by whatever exit or
# interrupt, every process below it, and every one that carries its mark in the
# environment (a client that put itself into the background), is ended, and the
# directories of `scratch` are removed.
# shellcheck shell=bash

readonly program=${0##*/}
scratch=() # directories to remove at the end
log_dir=   # where the steps' output goes; a directory of scratch by default
step_number=0
running=() # set by find_running
QUILLMERE_RUN=${QUILLMERE_RUN-}/$program-$$
export QUILLMERE_RUN

fail() { # TEXT [EXIT_CODE]
    echo "$program: $1" >&2
    exit "${2-1}"
}

# A process that has ended and waits for nobody's wait is gone.
runs() { # PID
    local line
    { read -r line <"/proc/$1/stat"; } 2>/dev/null && [[ ${line##*) } != Z* ]]
}

# Sets `running` to the processes below this one, those with its mark, and those that
# were found before and have lost their parents since.
find_running() {
    local -A parent=() mine=([$$]=1)
    local line pid rest grown=yes
    for pid in "${running[@]}"; do mine[$pid]=1; done
    while IFS=/ read -r _ _ pid _; do mine[$pid]=1; done \
        < <(grep -lzsE "^QUILLMERE_RUN=$QUILLMERE_RUN(/|\$)" /proc/[0-9]*/environ || true)
    wait $! 2>/dev/null || true # for the search itself, which is a process below this one
    for line in /proc/[0-9]*/stat; do
        { read -r line <"$line"; } 2>/dev/null || continue
        rest=${line##*) }
        [[ $rest == Z* ]] || read -r _ "parent[${line%% *}]" _ <<<"$rest"
    done
    while [[ -n $grown ]]; do
        grown=
        for pid in "${!parent[@]}"; do
            [[ -z ${mine[${parent[$pid]}]-} || -n ${mine[$pid]-} ]] || mine[$pid]=1 grown=yes
        done
    done
    unset "mine[$$]"
    running=()
    for pid in "${!mine[@]}"; do [[ -z ${parent[$pid]-} ]] || running+=("$pid"); done
}

# Also what runs as root, as a package manager does; through the shell's own kill,
# because the program need not be installed.
signal_running() { # SIGNAL
    local pid others=()
    for pid in "${running[@]}"; do
        kill "-$1" "$pid" 2>/dev/null || ((EUID == 0)) || ! runs "$pid" || others+=("$pid")
    done
    ((${#others[@]} == 0)) || sudo sh -c 'kill "$@"' sh "-$1" "${others[@]}" 2>/dev/null || true
}

# Asks what runs to end, and ends after four seconds what has not. Everything is
# stopped first: what ran on could start another while it is being looked for.
end_running() {
    local tenths found signal=TERM
    for ((tenths = 0; tenths < 100; tenths++)); do
        find_running
        ((${#running[@]} > 0)) || return 0
        if ((tenths % 40 == 0)); then
            for ((found = 0; ${#running[@]} > found; )); do
                found=${#running[@]}
                signal_running STOP
                find_running
            done
            signal_running "$signal"
            signal_running CONT
            signal=KILL
        fi
        sleep 0.1
    done
    echo "$program: could not be ended: ${running[*]}" >&2
}

on_exit() {
    local status=$? directory
    trap '' INT TERM HUP
    if ((status > 128)); then echo "$program: interrupted, ending what was started" >&2; fi
    end_running
    at_end "$status"
    for directory in "${scratch[@]}"; do
        [[ ! -O $directory ]] || rm -rf -- "$directory"
    done
    exit "$status"
}
at_end() { :; } # STATUS: for the script to define
trap on_exit EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

# make_scratch NAME: a directory of our own, its path in the variable NAME. It is
# known for removal before it exists.
make_scratch() {
    local -n path=$1
    path=${TMPDIR:-/tmp}/quillmere-$program.$$$RANDOM
    scratch+=("$path")
    mkdir -m 700 -- "$path"
}

exec {never}<> <(:)                            # nothing is ever read from it
pause() { read -rt "$1" -u "$never" || true; } # SECONDS; unlike sleep, an interrupt ends it at once

duration() { # SECONDS
    if (($1 < 100)); then echo "$1 s"; else echo "$(($1 / 60)) min $(($1 % 60)) s"; fi
}

size() { # PATH...
    { du -shc -- "$@" 2>/dev/null || true; } | awk 'END { sub(/[KMGT]/, " &B", $1); print $1 }'
}

# Shows that PID, whose output goes to LOG, is at work: its time and last words
# on a terminal, a dot every five seconds elsewhere.
watch_process() { # PID TEXT LOG
    local begin=$SECONDS shown=0 seconds last
    [[ -t 1 ]] || printf '%s ' "$2"
    while runs "$1"; do
        seconds=$((SECONDS - begin))
        if [[ -t 1 ]]; then
            last=$(tail -qn 1 -- "$3" 2>/dev/null | tr -cd '[:print:]') || true
            printf '\r\e[K%.*s' "$(($(tput cols 2>/dev/null || echo 80) - 1))" "$2 ... $(duration "$seconds")  $last"
        elif ((seconds / 5 > shown)); then
            shown=$((seconds / 5))
            printf .
        fi
        pause 0.2
    done
    if [[ -t 1 ]]; then printf '\r\e[K%s ' "$2"; elif ((shown > 0)); then printf ' '; fi
    duration "$((SECONDS - begin))"
}

# step TEXT COMMAND...: runs the command in the background and waits for it. Its
# failure ends the script: with 77 where that is what the command says (it cannot
# be done here at all), with 1 otherwise. Never to be called where a failure is
# looked at (if, &&, ||): the shell would ignore failures inside the command.
step() {
    local text=$1 log status=0 pid
    shift
    [[ -n $log_dir ]] || make_scratch log_dir
    mkdir -p -- "$log_dir"
    log=$log_dir/$((++step_number))-${text//[^[:alnum:]]/_}.log
    set -m # a process group of its own: an interrupt is for this script to pass on
    ("$@") </dev/null >"$log" 2>&1 &
    pid=$!
    set +m
    watch_process "$pid" "$text" "$log"
    wait "$pid" 2>/dev/null || status=$?
    ((status != 0)) || return 0
    tail -n "${step_tail:-40}" -- "$log" | cut -c 1-500 >&2
    ((status != 77)) || fail "$text: cannot be done on this machine" 77
    fail "$text: failed with exit code $status"
}
