#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Builds and runs the benchmarks, which measure each figure against a rival in the same process, says
# how what was measured at several sizes grows, and writes all that is printed, with the machine and
# the commit, to build/benchmarks.json.
# Measure on a machine that has nothing else to do.
# Usage: benchmarks.sh [--quick] [--instructions] [--write] [BENCH...]
#   --quick         tiny runs, whose figures mean nothing, to see that all works
#   --instructions  counts instructions by callgrind as well, for the benchmarks that can be run one
#                   by one; they hold also where the clock is noisy
#   --write         puts the output into docs/benchmarks.md, at the end of the section of each bench
#   BENCH           a program, as bench_image; without it, all
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
declare -A quick=([bench_arrays]="1" [bench_console]="2000 20000" [bench_image]="1"
    [bench_live]="30 1" [bench_load]="5" [bench_program]="1"
    [bench_scene_files]="1" [bench_scene_filter]="1"
    [bench_scene_tree]="1" [bench_selection]="1" [bench_start]="1" [bench_view]="3"
    [bench_field_text]="--benchmark_min_time=0.01" [bench_objects]="--benchmark_min_time=0.01"
    [bench_undo]="--benchmark_min_time=0.01" [bench_watch]="--benchmark_min_time=0.01")
is_quick=
instructions=
write=
benches=()
for argument in "$@"; do
    case $argument in
        --quick) is_quick=yes ;;
        --instructions) instructions=yes ;;
        --write) write=yes ;;
        *)
            [ -n "${quick[$argument]+known}" ] || fail "no bench $argument; there are: ${!quick[*]}"
            benches+=("$argument")
            ;;
    esac
done
[ ${#benches[@]} -gt 0 ] || mapfile -t benches < <(printf '%s\n' "${!quick[@]}" | sort)
[ -z "$write" ] || [ -z "$is_quick" ] || fail "figures of a quick run aren't written down"

packages=("${build_packages[@]}")
[ -z "$instructions" ] || packages+=(valgrind)
install_packages "${packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
results=$build_root/benchmarks
bin=$build_root/release/bin
doc=$source_dir/docs/benchmarks.md
mkdir -p "$results"
build release "${benches[@]}" corvane >"$results/build.log" 2>&1 ||
    { tail -n 20 "$results/build.log"; fail "could not build"; }
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
load=$(cut -d ' ' -f 1 /proc/loadavg)
awk -v load="$load" -v cores="$(nproc)" 'BEGIN { exit !(load > 0.3 * cores) }' &&
    echo "The machine is busy (load $load): don't trust the times." >&2

# count BENCH: instructions of each of its benchmarks, without those of the start.
count() {
    local name start counted
    counted() {
        valgrind --tool=callgrind --callgrind-out-file=/dev/null "$bin/$1" \
            --benchmark_filter="$2" --benchmark_min_time=1e-9 --benchmark_repetitions=1 2>&1 |
            sed -nE 's/.*Collected : ([0-9]+).*/\1/p'
    }
    start=$(counted "$1" '^none$')
    while read -r name; do
        counted=$(counted "$1" "^$name\$")
        printf '%-40s %15d instructions\n' "$name" $((counted - start))
    done < <("$bin/$1" --benchmark_list_tests)
}

# growth BENCH: for what was measured at three sizes or more, the power of the size with which our
# time grows, fitted to all of them: 0 is the same for any size, 1 in proportion to it.
growth() {
    awk '
        function note(label, n, time) {
            if (time <= 0)
                return
            if (!(label in count))
                order[++labels] = label
            x = log(n); y = log(time)
            ++count[label]
            sx[label] += x; sy[label] += y; sxx[label] += x * x; sxy[label] += x * y
        }
        # "1000 rows" is a heading; "256 x 256  3 components: ..." and "name/1000" tell their sizes
        # themselves.
        match($0, /^[0-9]+ [a-z]+/) {
            if ($2 == unit && $1 + 0 <= rows) ++part # another table begins with the smallest size
            rows = $1 + 0
            unit = $2
            next
        }
        /^[A-Za-z]+\/[0-9]+_median +[0-9.]+ [num]s +[0-9.]+ [num]s/ {
            split($1, side, "/")
            note(side[1], side[2] + 0, $4) # processor time
            next
        }
        / x [0-9]+ .*: +[0-9.]+ ms/ {
            split($0, side, ":")
            split(side[2], word, " ")
            sub(/^.* x [0-9]+ +/, "", side[1])
            note(side[1], $1 * $3, word[1])
            next
        }
        rows && match($0, / +[0-9]+\.[0-9]+ (ms,|\()/) {
            label = substr($0, 1, RSTART - 1)
            sub(/^ +/, "", label)
            rest = substr($0, RSTART)
            # In a table with one column for each contender, the first is the bare rival.
            if (rest !~ /^ +[0-9.]+ ms/) sub(/^[^)]*\)/, "", rest)
            split(rest, word, " ")
            note(label (part ? " (table " part + 1 ")" : ""), rows, word[1])
        }
        END {
            for (i = 1; i <= labels; ++i) {
                label = order[i]
                n = count[label]
                spread = n * sxx[label] - sx[label] * sx[label]
                if (n >= 3 && spread > 0)
                    printf "%-50s grows with the power %.2f of the size\n", label,
                        (n * sxy[label] - sx[label] * sy[label]) / spread
            }
        }' "$results/$1.txt"
}

# json TEXT: as a JSON string.
json() { printf '"%s"' "$(sed 's/[\\"]/\\&/g; s/\t/ /g; s/[[:cntrl:]]//g' <<<"$1")"; }

# section BENCH: the output as it stands in the documentation, in place of the former one.
section() {
    local begin="<!-- $1: begin of what the program printed -->" end="<!-- $1: end -->"
    awk -v begin="$begin" -v end="$end" -v bench="$1" -v output="$results/$1.txt" \
        -v from="$(machine), $(git -C "$source_dir" log -1 --format=%h 2>/dev/null)" '
        function generated(line) {
            print begin "\n\n" from ":\n\n```"
            while ((getline line < output) > 0)
                print line
            print "```\n\n" end
            done = 1
        }
        $0 == begin { skipping = 1; generated() }
        skipping { if ($0 == end) skipping = 0; next }
        /^## / {
            if (mine && !done) { generated(); print "" }
            mine = index($0, "`" bench "`")
        }
        { print }
        END { if (mine && !done) { print ""; generated() } }' "$doc" >"$results/doc.md" &&
        mv "$results/doc.md" "$doc"
}

