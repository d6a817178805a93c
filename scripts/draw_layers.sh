#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Draws docs/layers.svg from the includes of the sources: a box for each folder, in its target, and
# an arrow for what includes what, with the number of includes. With --check it draws nothing and
# fails when the picture isn't what the sources give.
# Usage: draw_layers.sh [--check] [SOURCE_DIR]
set -euo pipefail
export LC_ALL=C # numbers with a point, and one order everywhere
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
check=
if [ "${1:-}" = --check ]; then
    check=yes
    shift
fi
source_dir=${1:-$scripts/..}
picture=$source_dir/docs/layers.svg

draw() {
    "$scripts/list_includes.sh" "$source_dir" |
        awk -F '\t' -v style="$scripts/layers/style.css" -f "$scripts/layers/places.awk" \
            -f "$scripts/layers/arrows.awk" -f "$scripts/layers/picture.awk"
}

if [ -z "$check" ]; then
    drawn=$(draw)
    printf '%s\n' "$drawn" >"$picture"
elif ! diff <(draw) "$picture" >/dev/null; then
    echo "docs/layers.svg isn't what the sources give; run scripts/draw_layers.sh" >&2
    exit 1
fi
