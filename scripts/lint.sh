#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Runs clang-tidy over what the work tree and the commits since a base change. A changed header is
# read through a source that includes it. Fails on any finding.
# Usage: lint.sh [--minutes N] [--all | REVISION]
#   --minutes N  stops after that time, and names the sources that it leaves out
#   --all        everything instead of what changed
#   REVISION     the base; without it, where this branch left origin/main, else the last commit
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

arguments=("$@")
all=
base=
minutes=
while [ $# -gt 0 ]; do
    case $1 in
        --all) all=yes ;;
        --minutes)
            [[ ${2:-} =~ ^[0-9]+$ ]] || fail "--minutes takes a number"
            minutes=$2
            shift
            ;;
        -*) fail "unknown option $1" ;;
        *) base=$1 ;;
    esac
    shift
done

install_packages "${build_packages[@]}" "${lint_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "${arguments[@]}"
choose_build_root
cd "$source_dir" || exit
started=$EPOCHSECONDS

# The commit that the change is seen against. Without any earlier commit, as in a shallow clone, it
# is the last one: only what isn't committed counts.
choose_base() {
    local revision
    if [ -n "$base" ]; then
        revision=$(git merge-base "$base" HEAD) || fail "$base is no commit that HEAD comes from"
    else
        revision=$(git merge-base origin/main HEAD 2>/dev/null)
        if [ -z "$revision" ] || [ "$revision" = "$(git rev-parse HEAD)" ]; then
            revision=$(git rev-parse --verify -q HEAD~1 || git rev-parse HEAD)
        fi
    fi
    base=$revision
}

# The changed files, latest change first, some more than once.
changed_files() {
    git diff --name-only HEAD -- "${source_folders[@]}"
    git ls-files --others --exclude-standard -- "${source_folders[@]}"
    git log --format= --name-only "$base..HEAD" -- "${source_folders[@]}"
}

# source_of HEADER: the source through which a header is read: its own, else the first that
# includes it, if need be through other headers.
source_of() {
    local header own found queue=("$1") seen=" $1 "
    own=${1%.h}.cpp
    [ -f "$own" ] && echo "$own" && return
    while [ ${#queue[@]} -gt 0 ]; do
        header=${queue[0]}
        queue=("${queue[@]:1}")
        found=$(includers "$header" '*.cpp' | head -n 1)
        [ -n "$found" ] && echo "$found" && return
        while read -r found; do
            [[ $seen == *" $found "* ]] && continue
            queue+=("$found")
            seen+="$found "
        done < <(includers "$header" '*.h')
    done
    echo "No source includes $1" >&2
}

# includers HEADER PATTERN: the files that include a header. All are included by name alone.
includers() {
    grep -rlE --include="$2" "^[[:space:]]*#[[:space:]]*include[[:space:]]+[\"<](.*/)?${1##*/}[\">]" \
        "${source_folders[@]}" | LC_ALL=C sort
}

# The sources to read, each once.
sources() {
    local file
    if [ -n "$all" ]; then
        find "${source_folders[@]}" -name '*.cpp' | LC_ALL=C sort
        return
    fi
    changed_files | while read -r file; do
        [ -f "$file" ] || continue
        case $file in
            *.cpp) echo "$file" ;;
            *.h) source_of "$file" ;;
        esac
    done | awk '!seen[$0]++'
}

# lint_source FILE: what xargs runs.
lint_source() {
    local start=$EPOCHSECONDS findings status
    if [ "$start" -ge "$deadline" ]; then
        echo "Left out: $1"
        return
    fi
    findings=$(timeout "$((deadline - start))" clang-tidy -p "$dir" --quiet "$1" 2>&1)
    status=$?
    if [ "$status" -eq 124 ]; then
        echo "Left out, unfinished: $1"
        return
    fi
    echo "$1 ($((EPOCHSECONDS - start)) s)"
    [ "$status" -eq 0 ] || grep -vE '^[0-9]+ warnings?.* generated\.$' <<<"$findings"
    return "$status"
}

if [ -z "$all" ]; then
    if ! git ls-files --error-unmatch "scripts/${0##*/}" >/dev/null 2>&1; then
        echo "No history is here that tells what changed; nothing is read. --all reads everything."
        exit
    fi
    choose_base
    echo "What changed since $(git log -1 --format='%h "%s"' "$base")"
    git diff --quiet "$base" -- .clang-tidy ||
        echo "The rules in .clang-tidy changed, too: --all reads everything by them."
fi
mapfile -t files < <(sources)
if [ ${#files[@]} -eq 0 ]; then
    echo "No source changed."
    exit
fi

dir=$build_root/tidy
configure tidy >/dev/null || fail "could not configure"
commands=$dir/compile_commands.json
known=()
for file in "${files[@]}"; do
    if grep -qF "\"file\": \"$source_dir/$file\"" "$commands"; then
        known+=("$file")
    else
        echo "Not built, so not read: $file"
    fi
done
[ ${#known[@]} -gt 0 ] || exit 0
# The generated headers and sources of the targets whose folders these sources search; some have
# none. CMake is asked for them itself, since its target for them builds the libraries first.
mapfile -t generated < <(printf ' -c %s"\n' "${known[@]/#/$source_dir/}" | grep -F -f - "$commands" |
    grep -oE '[^ ]+_autogen/include' | sed 's|^-I||' | sort -u)
for include in "${generated[@]}"; do
    target=${include%/include}
    cmake -E cmake_autogen "${target%/*}/CMakeFiles/${target##*/}.dir/AutogenInfo.json" Release \
        >/dev/null || fail "could not generate sources"
done

echo "Reading ${#known[@]} sources"
deadline=$((minutes ? started + 60 * minutes : started + 86400))
export dir deadline
export -f lint_source
# shellcheck disable=SC2016 # the quoted command is for the inner shell
printf '%s\0' "${known[@]}" | xargs -0 -n 1 -P "$jobs" bash -c 'lint_source "$1"' lint_source
status=$?
echo "Took $((EPOCHSECONDS - started)) s"
[ "$status" -eq 0 ] || fail "there are findings"
