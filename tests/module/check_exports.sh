#!/bin/bash
# SPDX-License-Identifier: BSD-3-Clause
# Fails unless the module file shows its two functions to the outside and nothing else, and is
# marked as staying mapped. Usage: check_exports.sh MODULE_FILE
set -u
names=$(nm -D --defined-only "$1" | awk '{ print $2, $3 }' | sort)
expected=$'T loadPlugin\nT unloadPlugin'
if [ "$names" != "$expected" ]; then
    echo "The module exports other names than its two functions:"
    echo "$names"
    exit 1
fi
if ! readelf -d "$1" | grep -q 'Flags:.*NODELETE'; then
    echo "The module isn't marked as staying mapped (-z nodelete)"
    exit 1
fi