machine() {
    echo "$(sed -nE 's/^model name\s*: //p' /proc/cpuinfo | sort -u | head -n 1), $(nproc) cores"
}

failed=()
{
    printf '{\n  "machine": %s,\n  "load": %s,\n  "quick": %s,\n' "$(json "$(machine)")" "$load" \
        "$([ -n "$is_quick" ] && echo true || echo false)"
    printf '  "commit": %s,\n  "benches": [' \
        "$(json "$(git -C "$source_dir" log -1 --format=%H 2>/dev/null)")"
} >"$results/new.json"
separator=
for bench in "${benches[@]}"; do
    echo "=== $bench"
    options=()
    [ -z "$is_quick" ] || read -ra options <<<"${quick[$bench]}"
    started=$SECONDS
    "$bin/$bench" "${options[@]}" 2>"$results/$bench.err" | tee "$results/$bench.txt"
    [ "${PIPESTATUS[0]}" -eq 0 ] || { failed+=("$bench"); cat "$results/$bench.err"; }
    growth "$bench" >"$results/growth.txt"
    tee -a "$results/$bench.txt" <"$results/growth.txt"
    [ -z "$instructions" ] || [[ ${quick[$bench]} != --benchmark* ]] ||
        count "$bench" | tee -a "$results/$bench.txt"
    {
        printf '%s\n    { "name": %s, "seconds": %d,\n      "output": [' "$separator" \
            "$(json "$bench")" $((SECONDS - started))
        separator=,
        comma=
        while IFS= read -r line; do
            printf '%s\n        %s' "$comma" "$(json "$line")"
            comma=,
        done <"$results/$bench.txt"
        printf '\n      ] }'
    } >>"$results/new.json"
    [ -z "$write" ] || section "$bench"
done
printf '\n  ]\n}\n' >>"$results/new.json"
mv "$results/new.json" "$build_root/benchmarks.json"
[ ${#failed[@]} -eq 0 ] || fail "failed: ${failed[*]}"
