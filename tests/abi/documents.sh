#!/bin/sh
# SPDX-License-Identifier: MIT
# Takes every whole program out of the documents, compiles it as strictly as a reader might, and looks
# at its first screen. None needs the inside of the header.
# usage: documents.sh SOURCE LIBRARY_FOLDER KULSHOT CC
set -eu
source=$1 library=$2 kulshot=$3 cc=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

awk '/^```c$/ { name = sprintf("%02d.c", ++number); next }
     /^```$/ { name = "" }
     name { print >name }' "$source/docs/guide.md" "$source/docs/cookbook.md"

count=0
for program in *.c; do
    grep -q 'int main' "$program" || continue
    "$cc" -std=c99 -pedantic -Wall -Wextra -Werror -DKULGUI_NO_INSIDE -I "$source/kulplatform/kulgui" "$program" -o program \
        -L "$library" -Wl,-rpath,"$library" -lkulgui
    if ! "$kulshot" --size 80x24 -- ./program >screen || ! grep -q '─' screen; then
        cat "$program" screen
        exit 1
    fi
    count=$((count + 1))
done
echo "$count programs"
[ "$count" -ge 15 ]
