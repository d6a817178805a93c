#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs what is missing, builds, and starts a program with a moving scene and its inspector. With
# arguments it starts the inspector as a program of its own: they go to it, and one that names a
# scene takes the sample's place. Without a display the windows are drawn into a picture instead.
set -u
shopt -s extglob
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_packages "${build_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
build release corvane corvane_viewer ubn_corvane_extender_base corvane_example_plugin >&2 ||
    fail "the build failed"

# Whether a window can be opened: an X display that somebody serves, or a platform that was asked
# for and shows windows in its own way.
has_display() {
    case ${QT_QPA_PLATFORM:-xcb} in
    offscreen* | minimal*) return 1 ;;
    xcb*) ;;
    *) return 0 ;;
    esac
    case ${DISPLAY:-} in
    "") return 1 ;;
    :*) ;;
    *) return 0 ;; # a remote one, known only by trying
    esac
    local socket=/tmp/.X11-unix/X${DISPLAY#:}
    socket=${socket%.*([0-9])}
    [ -S "$socket" ] || grep -qs "@$socket\$" /proc/net/unix
}

picture=$build_root/window.png
draw() {
    QT_QPA_PLATFORM=offscreen "$@" --picture "$picture" || exit
    echo "There is no display; the window was drawn into $picture"
    exit
}

if [ $# -eq 0 ]; then
    program=("$build_root/release/bin/corvane_viewer" --inspector)
    has_display || draw "${program[@]}"
    exec "${program[@]}"
fi

# A bare word is the scene, unless it is the value of the option before it.
arguments=("$@")
scene=$source_dir/scenes/all_fields.json
previous=
for argument in "$@"; do
    case $previous in
    "" | [!-]* | -*=*) [[ $argument == -* ]] || scene= ;;
    esac
    previous=$argument
done
[ -z "$scene" ] || arguments+=("$scene")

program=("$build_root/release/bin/corvane")
# A script has no window, and so neither a display nor plug-ins.
case " $* " in
*" -"?(-)@(list|get|set|save)[\ =]*) exec "${program[@]}" "${arguments[@]}" ;;
esac

# With the example plug-in, which draws the scene, beside the default one.
case " $* " in
*" -plugin"* | *" --plugin"*) ;;
*)
    for name in ubn_corvane_extender_base corvane_example_plugin; do
        program+=(--plugin "$build_root/release/lib/$name.so")
    done
    ;;
esac
case " $* " in
*" -picture"* | *" --picture"* | *" -h "* | *" --help "* | *" -v "* | *" --version "*)
    has_display || export QT_QPA_PLATFORM=offscreen
    ;;
*)
    has_display || draw "${program[@]}" "${arguments[@]}"
    ;;
esac
exec "${program[@]}" "${arguments[@]}"
