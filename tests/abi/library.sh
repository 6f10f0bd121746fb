#!/bin/sh
# SPDX-License-Identifier: MIT
# Looks at the shared library: the names that it exports, the libraries that it needs, its name and
# its size.
# usage: library.sh STAGE EXPORTS NM READELF STRIP
set -eu
stage=$1 exports=$2 nm=$3 readelf=$4 strip=$5
export LC_ALL=C
result=0
fail() {
    echo "$*" >&2
    result=1
}

library=$(find "$stage/shared" -name 'libkulgui.so.0.*.*' -type f)
[ -f "$library" ] || { echo "no shared library below $stage" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$nm" -D --defined-only --format=posix "$library" | sed 's/[@ ].*//' | sort >"$work/exported"
sort -c "$exports" || fail "$exports is not sorted"
diff "$exports" "$work/exported" >"$work/differs" || {
    cat "$work/differs" >&2
    fail "(< should be exported and is not, > is exported and should not be)"
}

"$readelf" -d "$library" >"$work/dynamic"
for needed in $(sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' "$work/dynamic"); do
    case $needed in
    libc.so.* | libncurses*.so.* | libpanel*.so.* | libtinfo*.so.* | ld-linux*) ;;
    *) fail "needs $needed" ;;
    esac
done
grep -q 'SONAME.*\[libkulgui\.so\.0\]' "$work/dynamic" || fail "is not named libkulgui.so.0"

"$strip" -o "$work/stripped" "$library"
size=$(wc -c <"$work/stripped")
echo "stripped size: $size bytes"
[ "$size" -lt $((160 * 1024)) ] || fail "is too large"
exit $result
