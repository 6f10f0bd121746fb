#!/bin/sh
# SPDX-License-Identifier: MIT
# Every call of the interface has something said of it in the header, and is called by a test.
# usage: calls.sh SOURCE
set -eu
cd "$1"
result=0

# As doxygen gets the header: a comment stands before each call.
silent=$(awk -f docs/reference/filter.awk kulplatform/kulgui/kulgui.h |
    awk '/^KULGUI_API/ && last !~ /\*\/$/ { print } { last = $0 }')
[ -z "$silent" ] || {
    echo "of these nothing is said in the header:" "$silent" >&2
    result=1
}

called=$(mktemp)
trap 'rm -f "$called"' EXIT
export LC_ALL=C
find tests '(' -name '*.cpp' -o -name '*.c' -o -name '*.hpp' ')' -exec cat {} + |
    tr -cs 'A-Za-z0-9_' '\n' | sort -u >"$called"
comm -23 tests/abi/exports.txt "$called" | grep . >&2 && {
    echo "these are called by no test" >&2
    result=1
}
exit $result
