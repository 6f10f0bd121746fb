#!/bin/sh
# SPDX-License-Identifier: MIT
# The lines of the library and of kuldialog that the fuzz targets' corpora reach, file by file.
# usage: coverage.sh FOLDER TARGET..., with programs that were built to be counted
set -eu
folder=$1
shift
for target in "$@"; do
    LLVM_PROFILE_FILE=$folder/$target.profraw "$folder/fuzz_$target" "tests/fuzz/corpus/$target" >/dev/null
    set -- "$@" -object "$folder/fuzz_$target"
    shift
done
shift # the first one is named without
llvm-profdata merge -o "$folder/all.profdata" "$folder"/*.profraw
llvm-cov report -instr-profile="$folder/all.profdata" -ignore-filename-regex=tests/ "$@" |
    awk '/%/ { printf "%-45s %6s lines %6s not reached %8s\n", $1, $8, $9, $10 }'
