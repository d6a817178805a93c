#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails unless check_includes.sh finds nothing in the sources and, in a tree in which every layer
# includes every other one, all that runs against the direction and nothing else.
# Usage: check_include_directions.sh SOURCE_DIR
set -eu
check=$1/scripts/check_includes.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

"$check" "$1"

mkdir -p "$tree/platform/other"
touch "$tree/platform/other/Other.cpp"
mkdir "$tree/inspector"
touch "$tree/inspector/CrvInspector.h"
echo "platform/other/Other.cpp:1" >"$tree/expected" # a folder that has no layer
while read -r folder own allowed; do
    mkdir -p "$tree/$folder"
    touch "$tree/$folder/$own"
    source=$folder/${own%.h}.cpp
    line=0
    for target in Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h Plugin.h Wording.h \
        Scene.h Window.h Process.h Program.h CrvInspector.h Example.h QString QtCore/QString qglobal.h vector; do
        line=$((line + 1))
        echo "#include <$target>" >>"$tree/$source"
        [[ " $own $allowed vector " = *" ${target##*/} "* ]] ||
            echo "$source:$line" >>"$tree/expected"
    done
done <<'END'
platform/kestrix_base    Base.h
platform/kestrix         Types.h   Base.h
platform/kestrix/errors  Errors.h  Base.h Types.h
platform/kestrix/text    Text.h    Base.h Types.h
platform/kestrix/fields  Fields.h  Base.h Types.h Errors.h Text.h
platform/kestrix/nodes   Nodes.h   Base.h Types.h Errors.h Text.h Fields.h
platform/kestrix_gl      Gl.h      Base.h Types.h Errors.h Text.h Fields.h Nodes.h
platform/extender        Host.h    Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h QString qglobal.h
plugin/src/Deep          Plugin.h  Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h
inspector/text           Wording.h Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h
inspector/scene          Scene.h   Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h Wording.h
inspector/window         Window.h  Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h Wording.h Scene.h
inspector/process        Process.h Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h Wording.h
inspector                Program.h Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h Wording.h Scene.h Window.h Process.h CrvInspector.h
examples                 Example.h Base.h Types.h Errors.h Text.h Fields.h Nodes.h Gl.h Host.h QString qglobal.h CrvInspector.h
END

if "$check" "$tree" >"$tree/found"; then
    echo "bad includes pass" >&2
    exit 1
fi
diff <(sort "$tree/expected") <(cut -d: -f1,2 "$tree/found" | sort)
