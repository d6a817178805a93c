#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs what is missing, builds the inspector and starts it on a sample scene. Arguments go to
# the program; one that names a scene takes the sample's place. Without a display the window is
# drawn into a picture instead.
set -u
shopt -s extglob
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_packages "${build_packages[@]}"
leave_root "${BASH_SOURCE[0]}" "$@"
choose_build_root
build release corvane ubn_corvane_extender_base >&2 || fail "the build failed"

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

program=$build_root/release/bin/corvane
if has_display; then
    exec "$program" "${arguments[@]}"
fi
export QT_QPA_PLATFORM=offscreen
case " $* " in
*" -picture"* | *" --picture"* | *" -h "* | *" --help "* | *" -v "* | *" --version "*)
    exec "$program" "${arguments[@]}"
    ;;
esac
picture=$build_root/window.png
"$program" --picture "$picture" "${arguments[@]}" || exit
echo "There is no display; the window was drawn into $picture"
