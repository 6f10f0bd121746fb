#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the first example against the installed library in the ways that others do, and starts the
# results: without a terminal it says so and returns 1.
# usage: link.sh SOURCE STAGE CMAKE GENERATOR CC CXX
set -eu
source=$1 stage=$2 cmake=$3 generator=$4 cc=$5 cxx=$6
work=$stage/link
rm -rf "$work"
mkdir -p "$work"

# starts PROGRAM
starts() {
    status=0
    "$1" </dev/null >"$work/output" 2>&1 || status=$?
    [ $status = 1 ] && grep -q 'no terminal' "$work/output" && return
    cat "$work/output" >&2
    echo "$1 returned $status" >&2
    exit 1
}

# prepare KIND: finds what is installed, by pkg-config and for the loader
prepare() {
    pc=$(find "$stage/$1" -name kulgui.pc)
    PKG_CONFIG_PATH=$(dirname "$pc")
    LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH")
    # pkg-config leaves out the system's directories, and takes those of the shared stage for such.
    PKG_CONFIG_ALLOW_SYSTEM_LIBS=1 PKG_CONFIG_ALLOW_SYSTEM_CFLAGS=1
    export PKG_CONFIG_PATH LD_LIBRARY_PATH PKG_CONFIG_ALLOW_SYSTEM_LIBS PKG_CONFIG_ALLOW_SYSTEM_CFLAGS
}

# package KIND: builds and starts the example with find_package
package() {
    "$cmake" -S "$source/tests/abi/consumer" -B "$work/$1" -G "$generator" \
        -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" \
        -Dkulgui_DIR="$(dirname "$(find "$stage/$1" -name kulgui-config.cmake)")"
    "$cmake" --build "$work/$1"
    starts "$work/$1/part"
}

# shellcheck disable=SC2046
{
    prepare shared
    "$cc" $(pkg-config --cflags kulgui) "$source/examples/hello.c" -o "$work/hello-shared" \
        $(pkg-config --libs kulgui)
    starts "$work/hello-shared"
    package shared

    prepare static
    for program in examples/hello tests/abi/own_names; do
        "$cc" $(pkg-config --cflags --static kulgui) "$source/$program.c" -o "$work/alone" \
            $(pkg-config --libs --static kulgui)
        LD_LIBRARY_PATH='' starts "$work/alone"
    done
    unset LD_LIBRARY_PATH
    package static
    starts "$stage/build-static/part"
}
