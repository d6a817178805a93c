#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails when a source isn't formatted as .clang-format has it; "--fix" formats it.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$source_dir" || exit
mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)
find "${source_folders[@]}" tests -name '*.cpp' -print0 -o -name '*.h' -print0 \
    2>/dev/null | xargs -0 clang-format --style=file "${mode[@]}"
