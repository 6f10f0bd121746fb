#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the library as others get it, small, and puts it in place below OUTPUT:
#   shared/  a shared library, built by itself and installed through DESTDIR for the prefix /usr
#   static/  a static one, built as part of another project and installed with --prefix
#   part     that other project's program
# usage: stage.sh SOURCE OUTPUT CMAKE GENERATOR CC CXX [OPTIONS]
set -eu
source=$1 output=$2 cmake=$3 generator=$4 cc=$5 cxx=$6
shift 6

# configure SOURCE DIRECTORY OPTIONS
configure() {
    from=$1 to=$2
    shift 2
    "$cmake" -S "$from" -B "$to" -G "$generator" -DCMAKE_BUILD_TYPE=MinSizeRel \
        -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" "$@"
}

rm -rf "$output/shared" "$output/static"
configure "$source" "$output/build-shared" -DCMAKE_INSTALL_PREFIX=/usr -DKULGUI_BUILD_TESTS=OFF \
    -DKULGUI_BUILD_EXAMPLES=OFF -DKULGUI_BUILD_BENCH=OFF "$@"
"$cmake" --build "$output/build-shared"
DESTDIR=$output/shared "$cmake" --install "$output/build-shared"

configure "$source/tests/abi/consumer" "$output/build-static" -DKULGUI_SOURCE="$source" "$@"
"$cmake" --build "$output/build-static"
"$cmake" --install "$output/build-static" --prefix "$output/static"
for unwanted in tests examples bench tools; do
    if [ -e "$output/build-static/kulgui/$unwanted" ]; then
        echo "as a part of another project kulgui builds its $unwanted" >&2
        exit 1
    fi
done
