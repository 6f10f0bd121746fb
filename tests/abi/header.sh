#!/bin/sh
# SPDX-License-Identifier: MIT
# Compiles the public header alone in every language that programs on it are written in, by every
# compiler that is named, without a warning: whole, and without the inside, whose names are the
# program's own then.
# usage: header.sh HEADER COMPILER...
set -eu
header=$1
shift

whole='int look(WINDOW* win) { Fill(win, 0, 0, 1, 1, BLUE_WHITE); return Poll(1); }'
without='#define KULGUI_NO_INSIDE'
own='struct Poll { int Fill; }; enum { BOX, LINE, LINES, COLS };
double Inkeys(struct Poll* p) { return p->Fill + NCursesEnv(0) + GetCurrentSelection()->nSelect; }'
for compiler in "$@"; do
    for standard in c99 c11 c17 c++11 c++20; do
        language=c
        case $standard in c++*) language=c++ ;; esac
        printf '%s\n' "#include \"$header\"" "$whole" | "$compiler" -std=$standard -x $language -Wall -Wextra \
            -pedantic -Werror -fsyntax-only -
        printf '%s\n' "$without" "#include \"$header\"" "$own" | "$compiler" -std=$standard -x $language -Wall \
            -Wextra -pedantic -Werror -fsyntax-only -
    done
done
