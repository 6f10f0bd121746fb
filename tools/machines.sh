#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds as other systems do, and runs what tests there are:
#   narrow   a curses without wide characters
#   small    one without a library of its own for descriptions of terminals, and eleven of these
#   static   programs without shared libraries
#   flags    the flags that harden, warnings are errors
# usage: machines.sh [NAME]...
set -eu
jobs=$(getconf _NPROCESSORS_ONLN)

# try NAME EXCEPT OPTIONS: builds, and runs the tests, but those whose names match
try() {
    build=build/machine-$1 except=$2
    shift 2
    cmake -S . -B "$build" -G Ninja -DKULGUI_BUILD_BENCH=OFF "$@" >&2
    ninja -C "$build" --quiet -j "$jobs" >&2
    ctest --test-dir "$build" --output-on-failure --no-tests=error -j "$jobs" -E "$except"
}

narrow() {
    # Not those that enter letters of several bytes, or look at them.
    try narrow 'Texts\.|SpeaksFourLanguages|Ready\.GivesResults' -DKULGUI_WIDE=OFF
    ldd build/machine-narrow/examples/hello | grep -q 'libncurses\.so' || return 1
}

small() {
    prefix=$PWD/build/ncurses/small
    for name in ansi dumb linux rxvt rxvt-unicode screen vt100 vt102 xterm xterm-color xterm-256color; do
        letter=$(echo "$name" | cut -c1)
        mkdir -p "$prefix/terminfo/$letter"
        cp -L "/lib/terminfo/$letter/$name" "$prefix/terminfo/$letter"
    done
    sh tools/ncurses.sh "$prefix" --enable-widec --with-default-terminfo-dir="$prefix/terminfo" \
        --with-terminfo-dirs="$prefix/terminfo"
    LD_LIBRARY_PATH=$prefix/lib LIBRARY_PATH=$prefix/lib CPATH=$prefix/include \
        try small none -DCMAKE_PREFIX_PATH="$prefix"
    ! LD_LIBRARY_PATH=$prefix/lib ldd build/machine-small/examples/hello | grep tinfo || return 1
}

static() {
    try static '^abi\.' -DBUILD_SHARED_LIBS=OFF -DCMAKE_EXE_LINKER_FLAGS=-static
    ! readelf -d build/machine-static/examples/hello | grep NEEDED || return 1
}

flags() {
    harden="-D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat -Wformat-security -Werror"
    CFLAGS="${CFLAGS:-} $harden" CXXFLAGS="${CXXFLAGS:-} $harden" \
        LDFLAGS="${LDFLAGS:-} -Wl,-z,relro,-z,now" try flags none
    library=$(find build/machine-flags -name 'libkulgui.so.0.*' -type f)
    readelf -d "$library" | grep -q BIND_NOW || return 1
    nm -D "$library" | grep -q __stack_chk_fail || return 1
}

[ $# -gt 0 ] || set -- narrow small static flags
for name in "$@"; do
    case $name in
    narrow | small | static | flags) ;;
    *) echo "machines.sh [narrow|small|static|flags]..." >&2 && exit 2 ;;
    esac
    $name
    echo "$name: all is well"
done
