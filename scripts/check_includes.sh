#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails when an include runs against the direction of the layers, naming file, line and reason.
# Usage: check_includes.sh [SOURCE_DIR]
set -uo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

"$scripts/list_includes.sh" "${1:-$scripts/..}" | awk -F '\t' '
function deny(file, line, reason) { print file ":" line ": " reason; failures++ }

# layer FOLDER "LAYERS": files of the folder may include those of it and of the layers named.
function layer(folder, below,    names, count, i) {
    known[folder] = 1
    may[folder, folder] = 1
    count = split(below, names, " ")
    for (i = 1; i <= count; i++)
        may[folder, names[i]] = 1
}

# The layer of a file. In platform and in the inspector each folder is one, elsewhere the outermost
# folder is. Of the inspector, the header that programs include is a layer by itself, and
# the one for what is preloaded into programs.
function layerOf(path,    folder) {
    if (path == published || path == preloaded)
        return path
    folder = path
    sub(/\/[^\/]*$/, "", folder)
    if (folder !~ /^(platform|inspector)\//)
        sub(/\/.*/, "", folder)
    return folder
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
    layer("bridge", platform)
    layer("inspector/text", platform)
    layer("inspector/edits", platform " inspector/text")
    layer("inspector/scene", platform " inspector/text inspector/edits")
    layer("inspector/script", platform " inspector/text inspector/scene")
    layer("inspector/structure", platform " inspector/text inspector/scene")
    layer("inspector/watch", platform " inspector/text")
    layer("inspector/window", platform \
        " inspector/text inspector/edits inspector/scene inspector/structure inspector/watch")
    layer("inspector/process", platform " inspector/text")
    published = "inspector/CrvInspector.h"
    layer(published, "")
    preloaded = "inspector/ProgramSession.h"
    layer(preloaded, platform)
    layer("inspector", platform " " published " " preloaded \
        " inspector/text inspector/edits inspector/scene inspector/script inspector/structure inspector/watch inspector/window" \
        " inspector/process")
    layer("runner", platform " bridge " published " " preloaded)
    layer("examples", platform " " published) # written as if by somebody else
}

$1 == "file" {
    files++
    own = layerOf($2)
    if (!(own in known))
        deny($2, 1, own " is no layer; give it a line in check_includes.sh")
    name = $2
    sub(/.*\//, "", name)
    if (name ~ /\.h$/) {
        if (name in home)
            deny($2, 1, "a second " name ", beside that of " home[name])
        home[name] = own
    }
}

$1 == "include" {
    own = layerOf($2)
    if (own in kernel && $4 ~ /^(Qt[A-Za-z0-9]*\/)?(Q[A-Z]|Qt|q[a-z]+\.h)/)
        deny($2, $3, "the kernel knows no Qt (" $4 ")")
    if ($5 != "-" && !((own, layerOf($5)) in may)) {
        name = $5
        sub(/.*\//, "", name)
        deny($2, $3, own " may not include " name " of " layerOf($5))
    }
}

END {
    if (files == 0) {
        print "no sources found"
        exit 1
    }
    exit (failures > 0)
}'
