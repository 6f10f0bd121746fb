#!/bin/sh
# SPDX-License-Identifier: MIT
# Compares the interface of a shared library with the stored description of version 1.0: what
# programs were built with must be as it was, new calls are welcome.
# usage: compare.sh HEADERS LIBRARY DESCRIPTION
#        compare.sh HEADERS LIBRARY > DESCRIPTION      stores one
set -eu
headers=$1 library=$2
describe() {
    abidw --headers-dir "$headers" --drop-private-types --no-corpus-path --no-comp-dir-path \
        --no-show-locs --no-write-default-sizes --no-elf-needed --exported-interfaces-only "$library" |
        sed "s,path='[^']*/kulplatform/,path='kulplatform/,"
}
[ $# = 3 ] || {
    describe
    exit
}
work=$(mktemp)
trap 'rm -f "$work"' EXIT
describe >"$work"
status=0
abidiff --no-added-syms "$3" "$work" || status=$?
# 4: something changed, 8: programs cannot run with it.
[ $status -lt 4 ] || {
    echo "The interface is not what it was." >&2
    exit 1
}
