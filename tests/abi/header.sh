#!/bin/sh
# SPDX-License-Identifier: MIT
# Compiles the public header alone, as C99 and as C++17, without a warning.
# usage: header.sh HEADER CC CXX
set -eu
header=$1 cc=$2 cxx=$3
warnings="-Wall -Wextra -Werror -fsyntax-only"
# shellcheck disable=SC2086
{
    echo "#include \"$header\"" | "$cc" -std=c99 -pedantic $warnings -x c -
    echo "#include \"$header\"" | "$cxx" -std=c++17 $warnings -x c++ -
}
