#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs a build tree into a folder of its own and fails unless the program found there runs with
# the plug-in found there, a plug-in written against the installed headers is built and loaded, and
# so is each example program that has the inspector in its process.
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

# build FOLDER NAME: against nothing but the installed tree.
build() {
    "$cmake" -S "$1" -B "$work/$2" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >>"$work/log"
    "$cmake" --build "$work/$2" >>"$work/log"
}

build "$source/tests/infrastructure/consumer" consumer
draw consumer --plugin "$work/consumer/consumer.so"

# run NAME ARGUMENTS...: an example, built like that, shows the inspector.
run() {
    local name=$1
    shift
    build "$source/examples/$name" "$name"
    LD_DEBUG=files LD_DEBUG_OUTPUT=$work/$name.trace \
        "$work/$name/corvane_$name" "$@" >>"$work/log" 2>"$work/errors"
    grep -q "calling init: $prefix/.*/ubn_corvane_extender_base\.so" "$work/$name".trace.* || {
        echo "the example $name runs without the installed plug-in" >&2
        cat "$work/errors" >&2
        exit 1
    }
}

run loop --frames 30
run viewer --inspector --frames 30

# The program that docs/embedding.md tells, from the blocks behind the names of its files.
mkdir "$work/lamp"
awk -v folder="$work/lamp/" '
    /^<!-- file: / { name = $3; sub(/,$/, "", name) }
    /^```$/ { inside = 0; name = "" }
    inside { print >> (folder name) }
    /^```[a-z]/ { inside = name != "" }' "$source/docs/embedding.md"
build "$work/lamp" lamp-build
