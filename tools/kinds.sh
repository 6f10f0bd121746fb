#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints the page that shows each kind: its picture beside the program that makes it.
set -eu
cd "$(dirname "$0")/.."
cat <<'TEXT'
# The kinds, one by one

Each is a whole program; `./dev build` makes it as `build/release/examples/kinds/NAME`. This page and
its pictures are made by `./dev pictures`.
TEXT
for kind in menu dynmenu descrmenu button toolbar checkbox options fileview textbox \
    statbar scrollbar progbar descrfield box line label; do
    printf '\n## %s\n\n```\n' "$kind"
    sed '/^$/,$d' "tests/pictures/$kind-linux-40x9.txt"
    printf '```\n\n```c\n'
    cat "examples/kinds/$kind.c"
    printf '```\n'
done
