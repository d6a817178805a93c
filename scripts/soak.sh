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
seed=$(random_seed)
while [ $# -gt 0 ]; do
    case $1 in
        --minutes | --seed)
            take_number "$1" "${2:-}"
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

use_own_home "$build_root/release/test_home/soak"
# On an X server: the offscreen platform crashes by itself after many docks that float, see
# tests/monkey/PlatformFault.h.
"$source_dir/tests/xvfb-run.sh" "$build_root/release/bin/corvane_monkey" \
    --soak "$minutes" --seed "$seed" >"$log"
status=$?
[ "$status" -eq 0 ] || { tail -n 20 "$log"; fail "the steps are in $log"; }
