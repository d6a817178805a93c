#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Looks for inputs that break the program, with libFuzzer and the address and undefined-behaviour
# sanitizers. A finding is made as small as it goes and put into fuzz/corpus/, where it fails the
# ordinary tests from then on.
# Usage: fuzz.sh [TARGET] [--minutes N] [--seed N]
#   TARGET       a folder of fuzz/corpus/; without it, all take turns
#   --minutes N  in all, 10 without it
#   --seed N     repeats a run; without it, another one each time
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
targets=()
minutes=10
seed=$(random_seed)
corpus=$source_dir/fuzz/corpus
while [ $# -gt 0 ]; do
    case $1 in
        --minutes | --seed)
            take_number "$1" "${2:-}"
            shift
            ;;
        *)
            [ -d "$corpus/$1" ] || fail "no target $1; there are: $(ls "$corpus" | xargs)"
            targets+=("$1")
            ;;
    esac
    shift
done
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(ls "$corpus")

install_packages "${build_packages[@]}" "${fuzz_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
build fuzz "${targets[@]/#/fuzz_}" >"$build_root/fuzz.log" 2>&1 ||
    { tail -n 30 "$build_root/fuzz.log"; fail "could not build"; }

export QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$source_dir/cmake/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
findings=$build_root/fuzz/findings
grown=$build_root/fuzz/grown
rm -rf "$findings"
mkdir -p "$findings"
# A target's turn: at least a few seconds, or nothing would be run at all.
seconds=$((minutes * 60 / ${#targets[@]}))
[ "$seconds" -ge 5 ] || seconds=5

# keep TARGET FINDING: makes it small, and puts it into the corpus.
keep() {
    local target=$1 finding=$2 small=$findings/small name
    "$build_root/fuzz/bin/fuzz_$target" -minimize_crash=1 -max_total_time=30 -timeout=10 \
        -exact_artifact_path="$small" "$finding" >/dev/null 2>&1
    [ -s "$small" ] || cp "$finding" "$small"
    name=found_$(sha1sum "$small" | cut -c 1-8)
    mv "$small" "$corpus/$target/$name"
    echo "A finding: fuzz/corpus/$target/$name"
}

# run TARGET: fails if something was found. What libFuzzer finds interesting stays in the build
# tree, so that the next run begins there; the corpus holds only what a person put there, and
# findings.
run() {
    local target=$1 log=$findings/$1.log finding found=
    mkdir -p "$grown/$target"
    echo "=== $target: $seconds s, seed $seed"
    "$build_root/fuzz/bin/fuzz_$target" -seed="$seed" -max_total_time="$seconds" -timeout=10 \
        -max_len=4096 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$findings/$target-" "$grown/$target" "$corpus/$target" >"$log" 2>&1 &&
        { grep -E '^(Done|stat::number_of_executed_units)' "$log"; return 0; }
    for finding in "$findings/$target"-*; do
        [ -f "$finding" ] && found=yes && keep "$target" "$finding"
    done
    grep -vE '^(#|INFO:)' "$log" | tail -n 30
    [ -n "$found" ] || echo "Failed without an input: $log"
    return 1
}

failed=0
for target in "${targets[@]}"; do
    run "$target" || failed=1
done
[ "$failed" -eq 0 ] || fail "there are findings"
