#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Reads the sources with cppcheck, and builds them by Clang with clazy's checks up to level 1. Fails
# on any finding. clang-tidy has a command of its own, lint.sh.
# Usage: static_checks.sh [cppcheck | clazy]
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
[[ $# -eq 0 || $* =~ ^(cppcheck|clazy)$ ]] || fail "cppcheck or clazy, or nothing for both"
install_packages "${build_packages[@]}" "${static_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
cd "$source_dir" || exit

# Without Qt's headers, whose meaning it knows by heart; with all of our own.
run_cppcheck() {
    local includes=() folder
    while read -r folder; do
        includes+=(-I "$folder")
    done < <(find "${product_folders[@]}" -type d)
    # What it keeps from one run to the next doesn't notice that the macros changed.
    [ "$build_root/cppcheck" -nt cmake/cppcheck.cfg ] || rm -rf "$build_root/cppcheck"
    mkdir -p "$build_root/cppcheck"
    # "forever" is no macro here, since the sources do without Qt's keywords.
    cppcheck --language=c++ --std=c++20 --library=qt --library=cmake/cppcheck.cfg \
        -U forever "${includes[@]}" \
        --enable=warning,performance,portability --inline-suppr \
        --suppressions-list=cmake/cppcheck.supp --cppcheck-build-dir="$build_root/cppcheck" \
        --quiet -j "$jobs" --error-exitcode=1 "${source_folders[@]}"
}

# A finding is an error, so that a source with one is read again the next time.
run_clazy() {
    local log=$build_root/clazy.log
    export CLAZY_CHECKS=level1,no-qstring-ref # as in the preset, which tells only CMake
    configure clazy -DCORVANE_WARNINGS_AS_ERRORS=ON >"$log" 2>&1 ||
        { tail -n 20 "$log"; return 1; }
    cmake --build "$build_root/clazy" --parallel "$jobs" -- -k 0 >"$log" 2>&1 && return
    grep -hE '(error|warning): ' "$log" | sort -u
    return 1
}

failed=()
for check in ${1:-cppcheck clazy}; do
    echo "=== $check"
    "run_$check" || failed+=("$check")
done
[ ${#failed[@]} -eq 0 ] || fail "there are findings: ${failed[*]}"
