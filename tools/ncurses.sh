#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds ncurses, of the source that Debian has, as other systems have it: for another machine,
# narrow, or without a library of its own for the descriptions of terminals. Once for each folder.
# usage: ncurses.sh PREFIX [OPTIONS FOR CONFIGURE]
set -eu
mkdir -p "$1" build/ncurses
prefix=$(cd "$1" && pwd) source=$PWD/build/ncurses/source
shift
[ -f "$prefix/done" ] && exit

# The source, by apt-get, with lists of its own: the machine's need not have source packages.
if [ ! -f "$source/configure" ]; then
    mkdir -p build/ncurses/apt/lists/partial
    cd build/ncurses/apt
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    echo "deb-src http://deb.debian.org/debian $release main" >sources.list
    apt() {
        apt-get -q -o Dir::Etc::SourceList="$PWD/sources.list" -o Dir::Etc::SourceParts=/dev/null \
            -o Dir::State::Lists="$PWD/lists" -o Dir::Cache="$PWD" -o APT::Sandbox::User= "$@" >&2
    }
    apt update
    apt source --download-only ncurses
    mkdir -p "$source"
    tar -xf ncurses_*.orig.tar.?z -C "$source" --strip-components=1
    rm -r "$PWD"
fi

# Terminals are described where Debian describes them, so that what is built runs here.
mkdir -p "$prefix/build"
cd "$prefix/build"
{
    "$source/configure" --prefix="$prefix" --with-shared --with-normal --without-debug \
        --without-ada --without-cxx --without-cxx-binding --without-manpages --without-progs \
        --without-tests --enable-overwrite --with-build-cc=cc \
        --with-default-terminfo-dir=/usr/share/terminfo \
        --with-terminfo-dirs=/etc/terminfo:/lib/terminfo:/usr/share/terminfo "$@"
    for part in include ncurses panel; do
        make -j"$(getconf _NPROCESSORS_ONLN)" -C $part
        make -C $part install
    done
} >log 2>&1 || {
    tail -30 log >&2
    exit 1
}
rm -r "$prefix/build"
touch "$prefix/done"
