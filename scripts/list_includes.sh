#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Lists the product's sources and what they include, for the scripts that judge and draw it. Fields
# stand between tabs:
#   file     PATH
#   include  PATH LINE NAME TARGET   NAME as the source has it; TARGET is the header of ours that it
#                                    means, or "-"
# Usage: list_includes.sh [SOURCE_DIR]
set -uo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}" || exit

# Headers are included by file name alone, so all file names are read before any file is.
find platform plugin bridge runner inspector examples -type f \( -name '*.h' -o -name '*.cpp' \) |
    LC_ALL=C sort | awk -v OFS='\t' '
function listIncludes(path,    line, text, name, base) {
    while ((getline text <path) > 0) {
        line++
        if (text !~ /^[ \t]*#[ \t]*include[ \t]*["<]/)
            continue
        name = text
        sub(/^[^"<]*["<]/, "", name)
        sub(/[">].*/, "", name)
        base = name
        sub(/.*\//, "", base)
        print "include", path, line, name, (base in header ? header[base] : "-")
    }
    close(path)
}

{
    base = $0
    sub(/.*\//, "", base)
    if (base ~ /\.h$/)
        header[base] = $0
    paths[++count] = $0
    print "file", $0
}

END {
    for (i = 1; i <= count; i++)
        listIncludes(paths[i])
}'
