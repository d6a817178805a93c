#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails when a source isn't formatted as .clang-format has it; "--fix" formats it.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)
find platform plugin bridge runner inspector examples tests bench fuzz -name '*.cpp' -print0 -o -name '*.h' -print0 \
    2>/dev/null | xargs -0 clang-format --style=file "${mode[@]}"
