#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds as other systems do, and runs what tests there are:
#   narrow   a curses without wide characters
#   small    one without a library of its own for descriptions of terminals, and eleven of these
#   static   programs without shared libraries, whose screens are looked at
#   flags    the flags that harden, warnings are errors
# usage: machines.sh [NAME]...      kulshot is in build/release
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
    try narrow 'Texts\.|SpeaksFourLanguages|Ready\.GivesResults|FitsItsPages|NoticesANewSize|LookLikeTheirPictures' -DKULGUI_WIDE=OFF
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
    # Not those that want other terminals as well.
    LD_LIBRARY_PATH=$prefix/lib LIBRARY_PATH=$prefix/lib CPATH=$prefix/include \
        try small 'Update.*/(vt220|tmux|putty)|ScrollsAFile|LinesAreWhat|SpeaksFourLanguages' -DCMAKE_PREFIX_PATH="$prefix"
    ! LD_LIBRARY_PATH=$prefix/lib ldd build/machine-small/examples/hello | grep tinfo || return 1
}

static() {
    # The tests stand in for parts of the C library, which only works where that is shared.
    cmake -S . -B build/machine-static -G Ninja -DKULGUI_BUILD_TESTS=OFF -DKULGUI_BUILD_BENCH=OFF \
        -DBUILD_SHARED_LIBS=OFF -DCMAKE_EXE_LINKER_FLAGS=-static >&2
    ninja -C build/machine-static --quiet -j "$jobs" >&2
    for program in examples/hello examples/demo programs/kuldialog/kuldialog; do
        ! readelf -d build/machine-static/$program | grep NEEDED || return 1
    done
    build/release/tools/kulshot --size 40x14 --keys "shot enter" -- \
        build/machine-static/examples/hello | grep "Restart the device?"
    build/release/tools/kulshot --size 40x14 --keys "shot enter" -- \
        build/machine-static/programs/kuldialog/kuldialog --msgbox "The door is open." 8 30 |
        grep "The door is open."
}

flags() {
    harden="-D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat -Wformat-security -Werror"
    CFLAGS="${CFLAGS:-} $harden" CXXFLAGS="${CXXFLAGS:-} $harden" \
        LDFLAGS="${LDFLAGS:-} -Wl,-z,relro,-z,now" try flags none
    library=$(find build/machine-flags/kulplatform -name 'libkulgui.so.0.*' -type f)
    readelf -d "$library" | grep -q BIND_NOW || return 1
    nm -D "$library" | grep -q __stack_chk_fail || return 1
}

[ $# -gt 0 ] || set -- narrow small static flags
for name in "$@"; do
    case $name in
    narrow | small | static | flags) ;;
    *) echo "There is no machine $name, but narrow, small, static and flags." >&2 && exit 2 ;;
    esac
done
for name in "$@"; do
    $name
    echo "$name: all is well"
done
