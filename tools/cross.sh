#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds all but the tools for another machine with Debian's compilers, and runs the unit tests and
# some programs under qemu: these on a terminal of their own, whose screen is looked at.
# usage: cross.sh TRIPLET QEMU KULSHOT
set -eu
triplet=$1 qemu="$2 -L /usr/$1" kulshot=$3
folder=$PWD/build/cross/$triplet
root=$folder/root

# What the machine would have: ncurses, and the library for tests.
sh tools/ncurses.sh "$root/usr" --enable-widec --host="$triplet"

mkdir -p "$folder"
cat >"$folder/toolchain.cmake" <<TEXT
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${triplet%%-*})
set(CMAKE_C_COMPILER $triplet-gcc)
set(CMAKE_CXX_COMPILER $triplet-g++)
set(CMAKE_FIND_ROOT_PATH $root)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR $(echo "$qemu" | tr ' ' ';'))
TEXT

# cross SOURCE BUILD OPTIONS
cross() {
    from=$1 to=$2
    shift 2
    cmake -S "$from" -B "$to" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$folder/toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=MinSizeRel "$@" >&2
    ninja -C "$to" --quiet >&2
}
[ -f "$root/usr/lib/libgtest_main.a" ] || {
    cross /usr/src/googletest "$folder/gtest" -DBUILD_GMOCK=OFF -DCMAKE_INSTALL_PREFIX="$root/usr" \
        -DCMAKE_INSTALL_LIBDIR=lib
    cmake --install "$folder/gtest" >&2
}

cross . "$folder/build" -DKULGUI_BUILD_TESTS=ON -DKULGUI_BUILD_EXAMPLES=ON

# The loader of that machine is told where its libraries are, and a library of the other byte order where a locale is:
# it would find this machine's.
case $triplet in s390x-*) order=--big-endian ;; *) order=--little-endian ;; esac
mkdir -p "$root/locale"
localedef "$order" --no-archive -i C -f UTF-8 "$root/locale/C.utf8"
export QEMU_SET_ENV="LD_LIBRARY_PATH=$root/usr/lib:$folder/build/kulplatform/kulgui,LOCPATH=$root/locale"
$qemu "$folder/build/tests/kulgui_unit" --gtest_brief=1

# shows TEXT PROGRAM ARGUMENTS: the text is on the screen while the program waits for a key
shows() {
    text=$1
    shift
    # shellcheck disable=SC2086
    screen=$("$kulshot" --size 40x14 --keys "shot enter" -- $qemu "$@")
    echo "$screen"
    case $screen in
    *"$text"*) ;;
    *) echo "$1 does not show: $text" >&2 && exit 1 ;;
    esac
}
shows "Restart the device?" "$folder/build/examples/hello"
kuldialog=$(find "$folder/build" -name kuldialog -type f -perm -u+x)
[ -z "$kuldialog" ] || shows "The door is open." "$kuldialog" --msgbox "The door is open." 8 30
echo "$triplet: all is well"
