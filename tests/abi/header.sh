#!/bin/sh
# SPDX-License-Identifier: MIT
# Compiles the public header alone in every language that programs on it are written in, by every
# compiler that is named, without a warning.
# usage: header.sh HEADER COMPILER...
set -eu
header=$1
shift
for compiler in "$@"; do
    for standard in c99 c11 c17 c++11 c++20; do
        language=c
        case $standard in c++*) language=c++ ;; esac
        echo "#include \"$header\"" | "$compiler" -std=$standard -x $language -Wall -Wextra -pedantic \
            -Werror -fsyntax-only -
    done
done
