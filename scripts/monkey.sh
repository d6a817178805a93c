#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Uses the program at random, with mouse and keys, under the address, leak and undefined-behaviour
# sanitizers, until something breaks or the time is over. A round that fails is cut down to its
# shortest list of steps, which is printed.
# Usage: monkey.sh [--minutes N] [--seed N] [--steps N] [--xvfb] [--release]
#   --minutes N  10 without it
#   --seed N     of the first round, each further one has the next; without it, another one each time
#   --steps N    of a round, 200 without it
#   --xvfb       on an X server with a window manager
#   --release    the release build: no sanitizers, but ten times the rounds
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
minutes=10
seed=$(random_seed)
steps=200
preset=asan
server=()
platform=offscreen
while [ $# -gt 0 ]; do
    case $1 in
        --minutes | --seed | --steps)
            take_number "$1" "${2:-}"
            shift
            ;;
        --xvfb) server=("$source_dir/tests/xvfb-run.sh") platform=xcb ;;
        --release) preset=release ;;
        *) fail "unknown option $1" ;;
    esac
    shift
done

install_packages "${build_packages[@]}" "${test_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
build "$preset" corvane_monkey >"$build_root/monkey.log" 2>&1 ||
    { tail -n 30 "$build_root/monkey.log"; fail "could not build"; }

use_own_home "$build_root/$preset/test_home/monkey"
export QT_QPA_PLATFORM=$platform
export LSAN_OPTIONS=suppressions=$source_dir/cmake/lsan.supp:print_suppressions=0
export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
"${server[@]}" "$build_root/$preset/bin/corvane_monkey" \
    --seconds $((minutes * 60)) --seed "$seed" --steps "$steps"
