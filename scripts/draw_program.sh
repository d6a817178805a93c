#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Draws docs/program.png: designer with a form, and the inspector beside it, by which the form is
# changed. Needs the release build with its tests, and designer-qt6.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages designer-qt6
choose_build_root
tree=$build_root/release
designer=/usr/lib/qt6/bin/designer
build release corvane corvane_run corvane_driver ubn_corvane_extender_base >&2 ||
    fail "the build failed"
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 XDG_CONFIG_HOME=$settings XDG_DATA_HOME=$settings \
    LD_PRELOAD=$tree/lib/corvane_driver.so CORVANE_DRIVE="draw $source_dir/docs/program.png" \
    "$tree/bin/corvane" --run "$designer" "$source_dir/tests/programs/form.ui" >/dev/null 2>&1 ||
    fail "designer couldn't be driven"
echo "Drawn: docs/program.png"
