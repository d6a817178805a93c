# SPDX-License-Identifier: BSD-3-Clause
# shellcheck shell=bash
# What the commands share: packages, the user who builds, configuring and building. Sourced.

source_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=${CORVANE_JOBS:-$(nproc)}

# Where the sources stand: those of the program, and all but those of the tests.
product_folders=(platform plugin bridge runner inspector examples)
# shellcheck disable=SC2034 # for those who source this
source_folders=("${product_folders[@]}" bench fuzz)

build_packages=(g++ cmake ninja-build ccache qt6-base-dev rapidjson-dev
    libbenchmark-dev)
test_packages=(xvfb xauth openbox locales clang-format binutils
    designer-qt6 linguist-qt6 qt6-3d-dev libqt6opengl6-dev libgl1-mesa-dri)
lint_packages=(clang-tidy)
fuzz_packages=(clang libclang-rt-dev)
static_packages=(cppcheck clazy)
abi_packages=(abigail-tools)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# take_number OPTION VALUE: gives the variable of the option's name this number, which is above 0.
take_number() {
    [[ ${2:-} =~ ^[1-9][0-9]*$ ]] || fail "$1 takes a number"
    printf -v "${1#--}" %s "$2"
}

random_seed() { echo $((RANDOM * 32768 + RANDOM + 1)); }

# use_own_home FOLDER: what the person at this machine has set doesn't count.
use_own_home() {
    mkdir -p -m 700 "$1/runtime"
    export XDG_RUNTIME_DIR=$1/runtime XDG_CONFIG_HOME=$1/config XDG_DATA_HOME=$1/data
    export LC_ALL=C.UTF-8
}

# Installs those of the named Debian packages that are missing; calls nothing but dpkg-query when
# none is.
install_packages() {
    local missing=() package as_root=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This is no Debian; these packages, or what they stand for, must be there: $*" >&2
        return
    fi
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "as root, install these packages first: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    local get=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -q)
    local install=("${get[@]}" install --no-install-recommends "${missing[@]}")
    echo "Installing ${missing[*]}"
    # The package lists may be absent or too old; they are fetched only then.
    "${install[@]}" && return
    "${get[@]}" update && "${install[@]}" || fail "could not install ${missing[*]}"
}

# Behind "sudo ./run.sh" the rest belongs to the user who typed it: the build tree, and the window
# on that user's display.
leave_root() {
    [ "$(id -u)" -eq 0 ] && [ "${SUDO_UID:-0}" -ne 0 ] || return 0
    local home
    home=$(getent passwd "$SUDO_UID" | cut -d: -f6)
    exec setpriv --reuid="$SUDO_UID" --regid="$SUDO_GID" --init-groups \
        env -u SUDO_UID HOME="${home:-/tmp}" USER="$SUDO_USER" LOGNAME="$SUDO_USER" "$@"
}

# Where the build trees go: into the source tree, or into the user's cache when that may not be
# written.
choose_build_root() {
    build_root=${CORVANE_BUILD_ROOT:-$source_dir/build}
    if ! mkdir -p "$build_root" 2>/dev/null || [ ! -w "$build_root" ] ||
        { [ -d "$build_root/release" ] && [ ! -w "$build_root/release" ]; }; then
        build_root=${XDG_CACHE_HOME:-$HOME/.cache}/corvane/build
        mkdir -p "$build_root" || fail "no build folder can be made; set CORVANE_BUILD_ROOT"
        echo "Building in $build_root"
    fi
}

# configure PRESET [OPTIONS...]: a tree that was moved is configured anew.
configure() {
    local preset=$1 dir=$build_root/$1 fresh=() known
    shift
    known=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$dir/CMakeCache.txt" 2>/dev/null)
    [ -z "$known" ] || [ "$known" = "$source_dir" ] || fresh=(--fresh)
    (cd "$source_dir" && cmake --preset "$preset" "${fresh[@]}" -B "$dir" "$@")
}

# build PRESET [TARGETS...]: configures and builds.
build() {
    local preset=$1 target_options=()
    shift
    [ $# -gt 0 ] && target_options=(--target "$@")
    configure "$preset" &&
        cmake --build "$build_root/$preset" --parallel "$jobs" "${target_options[@]}"
}
