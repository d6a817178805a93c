#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Plays with the program for a long time, in one window and one process, while its scene moves 60
# times a second and numbers of it are watched. Fails if memory, open files, timers, widgets or
# objects grow. Prints what the process holds after each round.
# Usage: soak.sh [--minutes N] [--seed N]
#   --minutes N  60 without it
#   --seed N     of the first round; without it, another one each time
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
minutes=60
seed=$((RANDOM * 32768 + RANDOM + 1))
while [ $# -gt 0 ]; do
    case $1 in
        --minutes | --seed)
            [[ ${2:-} =~ ^[1-9][0-9]*$ ]] || fail "$1 takes a number"
            declare "${1#--}=$2"
            shift
            ;;
        *) fail "unknown option $1" ;;
    esac
    shift
done

install_packages "${build_packages[@]}" "${test_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
log=$build_root/soak.log
build release corvane_monkey >"$log" 2>&1 || { tail -n 30 "$log"; fail "could not build"; }

home=$build_root/release/test_home/soak
mkdir -p -m 700 "$home/runtime"
export XDG_RUNTIME_DIR=$home/runtime XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
export LC_ALL=C.UTF-8
# On an X server: the offscreen platform crashes by itself after many docks that float, see
# tests/monkey/PlatformFault.h.
"$source_dir/tests/xvfb-run.sh" "$build_root/release/bin/corvane_monkey" \
    --soak "$minutes" --seed "$seed" >"$log"
status=$?
[ "$status" -eq 0 ] || { tail -n 20 "$log"; fail "the steps are in $log"; }
