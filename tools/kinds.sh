#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints the page that shows each kind: its picture beside the program that makes it.
set -eu
cd "$(dirname "$0")/.."
cat <<'TEXT'
# The kinds, one by one

Nine kinds of components take the focus, from the menu to the text box; seven kinds of items, behind
them, only show. Each is a whole program here, with the screen that it shows on a terminal of 40 columns
and 9 rows; what is told by a colour alone is not seen. `./dev build` makes it as
`build/release/examples/kinds/NAME`; its keys and calls are told in
[kulgui.h](../kulplatform/kulgui/kulgui.h) and, once they are installed, by `man kulNAME`.

This page is made by `./dev pictures`.
TEXT
for kind in menu dynmenu descrmenu button toolbar checkbox options fileview textbox \
    statbar scrollbar progbar descrfield box line label; do
    printf '\n## %s\n\n```\n' "$kind"
    head -n 9 "tests/pictures/$kind-linux-40x9.txt"
    printf '```\n\n```c\n'
    cat "examples/kinds/$kind.c"
    printf '```\n'
done
