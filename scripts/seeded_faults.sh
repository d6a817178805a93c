#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Asks what the tests are worth: puts the faults of tests/seeded_faults.txt into a copy of the tree,
# one at a time, builds what changes, runs the tests that have it in them until one fails, and names
# the faults that nobody saw. Fails when more than one in ten went unseen.
# Usage: seeded_faults.sh [--here] [PATTERN]
#   --here   works on this tree and its release build instead of a copy; for a tree that is one.
#            Each file is put back.
#   PATTERN  only faults in files whose path matches, as grep -E has it
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
here=
pattern=.
for argument in "$@"; do
    case $argument in
        --here) here=yes ;;
        -*) fail "unknown option $argument" ;;
        *) pattern=$argument ;;
    esac
done

install_packages "${build_packages[@]}" "${test_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
tree=$source_dir
work=$build_root/seeded_faults
mkdir -p "$work/seen"
if [ -z "$here" ]; then
    tree=$work/tree
    mkdir -p "$tree"
    # Only what differs is copied, so that the copy's build stays good.
    (cd "$source_dir" && git ls-files -z --cached --others --exclude-standard) |
        while IFS= read -r -d '' file; do
            [ -f "$source_dir/$file" ] || continue
            cmp -s "$source_dir/$file" "$tree/$file" ||
                { mkdir -p "$tree/$(dirname "$file")" && cp -p "$source_dir/$file" "$tree/$file"; }
        done
    source_dir=$tree build_root=$work
fi
dir=$build_root/release
log=$work/build.log
# A library whose inside changes doesn't have to be linked anew by all that use it.
configure release -DCMAKE_LINK_DEPENDS_NO_SHARED=ON >"$log" 2>&1 ||
    fail "could not configure, see $log"

# The tests that are a program of their name, and what each of them links, loads or starts.
mapfile -t tests < <(comm -12 \
    <(ctest --test-dir "$dir" -N -LE 'german|xvfb' |
        sed -nE 's/^ *Test +#[0-9]+: ((test|fuzz)_.*)$/\1/p' | sort) \
    <(ninja -C "$dir" -t targets all | sed -n 's/: phony$//p' | sort))
build_tests() { ninja -C "$dir" -j "$jobs" "$@" >"$log" 2>&1; }
build_tests "${tests[@]}" || fail "the tree doesn't build without a fault, see $log"
declare -A parts
for test in "${tests[@]}"; do
    parts[$test]=$(ninja -C "$dir" -t inputs "$test" | sed -nE "s,^(bin|lib)/.*,$dir/&,p")
done

# The first failure is enough; what comes behind it may wait for what never happens.
export QTEST_FATAL_FAIL=1 QTEST_DISABLE_CORE_DUMP=1 QTEST_DISABLE_STACK_DUMP=1

# fails TESTS...: whether one of them fails; says which.
fails() {
    local pattern
    pattern="^($(IFS='|'; echo "$*"))\$"
    ! ctest --test-dir "$dir" -R "$pattern" --timeout 120 --stop-on-failure >"$work/test.log" 2>&1 &&
        sed -nE 's/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: ([a-z_]+) .*(\*\*\*|Failed).*$/\1/p' \
            "$work/test.log" | tail -n 1
}

# affected TESTS...: those of them that have what was just built in them, or use it.
affected() {
    local test file
    for test in "$@"; do
        for file in "$dir/bin/$test" ${parts[$test]}; do
            [ "$file" -nt "$work/stamp" ] && echo "$test" && break
        done
    done
}

restore() {
    [ -n "${faulty:-}" ] && mv "$work/original" "$faulty" && touch "$faulty"
    faulty=
}
trap restore EXIT
trap 'exit 130' INT TERM

# try FILE SEARCH REPLACEMENT: sets `outcome` to the test that saw the fault, to "unseen", or to why
# the fault can't be judged.
try() {
    local last first candidates
    cp -p "$tree/$1" "$work/original" || fail "no file $1"
    faulty=$tree/$1
    # Perl is there on every Debian.
    SEARCH=$2 REPLACEMENT=$3 perl -0pi -e \
        '$n = s/\Q$ENV{SEARCH}\E/$ENV{REPLACEMENT}/g; END { exit($n == 1 ? 0 : 1) }' "$faulty" ||
        { outcome="stale: the text stands there not once"; restore; return; }
    touch "$work/stamp"
    # Whoever saw the fault last time is asked first.
    last=$work/seen/$(printf '%s' "$*" | sha1sum | cut -c 1-16)
    first=$(cat "$last" 2>/dev/null)
    [[ " ${tests[*]} " == *" $first "* ]] || first=
    outcome=
    for group in "$first" "${tests[*]}"; do
        if [ -z "$group" ] || [ -n "$outcome" ]; then continue; fi
        # shellcheck disable=SC2086 # names of tests have no spaces
        if ! build_tests $group; then
            outcome="stale: $(grep -m 1 'error: ' "$log")"
            restore
            return
        fi
        mapfile -t candidates < <(affected $group)
        [ ${#candidates[@]} -eq 0 ] || outcome=$(fails "${candidates[@]}")
    done
    if [ -n "$outcome" ]; then echo "$outcome" >"$last"; else outcome=unseen; fi
    restore
}

seen=0
unseen=()
stale=()
while IFS= read -r head; do
    [[ $head == '' || $head == '#'* ]] && continue
    IFS= read -r search
    IFS= read -r replacement
    file=${head%%: *}
    grep -qE "$pattern" <<<"$file" || continue
    search=${search#    }
    replacement=${replacement#    }
    [ "$replacement" = "(nothing)" ] && replacement='{ }'
    started=$SECONDS
    try "$file" "$search" "$replacement"
    printf '%-28s %4d s  %s\n' "$outcome" $((SECONDS - started)) "$head"
    case $outcome in
        unseen) unseen+=("$head") ;;
        stale*) stale+=("$head") ;;
        *) seen=$((seen + 1)) ;;
    esac
done <"$tree/tests/seeded_faults.txt"

total=$((seen + ${#unseen[@]}))
[ $((total + ${#stale[@]})) -gt 0 ] || fail "no fault in a file that matches $pattern"
echo
echo "$seen of $total faults were seen"
[ ${#unseen[@]} -eq 0 ] || printf 'Unseen: %s\n' "${unseen[@]}"
[ ${#stale[@]} -eq 0 ] || printf 'To be mended: %s\n' "${stale[@]}"
[ ${#stale[@]} -eq 0 ] && [ $((10 * seen)) -ge $((9 * total)) ]
