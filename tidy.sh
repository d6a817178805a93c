#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Runs clang-tidy over the product's sources, or over the named ones. It is no part of test.sh,
# since it takes longer than all the rest.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_packages "${build_packages[@]}" "${tidy_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
dir=$build_root/tidy
# Clang can't read the precompiled headers of another compiler.
(cd "$source_dir" && cmake --preset release -B "$dir" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    -DCORVANE_BUILD_TESTS=OFF -DCORVANE_BUILD_BENCHMARKS=OFF) || fail "could not configure"
# The generated headers and sources alone.
for target in corvane_plugin_objects corvane_inspector_objects ubn_corvane_extender \
    corvane_example_plugin; do
    cmake --build "$dir" --target "${target}_autogen" || fail "could not generate sources"
done
sed -i 's/ -fpch-preprocess//g' "$dir/compile_commands.json"

if [ $# -gt 0 ]; then
    printf '%s\0' "$@"
else
    cd "$source_dir" && find platform plugin inspector examples -name '*.cpp' -print0
fi | xargs -0 -n 1 -P "$jobs" clang-tidy -p "$dir" --quiet
