#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails when an include runs against the direction of the layers, naming file, line and reason.
# Usage: check_includes.sh [SOURCE_DIR]
set -uo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}" || exit

# Headers are included by file name alone, so all file names are read before any file is.
find platform plugin inspector examples -type f \( -name '*.h' -o -name '*.cpp' \) |
    LC_ALL=C sort | awk '
function deny(reason) { print file ":" line ": " reason; failures++ }

# layer FOLDER "LAYERS": files of the folder may include those of it and of the layers named.
function layer(folder, below,    names, count, i) {
    known[folder] = 1
    may[folder, folder] = 1
    count = split(below, names, " ")
    for (i = 1; i <= count; i++)
        may[folder, names[i]] = 1
}

# The layer of a file. Below platform each folder is one, elsewhere the outermost folder is.
function layerOf(path,    folder) {
    folder = path
    sub(/\/[^\/]*$/, "", folder)
    if (folder !~ /^platform\//)
        sub(/\/.*/, "", folder)
    return folder
}

function check(path,    text, target) {
    file = path
    line = 0
    while ((getline text <path) > 0) {
        line++
        if (text !~ /^[ \t]*#[ \t]*include[ \t]*["<]/)
            continue
        target = text
        sub(/^[^"<]*["<]/, "", target)
        sub(/[">].*/, "", target)
        if (layers[path] in kernel && target ~ /^(Qt[A-Za-z0-9]*\/)?(Q[A-Z]|Qt|q[a-z]+\.h)/)
            deny("the kernel knows no Qt (" target ")")
        sub(/.*\//, "", target)
        if (target in home && !((layers[path], home[target]) in may))
            deny(layers[path] " may not include " target " of " home[target])
    }
    close(path)
}

BEGIN {
    base = "platform/kestrix_base"
    types = base " platform/kestrix"
    fields = types " platform/kestrix/errors platform/kestrix/text"
    kestrix = fields " platform/kestrix/fields platform/kestrix/nodes"
    platform = kestrix " platform/kestrix_gl platform/extender"
    layer("platform/kestrix_base", "")
    layer("platform/kestrix", base)
    layer("platform/kestrix/errors", types)
    layer("platform/kestrix/text", types)
    layer("platform/kestrix/fields", fields)
    layer("platform/kestrix/nodes", kestrix)
    layer("platform/kestrix_gl", kestrix)
    for (name in known)
        kernel[name] = 1
    layer("platform/extender", platform)
    layer("plugin", platform)
    layer("inspector", platform)
    layer("examples", platform) # written as if by somebody else
}

{
    name = $0
    sub(/.*\//, "", name)
    layers[$0] = layerOf($0)
    paths[++count] = $0
    if (name ~ /\.h$/) {
        if (name in home) {
            file = $0
            line = 1
            deny("a second " name ", beside that of " home[name])
        }
        home[name] = layers[$0]
    }
    if (!(layers[$0] in known)) {
        file = $0
        line = 1
        deny(layers[$0] " is no layer; give it a line in check_includes.sh")
    }
}

END {
    if (count == 0) {
        print "no sources found"
        exit 1
    }
    for (i = 1; i <= count; i++)
        check(paths[i])
    exit (failures > 0)
}'
