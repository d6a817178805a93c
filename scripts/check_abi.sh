#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Compares the binary interface of the installed libraries with that of the last release, which
# abi/ describes: a plug-in or a program that was built then must load and run today. What is new
# is no difference. An interface that has to change takes another major version.
# Usage: check_abi.sh [--release]
#   --release  describes the interface as it is now; part of making a release
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

[ $# -eq 0 ] || [ "$*" = --release ] || fail "unknown arguments: $*"
install_packages "${build_packages[@]}" "${abi_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
libraries=(ubn_kestrix_base ubn_kestrix ubn_kestrix_gl ubn_corvane_extender corvane_inspector
    corvane_objects)
log=$build_root/abi.log
build release "${libraries[@]}" >"$log" 2>&1 || { tail -n 20 "$log"; fail "could not build"; }

version=$(sed -nE 's/^project\(corvane VERSION ([0-9.]+).*/\1/p' "$source_dir/CMakeLists.txt")
# What no installed header declares is an inner detail.
public=(--headers-dir "$source_dir/platform" --header-file "$source_dir/inspector/CrvInspector.h"
    --header-file "$source_dir/bridge/CrvObjects.h"
    --header-file "$source_dir/bridge/CrvObjectDetails.h")

# describe LIBRARY: its interface as XML.
describe() {
    abidw --no-show-locs --no-comp-dir-path --no-corpus-path --drop-private-types \
        --exported-interfaces-only "${public[@]}" "$build_root/release/lib/lib$1.so"
}

if [ "${1:-}" = --release ]; then
    mkdir -p "$source_dir/abi"
    for library in "${libraries[@]}"; do
        describe "$library" | gzip -9n >"$source_dir/abi/$library.abi.gz" ||
            fail "could not describe $library"
    done
    echo "$version" >"$source_dir/abi/version"
    exit
fi

released=$(cat "$source_dir/abi/version") || fail "no release is described in abi/"
if [ "${version%%.*}" != "${released%%.*}" ]; then
    echo "$version may differ from $released, whose libraries bear another number"
    exit
fi
described=$(mktemp -d) || fail "no folder for temporary files"
trap 'rm -rf "$described"' EXIT
differing=()
for library in "${libraries[@]}"; do
    gunzip -c "$source_dir/abi/$library.abi.gz" >"$described/then.abi" &&
        describe "$library" >"$described/now.abi" || fail "could not read $library"
    abidiff --no-added-syms --no-unreferenced-symbols "$described/then.abi" "$described/now.abi" ||
        differing+=("$library")
done
[ ${#differing[@]} -eq 0 ] ||
    fail "what was built with $released doesn't run with: ${differing[*]}"
echo "${#libraries[@]} libraries have the interface of $released"
