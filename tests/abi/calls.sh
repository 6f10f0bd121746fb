#!/bin/sh
# SPDX-License-Identifier: MIT
# Every call of the interface has something said of it in the header.
# usage: calls.sh SOURCE
set -eu
cd "$1"

# As doxygen gets the header: a comment stands before each call.
silent=$(awk -f docs/reference/filter.awk kulplatform/kulgui/kulgui.h |
    awk '/^KULGUI_API/ && last !~ /\*\/$/ { print } { last = $0 }')
[ -z "$silent" ] || {
    echo "of these nothing is said in the header:" "$silent" >&2
    exit 1
}
