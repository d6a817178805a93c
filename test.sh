#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs what is missing, builds everything and runs all checks: the format, lint of what changed,
# the tests of the release build, its binary interface against the last release, the same tests under
# the address, leak and undefined-behaviour sanitizers, and those of several threads under the thread
# sanitizer. Goes on behind a failure; ends with a summary.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}" "${lint_packages[@]}" \
    "${abi_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
logs=$build_root/test_logs
rm -rf "$logs"
mkdir -p "$logs" || fail "cannot write $logs"

summary=()
failures=0

# step NAME COMMAND...: runs a check, keeps its output and notes how it ended.
step() {
    local name=$1 start=$SECONDS log=$logs/$1.log status counts
    shift
    echo "=== $name"
    "$@" 2>&1 | tee "$log"
    status=${PIPESTATUS[0]}
    counts=$(grep -E 'tests (passed|failed)' "$log")
    if [ "$status" -eq 0 ]; then
        summary+=("passed  $name ($((SECONDS - start)) s)${counts:+: $counts}")
    else
        summary+=("FAILED  $name ($((SECONDS - start)) s)${counts:+: $counts}")
        failures=$((failures + 1))
    fi
    return "$status"
}

# suite PRESET [--target TARGET] [CTEST OPTIONS...]: builds, and runs the tests if that worked.
suite() {
    local preset=$1 targets=()
    shift
    if [ "${1:-}" = --target ]; then
        targets=("$2")
        shift 2
    fi
    step "build-$preset" build "$preset" "${targets[@]}" &&
        step "test-$preset" ctest --test-dir "$build_root/$preset" -j "$jobs" \
            --output-on-failure --no-tests=error "$@"
}

step format "$source_dir/scripts/check_format.sh"
step lint "$source_dir/scripts/lint.sh" --minutes 6
suite release && step abi "$source_dir/scripts/check_abi.sh"
suite asan
suite tsan --target corvane_tsan_tests -L tsan

echo
echo "=== Summary"
printf '%s\n' "${summary[@]}"
[ "$failures" -eq 0 ]
