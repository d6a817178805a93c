#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs a build tree into a folder of its own and fails unless the program found there runs with
# the plug-in found there, and a plug-in written against the installed headers is built and loaded.
# Usage: check_install.sh CMAKE BUILD_DIR SOURCE_DIR
set -eu
cmake=$1
build=$2
source=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

"$cmake" --install "$build" --prefix "$work/first" >"$work/log"
# Nothing may hang on the place where it was installed.
mv "$work/first" "$prefix"
corvane=$prefix/bin/corvane
scene=$prefix/share/corvane/scenes/all_fields.json

# draw NAME ARGUMENTS...: the window as a picture, without a complaint on standard error.
draw() {
    local picture=$work/$1.png
    shift
    "$corvane" --picture "$picture" "$@" "$scene" >>"$work/log" 2>"$work/errors"
    if grep -v 'does not support propagateSizeHints' "$work/errors" || [ ! -s "$picture" ]; then
        echo "the installed program can't draw its window" >&2
        exit 1
    fi
}

LD_DEBUG=files LD_DEBUG_OUTPUT=$work/trace draw plain
for name in libubn_kestrix_base libubn_kestrix libubn_corvane_extender ubn_corvane_extender_base; do
    grep -q "calling init: $prefix/.*/$name\.so" "$work"/trace.* || {
        echo "$name wasn't loaded from the installed tree" >&2
        exit 1
    }
done

"$cmake" -S "$source/tests/infrastructure/consumer" -B "$work/consumer" -G Ninja \
    -DCMAKE_PREFIX_PATH="$prefix" >>"$work/log"
"$cmake" --build "$work/consumer" >>"$work/log"
draw consumer --plugin "$work/consumer/consumer.so"
