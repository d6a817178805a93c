#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Says which lines no test reaches: builds with GCC's counters, runs the tests, and prints each file
# that has such lines, with their numbers, the worst first.
# Usage: coverage.sh [PATTERN]
#   PATTERN  only tests whose name matches, as ctest -R has it; without it, all but the runs of the
#            same program in another locale or on another platform
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
dir=$build_root/coverage
if [ $# -gt 0 ]; then
    configure coverage && mapfile -t targets < <(ctest --test-dir "$dir" -N -R "$1" -LE 'german|xvfb' |
        sed -nE 's/^ *Test +#[0-9]+: ((test|fuzz)_.*)$/\1/p') && [ ${#targets[@]} -gt 0 ] ||
        fail "no test matches $1"
    # The plug-in is loaded by those that don't link it.
    build coverage ubn_corvane_extender_base "${targets[@]}" || fail "could not build"
else
    build coverage || fail "could not build"
fi
find "$dir" -name '*.gcda' -delete
ctest --test-dir "$dir" -j "$jobs" -R "${1:-.}" -LE 'german|xvfb' --output-on-failure ||
    echo "A test failed; the lines are counted nevertheless." >&2

# gcov prints each line of a source as "count:number:text"; "#####" and "=====" mark those that
# were never reached. A template or an inline function stands in several objects, and a line counts
# as reached if it was in one of them.
cd "$dir" || exit
find . -name '*.gcda' -print0 |
    xargs -0 -n 8 gcov --stdout --source-prefix "$source_dir" --relative-only 2>/dev/null |
    awk -F: -v folders="^($(IFS='|'; echo "${product_folders[*]}"))/" '
        { gsub(/ /, "", $1); gsub(/ /, "", $2) }
        $2 == 0 && $3 == "Source" { file = $4; wanted = file ~ folders; next }
        !wanted || $1 == "-" || $2 == 0 { next }
        { place = file ":" $2; lines[place] = 1 }
        $1 !~ /^[#=]/ { reached[place] = 1 }
        END {
            for (place in lines) {
                split(place, part, ":")
                ++all[part[1]]
                if (!(place in reached))
                    print part[1] "\t" part[2]
            }
            for (file in all)
                print file "\t0\t" all[file]
        }' | sort -t "$(printf '\t')" -k 1,1 -k 2,2n |
    awk -F '\t' '
        function close_range() {
            if (first)
                ranges = ranges (ranges ? ", " : "") (first == last ? first : first "-" last)
            first = 0
        }
        function finish() {
            close_range()
            if (missed)
                printf "%5d of %4d  %s: %s\n", missed, all, file, ranges | "sort -rn"
            total += all
            unreached += missed
        }
        $1 != file { finish(); file = $1; missed = all = 0; ranges = "" }
        $2 == 0 { all = $3; next }
        {
            ++missed
            if (!first || $2 != last + 1) {
                close_range()
                first = $2
            }
            last = $2
        }
        END {
            finish()
            close("sort -rn")
            printf "%d of %d lines are reached, %.1f %%\n", total - unreached, total,
                total ? 100 * (total - unreached) / total : 0
        }'
