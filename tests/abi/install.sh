#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs the staged build twice and takes it away: nothing is left but what was there before.
# usage: install.sh SOURCE STAGE
set -eu
source=$1 stage=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# An option is no folder.
for arguments in --help -x "one two"; do
    # shellcheck disable=SC2086
    ! "$source/dev" install $arguments >/dev/null 2>&1 || {
        echo "./dev install $arguments installs" >&2
        exit 1
    }
done

mkdir -p "a root/usr/share"
export DESTDIR="$work/a root"
for time in once again; do
    sh "$source/tools/install.sh" install /usr "$stage/build-shared" >/dev/null
    [ -n "$(find "a root" -name kulgui.h)" ] || echo "nothing is installed $time" >&2
done
sh "$source/tools/install.sh" uninstall /usr
left=$(find . -mindepth 1 | sort | tr '\n' ' ')
[ "$left" = "./a root ./a root/usr ./a root/usr/share " ] || {
    echo "left behind: $left" >&2
    exit 1
}
