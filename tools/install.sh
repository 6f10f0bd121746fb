#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what a build made, and takes it away again. A list of what was installed lies beside it:
# files, and the folders that were not there before.
# usage: install.sh install PREFIX BUILD      DESTDIR is honoured
#        install.sh uninstall PREFIX
set -eu
verb=$1 prefix=$2
root=${DESTDIR:-}
list=$root$prefix/share/doc/kulgui/installed

uninstall() {
    grep -v '/$' "$list" | while read -r file; do
        rm -f "$root$file"
    done
    # The list is the last file of its folder.
    folders=$(grep '/$' "$list" | sort -r)
    rm "$list"
    echo "$folders" | while read -r folder; do
        rmdir "$root$folder" 2>/dev/null || true
    done
}

case $verb in
uninstall)
    [ -f "$list" ] || {
        echo "Nothing is installed below $root$prefix by ./dev install." >&2
        exit 1
    }
    uninstall
    ;;
install)
    build=$3
    [ ! -f "$list" ] || uninstall
    # Once to the side, to know what it will be.
    rm -rf "$build/stage"
    DESTDIR=$build/stage cmake --install "$build" --strip >/dev/null
    (cd "$build/stage" && find . -mindepth 1 -type d -printf '/%P/\n') | while read -r folder; do
        [ -d "$root$folder" ] || echo "$folder"
    done >"$build/installed"
    (cd "$build/stage" && find . ! -type d -printf '/%P\n') >>"$build/installed"
    cmake --install "$build" --strip >/dev/null
    mkdir -p "$(dirname "$list")"
    cp "$build/installed" "$list"
    echo "$(grep -vc '/$' "$list") files are installed below $root$prefix."
    echo "To take them away: ${DESTDIR:+DESTDIR=$DESTDIR }./dev uninstall $prefix"
    packages=$(dirname "$(grep '/kulgui\.pc$' "$list")")
    case $prefix in
    /usr | /usr/local) echo "Programs find the library after: ldconfig" ;;
    *) echo "Programs find it with: PKG_CONFIG_PATH=$packages LD_LIBRARY_PATH=${packages%/pkgconfig}" ;;
    esac
    ;;
esac
